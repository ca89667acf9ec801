#include "specialties/cardiology/panCardioPrin.h"

#include "core/services/paciente.h"
#include "core/services/services.h"
#include "core/session/screens.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/boxes.h"
#include "specialties/cardiology/cambios.h"
#include "specialties/cardiology/panNueRegCardio.h"
#include "specialties/cardiology/panRxDiag.h"
#include "specialties/cardiology/panTrazado.h"
#include "specialties/drawing/hoja.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr int largoDeLaRuta = 255;
const QString figuraDePulsos = u":/corazon/pulsos.svg"_s;

/// A text of the record: what is read beside it and the end of its column's name.
struct Dato {
    const char *rotulo, *columna;
};

constexpr Dato delElectro[] = {
    {"Velocidad", "VELOCIDAD"},    {"Ritmo", "RITMO"},
    {"Intervalo PQ", "INTERV PQ"}, {"Intervalo QRS", "INTERV QRS"},
    {"Intervalo QT", "INTERV QT"},
};

// From the neck to the foot, without the side.
constexpr Dato pulsosPares[] = {
    {"Carotídeo", " - %1CAROT"}, {"Humeral", " - %1HUMER"}, {"Radial", " - %1RADIA"},
    {"Femoral", " - %1FEMOR"},   {"Poplíteo", " - %1POPL"}, {"Tibial posterior", " - %1PT"},
    {"Pedio", " - %1PP"},
};
const QString tibialIzquierdo = u"Pulsos Perifericos  IPT"_s; // named unlike the others

constexpr Dato delFoco[] = {
    {"Pulso venoso yugular (PVY)", "PVY"},
    {"Pulso arterial carotídeo (PAC)", "PAC"},
    {"Paraesternal (PP)", "PP"},
    {"Ápice (A)", "A"},
};
constexpr Dato tiemposDelFoco[] = {
    {"Inspiración S1", "IS1"}, {"Inspiración S2", "IS2"}, {"Espiración S1", "ES1"}, {"Espiración S2", "ES2"}};

constexpr Dato delExamen[] = {
    {"Pulsaciones venosas yugulares", "Pulsaciones venosas yugulares"},
    {"Pulso carotídeo", "Pulso carotideo"},
    {"Impulso del ápice", "Impulso del apice"},
    {"Impulso paraesternal", "Impulso paraesternal"},
    {"Pulsación de la arteria pulmonar", "Pulsacion de la arteria pulmonar"},
    {"Primer ruido cardíaco", "Primer ruido cardiaco"},
    {"Segundo ruido cardíaco", "Segundo ruido cardiaco"},
    {"Tercer ruido cardíaco", "Tercer ruido cardiaco"},
    {"Cuarto ruido cardíaco", "Cuarto ruido cardiaco"},
    {"Chasquido", "Chasquido"},
    {"Murmullo sistólico", "Murmullo sistolico"},
    {"Murmullo diastólico", "Murmullo diastolico"},
};
constexpr std::size_t renglonesDeVenas = 7; ///< in the left column of the examination
constexpr int nivelesDeEdema = 4;

constexpr Dato delTorax[] = {
    {"Estructura", "Estructura del torax"},
    {"Movimiento", "Movimiento del torax"},
    {"Auscultación", "Auscultacion del torax"},
    {"Percusión", "Percusion del torax"},
    {"Otros", "Otros Torax"},
};

QString rotuloDe(const Dato &dato, const QString &lado = {})
{
    return QString::fromUtf8(dato.rotulo) + lado + u" :"_s;
}

} // namespace

