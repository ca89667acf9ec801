#pragma once

#include "catalogues.h"
#include "clinicalpictures.h"
#include "datafile.h"
#include "names.h"

#include <map>
#include <vector>

/// What is found and written down on examining a child.
namespace practica
{

struct Child {
    int ageInDays;
    bool boy;
    int heartRate;

    double months() const { return ageInDays * 12 / 365.25; }
};

class Examination
{
public:
    /// Throws std::runtime_error when a table names an item, a symptom or a diagnosis that does not exist.
    explicit Examination(const Catalogues &catalogues);

    /// All items in the order of their fields, blank where nothing was written.
    std::vector<consultas::Hallazgo> of(const Child &child, const Episode &episode, Dice &dice) const;

private:
    struct Text {
        Ages ages;
        double share, shareOfSick;
        QStringList texts;
    };
    struct Item {
        QString title;
        std::size_t box;
        std::vector<Text> normal;
        std::multimap<QString, Text> findings; ///< by symptom or diagnosis
    };
    Item &item(const QString &title);
    /// What is written when the box's thoroughness is this, from 0, which writes all, to 1.
    static QString written(const Item &item, const Child &child, const Episode &episode, double thoroughness,
                           Dice &dice);

    std::vector<Item> items_;
};

int usualHeartRate(int ageInDays);
int usualBreaths(int ageInDays);

} // namespace practica
