#include "specialties/risk/panEvalDeportiva.h"

#include "core/services/paciente.h"
#include "platform/basic/environment.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

const records::FilaPropia fila{u"HC_Deportiva"_s, u"idPaciente"_s};

// The columns by heading, in the order in which they are asked.
const QStringList historia = {u"Desde que Edad Practica Deportes"_s, u"Deportes Practicados"_s,
                              u"Deportes Actuales"_s, u"Dias Por Semana que Entrena"_s};

const QStringList consumos = {u"Consume Vitaminas"_s, u"Consume Aminoacidos"_s, u"Consume Energizantes"_s,
                              u"Consume Hormonas"_s};

const QStringList inmunizaciones = {u"Inmunizado contra Tetanos"_s,     u"Inmunizado contra Tuberculosis"_s,
                                    u"Inmunizado contra Neumonia"_s,    u"Inmunizado contra Gripe"_s,
                                    u"Inmunizado contra Hepatitis B"_s, u"Inmunizado contra Meningitis"_s};

const QStringList enfermedades = {u"Enfermedades Congenitas"_s,
                                  u"Traumatismos u Operaciones"_s,
                                  u"Golpes Fuertes"_s,
                                  u"Luxaciones y Otras Lesiones"_s,
                                  u"Fracturas o Esguinces"_s,
                                  u"Enfermedades Articulares"_s,
                                  u"Enfermedades de los Huesos"_s,
                                  u"Enfermedades Musculares"_s,
                                  u"Fiebre Reumatica"_s,
                                  u"Artritis o Artrosis"_s,
                                  u"Enfermedades Respiratorias"_s,
                                  u"Enfermedades Alergicas"_s,
                                  u"Sinusitis Otitis Amigdalitis"_s,
                                  u"Asma"_s,
                                  u"Neumonia o Bronconeumonia"_s,
                                  u"Tos Convulsa"_s,
                                  u"Varicela"_s,
                                  u"Rubeola"_s,
                                  u"Sarampion"_s,
                                  u"Enfermedades Digestivas"_s,
                                  u"Hepatitis"_s,
                                  u"Infecciones Urinarias"_s,
                                  u"Glumeroulonefritis"_s,
                                  u"Enfermedades de los genitales"_s,
                                  u"Enfermedades Neurologicas"_s,
                                  u"Convulsiones o Epilepsia"_s,
                                  u"Enfermedades Psiquiatricas"_s,
                                  u"Diabetes"_s,
                                  u"Soplo en el Corazon"_s,
                                  u"Enfermedades Cardiacas"_s,
                                  u"Hipertension Arterial"_s,
                                  u"Enfermedades de la Sangre"_s,
                                  u"Enfermedades de los Ganglios"_s,
                                  u"Enfermedades de los Ojos"_s,
                                  u"Enfermedades de los Oidos"_s,
                                  u"Enfermedades de las Glandulas"_s,
                                  u"Intervenciones Quirurgicas"_s,
                                  u"Heridas"_s,
                                  u"Toma algun medicamento"_s,
                                  u"Consume Alcohol"_s,
                                  u"Consume Tabaco"_s,
                                  u"Enfermedades Renales"_s,
                                  u"Falta de Sensibilidad al Dolor"_s,
                                  u"Falta de Sensibilidad al Calor"_s,
                                  u"Otras Enfermedades"_s};

const QStringList postura = {
    u"Examen Postural Parado"_s,  u"Examen Postural Sentado"_s, u"Examen Postural Caminando"_s,
    u"Examen Columna Servical"_s, u"Examen Columna Dorsal"_s,   u"Examen Columna Lumbosacra"_s,
    u"Examen Miembros"_s};

const QStringList cabezaYTronco = {
    u"Examen Cabeza y Cuello"_s,        u"Examen Torax y Abdomen"_s, u"Examen Torax Murmullo Vesicular"_s,
    u"Examen Torax Ruidos Agregados"_s, u"Examen Abdomen Higado"_s,  u"Examen Abdomen Bazo"_s,
    u"Examen Abdomen Riñones"_s,        u"Examen Abdomen Hermias"_s, u"Examen Abdomen Otros"_s};

