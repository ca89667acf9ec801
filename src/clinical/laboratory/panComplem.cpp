#include "clinical/laboratory/panComplem.h"

#include "clinical/history/historiaComoTexto.h"
#include "clinical/laboratory/impresionDeComplemento.h"
#include "core/records/fichaDelPaciente.h"
#include "core/services/paciente.h"
#include "core/services/services.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"

#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QImageReader>
#include <QSaveFile>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBlock>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

enum Lugar {
    lImprimir = 1,
    lCortar,
    lCopiar,
    lPegar,
    lBuscar,
    lNegrita,
    lItalica,
    lSubrayado,
    lIzquierda,
    lCentro,
    lDerecha,
    lApartado,
    lVinetas,
    lNumerada,
    lColor
}; // Toolbar1

constexpr int sinEscribir = 75;

} // namespace

panComplem::panComplem() : Form(u"panComplem"_s)
{
    setWindowTitle(u"Ex.Complement."_s);
    QFont destacada = lblPaciente.font();
    destacada.setBold(true);
    lblPaciente.setFont(destacada);
    RT1.setFont(QFont(u"Arial"_s, 11));
    RT1.setAccessibleName(u"Informe"_s);
    setContents(this, Column{Row{lblPaciente, Stretch()}, barra(), Expanding(RT1), tira(),
                             Row{Label1, Stretch(), Command1, Command2}});
    resize(960, 640);
    connect(&RT1, &QTextEdit::currentCharFormatChanged, this, &panComplem::mostrarLetra);
    connect(&RT1, &QTextEdit::cursorPositionChanged, this, &panComplem::mostrarParrafo);
    connect(&Command1, &QPushButton::clicked, this, &panComplem::guardar);
    connect(&Command2, &QPushButton::clicked, this, [this] { unload(); });
    connect(new QShortcut(QKeySequence::Save, this), &QShortcut::activated, &Command1, &QPushButton::click);
    connect(new QShortcut(QKeySequence::FindNext, this), &QShortcut::activated, this,
            &panComplem::buscarOtra);
}

// --- the bar of tools ---

ToolButton &panComplem::boton(int lugar, const QString &titulo, const QString &icono,
                              std::function<void()> accion)
{
    ToolButton &boton = Toolbar1.add(lugar, titulo, icono);
    connect(&boton, &QToolButton::clicked, this, [accion = std::move(accion)] { accion(); });
    return boton;
}

/// A button that stays pressed where the text looks so.
ToolButton &panComplem::llave(int lugar, const QString &titulo, const QString &icono,
                              std::function<void(bool)> accion)
{
    ToolButton &llave = Toolbar1.add(lugar, titulo, icono);
    llave.setCheckable(true);
    connect(&llave, &QToolButton::clicked, this, [this, accion = std::move(accion)](bool puesta) {
        accion(puesta);
        mostrarParrafo();
    });
    return llave;
}

