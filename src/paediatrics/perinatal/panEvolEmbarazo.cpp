#include "paediatrics/perinatal/panEvolEmbarazo.h"

using namespace Qt::StringLiterals;
using namespace forms;

panEvolEmbarazo::panEvolEmbarazo() : Complemento(u"panEvolEmbarazo"_s, u"Evolución durante el embarazo"_s)
{
    disponer(Group(u"Enfermedades acaecidas, tratamientos, medicaciones, vacunas, etc."_s,
                   Column{Fields{{u"1º Trimestre "_s, campos_.texto(u"Salud primer trimestre"_s)},
                                 {u"2º Trimestre "_s, campos_.texto(u"Salud segundo trimestre"_s)},
                                 {u"3º Trimestre "_s, campos_.texto(u"Salud tercer trimestre"_s)}}}));
    setMinimumWidth(720);
}

#include "moc_panEvolEmbarazo.cpp"
