#include "growth.h"

#include "csv.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace practica
{

namespace
{

constexpr int lastDayOfInfancyTables = 1826;

} // namespace

Growth::Growth(const QString &dataFolder)
{
    const auto table = [&](const char *name, Table(&tables)[2], double fromDays) {
        read(dataFolder, QString::fromUtf8(name), tables[1], tables[0], fromDays);
    };
    table("oms_peso_0_5", weight_, 0);
    table("cdc_peso_0_20", weight_, lastDayOfInfancyTables + 1);
    table("oms_talla_0_5", height_, 0);
    table("oms2007_talla_5_19", height_, lastDayOfInfancyTables + 1);
    table("oms_pc_0_5", head_, 0);
    table("flandes_pc_0_18", head_, lastDayOfInfancyTables + 1);
}

/// Appends the rows from an age on, so that one table takes over where another ends.
void Growth::read(const QString &dataFolder, const QString &name, Table &boys, Table &girls, double fromDays)
{
    for (const auto &[sex, rows] :
         {std::pair<QString, Table *>{u"varones"_s, &boys}, {u"mujeres"_s, &girls}}) {
        const CsvTable csv = readCsv(u"%1/crecimiento/%2_%3.csv"_s.arg(dataFolder, name, sex));
        const qsizetype days = csv.column(u"dias"_s), l = csv.column(u"L"_s), m = csv.column(u"M"_s),
                        s = csv.column(u"S"_s);
        for (const QStringList &row : csv.rows)
            if (row[days].toDouble() >= fromDays)
                rows->push_back(
                    {row[days].toDouble(), row[l].toDouble(), row[m].toDouble(), row[s].toDouble()});
    }
}

double Growth::value(const Table &table, int days, double deviations)
{
    const auto after =
        std::find_if(table.begin(), table.end(), [&](const Row &row) { return row.days >= days; });
    if (after == table.end())
        return 0;
    const Row &row = *after;
    return row.l == 0 ? row.m * std::exp(row.s * deviations)
                      : row.m * std::pow(std::max(0.01, 1 + row.l * row.s * deviations), 1 / row.l);
}

Growth::Channel Growth::channel(Dice &dice)
{
    std::normal_distribution<double> deviation(0, 0.9);
    const double size = deviation(dice); // tall children are heavy, and their heads large
    return {0.7 * size + 0.7 * deviation(dice), size, 0.6 * size + 0.8 * deviation(dice)};
}

Growth::Measures Growth::at(int days, bool boy, const Channel &channel, Dice &dice) const
{
    std::normal_distribution<double> noise(0, 0.12);
    const int sex = boy ? 1 : 0;
    return {std::round(value(weight_[sex], days, channel.weight + noise(dice)) / 10) * 10,
            std::round(value(height_[sex], days, channel.height + noise(dice)) * 2) / 2,
            std::round(value(head_[sex], days, channel.head + noise(dice)) * 2) / 2};
}

} // namespace practica