Item panComplem::barra()
{
    for (int puntos : {8, 9, 10, 11, 12, 14, 16, 18, 20, 24, 28, 36, 48})
        Combo1.addItem(QString::number(puntos));
    Combo2.addItems(QFontDatabase::families());
    Combo1.setToolTip(u"Tamaño de la letra"_s);
    Combo2.setToolTip(u"Fuente"_s);
    Combo2.setFixedWidth(170);
    connect(&Combo1, &QComboBox::textActivated, this, [this](const QString &puntos) {
        RT1.setFontPointSize(puntos.toDouble());
        RT1.setFocus();
    });
    connect(&Combo2, &QComboBox::textActivated, this, [this](const QString &familia) {
        RT1.setFontFamily(familia);
        RT1.setFocus();
    });
    const auto alinear = [this](Qt::Alignment lado) {
        return [this, lado](bool) { RT1.setAlignment(lado); };
    };
    const auto enlistar = [this](QTextListFormat::Style marca) {
        return
            [this, marca](bool puesta) { RT1.setList(puesta ? marca : QTextListFormat::ListStyleUndefined); };
    };
    Item linea = Row{
        boton(lImprimir, u"Imprimir..."_s, u"imprimir"_s, [this] { imprimir(); }),
        Space(6),
        boton(lCortar, u"Cortar"_s, u"cortar"_s, [this] { RT1.cut(); }),
        boton(lCopiar, u"Copiar"_s, u"copiar"_s, [this] { RT1.copy(); }),
        boton(lPegar, u"Pegar : Presione CTRL-V si no funciona el pegado."_s, u"pegar"_s,
              [this] { RT1.paste(); }),
        boton(lBuscar, u"Buscar Cadena de Texto"_s, u"buscar"_s, [this] { buscar(); }),
        Space(6),
        Combo2,
        Combo1,
        llave(lNegrita, u"Negrita"_s, u"negrita"_s, [this](bool puesta) { RT1.setBold(puesta); }),
        llave(lItalica, u"Itálica"_s, u"cursiva"_s, [this](bool puesta) { RT1.setFontItalic(puesta); }),
        llave(lSubrayado, u"Subrayado"_s, u"subrayado"_s,
              [this](bool puesta) { RT1.setFontUnderline(puesta); }),
        boton(lColor, u"Color de la letra"_s, u"color"_s, [this] { elegirColor(); }),
        Space(6),
        llave(lIzquierda, u"Justificar a la izquierda"_s, u"izquierda"_s, alinear(Qt::AlignLeft)),
        llave(lCentro, u"Justificar al centro"_s, u"centro"_s, alinear(Qt::AlignHCenter)),
        llave(lDerecha, u"Justificar a la derecha"_s, u"derecha"_s, alinear(Qt::AlignRight)),
        Space(6),
        llave(lVinetas, u"Lista con viñetas"_s, u"vinetas"_s, enlistar(QTextListFormat::ListDisc)),
        llave(lNumerada, u"Lista numerada"_s, u"numerada"_s, enlistar(QTextListFormat::ListDecimal)),
        Space(6),
        boton(lApartado, u"Estilo Apartado"_s, u"historia"_s, [this] { agregarHistoria(); }),
        Stretch(),
    };
    Toolbar1(lApartado).setToolTip(u"Estilo Apartado: agrega el texto de la historia clínica"_s);
    Toolbar1(lImprimir).setShortcut(QKeySequence::Print);
    Toolbar1(lBuscar).setShortcut(QKeySequence::Find);
    Toolbar1(lNegrita).setShortcut(QKeySequence::Bold);
    Toolbar1(lItalica).setShortcut(QKeySequence::Italic);
    Toolbar1(lSubrayado).setShortcut(QKeySequence::Underline);
    return linea;
}

void panComplem::mostrarLetra(const QTextCharFormat &letra)
{
    const QFont fuente = letra.font().resolve(RT1.font());
    Toolbar1(lNegrita).setChecked(fuente.weight() >= QFont::DemiBold);
    Toolbar1(lItalica).setChecked(fuente.italic());
    Toolbar1(lSubrayado).setChecked(fuente.underline());
    const auto poner = [](ComboBox &lista, const QString &valor) {
        if (lista.findText(valor) < 0)
            lista.insertItem(0, valor); // of a file written elsewhere
        lista.setValue(valor);
    };
    poner(Combo1, QString::number(fuente.pointSizeF()));
    poner(Combo2, fuente.family());
}

void panComplem::mostrarParrafo()
{
    const Qt::Alignment lado = RT1.alignment();
    Toolbar1(lIzquierda).setChecked(lado.testFlag(Qt::AlignLeft));
    Toolbar1(lCentro).setChecked(lado.testFlag(Qt::AlignHCenter));
    Toolbar1(lDerecha).setChecked(lado.testFlag(Qt::AlignRight));
    Toolbar1(lVinetas).setChecked(RT1.listStyle() == QTextListFormat::ListDisc);
    Toolbar1(lNumerada).setChecked(RT1.listStyle() == QTextListFormat::ListDecimal);
}

void panComplem::elegirColor()
{
    if (const auto elegido = colourDialog(u"Color de la letra"_s, RT1.textColor()))
        RT1.setTextColor(*elegido);
}

void panComplem::buscar()
{
    const auto texto = inputBox(u"Texto a buscar :"_s, u"Buscar Cadena de Texto"_s, buscado_);
    if (!texto || texto->trimmed().isEmpty())
        return;
    buscado_ = texto->trimmed();
    buscarOtra();
}

void panComplem::buscarOtra()
{
    if (buscado_.isEmpty())
        buscar();
    else if (!RT1.findTyped(buscado_))
        MODULE11::Aviso(u"No se encontró «%1» en el informe."_s.arg(buscado_));
    RT1.setFocus();
}

