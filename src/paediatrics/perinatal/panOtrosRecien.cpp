#include "paediatrics/perinatal/panOtrosRecien.h"

using namespace Qt::StringLiterals;
using namespace forms;

panOtrosRecien::panOtrosRecien() : Complemento(u"panOtrosRecien"_s, u"Otros datos del recien Nacido"_s)
{
    constexpr int porRenglon = 3;
    const auto maniobras = [this](const QString &caption, const QString &columna) {
        return Group(caption, campos_.opciones(columna, porRenglon));
    };
    disponer(Column{
        Group(u"Maniobras especiales"_s,
              Column{maniobras(u"Respiración"_s, u"Maniobras especiales respiracion"_s),
                     maniobras(u"Cardíacas"_s, u"Maniobras especiales Cardiacas"_s),
                     maniobras(u"Metabólicas"_s, u"Maniobras especiales metabolicas"_s),
                     campos_.casilla(u"Maniobras especiales estimulo ext"_s, u"&Estímulo externo"_s),
                     Fields{{u"&Otras :"_s, campos_.texto(u"Maniobras especiales otras"_s)}}}),
        Group(u"Profilaxis"_s, Row{campos_.casilla(u"Profilaxis crede"_s, u"C&redé"_s),
                                   campos_.casilla(u"Profilaxis vitaminak"_s, u"&Vitaminak"_s), Stretch()}),
        Fields{{u"&Método de Higiene :"_s, campos_.texto(u"Metodos de Higiene recien nacido"_s)}},
    });
    setMinimumWidth(560);
}

#include "moc_panOtrosRecien.cpp"
