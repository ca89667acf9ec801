#include "paediatrics/sight/panVisual.h"

#include "core/reports/papel.h"
#include "core/services/paciente.h"
#include "core/session/session.h"
#include "paediatrics/sight/panNueVisual.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"

#include <QLayout>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr double diasDelAnio = 365.25;

/// What a page of the tabs shows: the first one the mean, the others an eye.
double valorDeHoja(const agudeza::Medicion &medicion, int hoja)
{
    return hoja == 0 ? agudeza::promedio(medicion)
                     : agudeza::valor(medicion.agudezas[static_cast<std::size_t>(hoja - 1)]);
}

} // namespace

panVisual::panVisual()
    : ListaDelPaciente(u"panVisual"_s, u"Agudeza Visual"_s,
                       {{u"Fecha"_s, u"fecha"_s, u"dd/mm/yyyy"_s, 90},
                        {u"Derecho cerca"_s, u"ojo derecho cerca"_s},
                        {u"Derecho lejos"_s, u"ojo derecho lejos"_s},
                        {u"Izquierdo cerca"_s, u"ojo izquierdo cerca"_s},
                        {u"Izquierdo lejos"_s, u"ojo izquierdo lejos"_s},
                        {u"Observaciones"_s, u"observaciones"_s, {}, 240}},
                       u"Select * from visual where paciente = %1 order by fecha "_s)
{
    QFont destacada = lblPaciente.font();
    destacada.setBold(true);
    lblPaciente.setFont(destacada);
    const Item vacia = Stretch();
    setContents(this,
                Column{lblPaciente, Expanding(DBGrid1),
                       Tabs(SSTab1, {{u"Promedio"_s, Picture1},
                                     {u"Ojo derecho cerca"_s, vacia},
                                     {u"Ojo derecho lejos"_s, vacia},
                                     {u"Ojo izquierdo cerca"_s, vacia},
                                     {u"Ojo izquierdo lejos"_s, vacia}}),
                       Row{command(u"Command17"_s, u"&Nueva..."_s, u"agregar"_s, [this] { nueva(); }),
                           rowCommand(u"Command2"_s, u"&Borrar"_s, u"borrar"_s, [this] { borrar(); }),
                           command(u"Command3"_s, u"&Imprimir"_s, u"imprimir"_s, [this] { imprimir(); }),
                           Stretch(), closes(u"Command1"_s, u"&Cerrar"_s)}});
    resize(860, 640);
    connect(&SSTab1, &QTabWidget::currentChanged, this, &panVisual::dibujar);
}

void panVisual::activate()
{
    ListaDelPaciente::activate();
    if (paciente() == 0)
        return;
    lblPaciente.setCaption(services::nombreDePaciente(tag()));
    dibujar();
}

/// One picture serves all pages: it stands on the one in front.
void panVisual::dibujar()
{
    auto fila = services::paciente(paciente());
    if (!fila || (*fila)[u"Fecha de Nacimiento"].isNull())
        return;
    const basic::Date nacimiento = (*fila)[u"Fecha de Nacimiento"].date();
    std::vector<agudeza::Curva::Punto> puntos;
    dao::Recordset filas =
        MODULE11::BaseDatos.openRecordset(Data1.recordSource(), dao::Recordset::Kind::Snapshot);
    for (; !filas.eof(); filas.moveNext()) {
        const agudeza::Medicion medicion = agudeza::leer(filas);
        const double valor = valorDeHoja(medicion, SSTab1.currentIndex());
        puntos.push_back(
            {static_cast<double>(medicion.fecha.wholeDays() - nacimiento.wholeDays()) / diasDelAnio, valor,
             u"%1 : %2/10"_s.arg(basic::dateText(medicion.fecha), basic::Value(valor).text())});
    }
    Picture1.ponerPuntos(puntos);
    SSTab1.currentWidget()->layout()->addWidget(&Picture1);
}

void panVisual::nueva()
{
    panNueVisual captura;
    capture(captura, [&](dao::Recordset &fila) {
        fila[u"Paciente"] = paciente();
        agudeza::escribir(fila, captura.medicion());
    });
    dibujar();
}

void panVisual::borrar()
{
    if (!askBox(u"Está seguro de eliminar el registro?"_s, u"Atención"_s, Answer::No))
        return;
    deleteRow();
    dibujar();
}

void panVisual::imprimir()
{
    const QString titulo = u"Agudeza visual de "_s + lblPaciente.caption();
    const auto impresora = printing::defaultChoice(titulo);
    if (!impresora)
        return;
    informes::Papel papel(*impresora);
    papel.escribir(SSTab1.tabText(SSTab1.currentIndex()), 11);
    papel.dibujar(Picture1);
    papel.terminar();
}

#include "moc_panVisual.cpp"
