#include "paediatrics/control/panAdole.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

/// The first three are asked for by these very names: where the first is marked and one of the others is not,
/// the patient's page alarms.
const QStringList aspectos = {u"Mantiene relaciones sexuales"_s,
                              u"Prevencion de embarazo"_s,
                              u"Prevencion de ETS"_s,
                              u"Tabaquismo"_s,
                              u"Consumo de alcohol"_s,
                              u"Consumo de drogas"_s,
                              u"Trastornos de la alimentación"_s,
                              u"Trastornos del sueño"_s,
                              u"Estado de ánimo"_s,
                              u"Relación con la familia"_s,
                              u"Relación con los pares"_s,
                              u"Violencia o acoso"_s,
                              u"Uso de pantallas"_s,
                              u"Actividad física"_s,
                              u"Accidentes"_s};

} // namespace

panAdole::panAdole()
    : RenglonesDelPaciente({.ventana = u"panAdole"_s,
                            .titulo = u"Adolescencia"_s,
                            .tabla = u"Adolescente"_s,
                            .columnaDePaciente = u"paciente"_s,
                            .columnaDeNombre = u"aspecto"_s,
                            .siONo = u"Alarma"_s,
                            .rotulo = u"As&pecto"_s,
                            .sugerencias = aspectos,
                            .columnas = {{u"Aspecto"_s, u"aspecto"_s, {}, 260},
                                         {u"Alarma"_s, u"SiONo"_s, {}, 80},
                                         {u"Observaciones"_s, u"observaciones"_s, {}, 300}}})
{
    Data1.bind(Check1, u"Alarma"_s);
    Data1.bind(Text1, u"observaciones"_s);
    Check1.setToolTip(u"De las relaciones sexuales y la prevención: si las hay"_s);
    Text1.setMaximumHeight(110);
    disponer(Column{Check1, Above(u"&Observaciones :"_s, Text1)}, {&Check1, &Text1});
}

QString panAdole::enPalabras(dao::Recordset &fila) const
{
    return u"%1 %2   %3"_s.arg(fila[u"aspecto"].text(), fila[u"Alarma"].truth() ? u"(ALARMA)"_s : QString(),
                               fila[u"observaciones"].text());
}

#include "moc_panAdole.cpp"
