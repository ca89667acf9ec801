#include "clinicalpictures.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace consultas;

namespace practica
{

namespace
{

constexpr double daysOfMonth = 365.25 / 12;
/// A younger child with fever is not seen here: it is sent to hospital.
constexpr double firstMonthWithFever = 3;
constexpr int midJuly = 196;

/// 1 in July, -1 in January.
double coldness(QDate day)
{
    return std::cos(2 * std::numbers::pi * (day.dayOfYear() - midJuly) / 365);
}

QString ageInWords(int days)
{
    if (days < 30)
        return u"%1 días"_s.arg(days);
    const int months = static_cast<int>(std::lround(days / daysOfMonth));
    if (months < 24)
        return months == 1 ? u"un mes"_s : u"%1 meses"_s.arg(months);
    return u"%1 años"_s.arg(static_cast<int>(days / 365.25));
}

double tenths(double value)
{
    return std::round(value * 10) / 10;
}

double from(Dice &dice, double lowest, double highest)
{
    return tenths(std::uniform_real_distribution<double>(lowest, highest)(dice));
}

bool contains(const std::vector<ports::Renglon> &entries, const ports::Renglon &entry)
{
    return std::find(entries.begin(), entries.end(), entry) != entries.end();
}

} // namespace

QString gendered(QString text, bool boy)
{
    return text.replace(u"{o}"_s, boy ? u"o"_s : u"a"_s);
}

ClinicalPictures::ClinicalPictures(const Catalogues &catalogues, const FirstAges &firstAges)
    : fever_(catalogues.entry(Sintomas, u"Fiebre"_s)), lowFever_(catalogues.entry(Sintomas, u"Febrícula"_s)),
      antipyretic_(choice(Tratamientos, u"Paracetamol/Ibuprofeno"_s, catalogues, firstAges))
{
    forEachRow(u"cuadros.csv"_s, [&](const DataRow &row) {
        Picture &picture = pictures_.emplace_back(Picture{{},
                                                          row.ages(),
                                                          row.number(u"frecuencia"_s),
                                                          row.number(u"invierno"_s),
                                                          row.number(u"fiebre"_s),
                                                          static_cast<int>(row.number(u"respiracion"_s)),
                                                          row.list(u"motivos"_s)});
        for (const auto &[group, column] : {std::pair{Sintomas, u"sintomas"_s},
                                            {Tratamientos, u"tratamientos"_s},
                                            {Diagnosticos, u"diagnosticos"_s}})
            for (const QString &text : row.list(column))
                picture.choices[group].push_back(choice(group, text, catalogues, firstAges));
    });
}

ClinicalPictures::Choice ClinicalPictures::choice(Grupo group, const QString &text,
                                                  const Catalogues &catalogues,
                                                  const FirstAges &firstAges) const
{
    QString names = text;
    Choice made{{}, 1};
    if (text.endsWith(u'%')) {
        const qsizetype blank = text.lastIndexOf(u' ');
        names = text.first(blank);
        made.share = text.sliced(blank + 1).chopped(1).toDouble() / 100;
    }
    for (const QString &name : names.split(u'/')) {
        Treated entry{catalogues.entry(group, name)};
        if (group == Tratamientos) {
            const auto age = firstAges.find(name);
            if (age == firstAges.end())
                throw std::runtime_error(u"no dose for %1"_s.arg(name).toStdString());
            entry.firstAge = age->second;
        }
        made.alternatives.push_back(entry);
    }
    return made;
}

const ClinicalPictures::Picture &ClinicalPictures::occurring(double months, QDate day, Dice &dice) const
{
    std::vector<double> weights;
    weights.reserve(pictures_.size());
    const double cold = coldness(day);
    for (const Picture &picture : pictures_)
        weights.push_back(picture.ages.holds(months) ? picture.weight * std::pow(picture.winter, cold / 2)
                                                     : 0);
    return pictures_[std::discrete_distribution<std::size_t>(weights.begin(), weights.end())(dice)];
}

void ClinicalPictures::add(Episode &episode, Grupo group, const Choice &choice, double months, Dice &dice)
{
    std::vector<ports::Renglon> possible;
    for (const Treated &alternative : choice.alternatives)
        if (months >= alternative.firstAge)
            possible.push_back(alternative);
    std::vector<ports::Renglon> &entries = episode.entries[group];
    if (possible.empty() || !chance(dice, choice.share) || entries.size() == ranuras)
        return;
    const ports::Renglon &chosen =
        possible[static_cast<std::size_t>(between(dice, 0, static_cast<int>(possible.size()) - 1))];
    if (!contains(entries, chosen))
        entries.push_back(chosen);
}

Episode ClinicalPictures::at(int ageInDays, bool boy, QDate day, Dice &dice) const
{
    const double months = ageInDays / daysOfMonth;
    const Picture &picture = occurring(months, day, dice);
    Episode episode{{}, {}, from(dice, 36.1, 36.9), picture.extraBreaths, false};
    for (const Grupo group : grupos)
        for (const Choice &choice : picture.choices[group])
            add(episode, group, choice, months, dice);

    std::vector<ports::Renglon> &symptoms = episode.entries[Sintomas];
    const bool fever = months >= firstMonthWithFever && chance(dice, picture.fever);
    if (fever) {
        episode.temperature = from(dice, 38, 39.6);
        std::erase(symptoms, lowFever_);
        if (!contains(symptoms, fever_) && symptoms.size() < ranuras)
            symptoms.push_back(fever_);
        const std::vector<ports::Renglon> &given = episode.entries[Tratamientos];
        const auto lowers = [&](const ports::Renglon &treatment) { return contains(given, treatment); };
        if (std::none_of(antipyretic_.alternatives.begin(), antipyretic_.alternatives.end(), lowers))
            add(episode, Tratamientos, antipyretic_, months, dice);
    } else if (contains(symptoms, lowFever_)) {
        episode.temperature = from(dice, 37.5, 37.9);
    }

    episode.motive = gendered(oneOf(dice, picture.motives), boy);
    episode.motive.replace(u"{n}"_s, QString::number(between(dice, 2, 4)));
    episode.motive.replace(u"{edad}"_s, ageInWords(ageInDays));
    if (fever && symptoms.front() != fever_ && chance(dice, 0.7))
        episode.motive += u", con fiebre"_s;
    episode.healthy = episode.entries[Diagnosticos].front().nombre == u"Niño sano";
    return episode;
}

} // namespace practica
