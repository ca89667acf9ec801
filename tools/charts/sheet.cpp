#include "sheet.h"

#include "ticks.h"

#include <cmath>

using charts::Frame;
using charts::Measure;
using charts::Sex;

namespace
{

constexpr double twoYears = 730;
constexpr double fiveYears = 1826;
constexpr double tenYears = 3653;

/// A line may lie a little past the frame's end, where the next whole month or value is.
constexpr double overhang = px(1);

const QStringList sevenPercentiles{"P3", "P10", "P25", "P50", "P75", "P90", "P97"};
const QStringList fivePercentiles{"P3", "P15", "P50", "P85", "P97"};

QColor inkOf(Sex sex)
{
    return sex == Sex::Boys ? QColor(0x1f, 0x5f, 0x99) : QColor(0x1e, 0x76, 0x69);
}

QString sexInTables(Sex sex)
{
    return sex == Sex::Boys ? "varones" : "mujeres";
}

QString sexInTitle(Sex sex)
{
    return sex == Sex::Boys ? "Niños" : "Niñas";
}

QString axisTitle(Measure measure)
{
    switch (measure) {
    case Measure::Peso:
    case Measure::PesoParaTalla:
        return "Peso (kg)";
    case Measure::Talla:
        return "Talla (cm)";
    case Measure::Pc:
        return "Perímetro cefálico (cm)";
    case Measure::Imc:
        return "IMC (kg/m²)";
    }
    return {};
}

QString titleOf(Measure measure)
{
    switch (measure) {
    case Measure::Peso:
        return "Peso para la edad";
    case Measure::PesoParaTalla:
        return "Peso para la talla";
    case Measure::Talla:
        return "Talla para la edad";
    case Measure::Pc:
        return "Perímetro cefálico para la edad";
    case Measure::Imc:
        return "Índice de masa corporal para la edad";
    }
    return {};
}

/// Length lying to the second birthday, height standing from the day after it: the step between is real.
std::vector<Slice> lyingThenStanding(const QString &table, double until)
{
    std::vector<Slice> slices{{table, 0, twoYears, "acostado"}};
    if (until > twoYears)
        slices.push_back({table, twoYears + 1, std::min(until + 2 * daysOfMonth, fiveYears), "de pie"});
    return slices;
}

/// Which reference draws a measure from birth until an age. Weight past ten years exists in one reference
/// only, which therefore draws the whole of such a chart.
std::vector<Slice> referencesOf(Measure measure, double until)
{
    const double reach = until + 2 * daysOfMonth;
    switch (measure) {
    case Measure::Peso:
        if (until > tenYears)
            return {{"cdc_peso_0_20", 0, reach}};
        if (until > fiveYears)
            return {{"oms_peso_0_5", 0, fiveYears, "OMS 2006"},
                    {"oms2007_peso_5_10", fiveYears, reach, "OMS 2007"}};
        return {{"oms_peso_0_5", 0, reach}};
    case Measure::Talla: {
        auto slices = lyingThenStanding("oms_talla_0_5", until);
        if (until > fiveYears)
            slices.push_back({"oms2007_talla_5_19", fiveYears, reach});
        return slices;
    }
    case Measure::Pc:
        if (until > fiveYears)
            return {{"oms_pc_0_5", 0, fiveYears, "OMS"}, {"flandes_pc_0_18", fiveYears, reach, "Flandes"}};
        return {{"oms_pc_0_5", 0, reach}};
    case Measure::Imc:
        return lyingThenStanding("oms_imc_0_5", until);
    case Measure::PesoParaTalla:
        break;
    }
    return {};
}

/// The first whole fine step whose line lies at or above `lowest`.
double bottomOf(Measure measure, const Frame &frame, double lowest)
{
    const double step = fineStep(measure, frame);
    const double value = std::ceil(charts::valueAt(frame, lowest) / step - 1e-6) * step;
    return charts::mapped(frame, 0, std::max(value, 0.0)).y();
}

/// The part of a frame between two places across, from its top down to the last line above `lowest`.
QRectF areaOf(Measure measure, const Frame &frame, double left, double right, double lowest)
{
    return QRectF(QPointF(left, frame.box.top()), QPointF(right, bottomOf(measure, frame, lowest)));
}

Plot plotOf(Measure measure, const Frame &frame, const QRectF &area)
{
    Plot plot;
    plot.measure = measure;
    plot.frame = frame;
    plot.area = area;
    plot.up = valueTicks(measure, frame, charts::valueAt(frame, area.bottom()),
                         charts::valueAt(frame, area.top() - overhang));
    plot.upTitle = axisTitle(measure);
    return plot;
}

Plot agePlot(Measure measure, const Frame &frame, const QRectF &area)
{
    Plot plot = plotOf(measure, frame, area);
    const double last = std::round(charts::acrossAt(frame, area.right()));
    plot.across = ageTicks(frame, charts::acrossAt(frame, area.left()), last);
    plot.slices = referencesOf(measure, last);
    return plot;
}

// ---- the classical charts

/// The room that ages and the title of their axis take below a plot.
constexpr double footOfClassical = px(36);
/// The lowest value shown where a chart of height reaches so far down that only the ages fit below it.
constexpr double shortestBaby = 45;

QRectF areaOf(const charts::Panel &panel, double height)
{
    const QRectF &box = panel.frame.box;
    QRectF area = areaOf(panel.measure, panel.frame, box.left(), box.right(), height - footOfClassical);
    const double birth = charts::mapped(panel.frame, 0, shortestBaby).y();
    if (panel.measure == Measure::Talla && birth < height)
        area.setBottom(std::max(area.bottom(), birth));
    return area;
}

Sheet onePanel(const charts::ClassicalChart &chart)
{
    const charts::Panel &panel = chart.panels.front();
    const QRectF area = areaOf(panel, chart.pictureBox.height());
    Sheet sheet;
    sheet.plots = {agePlot(panel.measure, panel.frame, area)};
    const bool toNineteen = panel.frame.fullWidth > tenYears;
    sheet.title = titleOf(panel.measure);
    sheet.subtitle =
        sexInTitle(chart.sex) + (toNineteen ? ", nacimiento a 19 años" : ", nacimiento a 6 años");
    sheet.source =
        panel.measure == Measure::Peso && toNineteen ? "Fuente: CDC 2000" : "Fuente: OMS 2006 y OMS 2007";
    sheet.acrossTitle = "Edad (años)";
    return sheet;
}

/// To two years on the left, the rest beside it, each in its own frame.
Sheet headPanels(const charts::ClassicalChart &chart)
{
    const Frame &young = chart.panels[0].frame;
    const Frame &old = chart.panels[1].frame;
    const double lowest = chart.pictureBox.height() - footOfClassical;
    const double seam = young.box.right();
    Sheet sheet;
    sheet.plots = {agePlot(Measure::Pc, young, areaOf(Measure::Pc, young, young.box.left(), seam, lowest)),
                   agePlot(Measure::Pc, old, areaOf(Measure::Pc, old, seam, old.box.right(), lowest))};
    sheet.plots[0].namesCurves = false;
    for (Tick &tick : sheet.plots[1].up)
        tick.label.clear();
    sheet.plots[1].upTitle.clear();
    sheet.title = "Perímetro cefálico";
    sheet.subtitle = sexInTitle(chart.sex) + ", nacimiento a 18 años";
    sheet.source = "Fuente: OMS 2007 hasta los 5 años;\nRoelants 2009 (Flandes) después";
    sheet.acrossTitle = "Edad (meses hasta los 2 años, después en años)";
    return sheet;
}

/// One percentile of the first year as a line along the chart.
QPolygonF alongCurve(const Plot &plot, const QString &percentile, const QDir &tables, const QString &sex)
{
    const Curve curve = readPercentiles(tables, plot.slices.front(), sex).at(percentile);
    QPolygonF line;
    for (double days = 0; days <= plot.frame.fullWidth; days += 1)
        line << charts::mapped(plot.frame, days, curve.at(days));
    return line;
}

/// Halfway between two such lines.
QPolygonF between(const QPolygonF &above, const QPolygonF &below)
{
    QPolygonF line;
    for (qsizetype i = 0; i < above.size(); ++i)
        line << (above[i] + below[i]) / 2;
    return line;
}

QPainterPath bandBetween(QPolygonF top, const QPolygonF &bottom)
{
    for (auto point = bottom.rbegin(); point != bottom.rend(); ++point)
        top << *point;
    QPainterPath path;
    path.addPolygon(top);
    path.closeSubpath();
    return path;
}

QPolygonF horizontal(const QRectF &area, double y)
{
    return QPolygonF({{area.left(), y}, {area.right(), y}});
}

Sheet newborn(const charts::ClassicalChart &chart, const QDir &tables)
{
    const Frame &weight = chart.panels[0].frame;
    const Frame &length = chart.panels[1].frame;
    const QRectF all(weight.box.topLeft(), QPointF(weight.box.right(), charts::mapped(length, 0, 26).y()));
    Sheet sheet;
    sheet.plots = {agePlot(Measure::Peso, weight, all), agePlot(Measure::Talla, length, all),
                   agePlot(Measure::Pc, length, all)};
    const QString sex = sexInTables(chart.sex);
    const auto edge = [&](int plot, const QString &percentile) {
        return alongCurve(sheet.plots[plot], percentile, tables, sex);
    };
    // Kilograms and centimetres share the picture: the lines of each end where the other's curves begin.
    const QPolygonF middle = between(edge(1, "P3"), edge(2, "P97"));
    sheet.plots[0].gridClip = bandBetween(horizontal(all, all.top() - overhang), edge(0, "P3"));
    sheet.plots[1].gridClip = bandBetween(edge(1, "P97"), middle);
    sheet.plots[2].gridClip = bandBetween(middle, horizontal(all, all.bottom() + overhang));
    sheet.plots[2].upTitle = "P. cefálico (cm)";
    sheet.plots[0].ink = QColor(0x3d, 0x55, 0x6e);
    sheet.plots[1].ink = QColor(0x2a, 0x7a, 0x57);
    sheet.plots[2].ink = QColor(0x86, 0x66, 0x2c);
    for (Plot &plot : sheet.plots) {
        plot.percentiles = fivePercentiles;
        plot.valuesAtRight = plot.measure != Measure::Peso;
        if (plot.measure != Measure::Peso)
            plot.across.clear();
    }
    sheet.title = "Primer año de vida";
    sheet.subtitle = sexInTitle(chart.sex) + ", nacimiento a 12 meses";
    sheet.source = "Fuente: OMS 2006 y OMS 2007\n\nPuntos del paciente:\nrojo, peso\nnegro, talla\nazul, "
                   "perímetro cefálico";
    sheet.acrossTitle = "Edad (meses)";
    return sheet;
}

} // namespace

