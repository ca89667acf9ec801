#include "paediatrics/vaccines/panPoneVacuna.h"

#include "core/services/services.h"
#include "paediatrics/vaccines/panInfRelVac.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

enum Casilla { Tipo = 0, Observaciones = 2, Dosis = 3 };

} // namespace

panPoneVacuna::panPoneVacuna(const vacunas::Registro &registro, Uso uso) : Form(u"panPoneVacuna"_s)
{
    setWindowTitle(u"Colocación de Vacunas"_s);
    Text1.add(Tipo, 20).setText(registro.vacuna);
    Text1.add(Dosis, 30).setText(registro.dosis);
    Text1.add(Observaciones, 255).setText(registro.observaciones);
    mFecha.setValue(registro.fecha);
    Command1.setDefault(true);
    setContents(this, Column{
                          Fields{{u"&Fecha :"_s, Row{mFecha, Stretch()}},
                                 {u"&Tipo :"_s, Text1(Tipo)},
                                 {u"&Dosis :"_s, Text1(Dosis)},
                                 {u"&Observaciones :"_s, Text1(Observaciones)}},
                          Row{Command3, Stretch(), Command1, Command2},
                      });
    setMinimumWidth(520);
    if (uso == Uso::Ver)
        soloVer();
    connect(&Command1, &QPushButton::clicked, this, &panPoneVacuna::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
    connect(&Command3, &QPushButton::clicked, this, &panPoneVacuna::mostrarInformacion);
}

void panPoneVacuna::soloVer()
{
    setWindowTitle(u"Registro de Vacunación"_s);
    Command1.setText(u"Cerrar"_s);
    Command2.hide();
    mFecha.setReadOnly(true);
    for (auto &[indice, casilla] : Text1)
        casilla->setReadOnly(true);
}

vacunas::Registro panPoneVacuna::registro() const
{
    const QString observaciones = Text1(Observaciones).text();
    return {mFecha.value(), Text1(Tipo).text(), Text1(Dosis).text(),
            observaciones.isEmpty() ? u"-"_s : observaciones};
}

/// A dose without its vaccine or its age would be found nowhere again.
void panPoneVacuna::aceptar()
{
    for (const Casilla necesaria : {Tipo, Dosis}) {
        if (!Text1(necesaria).text().trimmed().isEmpty())
            continue;
        MODULE11::MuestraError(u"Debe ingresar los datos correctamente !!"_s);
        markWrong(Text1(necesaria), u"No puede quedar en blanco"_s);
        return;
    }
    answer(u"SI"_s);
}

void panPoneVacuna::mostrarInformacion()
{
    const basic::Value texto =
        MODULE11::BuscaCampo(u"Select * from calvacunas where Vacuna = %1 and Dosis = %2"_s.arg(
                                 dao::quoted(Text1(Tipo).text()), dao::quoted(Text1(Dosis).text())),
                             u"TemasRelacionados");
    panInfRelVac(texto.text()).showModal();
}

#include "moc_panPoneVacuna.cpp"
