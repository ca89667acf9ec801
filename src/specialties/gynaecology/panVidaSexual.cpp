#include "specialties/gynaecology/panVidaSexual.h"

#include "core/services/paciente.h"
#include "core/session/session.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

struct Pregunta {
    QString texto;
    bool una; ///< one answer, or as many as hold
    QStringList respuestas;
};

const Pregunta preguntas[] = {
    {u"Cómo calificaría las relaciones sexuales en su pareja? "_s,
     true,
     {u"Muy satisfactorias"_s, u"Satisfactorias"_s, u"Regulares"_s, u"Insatisfactorias"_s}},
    {u"Frecuencia de las relaciones?"_s,
     true,
     {u"Diaria"_s, u"Varias veces por semana"_s, u"Semanal"_s, u"Quincenal"_s, u"Mensual"_s,
      u"Esporádica"_s}},
    {u"Ha percibido situaciones como :"_s,
     false,
     {u"Falta de deseo"_s, u"Falta de excitación"_s, u"Ausencia de orgasmo"_s, u"Dolor en las relaciones"_s,
      u"Rechazo"_s}},
    {u"Ha detectado situaciones como :"_s,
     false,
     {u"Eyaculación precoz"_s, u"Disfunción eréctil"_s, u"Falta de deseo del compañero"_s,
      u"Flujo o molestias"_s, u"Sangrado con las relaciones"_s}},
    {u"En el caso de haber detectado problemas a quien los atribuye? "_s,
     true,
     {u"A la pareja"_s, u"A usted"_s, u"A su compañero"_s, u"A otra causa"_s}},
    {u"Si usted considera que obedecen a problemas de pareja entraría alguna de estas?"_s,
     false,
     {u"Falta de comunicación"_s, u"Rutina"_s, u"Falta de tiempo o de intimidad"_s, u"Conflictos de pareja"_s,
      u"Temor al embarazo"_s}},
    {u"Si usted los considera problemas suyos podría identificarlos entre estos? "_s,
     false,
     {u"Falta de información"_s, u"Educación recibida"_s, u"Temores"_s, u"Experiencias anteriores"_s,
      u"Problemas de salud"_s, u"Cansancio o estrés"_s}},
    {u"Si usted considera que obedecen a su compañero las ubicaria entre estas? "_s,
     false,
     {u"Falta de información"_s, u"Falta de interés"_s, u"Problemas de salud"_s, u"Cansancio o estrés"_s,
      u"Consumo de alcohol u otras sustancias"_s}},
};
constexpr int primerasDelCuadro = 4; ///< stand in the first of the two panels

QString filasDe(qint64 paciente)
{
    return u" from vidasexual where idPaciente = %1"_s.arg(paciente);
}

} // namespace

panVidaSexual::panVidaSexual() : Form(u"panVidaSexual"_s)
{
    setWindowTitle(u"Cuestionario Vida Sexual"_s);
    std::vector<Item> primeras, otras;
    for (int i = 0; i < static_cast<int>(std::size(preguntas)); ++i)
        (i < primerasDelCuadro ? primeras : otras).push_back(pregunta(i));
    primeras.push_back(Stretch());
    otras.push_back(Stretch());
    setContents(this, Column{Expanding(Row{Expanding(Column(primeras)), Expanding(Column(otras))}),
                             Row{Stretch(), Command1, Command2}});
    setMinimumWidth(900);
    connect(&Command1, &QPushButton::clicked, this, &panVidaSexual::guardar);
    connect(&Command2, &QPushButton::clicked, this, &panVidaSexual::unload);
}

Item panVidaSexual::pregunta(int numero)
{
    const Pregunta &pregunta = preguntas[numero];
    std::vector<Item> respuestas;
    if (pregunta.una)
        grupos_.push_back(std::make_unique<QButtonGroup>());
    for (const QString &texto : pregunta.respuestas) {
        if (!pregunta.una) {
            respuestas.emplace_back(Check1.add(Check1.size(), texto));
            continue;
        }
        OptionButton &opcion = Option1.add(Option1.size(), texto);
        grupos_.back()->addButton(&opcion);
        respuestas.emplace_back(opcion);
    }
    auto *rotulo = new QLabel(pregunta.texto);
    QFont destacada = rotulo->font();
    destacada.setBold(true);
    rotulo->setFont(destacada);
    rotulo->setWordWrap(true);
    return Column{rotulo, Grid(2, respuestas), Space(6)};
}

std::vector<QAbstractButton *> panVidaSexual::respuestas() const
{
    std::vector<QAbstractButton *> todas;
    for (const auto &[i, casilla] : Check1)
        todas.push_back(casilla.get());
    for (const auto &[i, opcion] : Option1)
        todas.push_back(opcion.get());
    return todas;
}

/// Some answers read alike: the caption and its place together say which it was.
void panVidaSexual::activate()
{
    const auto paciente = services::numeroDePaciente(tag());
    Command1.setEnabled(paciente.has_value());
    if (!paciente || leida_)
        return;
    leida_ = true;
    for (dao::Recordset fila = MODULE11::BaseDatos.openRecordset(u"Select *"_s + filasDe(*paciente));
         !fila.eof(); fila.moveNext())
        for (QAbstractButton *respuesta : respuestas())
            if (respuesta->text() == fila[u"Topico"].text() &&
                respuesta->objectName().endsWith(u"(%1)"_s.arg(fila[u"Valor"].text())))
                respuesta->setChecked(true);
}

void panVidaSexual::guardar()
{
    const auto paciente = services::numeroDePaciente(tag());
    if (!paciente)
        return;
    dao::Batch juntas(MODULE11::BaseDatos);
    MODULE11::BaseDatos.execute(u"Delete *"_s + filasDe(*paciente));
    dao::Recordset filas = MODULE11::BaseDatos.openRecordset(u"vidasexual"_s);
    const auto anotar = [&](const auto &arreglo) {
        for (const auto &[i, respuesta] : arreglo)
            if (respuesta->isChecked()) {
                filas.addNew();
                filas[u"idPaciente"] = *paciente;
                filas[u"Topico"] = respuesta->text();
                filas[u"Valor"] = QString::number(i);
                filas.update();
            }
    };
    anotar(Check1);
    anotar(Option1);
    juntas.commit();
    unload();
}

#include "moc_panVidaSexual.cpp"
