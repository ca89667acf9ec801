#include "examination.h"

#include "clinical/visits/examen.h"

#include <algorithm>
#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace consultas;

namespace practica
{

namespace
{

struct Rates {
    double fromMonths;
    int heart, breaths; ///< a minute, at rest
};
constexpr Rates rates[] = {{0, 140, 44},  {1, 138, 38}, {6, 128, 32}, {12, 118, 27},
                           {24, 108, 24}, {60, 96, 21}, {96, 86, 19}, {144, 76, 17}};

const Rates &ratesAt(int ageInDays)
{
    const double months = ageInDays * 12 / 365.25;
    const auto after = std::find_if(std::begin(rates), std::end(rates),
                                    [&](const Rates &row) { return row.fromMonths > months; });
    return *std::prev(after);
}

/// About the median of the age: a systolic pressure of 90 and twice the years.
QString bloodPressure(const Child &child, Dice &dice)
{
    const double years = child.months() / 12;
    const auto even = [&](double usual, int around) {
        return static_cast<int>(usual + between(dice, -around, around)) / 2 * 2;
    };
    return u"%1/%2"_s.arg(even(90 + 1.7 * years, 7)).arg(even(54 + 0.9 * years, 5));
}

QString expanded(QString text, const Child &child, Dice &dice)
{
    if (text == u"{ta}")
        return bloodPressure(child, dice);
    return gendered(text.replace(u"{fc}"_s, QString::number(child.heartRate)), child.boy);
}

} // namespace

int usualHeartRate(int ageInDays)
{
    return ratesAt(ageInDays).heart;
}

int usualBreaths(int ageInDays)
{
    return ratesAt(ageInDays).breaths;
}

Examination::Examination(const Catalogues &catalogues)
{
    std::vector<examen::Item> fields(examen::items().begin(), examen::items().end());
    std::sort(fields.begin(), fields.end(),
              [](const examen::Item &a, const examen::Item &b) { return a.indice < b.indice; });
    for (const examen::Item &field : fields)
        items_.push_back({QString::fromUtf8(field.titulo), static_cast<std::size_t>(field.marco), {}, {}});

    forEachRow(u"normales.csv"_s, [&](const DataRow &row) {
        item(row.text(u"titulo"_s))
            .normal.push_back(
                {row.ages(), row.share(u"control"_s), row.share(u"enfermo"_s), row.list(u"valores"_s)});
    });
    forEachRow(u"hallazgos.csv"_s, [&](const DataRow &row) {
        const QString name = row.text(u"entrada"_s);
        if (!catalogues.has(Sintomas, name) && !catalogues.has(Diagnosticos, name))
            throw std::runtime_error(u"a finding of nothing known: %1"_s.arg(name).toStdString());
        const double share = row.share(u"frecuencia"_s);
        item(row.text(u"titulo"_s))
            .findings.emplace(name, Text{row.ages(), share, share, row.list(u"valores"_s)});
    });
}

Examination::Item &Examination::item(const QString &title)
{
    const auto found = std::find_if(items_.begin(), items_.end(),
                                    [&](const Item &candidate) { return candidate.title == title; });
    if (found == items_.end())
        throw std::runtime_error(u"no item of the examination: %1"_s.arg(title).toStdString());
    return *found;
}

QString Examination::written(const Item &item, const Child &child, const Episode &episode,
                             double thoroughness, Dice &dice)
{
    const auto applies = [&](const Text &text) {
        return text.ages.holds(child.months()) &&
               thoroughness < (episode.healthy ? text.share : text.shareOfSick);
    };
    // The last diagnosis is the gravest; any says more than a symptom.
    for (const Grupo group : {Diagnosticos, Sintomas})
        for (auto entry = episode.entries[group].rbegin(); entry != episode.entries[group].rend(); ++entry) {
            const auto [first, last] = item.findings.equal_range(entry->nombre);
            for (auto finding = first; finding != last; ++finding)
                if (applies(finding->second))
                    return expanded(oneOf(dice, finding->second.texts), child, dice);
        }
    const auto normal = std::find_if(item.normal.begin(), item.normal.end(), applies);
    return normal == item.normal.end() ? QString() : expanded(oneOf(dice, normal->texts), child, dice);
}

std::vector<Hallazgo> Examination::of(const Child &child, const Episode &episode, Dice &dice) const
{
    std::array<double, static_cast<std::size_t>(examen::fichas * examen::marcosPorFicha)> thoroughness;
    for (double &box : thoroughness)
        box = std::uniform_real_distribution<double>(0, 1)(dice);
    std::vector<Hallazgo> findings;
    for (const Item &item : items_)
        findings.push_back({item.title, written(item, child, episode, thoroughness[item.box], dice)});
    return findings;
}

} // namespace practica
