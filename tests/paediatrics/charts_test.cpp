#include "paediatrics/charts/chartcatalogue.h"
#include "paediatrics/charts/marcadores.h"
#include "paediatrics/charts/palabras.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QMap>
#include <QSet>

#include <cmath>

using charts::Measure;
using charts::Panel;

TEST(ChartMapping, placesMeasuresInTheFrameOfTheirChart)
{
    const Panel &weight = charts::classicalChart(u"panPercenPeso")->panels.front();
    const QPointF newborn = charts::mapped(weight.frame, 0, 3000);
    EXPECT_DOUBLE_EQ(newborn.x(), 585);
    EXPECT_NEAR(newborn.y(), 6983.3, 0.05);

    // Nothing is clipped: neither before birth nor beyond the oldest age nor above the highest value.
    EXPECT_LT(charts::mapped(weight.frame, -10, 3000).x(), 585);
    EXPECT_GT(charts::mapped(weight.frame, 8000, 3000).x(), 585 + 6375);
    EXPECT_LT(charts::mapped(weight.frame, 0, 90000).y(), 240);

    const charts::Frame &weightForHeight = charts::whoCharts()[28].frame;
    EXPECT_NEAR(charts::mapped(weightForHeight, 110, 23000).x(), 12975, 1e-6);
    EXPECT_NEAR(charts::mapped(weightForHeight, 110, 23000).y(), 360, 1e-6);
}

TEST(ChartMapping, panelDependsOnMeasureAndAge)
{
    const auto &head = *charts::classicalChart(u"panperPCNinos");
    EXPECT_EQ(charts::panelFor(head, Measure::Pc, 730), &head.panels[0]);
    EXPECT_EQ(charts::panelFor(head, Measure::Pc, 731), &head.panels[1]);

    const auto &newborn = *charts::classicalChart(u"panPerTodoNenas");
    EXPECT_NE(charts::panelFor(newborn, Measure::Pc, 365), nullptr);
    EXPECT_EQ(charts::panelFor(newborn, Measure::Pc, 366), nullptr);
    EXPECT_NE(charts::panelFor(newborn, Measure::Talla, 4000), nullptr);
    EXPECT_EQ(charts::classicalChart(u"panMuesCurvas"), nullptr);
}

namespace
{

/// A row of a reference table: where it lies across, and the printed value of each percentile.
struct Row {
    double across;
    QMap<QString, double> percentiles;
};

std::vector<Row> readTable(const QString &table, double from, double to)
{
    QFile file(QStringLiteral(CHART_TABLES "/%1.csv").arg(table));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(table);
    const QStringList columns = QString::fromUtf8(file.readLine()).trimmed().split(u',');
    std::vector<Row> rows;
    while (!file.atEnd()) {
        const QStringList cells = QString::fromUtf8(file.readLine()).trimmed().split(u',');
        Row row{cells.front().toDouble(), {}};
        for (qsizetype i = 4; i < columns.size(); ++i)
            row.percentiles[columns[i]] = cells[i].toDouble();
        // At the second birthday a dashed line crosses the curves of height.
        if (row.across >= from && row.across <= to && row.across != 730 && row.across != 731)
            rows.push_back(row);
    }
    return rows;
}

/// A chart picture, in twips of the control that shows it.
class Picture
{
public:
    Picture(const QString &file, QRectF box)
        : m_image(QStringLiteral(CHART_PICTURES "/%1").arg(file)), m_box(box)
    {
        EXPECT_FALSE(m_image.isNull()) << qPrintable(file);
        m_scale = m_image.width() / box.width();
    }