void panComplem::agregarHistoria()
{
    const QString historia = clinical::historiaComoTexto(paciente_, false);
    if (!historia.isEmpty())
        RT1.textCursor().insertText(historia);
    RT1.setFocus();
}

void panComplem::imprimir()
{
    const auto impresora = printing::chooserDialog(lblPaciente.caption());
    if (!impresora)
        return;
    QStringList archivos;
    for (const CasillaDeImagen *casilla : casillas_)
        if (casilla->existe())
            archivos += casilla->archivo();
    complementos::imprimir(*RT1.document(), archivos, *impresora);
}

// --- the row of pictures ---

Item panComplem::tira()
{
    auto *fila = new QWidget;
    auto *lugar = new QHBoxLayout(fila);
    lugar->setContentsMargins(2, 2, 2, 2);
    lugar->addStretch(1);
    tira_.setWidget(fila);
    tira_.setWidgetResizable(true);
    tira_.setFocusPolicy(Qt::NoFocus);
    tira_.horizontalScrollBar()->setObjectName(u"HScroll1"_s);
    const int alto = agregarCasilla().sizeHint().height() + tira_.horizontalScrollBar()->sizeHint().height();
    tira_.setFixedHeight(alto + 8);
    RT1.setMinimumHeight(60);
    return tira_;
}

/// The row always ends with a place to add a picture in.
CasillaDeImagen &panComplem::agregarCasilla()
{
    auto *casilla = new CasillaDeImagen;
    auto *lugar = static_cast<QHBoxLayout *>(tira_.widget()->layout());
    lugar->insertWidget(lugar->count() - 1, casilla, 0, Qt::AlignTop);
    casillas_.push_back(casilla);
    numerarCasillas();
    connect(casilla, &CasillaDeImagen::elegir, this, [this, casilla] { elegirImagen(*casilla); });
    connect(casilla, &CasillaDeImagen::quitar, this, [this, casilla] { quitarCasilla(*casilla); });
    connect(casilla, &CasillaDeImagen::cambiada, this, [this] { imagenesCambiadas_ = true; });
    return *casilla;
}

/// What is in sight is what was saved.
void panComplem::quitarLasQueFaltan()
{
    const std::vector<CasillaDeImagen *> todas = casillas_;
    for (CasillaDeImagen *casilla : todas)
        if (!casilla->archivo().isEmpty() && !casilla->existe())
            quitarCasilla(*casilla);
}

void panComplem::numerarCasillas()
{
    for (std::size_t i = 0; i < casillas_.size(); ++i)
        casillas_[i]->numerar(static_cast<int>(i));
}

void panComplem::elegirImagen(CasillaDeImagen &casilla)
{
    const QString archivo =
        openFileDialog(u"Elegir una imagen"_s, carpeta_.isEmpty() ? QDir::homePath() : carpeta_,
                       u"Archivo JPEG (*.JPG);;Archivo GIF (*.GIF)"_s);
    if (archivo.isEmpty())
        return;
    carpeta_ = QFileInfo(archivo).absolutePath();
    QImageReader lector(archivo);
    lector.setDecideFormatFromContent(true);
    if (!lector.canRead()) {
        MODULE11::MuestraError(u"El archivo %1 no es una imagen."_s.arg(QFileInfo(archivo).fileName()));
        return;
    }
    casilla.mostrar(
        {archivo,
         complementos::fechaEscrita(casilla.fechaEscrita(), basic::today().date()).value_or(basic::Null{})});
    imagenesCambiadas_ = true;
    if (&casilla == casillas_.back())
        agregarCasilla();
}

void panComplem::quitarCasilla(CasillaDeImagen &casilla)
{
    std::erase(casillas_, &casilla);
    casilla.hide();
    casilla.setParent(nullptr);
    casilla.deleteLater(); // its own button was pressed
    numerarCasillas();
    imagenesCambiadas_ = true;
}

std::optional<std::vector<complementos::Imagen>> panComplem::imagenes()
{
    std::vector<complementos::Imagen> todas;
    for (CasillaDeImagen *casilla : casillas_) {
        if (casilla->archivo().isEmpty())
            continue;
        const auto fecha = complementos::fechaEscrita(casilla->fechaEscrita(), basic::today().date());
        if (!fecha) {
            MODULE11::MuestraError(
                u"«%1» no es la fecha de una imagen: escriba dd/mm/aaaa, o %2 si no la tiene."_s.arg(
                    casilla->fechaEscrita(), complementos::sinFecha));
            tira_.ensureWidgetVisible(casilla);
            casilla->irALaFecha();
            return {};
        }
        casilla->ponerFecha(*fecha);
        todas.push_back({casilla->archivo(), *fecha});
    }
    return todas;
}

