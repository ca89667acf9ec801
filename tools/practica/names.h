#pragma once

#include <QString>
#include <QStringList>

#include <random>

/// Invented people and places, as they are met in a consulting room of Buenos Aires.
namespace practica
{

using Dice = std::mt19937;

struct Person {
    QString surname, names;
    bool boy;

    QString full() const { return surname + u' ' + names; }
};

Person person(Dice &dice);
QString surname(Dice &dice);
QString firstName(Dice &dice, bool boy);

struct Address {
    QString street, quarter, town, postcode;
};
Address address(Dice &dice);

const QStringList &coverages();
QString oneOf(Dice &dice, const QStringList &texts);
int between(Dice &dice, int lowest, int highest);
bool chance(Dice &dice, double probability);

} // namespace practica
