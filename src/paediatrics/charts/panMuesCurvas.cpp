#include "paediatrics/charts/panMuesCurvas.h"

#include "core/services/paciente.h"
#include "core/services/services.h"
#include "core/session/screens.h"
#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/forms/layout.h"

#include <QButtonGroup>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

/// What an option shows: for boys and girls, up to six years and otherwise. Windows of one name are the same
/// for both.
struct Curva {
    const char *opcion;
    screens::Window varonesHasta6, mujeresHasta6, varones, mujeres;
};
constexpr Curva curvas[] = {
    {"&Peso", "panPerPesoninos6", "panPerPesoNenas6", "panPercenPeso", "panPerPesoNenas"},
    {"&Talla", "panPerTallaNinos6", "panPerTallaNenas6", "panPerTallaNinos", "panPerTallaNenas"},
    {"P.C&efálico", "panperPCNinos", "panPerPcNenas", "panperPCNinos", "panPerPcNenas"},
    {"Peso, talla y perímetro cefálico del &neonato.", "panPerTodoNenes", "panPerTodoNenas",
     "panPerTodoNenes", "panPerTodoNenas"},
    {"Indice de masa corporal ( IMC )", "panIMC", "panIMC", "panIMC", "panIMC"},
    {"Gráfica de peso adultos.", "panGraMed", "panGraMed", "panGraMed", "panGraMed"},
};

enum { hasta6, hasta19, mujeres, varones }; // the elements of Option2

} // namespace

panMuesCurvas::panMuesCurvas() : Form(u"panMuesCurvas"_s)
{
    setWindowTitle(u"Curvas y Gráficas"_s);
    std::vector<Item> opciones;
    int indice = 0;
    for (const Curva &curva : curvas) {
        OptionButton &opcion = Option1.add(indice++, QString::fromUtf8(curva.opcion));
        opcion.setEnabled(screens::has(curva.varones));
        connect(&opcion, &QRadioButton::toggled, this, &panMuesCurvas::habilitarEdades);
        opciones.push_back(opcion);
    }
    Option1(0).setChecked(true);
    Option2.add(hasta6, u"0 a 6 años."_s).setChecked(true);
    Option2.add(hasta19, u"0 a 19 años."_s);
    Option2.add(mujeres, u"M&ujeres"_s);
    Option2.add(varones, u"&Varones"_s);
    Frame5.add(0, u"Sexo"_s).hide();
    Command3.hide();
    Command2.setDefault(true);

    setContents(this,
                Column{
                    Row{Group(u"Curva"_s, Column(opciones)),
                        Column{Group(u"Edades"_s, Column{Option2(hasta6), Option2(hasta19)}),
                               Group(Frame5(0), Column{Option2(mujeres), Option2(varones)}), Stretch()}},
                    Check1,
                    Row{Command4, Stretch(), Command3, Command2, Command1},
                });
    setMinimumWidth(560);

    connect(&Option2(mujeres), &QRadioButton::clicked, this,
            [this] { forms::setTag(&Command3, u"MUJER"_s); });
    connect(&Option2(varones), &QRadioButton::clicked, this,
            [this] { forms::setTag(&Command3, u"VARON"_s); });
    connect(&Check1, &QCheckBox::toggled, this, &panMuesCurvas::incluirATodos);
    connect(&Command1, &QPushButton::clicked, this, &panMuesCurvas::unload);
    connect(&Command2, &QPushButton::clicked, this, &panMuesCurvas::mostrarCurva);
    connect(&Command4, &QPushButton::clicked, this, [this] { screens::showModal("panCurvasOMS", sujeto()); });
}

/// Called for a group, there is no patient: the measures of all are shown.
void panMuesCurvas::load()
{
    if (tag() == u"VARON" || tag() == u"MUJER") {
        Check1.setChecked(true);
        Option2(tag() == u"VARON" ? varones : mujeres).setChecked(true);
        forms::setTag(&Command3, tag());
    }
}

void panMuesCurvas::activate()
{
    if (!Check1.isChecked())
        tomarSexoDelPaciente();
}

void panMuesCurvas::tomarSexoDelPaciente()
{
    forms::setTag(&Command3, {});
    if (auto paciente = services::paciente(tag())) {
        const QString letra = (*paciente)[u"Sexo"].text().left(1).toUpper();
        if (letra == u"V") {
            forms::setTag(&Command3, u"VARON"_s);
            Option2(varones).setChecked(true);
        } else if (letra == u"M") {
            forms::setTag(&Command3, u"MUJER"_s);
            Option2(mujeres).setChecked(true);
        }
    }
    if (sexo().isEmpty())
        MODULE11::MuestraError(u"Debe definir el sexo del paciente antes de mostrar curvas."_s);
}

void panMuesCurvas::incluirATodos()
{
    Frame5(0).setVisible(Check1.isChecked());
    if (!Check1.isChecked())
        tomarSexoDelPaciente();
}

/// The head's and the newborn's charts have no choice of ages.
void panMuesCurvas::habilitarEdades()
{
    if (!Option2.has(hasta19))
        return;
    const bool sinEdades = Option1(2).isChecked() || Option1(3).isChecked();
    Option2(hasta6).setEnabled(!sinEdades);
    Option2(hasta19).setEnabled(!sinEdades);
}

screens::Window panMuesCurvas::destino() const
{
    int elegida = 0;
    while (!Option1(elegida).isChecked())
        ++elegida;
    const Curva &curva = curvas[elegida];
    const bool varon = sexo() == u"VARON";
    if (Option2(hasta6).isChecked())
        return varon ? curva.varonesHasta6 : curva.mujeresHasta6;
    return varon ? curva.varones : curva.mujeres;
}

QString panMuesCurvas::sujeto() const
{
    return Check1.isChecked() ? u"<TODOS>"_s : tag();
}

void panMuesCurvas::mostrarCurva()
{
    screens::showModal(destino(), sujeto());
}

#include "moc_panMuesCurvas.cpp"
