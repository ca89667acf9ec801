#include "paediatrics/control/panAlimentacion.h"

#include "platform/basic/environment.h"

using namespace Qt::StringLiterals;
using namespace forms;

panAlimentacion::panAlimentacion()
    : RenglonesDelPaciente({.ventana = u"panAlimentacion"_s,
                            .titulo = u"Tolerancia Alimentaria del paciente"_s,
                            .tabla = u"Alimentacion"_s,
                            .columnaDePaciente = u"paciente"_s,
                            .columnaDeNombre = u"Alimento"_s,
                            .siONo = u"tolerado"_s,
                            .rotulo = u"Ali&mento"_s,
                            .sugerencias = {u"Pecho materno"_s, u"Leche de fórmula"_s, u"Leche de vaca"_s,
                                            u"Cereales sin gluten"_s, u"Cereales con gluten"_s, u"Frutas"_s,
                                            u"Verduras"_s, u"Carne"_s, u"Pescado"_s, u"Huevo"_s,
                                            u"Legumbres"_s, u"Yogur"_s, u"Quesos"_s, u"Frutos secos"_s},
                            .columnas = {{u"Alimento"_s, u"Alimento"_s, {}, 190},
                                         {u"Tiempo"_s, u"Tiempo"_s, {}, 120},
                                         {u"Tolera"_s, u"SiONo"_s, {}, 80},
                                         {u"Fecha"_s, u"fecha"_s, u"dd/mm/yyyy"_s, 90},
                                         {u"Observaciones"_s, u"observaciones"_s, {}, 200}}})
{
    Data1.bind(Text1, u"Tiempo"_s);
    Data1.bind(mFecha, u"fecha"_s);
    Data1.bind(Check1, u"tolerado"_s);
    Data1.bind(Text2, u"observaciones"_s);
    Text2.setMaximumHeight(90);
    disponer(Column{Fields{{u"&Tiempo :"_s, Text1}, {u"&Fecha :"_s, Row{mFecha, Check1, Stretch()}}},
                    Above(u"&Observaciones :"_s, Text2)},
             {&Text1, &mFecha, &Check1, &Text2});
}

/// A food is tolerated until it is seen that it is not.
void panAlimentacion::comenzar(dao::Recordset &fila)
{
    fila[u"tolerado"] = true;
    fila[u"fecha"] = basic::today();
}

QString panAlimentacion::enPalabras(dao::Recordset &fila) const
{
    return u"%1   %2   %3   %4   %5"_s.arg(fila[u"fecha"].text(), fila[u"Alimento"].text(),
                                           fila[u"tolerado"].truth() ? u"lo tolera"_s : u"NO lo tolera"_s,
                                           fila[u"Tiempo"].text(), fila[u"observaciones"].text());
}

#include "moc_panAlimentacion.cpp"