panCardioPrin::panCardioPrin()
    : ListaDelPaciente(
          u"panCardioPrin"_s, u"Evolución Cardiológica"_s, {{u"Fecha"_s, u"Fecha"_s, u"dd/mm/yyyy"_s, 110}},
          u"select * from consultacardiologia where idPaciente = %1 order by fecha, idConsulta"_s),
      figura_(u"Image4"_s, Picture(figuraDePulsos).sizeTwips())
{
    QFont destacada = lblPaciente.font();
    destacada.setBold(true);
    lblPaciente.setFont(destacada);
    figura_.loadBackground(figuraDePulsos);
    figura_.setFocusPolicy(Qt::NoFocus);
    Data1.bind(mFecha, u"Fecha"_s);
    DBGrid1.setFixedWidth(150);
    mFecha.setFixedWidth(130);
    setContents(
        this,
        Column{
            Row{lblPaciente, Stretch(), Fields{{u"&Fecha :"_s, mFecha}}},
            Expanding(Row{
                Column{Expanding(DBGrid1),
                       command(u"Command1"_s, u"&Nuevo..."_s, u"agregar"_s, [this] { nuevo(); }),
                       rowCommand(u"Command2"_s, u"&Quitar"_s, u"quitar"_s, [this] { deleteRow(); })},
                Expanding(Tabs(SSTab1, {{u"Electrocardiograma"_s, electro()},
                                        {u"Pulsos periféricos"_s, pulsos()},
                                        {u"Focos"_s, focos()},
                                        {u"Examen"_s, examen()},
                                        {u"Tórax"_s, hallazgosDelTorax()},
                                        {u"Diagrama"_s, diagrama()},
                                        {u"Cambios"_s, Above(u"Desde el registro anterior :"_s, List1)}}))}),
            Row{rowCommand(u"Command3"_s, u"&Guardar Cambios"_s, u"guardar"_s, [this] { guardar(); }),
                rowCommand(u"Command12"_s, u"&Rx..."_s, u"abrir"_s, [this] { abrirRx(); }),
                command(u"Command10"_s, u"&Evaluación deportiva..."_s, u"abrir"_s,
                        [this] { evaluacionDeportiva(); }),
                Stretch(), closes(u"Command4"_s, u"&Cerrar"_s)}});
    connect(&Text18, &QLineEdit::editingFinished, this, &panCardioPrin::exigirNumero);
    SSTab1.setEnabled(false);
    mFecha.setEnabled(false);
    resize(940, 620);
}

TextBox &panCardioPrin::texto(const QString &columna)
{
    TextBox &campo = mDato.add(mDato.size());
    Data1.bind(campo, columna);
    return campo;
}

FieldRow panCardioPrin::renglon(const QString &rotulo, const QString &columna)
{
    return {rotulo, texto(columna)};
}

Item panCardioPrin::electro()
{
    std::vector<FieldRow> datos;
    for (const Dato &dato : delElectro)
        datos.push_back(renglon(rotuloDe(dato), u"Electro - "_s + QLatin1StringView(dato.columna)));
    mImagen.setReadOnly(true);
    mImagen.setAccessibleName(u"Archivo del trazado"_s);
    Data1.bind(mImagen, u"Electro - Imagen"_s);
    Data1.bind(mInterpretacion, u"Electro - Interpretacion"_s);
    return Row{Column{Fields(datos), Expanding(Above(u"&Interpretación :"_s, mInterpretacion))},
               Expanding(Column{
                   Expanding(Image3),
                   Row{Expanding(mImagen),
                       rowCommand(u"Command11"_s, u"&Adquirir..."_s, u"abrir"_s, [this] { adquirir(); }),
                       rowCommand(u"Command13"_s, u"&Ver..."_s, u"ver"_s, [this] { verTrazado(); })}})};
}

Item panCardioPrin::pulsosDe(QChar lado, const QString &nombre)
{
    std::vector<FieldRow> datos;
    for (const Dato &dato : pulsosPares) {
        const QString columna = u"Pulsos Perifericos"_s + QString::fromLatin1(dato.columna).arg(lado);
        datos.push_back(renglon(rotuloDe(dato, u' ' + QString(lado)),
                                columna.endsWith(u"IPT") ? tibialIzquierdo : columna));
    }
    return Group(nombre, Fields(datos));
}

Item panCardioPrin::pulsos()
{
    return Row{Expanding(Column{pulsosDe(u'D', u"Derecha"_s), Stretch()}), Expanding(figura_),
               Expanding(Column{pulsosDe(u'I', u"Izquierda"_s),
                                Fields{renglon(u"Aorta :"_s, u"Pulsos Perifericos - AORTA"_s)}, Stretch()})};
}

Item panCardioPrin::focos()
{
    std::vector<Item> grupos;
    for (const Dato &foco : delFoco) {
        std::vector<Item> tiempos;
        for (const Dato &tiempo : tiemposDelFoco)
            tiempos.push_back(Above(QString::fromUtf8(tiempo.rotulo),
                                    texto(u"Focos - %1 %2"_s.arg(QLatin1StringView(foco.columna),
                                                                 QLatin1StringView(tiempo.columna)))));
        grupos.push_back(Group(QString::fromUtf8(foco.rotulo), Grid(2, tiempos)));
    }
    return Column{Grid(2, grupos), Stretch()};
}