    /// The darkest pixel within `reach` screen pixels above and below a point.
    int darkness(QPointF twips, double reach) const
    {
        const QPointF place = (twips - m_box.topLeft()) * m_scale;
        const int x = qRound(place.x());
        int darkest = 255;
        for (int y = qRound(place.y() - 2 * reach); y <= qRound(place.y() + 2 * reach); ++y)
            if (m_image.rect().contains(x, y))
                darkest = std::min(darkest, qGray(m_image.pixel(x, y)));
        return darkest;
    }

private:
    QImage m_image;
    QRectF m_box;
    double m_scale = 0;
};

/// Any curve is darker than this, any line of the grid and any tint lighter.
constexpr int curveOrGrid = 160;

/// Every row of the table is looked for in the picture: each curve at its place, and paper halfway between
/// two curves that lie well apart. Tells how many places were looked at.
int compare(const Picture &picture, const charts::Frame &frame, const QStringList &percentiles,
            const std::vector<Row> &rows)
{
    int places = 0;
    for (const Row &row : rows) {
        std::optional<QPointF> lower;
        for (const QString &percentile : percentiles) {
            const QPointF place = charts::mapped(frame, row.across, row.percentiles[percentile]);
            if (place.y() < frame.box.top() + 15 || place.x() > frame.box.right() - 15)
                break;
            EXPECT_LT(picture.darkness(place, 0.5), curveOrGrid)
                << qPrintable(percentile) << " at " << row.across;
            if (lower && lower->y() - place.y() > 12 * 15) {
                EXPECT_GT(picture.darkness((*lower + place) / 2, 0.5), curveOrGrid)
                    << "under " << qPrintable(percentile) << " at " << row.across;
            }
            lower = place;
            ++places;
        }
    }
    return places;
}

const QStringList seven{"P3", "P10", "P25", "P50", "P75", "P90", "P97"};
const QStringList five{"P3", "P15", "P50", "P85", "P97"};

struct Reference {
    QString form;
    std::size_t panel;
    QString table;
    double from, to;
};

} // namespace

TEST(ChartPictures, curvesOfTheClassicalChartsLieWhereMeasuresAreDrawn)
{
    // Ages at which a grid line of a whole year or a change of reference crosses are left to their
    // neighbours.
    const std::vector<Reference> references{
        {"panPercenPeso", 0, "cdc_peso_0_20_varones", 100, 6930},
        {"panPerPesoNenas", 0, "cdc_peso_0_20_mujeres", 100, 6930},
        {"panPerTallaNinos", 0, "oms_talla_0_5_varones", 100, 700},
        {"panPerTallaNinos", 0, "oms2007_talla_5_19_varones", 1870, 6930},
        {"panPerTallaNenas", 0, "oms_talla_0_5_mujeres", 740, 1780},
        {"panPerTallaNenas", 0, "oms2007_talla_5_19_mujeres", 1870, 6930},
        {"panPerPesoninos6", 0, "oms_peso_0_5_varones", 50, 1780},
        {"panPerPesoninos6", 0, "oms2007_peso_5_10_varones", 1870, 2180},
        {"panPerPesoNenas6", 0, "oms_peso_0_5_mujeres", 50, 1780},
        {"panPerPesoNenas6", 0, "oms2007_peso_5_10_mujeres", 1870, 2180},
        {"panPerTallaNinos6", 0, "oms_talla_0_5_varones", 50, 1780},
        {"panPerTallaNinos6", 0, "oms2007_talla_5_19_varones", 1870, 2180},
        {"panPerTallaNenas6", 0, "oms_talla_0_5_mujeres", 50, 1780},
        {"panPerTallaNenas6", 0, "oms2007_talla_5_19_mujeres", 1870, 2180},
        {"panperPCNinos", 0, "oms_pc_0_5_varones", 20, 720},
        {"panperPCNinos", 1, "flandes_pc_0_18_varones", 1870, 6540},
        {"panPerPcNenas", 0, "oms_pc_0_5_mujeres", 20, 720},
        {"panPerPcNenas", 1, "oms_pc_0_5_mujeres", 850, 1780},
        {"panPerTodoNenes", 0, "oms_peso_0_5_varones", 20, 360},
        {"panPerTodoNenes", 1, "oms_talla_0_5_varones", 20, 360},
        {"panPerTodoNenes", 2, "oms_pc_0_5_varones", 20, 360},
        {"panPerTodoNenas", 0, "oms_peso_0_5_mujeres", 20, 360},
        {"panPerTodoNenas", 1, "oms_talla_0_5_mujeres", 20, 360},
        {"panPerTodoNenas", 2, "oms_pc_0_5_mujeres", 20, 360},
    };
    QSet<QString> seen;
    for (const Reference &reference : references) {
        SCOPED_TRACE(qPrintable(reference.form + ' ' + reference.table));
        const charts::ClassicalChart &chart = *charts::classicalChart(reference.form);
        const Picture picture(chart.picture.toString(), QRectF(QPointF(), chart.pictureBox.size()));
        const QStringList &percentiles = chart.panels.size() == 3 ? five : seven;
        EXPECT_GT(compare(picture, chart.panels[reference.panel].frame, percentiles,
                          readTable(reference.table, reference.from, reference.to)),
                  20);
        seen << reference.form;
    }
    EXPECT_EQ(seen.size(), qsizetype(charts::classicalCharts().size()));
}

