#include "clinical/history/panConvHC.h"

#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

using Casilla = clinical::ContenidoDeHistoria::Casilla;

struct Renglon {
    Casilla casilla;
    const char *caption;
    bool fechado; ///< stands and falls with the visits
};

constexpr Renglon renglones[] = {
    {Casilla::Personales, "Incluye información de los datos personales / principales.", false},
    {Casilla::Perinatal, "Incluye información perintatal.", false},
    {Casilla::AntecedentesPersonales, "Incluye información de antecedentes personales.", false},
    {Casilla::CondicionFamiliar, "Incluye información de condición familiar", false},
    {Casilla::AntecedentesFamiliares, "Incluye información de antecedentes familiares.", false},
    {Casilla::Cardiologia, "Incluye información de Cardiología", false},
    {Casilla::Ginecologia, "Incluye información de Ginecología", false},
    {Casilla::Consultas, "Incluye información de consultas.", false},
    {Casilla::Vacunas, "Incluye información de vacunas.", true},
    {Casilla::Medidas, "Incluye información pondoestatural.", true},
    {Casilla::Laboratorio, "Incluye información de laboratorio.", true},
    {Casilla::Estudios, "Incluye información de estudios especiales.", true},
    {Casilla::Oftalmologia, "Incluye información de Oftalmología", true},
};

constexpr int diasPropuestos = 365;

} // namespace

panConvHC::panConvHC() : Form(u"panConvHC"_s)
{
    setWindowTitle(u"Convertir a texto la HC Interactiva"_s);
    std::vector<Item> persona, fechado;
    for (const Renglon &renglon : renglones) {
        CheckBox &casilla = Check1.add(renglon.casilla, QString::fromUtf8(renglon.caption));
        casilla.setChecked(true);
        (renglon.fechado || renglon.casilla == Casilla::Consultas ? fechado : persona).emplace_back(casilla);
        connect(&casilla, &QCheckBox::clicked, this, &panConvHC::habilitarLoFechado);
    }
    fechado.push_back(Fields{{u"&Desde la fecha :"_s, dt1}, {u"&Hasta la fecha :"_s, dt2}});
    setContents(this,
                Column{
                    Row{Group(u"El paciente"_s, Column(persona)), Group(u"Lo fechado"_s, Column(fechado))},
                    Row{Stretch(), Command1, Command2},
                });
    connect(&Command1, &QPushButton::clicked, this, &panConvHC::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void panConvHC::load()
{
    setTag(u"NO"_s);
    dt1.setValue(basic::dateAdd(u"d", -diasPropuestos, basic::today()));
    dt2.setValue(basic::today());
}

void panConvHC::habilitarLoFechado()
{
    const bool incluido = Check1(Casilla::Consultas).isChecked();
    for (const Renglon &renglon : renglones)
        if (renglon.fechado)
            Check1(renglon.casilla).setEnabled(incluido);
    dt1.setEnabled(incluido);
    dt2.setEnabled(incluido);
}

void panConvHC::aceptar()
{
    if (dt1.date() > dt2.date()) {
        msgBox(u"Fecha inicial mayor que fecha final"_s, Icon::Critical, u"Error"_s);
        markWrong(dt1, u"Fecha inicial mayor que fecha final"_s);
        return;
    }
    answer(u"SI"_s);
}

clinical::ContenidoDeHistoria panConvHC::contenido() const
{
    clinical::ContenidoDeHistoria contenido;
    for (const Renglon &renglon : renglones)
        contenido.poner(renglon.casilla, Check1(renglon.casilla).isChecked());
    contenido.desde = dt1.value();
    contenido.hasta = dt2.value();
    return contenido;
}

#include "moc_panConvHC.cpp"
