#pragma once

#include "catalogues.h"
#include "clinicalpictures.h"
#include "examination.h"
#include "growth.h"
#include "patients.h"

#include "platform/dao/recordset.h"

/// The visits of the synthetic practice, written as the program writes them, each entered on its own day.
namespace practica
{

class VisitBook
{
public:
    /// Fills in the doses of the treatments, which the visits copy.
    VisitBook();

    void add(const Patient &patient, int ageInDays, const Growth::Measures &measures, bool examined,
             Dice &dice);

private:
    FirstAges firstAges_ = fillDoses();
    Catalogues catalogues_;
    ClinicalPictures pictures_{catalogues_, firstAges_};
    Examination examination_{catalogues_};
    std::map<QString, basic::Value> prices_;
    dao::Recordset visits_, findings_;
};

} // namespace practica