Item panCardioPrin::examen()
{
    Data1.bind(Text18, u"Presion venosa yugular cm"_s);
    std::vector<FieldRow> venas{
        {u"Presión venosa yugular, cm :"_s, Text18},
        renglon(u"Presión venosa yugular, grados :"_s, u"Presion venosa yugular gr"_s)};
    std::vector<FieldRow> ruidos;
    for (const Dato &dato : delExamen)
        (venas.size() < renglonesDeVenas ? venas : ruidos)
            .push_back(renglon(rotuloDe(dato), QString::fromUtf8(dato.columna)));
    std::vector<Item> piernas;
    int indice = 0;
    for (const QString &pierna : {u"derecha"_s, u"izquierda"_s})
        for (int nivel = 1; nivel <= nivelesDeEdema; ++nivel) {
            CheckBox &casilla = Check1.add(indice++, u"Pierna %1 %2"_s.arg(pierna).arg(nivel));
            Data1.bind(casilla, u"Edema Pierna %1 %2"_s.arg(pierna).arg(nivel));
            piernas.emplace_back(casilla);
        }
    return Column{
        Row{Expanding(Column{Fields(venas), Stretch()}), Expanding(Column{Fields(ruidos), Stretch()})},
        Group(u"Edema"_s, Column{Fields{renglon(u"Edema :"_s, u"Edema"_s)}, Grid(4, piernas)}), Stretch()};
}

Item panCardioPrin::hallazgosDelTorax()
{
    std::vector<FieldRow> datos;
    for (const Dato &dato : delTorax)
        datos.push_back(renglon(rotuloDe(dato), QString::fromUtf8(dato.columna)));
    return Column{Fields(datos), Stretch()};
}

Item panCardioPrin::diagrama()
{
    lblAviso.setCaption(
        u"Recuerde presionar el botón Guardar Cambios luego de trabajar con el diagrama gráfico."_s);
    lblAviso.setWordWrap(true);
    return Column{Expanding(dibujo_.disponer()),
                  Row{Expanding(lblAviso), rowCommand(u"Command5"_s, u"I&mprimir..."_s, u"imprimir"_s,
                                                      [this] { imprimirDiagrama(); })}};
}

void panCardioPrin::activate()
{
    if (!services::numeroDePaciente(tag())) {
        msgBox(u"No se seleccionó ningún paciente !"_s, Icon::Critical, u"Error"_s);
        unload();
        return;
    }
    lblPaciente.setCaption(services::nombreDePaciente(tag()));
    ListaDelPaciente::activate();
}

/// Reading the rows again is no step to another record: what is being drawn stays.
void panCardioPrin::rowShown()
{
    const bool hay = Data1.hasRow();
    SSTab1.setEnabled(hay);
    mFecha.setEnabled(hay);
    Image3.mostrar(hay ? Data1.recordset()[u"Electro - Imagen"].text() : QString());
    const qint64 consulta = hay ? Data1.recordset()[u"idConsulta"].integer() : 0;
    mostrarCambios(consulta);
    if (consulta == mostrada_)
        return;
    apartarDiagrama();
    mostrada_ = consulta;
    mostrarDiagrama();
}

void panCardioPrin::mostrarCambios(qint64 consulta)
{
    List1.clear();
    if (consulta != 0)
        List1.addItems(corazon::cambios(paciente(), consulta));
}

void panCardioPrin::apartarDiagrama()
{
    if (mostrada_ != 0 && dibujo_.cambiado())
        pendientes_[mostrada_] = dibujo_.elementos();
}

void panCardioPrin::mostrarDiagrama()
{
    archivoMostrado_ = mostrada_ ? archivoDe(mostrada_, u".DAT") : QString();
    if (const auto pendiente = pendientes_.find(mostrada_); pendiente != pendientes_.end())
        dibujo_.mostrar(pendiente->second);
    else
        dibujo_.mostrar(mostrada_ ? torax::leer(basic::programFile(archivoMostrado_))
                                  : std::vector<torax::Elemento>());
}

/// By the day that is stored, which may be another since the record was shown.
QString panCardioPrin::archivoDe(qint64 consulta, QStringView extension) const
{
    const basic::Value fecha = MODULE11::BuscaCampo(
        u"Select Fecha from ConsultaCardiologia where idConsulta = %1"_s.arg(consulta), u"Fecha");
    return torax::archivo(paciente(), fecha.date(), extension);
}

void panCardioPrin::nuevo()
{
    Data1.updateRecord();
    panNueRegCardio pregunta;
    pregunta.showModal();
    if (pregunta.tag() != u"SI" || paciente() == 0)
        return;
    const bool otroEseDia =
        !MODULE11::BaseDatos
             .openRecordset(
                 u"Select idConsulta from ConsultaCardiologia where idPaciente = %1 and Fecha = %2"_s.arg(
                     QString::number(paciente()), dao::cdate(pregunta.fecha())))
             .eof();
    if (otroEseDia &&
        !askBox(u"Ya hay un registro de esa fecha y los dos compartirán el diagrama. Lo agrega igual ?"_s,
                u"Atención"_s, Answer::No))
        return;
    addRow([&](dao::Recordset &fila) {
        fila[u"idPaciente"] = paciente();
        fila[u"Fecha"] = pregunta.fecha();
    });
}