// --- reading and saving ---

void panComplem::activate()
{
    const auto paciente = records::pacienteDe(*this);
    if (!paciente || leido_)
        return;
    leido_ = true;
    paciente_ = *paciente;
    leer();
    RT1.setFocus();
}

void panComplem::leer()
{
    lblPaciente.setCaption(u"%1 de %2"_s.arg(examen_, services::nombreDePaciente(tag())));
    complemento_ = complementos::leer(paciente_, examen_);
    for (const complementos::Imagen &imagen : complemento_.imagenes) {
        casillas_.back()->mostrar(imagen);
        agregarCasilla();
    }
    leerInforme();
    RT1.moveCursor(QTextCursor::Start);
    mostrarLetra(RT1.currentCharFormat());
    mostrarParrafo();
}

QString panComplem::nombreDelArchivo() const
{
    return QDir(basic::programFolder()).relativeFilePath(complemento_.informe);
}

/// A file that cannot be read stays as it is: what would be saved over it is not the report.
void panComplem::leerInforme()
{
    QFile archivo(complemento_.informe);
    if (!archivo.exists()) {
        if (complemento_.guardado)
            MODULE11::MuestraError(u"No se encuentra el archivo del informe:\n"_s + nombreDelArchivo());
        return;
    }
    if (!archivo.open(QIODevice::ReadOnly)) {
        MODULE11::MuestraError(u"No se puede leer el archivo del informe:\n%1\n%2"_s.arg(
            nombreDelArchivo(), archivo.errorString()));
        Command1.setEnabled(false);
        RT1.setReadOnly(true);
        return;
    }
    enElArchivo_ = archivo.readAll();
    const richtext::Reading lectura = RT1.setRtf(enElArchivo_);
    if (!lectura.complete)
        MODULE11::MuestraError(
            u"El archivo del informe está dañado: se muestra lo que se pudo leer. Lo demás se pierde si lo guarda."_s);
    if (lectura.picturesLeftOut > 0)
        MODULE11::Aviso(
            u"El informe tiene imágenes que no se pueden mostrar: %1. Se pierden si lo guarda."_s.arg(
                lectura.picturesLeftOut));
}

bool panComplem::nadieLoCambio() const
{
    QFile archivo(complemento_.informe);
    return !archivo.open(QIODevice::ReadOnly) || archivo.readAll() == enElArchivo_;
}

void panComplem::guardar()
{
    const auto enLaTira = imagenes();
    if (!enLaTira)
        return;
    if (!nadieLoCambio() &&
        !MODULE11::PreguntaSiBorra(
            u"Otra estación guardó este informe mientras usted lo escribía.\n¿Lo reemplaza por el suyo?"_s))
        return;
    complemento_.imagenes = *enLaTira;
    escribirInforme();
    complementos::guardar(paciente_, examen_, complemento_);
    quitarLasQueFaltan();
    RT1.document()->setModified(false);
    imagenesCambiadas_ = false;
    Label1.setCaption(u"Guardado a las "_s + basic::format(basic::time(), u"HH:MM"));
}

void panComplem::escribirInforme()
{
    const QByteArray rtf = RT1.rtf();
    QDir().mkpath(QFileInfo(complemento_.informe).absolutePath());
    QSaveFile archivo(complemento_.informe);
    if (!archivo.open(QIODevice::WriteOnly) || archivo.write(rtf) != rtf.size() || !archivo.commit())
        throw basic::Error(sinEscribir, u"No se pudo guardar el informe en %1: %2"_s.arg(
                                            complemento_.informe, archivo.errorString()));
    enElArchivo_ = rtf;
}

bool panComplem::queryUnload()
{
    const bool cambiado = RT1.document()->isModified() || imagenesCambiadas_;
    return !cambiado || MODULE11::PreguntaSiBorra(u"Está seguro de salir sin guardar los cambios??"_s);
}

void complementos::abrir(qint64 paciente, const QString &examen)
{
    panComplem ventana;
    ventana.setTag(QString::number(paciente));
    ventana.setExamen(examen);
    ventana.showModal();
}

#include "moc_panComplem.cpp"