const QStringList neurologico = {u"Valoracion Neurologica Taxia"_s, u"Valoracion Neurologica Praxia"_s,
                                 u"Valoracion Neurologica Rot"_s, u"Valoracion Neurologica Marcha"_s,
                                 u"Valoracion Neurologica Trofismo"_s};

const QStringList ojos = {u"Examen Oftalmologico AgudVisualOD"_s, u"Examen Oftalmologico AgudVisualOI"_s,
                          u"Examen Oftalmologico Estrabismo"_s, u"Examen Oftalmologico Otras"_s};

const QStringList corazon = {u"Examen Cardiovascular R1"_s,
                             u"Examen Cardiovascular R2"_s,
                             u"Examen Cardiovascular Ruidos Agregados"_s,
                             u"Examen Cardiovascular Ta 1"_s,
                             u"Examen Cardiovascular Ta 2"_s,
                             u"Examen Cardiovascular FC"_s};

const QStringList electrocardiograma = {
    u"Electrocardiograma de Reposo Ritmo"_s, u"Electrocardiograma de Reposo FC"_s,
    u"Electrocardiograma de Reposo AQRS"_s, u"Electrocardiograma de Reposo Observaciones"_s};

} // namespace

panEvalDeportiva::panEvalDeportiva() : Form(u"panEvalDeportiva"_s)
{
    setWindowTitle(u"Evaluacion Deportiva"_s);
    QFont destacada = lblPaciente.font();
    destacada.setBold(true);
    lblPaciente.setFont(destacada);
    Text1.hide();
    disponer();
    connect(&Command1, &QPushButton::clicked, this, &panEvalDeportiva::guardar);
    connect(&Command2, &QPushButton::clicked, this, &panEvalDeportiva::unload);
}

void panEvalDeportiva::disponer()
{
    const auto casillas = [this](const QStringList &columnas, int porRenglon) {
        std::vector<Item> todas;
        for (const QString &columna : columnas)
            todas.emplace_back(campos_.casilla(columna, columna));
        return Grid(porRenglon, todas);
    };
    const auto textos = [this](const QString &titulo, const QStringList &columnas) {
        return Group(titulo, campos_.textos(columnas));
    };
    setContents(
        this,
        Column{
            lblPaciente,
            Expanding(Tabs(
                SSTab1,
                {{u"Historia deportiva"_s,
                  Column{campos_.textos(historia), Group(u"Sustancias"_s, casillas(consumos, 4)),
                         Group(u"Inmunizaciones"_s, casillas(inmunizaciones, 3)), Stretch()}},
                 {u"Enfermedades"_s, Column{casillas(enfermedades, 3), Stretch()}},
                 {u"Examen"_s,
                  Row{Expanding(Column{textos(u"Postura, columna y miembros"_s, postura), Stretch()}),
                      Expanding(Column{textos(u"Cabeza, tórax y abdomen"_s, cabezaYTronco), Stretch()})}},
                 {u"Neurológico y ojos"_s,
                  Row{Expanding(Column{textos(u"Valoración neurológica"_s, neurologico), Stretch()}),
                      Expanding(Column{textos(u"Examen oftalmológico"_s, ojos), Stretch()})}},
                 {u"Corazón"_s,
                  Row{Expanding(Column{textos(u"Examen cardiovascular"_s, corazon), Stretch()}),
                      Expanding(Column{textos(u"Electrocardiograma de reposo"_s, electrocardiograma),
                                       Stretch()})}}})),
            Row{Text1, Stretch(), Command1, Command2},
        });
    resize(960, 560);
}

/// What is being written is not read over.
void panEvalDeportiva::activate()
{
    const auto paciente = services::numeroDePaciente(tag());
    Command1.setEnabled(paciente.has_value());
    if (!paciente || !Text1.text().isEmpty())
        return;
    Text1.setText(tag());
    lblPaciente.setCaption(services::nombreDePaciente(tag()));
    campos_.mostrar(fila.leer(*paciente));
}

void panEvalDeportiva::guardar()
{
    if (const auto paciente = services::numeroDePaciente(Text1.text())) {
        fila.escribir(*paciente, campos_.valores(), {{u"Fecha"_s, basic::today()}});
        unload();
    }
}

#include "moc_panEvalDeportiva.cpp"