void panCardioPrin::deleteRow()
{
    if (!Data1.hasRow() || !askBox(u"Está seguro de eliminar este registro ?"_s, u"Atención"_s, Answer::No))
        return;
    pendientes_.erase(mostrada_);
    dibujo_.guardado(); // what was drawn goes with the record
    Data1.deleteRow();
}

void panCardioPrin::adquirir()
{
    const QString archivo =
        openFileDialog(u"Adquirir"_s, QDir::homePath(),
                       u"Archivos GIF (*.GIF);;Archivos JPEG (*.JPG);;Mapas de Bits (*.BMP)"_s);
    if (archivo.isEmpty())
        return;
    if (archivo.size() > largoDeLaRuta || !QImageReader(archivo).canRead()) {
        MODULE11::MuestraError(archivo.size() > largoDeLaRuta
                                   ? u"La ruta del archivo es demasiado larga."_s
                                   : u"El archivo %1 no es una imagen."_s.arg(QFileInfo(archivo).fileName()));
        return;
    }
    Data1.updateRecord();
    Data1.set(u"Electro - Imagen"_s, archivo);
    Image3.mostrar(archivo);
}

void panCardioPrin::verTrazado()
{
    const QString archivo = mImagen.text();
    if (archivo.isEmpty()) {
        MODULE11::MuestraError(u"Este registro no tiene un trazado."_s);
        return;
    }
    const basic::Value velocidad = Data1.recordset()[u"Electro - VELOCIDAD"].value();
    panTrazado(archivo, velocidad.text()).showModal();
}

void panCardioPrin::abrirRx()
{
    Data1.updateRecord();
    panRxDiag ventana;
    ventana.setTag(archivoDe(mostrada_, u".RXD"));
    ventana.showModal();
}

void panCardioPrin::evaluacionDeportiva()
{
    if (Data1.hasRow())
        screens::showModal("panEvalDeportiva", tag());
    else
        msgBox(u"Debe generar un nuevo registro primero !"_s, Icon::Exclamation, u"Atención"_s);
}

void panCardioPrin::guardar()
{
    Data1.updateRecord();
    reread();
    guardarDiagramas();
}

/// A record that has got another day takes its diagram there, and the file of the old day stays.
void panCardioPrin::guardarDiagramas()
{
    for (auto pendiente = pendientes_.begin(); pendiente != pendientes_.end();) {
        if (pendiente->first != mostrada_)
            torax::guardar(basic::programFile(archivoDe(pendiente->first, u".DAT")), pendiente->second);
        pendiente = pendiente->first != mostrada_ ? pendientes_.erase(pendiente) : std::next(pendiente);
    }
    if (mostrada_ == 0)
        return;
    const QString archivo = archivoDe(mostrada_, u".DAT");
    const bool mudado = archivo != archivoMostrado_;
    if (!mudado && !dibujo_.cambiado() && !pendientes_.contains(mostrada_))
        return;
    if (mudado && QFile::exists(basic::programFile(archivo)) &&
        !askBox(u"Ya existe un diagrama de esa fecha. Lo reemplaza ?"_s, u"Atención"_s, Answer::No))
        return;
    torax::guardar(basic::programFile(archivo), dibujo_.elementos());
    pendientes_.erase(mostrada_);
    archivoMostrado_ = archivo;
    dibujo_.guardado();
}

void panCardioPrin::imprimirDiagrama()
{
    dibujo::imprimir(dibujo_, u"%1 del %2"_s.arg(windowTitle(), basic::dateText(mFecha.value())),
                     lblPaciente.caption());
}

bool panCardioPrin::queryUnload()
{
    if (!ListaDelPaciente::queryUnload())
        return false;
    if (!hayDiagramasSinGuardar())
        return true;
    const auto guarda =
        askOrCancelBox(u"El diagrama tiene cambios sin guardar. Los guarda ?"_s, u"Atención"_s);
    if (!guarda)
        return false;
    if (*guarda)
        guardarDiagramas();
    return true;
}

void panCardioPrin::exigirNumero()
{
    if (Text18.text().isEmpty() || basic::toNumber(Text18.text()))
        return;
    Text18.setText(u"0"_s);
    msgBox(u"Ingrese valores numéricos !!"_s, Icon::Critical, u"Error"_s);
}

#include "moc_panCardioPrin.cpp"
