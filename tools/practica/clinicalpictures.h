#pragma once

#include "catalogues.h"
#include "datafile.h"
#include "names.h"

#include <QDate>

#include <vector>

/// What brings children to the consulting room.
namespace practica
{

/// One visit's reason and outcome.
struct Episode {
    consultas::Renglones entries;
    QString motive;
    double temperature;
    int extraBreaths; ///< a minute
    bool healthy;     ///< nothing but a check

    bool febrile() const { return temperature >= 38; }
};

class ClinicalPictures
{
public:
    /// Throws std::runtime_error when a picture names what the catalogues do not have, or a treatment without
    /// its first age.
    ClinicalPictures(const Catalogues &catalogues, const FirstAges &firstAges);

    Episode at(int ageInDays, bool boy, QDate day, Dice &dice) const;

private:
    struct Treated : ports::Renglon {
        double firstAge = 0;
    };
    struct Choice {
        std::vector<Treated> alternatives;
        double share;
    };
    struct Picture {
        std::array<std::vector<Choice>, consultas::grupos.size()> choices;
        Ages ages;
        double weight, winter, fever;
        int extraBreaths;
        QStringList motives;
    };
    Choice choice(consultas::Grupo group, const QString &text, const Catalogues &catalogues,
                  const FirstAges &firstAges) const;
    const Picture &occurring(double months, QDate day, Dice &dice) const;
    static void add(Episode &episode, consultas::Grupo group, const Choice &choice, double months,
                    Dice &dice);

    std::vector<Picture> pictures_;
    ports::Renglon fever_, lowFever_;
    Choice antipyretic_;
};

/// The text with `{o}` as the ending of a boy's word or a girl's.
QString gendered(QString text, bool boy);

} // namespace practica
