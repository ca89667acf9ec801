#pragma once

#include "paediatrics/charts/mapping.h"

#include <QRgb>
#include <QStringView>

#include <optional>
#include <span>
#include <vector>

/// The growth charts of the system and the calibration of their pictures, as tables of data.
namespace charts
{

enum class Sex { Boys, Girls };
/// The measures of the table Medidas, the body-mass index of a row, and weight set against height.
enum class Measure { Peso, Talla, Pc, Imc, PesoParaTalla };

/// One measure on the picture of a classical chart.
struct Panel {
    Measure measure;
    Frame frame;                      ///< in the coordinates of Picture1
    std::optional<int> lastDays = {}; ///< the oldest age that goes to this panel
    QRgb colour = qRgb(255, 0, 0);    ///< of the markers
};

struct ClassicalChart {
    QStringView form;
    QStringView picture; ///< file name below curvas/
    Sex sex;
    QRectF pictureBox; ///< Picture1, twips
    std::vector<Panel> panels;
    int radius;                   ///< of a marker, twips
    QStringView captionOfPatient; ///< followed by the patient's name
    QStringView captionOfAll;
    bool filtersSex;   ///< with all patients, only those of the chart's sex are drawn
    bool joinsPoints;  ///< a patient's points are joined by a line
    bool printsDoctor; ///< the professional's name is printed after "Dr. "
};

struct WhoChart {
    QStringView text;    ///< entry of the combo
    QStringView picture; ///< file name below curvas/oms/, without ".jpg"
    Sex sex;
    Measure measure;
    Frame frame;      ///< in the coordinates of the form
    QStringView unit; ///< closes a marker's tool tip
    int lowestDays = 0;
    std::optional<int> highestDays = {}; ///< beyond these ages a row isn't used; only in weight for height
};

std::span<const ClassicalChart> classicalCharts();
/// In the order of the combo: the position is the index.
std::span<const WhoChart> whoCharts();

/// Image1 of panCurvasOMS, which stretches every picture, in twips.
inline constexpr QRectF whoPictureBox{30, 0, 14340, 8370};

/// Null when the form is no classical chart.
const ClassicalChart *classicalChart(QStringView form);

/// The panel of `chart` that shows `measure` at that age; null when none does.
const Panel *panelFor(const ClassicalChart &chart, Measure measure, double days);

} // namespace charts
