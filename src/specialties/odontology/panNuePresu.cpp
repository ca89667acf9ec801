#include "specialties/odontology/panNuePresu.h"

#include "core/records/comando.h"
#include "core/services/paciente.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/forms/boxes.h"
#include "platform/forms/wrong.h"
#include "specialties/odontology/presupuestos.h"

using namespace Qt::StringLiterals;
using namespace forms;
using MODULE11::BaseDatos;
using records::comando;

namespace
{

constexpr int anchoDeNumero = 90;

} // namespace

panNuePresu::panNuePresu(qint64 paciente) : Form(u"panNuePresu"_s), renglones_(u"$##.00##.-"_s)
{
    setWindowTitle(u"Nuevo Presupuesto"_s);
    Text2.setText(QString::number(paciente));
    Text3.setText(u"0"_s);
    for (TextBox *numero : {&Text2, &Text3}) {
        numero->setReadOnly(true);
        numero->setFocusPolicy(Qt::ClickFocus);
        numero->setFixedWidth(anchoDeNumero);
    }
    lblPaciente.setCaption(services::nombreDePaciente(Text2.text()));
    setContents(
        this,
        Column{
            Fields{{u"Paciente Nº :"_s, Row{Text2, lblPaciente, Stretch()}},
                   {u"Presupuesto Nº :"_s, Row{Text3, Stretch()}},
                   {u"&Fecha :"_s, Row{DTPicker1, Stretch()}},
                   {u"&Descripción :"_s, Text1}},
            Expanding(Group(u"Prácticas"_s, Column{Expanding(renglones_.grilla()),
                                                   Row{comando(*this, u"Command18"_s, u"A&gregar..."_s,
                                                               u"agregar"_s, [this] { agregar(); }),
                                                       comando(*this, u"Command19"_s, u"&Quitar"_s,
                                                               u"quitar"_s, [this] { renglones_.quitar(); }),
                                                       Stretch(), renglones_.renglonDelTotal()}})),
            Row{Stretch(), comando(*this, u"Command1"_s, u"&Aceptar"_s, u"aceptar"_s, [this] { aceptar(); }),
                comando(*this, u"Command2"_s, u"&Cancelar"_s, u"cancelar"_s, [this] { cancelar(); })},
        });
    resize(720, 520);
}

void panNuePresu::load()
{
    renglones_.mostrar(0);
    Text1.setFocus();
}

/// False, and told, when there is nobody to make it for.
bool panNuePresu::guardarCabeza()
{
    const auto paciente = services::numeroDePaciente(Text2.text());
    if (!paciente) {
        msgBox(u"Seleccione un Paciente"_s, Icon::Exclamation, u"Atención"_s);
        return false;
    }
    if (!DTPicker1.readable()) {
        markWrong(DTPicker1, u"Escriba la fecha del presupuesto"_s);
        return false;
    }
    const bool nuevo = presupuesto() == 0;
    dao::Recordset cabeza = BaseDatos.openRecordset(
        nuevo ? u"Select * from presupuestos"_s
              : u"Select * from presupuestos where idpresupuesto=%1"_s.arg(presupuesto()));
    if (!nuevo && cabeza.eof()) { // another station has deleted it
        MODULE11::MuestraError(u"Ingrese un Presupuesto Correcto"_s);
        return false;
    }
    if (nuevo)
        cabeza.addNew();
    else
        cabeza.edit();
    cabeza[u"codpaciente"] = *paciente;
    cabeza[u"fecha"] = DTPicker1.value();
    if (!Text1.text().trimmed().isEmpty())
        cabeza[u"Descripcion"] = Text1.text().trimmed();
    else if (!nuevo)
        cabeza[u"Descripcion"] = basic::Null{};
    cabeza.update();
    if (nuevo) {
        cabeza.setBookmark(cabeza.lastModified());
        Text3.setText(cabeza[u"idpresupuesto"].text());
    }
    return true;
}

void panNuePresu::agregar()
{
    if (!guardarCabeza())
        return;
    if (renglones_.presupuesto() != presupuesto())
        renglones_.mostrar(presupuesto());
    renglones_.agregar(u"presu"_s);
}

void panNuePresu::aceptar()
{
    if (guardarCabeza())
        answer(u"SI"_s);
}

bool panNuePresu::desistir()
{
    if (!MODULE11::PreguntaSiBorra(u"Esta seguro que quiere cancelar este presupuesto ?"_s))
        return false;
    if (presupuesto() != 0)
        presupuestos::borrar(presupuesto());
    Text3.setText(u"0"_s);
    setTag(u"NO"_s);
    return true;
}

void panNuePresu::cancelar()
{
    if (desistir())
        answer(u"NO"_s);
}

/// A window in which nothing was done goes without a question.
bool panNuePresu::queryUnload()
{
    return (presupuesto() == 0 && Text1.text().isEmpty()) || desistir();
}

#include "moc_panNuePresu.cpp"