TEST(ChartPictures, curvesOfTheWhoChartsLieWhereMeasuresAreDrawn)
{
    const QMap<Measure, QString> tables{
        {Measure::Talla, "oms_talla_0_5"}, {Measure::Peso, "oms_peso_0_5"}, {Measure::Imc, "oms_imc_0_5"}};
    for (const charts::WhoChart &chart : charts::whoCharts()) {
        SCOPED_TRACE(qPrintable(chart.text.toString()));
        const QString table = chart.measure != Measure::PesoParaTalla ? tables[chart.measure]
                              : chart.lowestDays == 0                 ? "oms_peso_longitud"
                                                                      : "oms_peso_talla";
        const double first = std::ceil(charts::acrossAt(chart.frame, 1200));
        const auto rows = readTable(table + (chart.sex == charts::Sex::Girls ? "_mujeres" : "_varones"),
                                    first, chart.frame.fullWidth);
        const Picture picture("oms/" + chart.picture.toString() + ".jpg", charts::whoPictureBox);
        EXPECT_GT(compare(picture, chart.frame, five, rows), 40);
    }
}

TEST(ChartLegend, aPersonReadsTheTipAndTheComment)
{
    charts::CapaDeMarcadores layer(nullptr, QPointF(0, 0));
    layer.poner(QPointF(1500, 1500), QStringLiteral("14/03/2024: 72,5 Cm. "), QStringLiteral("P40"));
    EXPECT_EQ(layer.drawnItems().front().toolTip, QStringLiteral("14/03/2024: 72,5 Cm. "));
    EXPECT_EQ(layer.leyendaEn(QPointF(100, 100)), QStringLiteral("14/03/2024: 72,5 Cm. \nP40"));
    EXPECT_EQ(layer.leyendaEn(QPointF(10, 10)), QString());
}

TEST(ChartLegend, eachMeasureIsReadInItsOwnReference)
{
    const charts::Toma oneYear{365, 9646, 75.7, 46.1};
    EXPECT_TRUE(
        charts::enPalabras(Measure::Peso, charts::Sex::Boys, oneYear).startsWith(QStringLiteral("P50")));
    EXPECT_TRUE(
        charts::enPalabras(Measure::Talla, charts::Sex::Boys, oneYear).contains(QStringLiteral("adecuada")));
    EXPECT_TRUE(charts::enPalabras(Measure::PesoParaTalla, charts::Sex::Boys, oneYear)
                    .endsWith(QStringLiteral("talla")));
    EXPECT_NE(charts::enPalabras(Measure::Peso, charts::Sex::Girls, oneYear),
              charts::enPalabras(Measure::Peso, charts::Sex::Boys, oneYear));
}
