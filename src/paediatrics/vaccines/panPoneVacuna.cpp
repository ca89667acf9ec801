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

panPoneVacuna::panPoneVacuna(const vacunas::Registro &registro, const std::optional<basic::Date> &nacimiento,
                             Uso uso)
    : Form(u"panPoneVacuna"_s), nacimiento_(nacimiento)
{
    setWindowTitle(u"Colocación de Vacunas"_s);
    Text1.add(Tipo, 20).setText(registro.vacuna);
    Text1.add(Dosis, 30).setText(registro.dosis);
    Text1.add(Observaciones, 255).setText(registro.observaciones);
    mFecha.setFieldValue(registro.fecha ? basic::Value(*registro.fecha) : basic::Value(basic::Null{}));
    lblReparo.setWordWrap(true);
    Command1.setDefault(true);
    setContents(this, Column{
                          Fields{{u"&Fecha :"_s, Row{mFecha, Stretch()}},
                                 {u"&Tipo :"_s, Text1(Tipo)},
                                 {u"&Dosis :"_s, Text1(Dosis)},
                                 {u"&Observaciones :"_s, Text1(Observaciones)}},
                          lblReparo,
                          Row{Command3, Stretch(), Command1, Command2},
                      });
    setMinimumWidth(520);
    if (uso == Uso::Ver)
        soloVer();
    connect(&Command1, &QPushButton::clicked, this, &panPoneVacuna::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
    connect(&Command3, &QPushButton::clicked, this, &panPoneVacuna::mostrarInformacion);
    connect(&mFecha, &DTPicker::dateChanged, this, &panPoneVacuna::mostrarReparo);
    for (const Casilla casilla : {Tipo, Dosis})
        connect(&Text1(casilla), &QLineEdit::textChanged, this, &panPoneVacuna::mostrarReparo);
    mostrarReparo();
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
    return {mFecha.fieldValue().isNull() ? std::nullopt : std::optional(mFecha.value()), Text1(Tipo).text(),
            Text1(Dosis).text(), observaciones.isEmpty() ? u"-"_s : observaciones};
}

/// A dose without its vaccine, its age or its day would be found nowhere again.
void panPoneVacuna::aceptar()
{
    const std::pair<QWidget *, bool> campos[] = {{&mFecha, !mFecha.fieldValue().isBlank()},
                                                 {&Text1(Tipo), !Text1(Tipo).text().trimmed().isEmpty()},
                                                 {&Text1(Dosis), !Text1(Dosis).text().trimmed().isEmpty()}};
    for (const auto &[campo, bien] : campos) {
        if (bien)
            continue;
        MODULE11::MuestraError(u"Debe ingresar los datos correctamente !!"_s);
        markWrong(*campo, u"No puede quedar en blanco"_s);
        return;
    }
    answer(u"SI"_s);
}

void panPoneVacuna::mostrarReparo()
{
    QString reparo;
    const vacunas::EdadDeDosis *edad = edades_.guardada(Text1(Tipo).text(), Text1(Dosis).text());
    if (edad && nacimiento_ && mFecha.readable() && !mFecha.fieldValue().isNull())
        reparo = edad->reparo(*nacimiento_, mFecha.value());
    lblReparo.setCaption(reparo);
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