Sheet plan(const charts::ClassicalChart &chart, const QDir &tables)
{
    const bool isNewborn = chart.panels.size() == 3;
    Sheet sheet = isNewborn                  ? newborn(chart, tables)
                  : chart.panels.size() == 2 ? headPanels(chart)
                                             : onePanel(chart);
    sheet.file = chart.picture.toString();
    sheet.size = chart.pictureBox.size();
    sheet.sex = sexInTables(chart.sex);
    sheet.titlePlace = isNewborn ? TitlePlace::BesideThePlot : TitlePlace::InThePlot;
    if (!isNewborn)
        for (Plot &plot : sheet.plots) {
            plot.percentiles = sevenPercentiles;
            plot.ink = inkOf(chart.sex);
        }
    return sheet;
}

// ---- the charts of the World Health Organization

namespace
{

/// About where the curves begin in every one of these pictures, whatever age that is.
constexpr double leftOfWho = 1065;
constexpr double footOfWho = px(46);

/// The age or height next to the usual left edge at which a chart begins.
double beginning(const Frame &frame, double unit)
{
    return std::round(charts::acrossAt(frame, leftOfWho) / unit) * unit;
}

Plot whoPlot(const charts::WhoChart &chart, const Frame &frame)
{
    const bool byHeight = chart.measure == Measure::PesoParaTalla;
    const double unit = byHeight ? 5 : 6 * daysOfMonth;
    const double first = beginning(frame, unit);
    const double left = charts::mapped(frame, first, 0).x();
    const QRectF area =
        areaOf(chart.measure, frame, left, frame.box.right(), charts::whoPictureBox.height() - footOfWho);
    if (!byHeight)
        return agePlot(chart.measure, frame, area);
    Plot plot = plotOf(chart.measure, frame, area);
    plot.across = heightTicks(first, frame.fullWidth);
    plot.slices = {{chart.lowestDays == 0 ? "oms_peso_longitud" : "oms_peso_talla", first, frame.fullWidth}};
    return plot;
}

QString agesOf(QStringView text)
{
    static const QString girls = "niñas ";
    static const QString boys = "niños ";
    const auto sex = std::max(text.indexOf(girls), text.indexOf(boys));
    return text.mid(sex + girls.size()).toString();
}

} // namespace

Sheet plan(const charts::WhoChart &chart)
{
    Frame frame = chart.frame;
    frame.box.translate(-charts::whoPictureBox.topLeft());
    Sheet sheet;
    sheet.file = "oms/" + chart.picture.toString() + ".jpg";
    sheet.size = charts::whoPictureBox.size();
    sheet.sex = sexInTables(chart.sex);
    sheet.title = titleOf(chart.measure);
    sheet.subtitle = sexInTitle(chart.sex) + ", " + agesOf(chart.text);
    sheet.source = "Fuente: Organización Mundial de la Salud, 2006";
    sheet.titlePlace = TitlePlace::AboveThePlot;
    sheet.plots = {whoPlot(chart, frame)};
    sheet.plots.front().percentiles = fivePercentiles;
    sheet.plots.front().ink = inkOf(chart.sex);
    if (chart.measure != Measure::PesoParaTalla)
        sheet.acrossTitle = frame.fullWidth > twoYears ? "Edad (años y meses)" : "Edad (meses)";
    else
        sheet.acrossTitle = chart.lowestDays == 0 ? "Longitud, acostado (cm)" : "Talla, de pie (cm)";
    return sheet;
}
