#include "specialties/gynaecology/panCalRiesgoGesta.h"

#include "core/records/campos.h"
#include "core/services/paciente.h"
#include "platform/basic/runtime.h"
#include "platform/forms/colour.h"
#include "platform/forms/layout.h"
#include "platform/forms/twips.h"
#include "specialties/gynaecology/riesgoGestacional.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

const records::FilaPropia fila{u"CalRiesgoGestacional"_s, u"idpaciente"_s};
constexpr int altoDelCampo = 24, altoDelMarcador = 20, anchoDelMarcador = 22;

} // namespace

panCalRiesgoGesta::panCalRiesgoGesta() : Form(u"panCalRiesgoGesta"_s)
{
    setWindowTitle(u"Calculadora de Riesgo Gestacional"_s);
    std::vector<Item> grupos;
    for (const riesgoGestacional::Grupo &grupo : riesgoGestacional::grupos()) {
        std::vector<Item> columna;
        for (const riesgoGestacional::Casilla &casilla : grupo.casillas) {
            CheckBox &control = Check1.add(casilla.indice, casilla.texto.toString());
            connect(&control, &QCheckBox::clicked, this, &panCalRiesgoGesta::mostrarPuntaje);
            columna.emplace_back(control);
        }
        columna.push_back(Stretch());
        grupos.push_back(Expanding(Group(grupo.titulo.toString(), Column(columna))));
    }
    dibujarBarra();
    QFont destacada = Label4.font();
    destacada.setBold(true);
    destacada.setPointSizeF(destacada.pointSizeF() * 1.5);
    Label4.setFont(destacada);
    setContents(this, Column{Label1, Expanding(Row(grupos)), Row{barra_, Label4, Stretch()},
                             Row{Stretch(), Command8, Command1}});
    connect(&Command8, &QPushButton::clicked, this, &panCalRiesgoGesta::guardar);
    connect(&Command1, &QPushButton::clicked, this, &panCalRiesgoGesta::unload);
    mostrarPuntaje();
}

/// The bar is drawn to the numbers by which the marker moves.
void panCalRiesgoGesta::dibujarBarra()
{
    const auto campos = riesgoGestacional::barra();
    for (const riesgoGestacional::Campo &campo : campos) {
        Label &franja = Shape1.add(Shape1.size(), campo.nombre.toString());
        franja.setParent(&barra_);
        franja.setAlignment(Qt::AlignCenter);
        setBackColor(franja, QColor(campo.color));
        franja.setGeometry(qRound(toPixels(campo.desde)), 0, qRound(toPixels(campo.hasta - campo.desde)),
                           altoDelCampo);
    }
    Command2.setParent(&barra_);
    Command2.setFixedSize(anchoDelMarcador, altoDelMarcador);
    Command2.setFocusPolicy(Qt::NoFocus); // it shows, and does nothing
    barra_.setFixedSize(qRound(toPixels(campos.back().hasta)) + anchoDelMarcador,
                        altoDelCampo + altoDelMarcador + 4);
}

void panCalRiesgoGesta::activate()
{
    const auto paciente = services::numeroDePaciente(tag());
    Command8.setEnabled(paciente.has_value());
    if (!paciente || leida_)
        return;
    leida_ = true;
    const std::vector<bool> marcadas =
        riesgoGestacional::deTexto(records::valor(fila.leer(*paciente), u"Valor"_s).text());
    for (auto &[i, casilla] : Check1)
        casilla->setChecked(marcadas[static_cast<std::size_t>(i)]);
    mostrarPuntaje();
}

void panCalRiesgoGesta::mostrarPuntaje()
{
    const auto marcadas =
        std::ranges::count_if(Check1, [](const auto &par) { return par.second->isChecked(); });
    const double puntaje = riesgoGestacional::puntaje(static_cast<int>(marcadas));
    Label4.setCaption(basic::Value(puntaje).text());
    Command2.move(qRound(toPixels(riesgoGestacional::lugarDelMarcador(puntaje))), altoDelCampo + 2);
}

void panCalRiesgoGesta::guardar()
{
    const auto paciente = services::numeroDePaciente(tag());
    if (!paciente)
        return;
    std::vector<bool> marcadas;
    for (const auto &[i, casilla] : Check1)
        marcadas.push_back(casilla->isChecked());
    fila.escribir(*paciente, {{u"Valor"_s, riesgoGestacional::enTexto(marcadas)}});
    unload();
}

#include "moc_panCalRiesgoGesta.cpp"
