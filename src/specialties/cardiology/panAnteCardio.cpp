#include "specialties/cardiology/panAnteCardio.h"

#include "core/services/paciente.h"
#include "platform/forms/boxes.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

const records::FilaPropia fila{u"AntecedentesCardiologicos"_s, u"idPaciente"_s};

const QStringList antecedentes = {u"Historia familiar de Enfermedad Cardiaca"_s,
                                  u"Enfermedad Cardiaca anterior"_s,
                                  u"Reumatismo"_s,
                                  u"Hipertension"_s,
                                  u"Claudicacion"_s,
                                  u"Flebitis"_s,
                                  u"Edema"_s,
                                  u"Sincope"_s,
                                  u"Palpitaciones"_s,
                                  u"Dolor o Molestia en el Pecho"_s,
                                  u"Ortopnea Disnea nocturna paroxistica"_s,
                                  u"Nivel Inadecuado de Ejercicio"_s};

} // namespace

panAnteCardio::panAnteCardio() : Form(u"panAnteCardio"_s)
{
    setWindowTitle(u"Antecedentes cardiológicos"_s);
    QFont destacada = lblPaciente.font();
    destacada.setBold(true);
    lblPaciente.setFont(destacada);
    std::vector<Item> casillas;
    for (const QString &columna : antecedentes)
        casillas.emplace_back(campos_.casilla(columna, columna));
    campos_.ligar(u"Otros"_s, Text1);
    setContents(this, Column{lblPaciente, Group(u"Antecedentes"_s, Grid(2, casillas)),
                             Expanding(Above(u"&Otros :"_s, Text1)), Row{Stretch(), Command1, Command2}});
    resize(620, 460);
    connect(&Command1, &QPushButton::clicked, this, &panAnteCardio::guardar);
    connect(&Command2, &QPushButton::clicked, this, &panAnteCardio::unload);
}

/// What is being written is not read over when another window gives the way back.
void panAnteCardio::activate()
{
    if (leida_)
        return;
    const auto paciente = services::numeroDePaciente(tag());
    if (!paciente) {
        msgBox(u"Seleccione un paciente !!"_s, Icon::Critical, u"Error"_s);
        unload();
        return;
    }
    leida_ = true;
    lblPaciente.setCaption(services::nombreDePaciente(tag()));
    campos_.mostrar(fila.leer(*paciente));
}

void panAnteCardio::guardar()
{
    if (const auto paciente = services::numeroDePaciente(tag())) {
        fila.escribir(*paciente, campos_.valores());
        unload();
    }
}

#include "moc_panAnteCardio.cpp"
