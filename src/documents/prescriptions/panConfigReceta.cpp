#include "documents/prescriptions/panConfigReceta.h"

#include "core/services/services.h"
#include "core/session/recetario.h"
#include "core/session/session.h"
#include "documents/prescriptions/panCarElem.h"
#include "platform/basic/environment.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"
#include "platform/forms/tag.h"
#include "platform/printing/printer.h"
#include "platform/settings/settings.h"

#include <QDir>
#include <QPagedPaintDevice>

using namespace Qt::StringLiterals;
using namespace forms;
using recetario::Diseno;
using recetario::Elemento;
using recetario::Imagen;
using recetario::Papel;

namespace
{

const QString seccion = u"Configuracion"_s;
const QString claveDeCuadricula = u"Alinear objetos de la receta"_s;
constexpr double cuadricula = 150; // twips
const QString picture1 = u"Picture1"_s;

/// The picture's place while there is none, to click on.
Look marcoDeImagen()
{
    const Picture marco(u":/marco.svg"_s);
    return PictureLook{marco, marco.sizeTwips()};
}

QPointF esquina(const Papel &papel)
{
    return {papel.medida.width() - 1700, 400};
}

/// The delivered layouts go by what they are, the others by their table.
struct Entregado {
    QStringView tabla, titulo;
    int papel;
};
constexpr Entregado entregados[] = {{u"POSRECETARIO", u"Hoja entera", 0},
                                    {u"POSRECETARIOMEDIA", u"Media hoja", 1}};

const Entregado *entregado(const QString &tabla)
{
    for (const Entregado &diseno : entregados)
        if (diseno.tabla.compare(tabla, Qt::CaseInsensitive) == 0)
            return &diseno;
    return nullptr;
}

/// Where objects go that were not dragged to a place: one below the other.
QPointF lugarLibre(const Diseno &diseno)
{
    return QPointF(600, 600) + QPointF(150, 300) * static_cast<double>(diseno.elementos.size() % 10);
}

/// A picture may be larger than the frame that was there for it.
void traerALaHoja(CanvasItem &item, const Papel &papel)
{
    const QSizeF lugar = papel.medida - item.place().size();
    item.setPos(qBound(0.0, item.x(), lugar.width()), qBound(0.0, item.y(), lugar.height()));
}

/// The element that the keyboard is on, or that was pressed last.
std::optional<int> elegido(const recetario::Hoja &hoja)
{
    const CanvasItem *item = hoja.focused();
    return item ? hoja.numeroDe(item->name()) : std::nullopt;
}

/// A picture beside the program is found by every workstation, wherever the folder is for it.
QString rutaParaGuardar(const QString &archivo)
{
    const QString relativa = QDir(basic::programFolder()).relativeFilePath(archivo);
    return relativa.startsWith(u".."_s) || QDir::isAbsolutePath(relativa) ? archivo : relativa;
}

} // namespace

panConfigReceta::panConfigReceta() : Form(u"panConfigReceta"_s)
{
    setWindowTitle(u"Configurar recetario"_s);
    forms::setTag(&Command1, u"NUEVO"_s);
    Command1.setToolTip(u"Arrástrelo a la hoja para agregar un objeto, hasta %1"_s.arg(recetario::lugares));
    makeDraggable(Command1);
    for (const Papel &papel : recetario::papeles())
        Combo1.addItem(papel.nombre);
    Combo1.setCurrentText(Picture2.papel().nombre);
    Command5.setMenu(&disenos_);
    Picture2.imagen().setToolTip(u"Clic: elegir la imagen"_s);
    marcarArea();
    disponer();
    agregarMenu();
    conectar();
}

void panConfigReceta::disponer()
{
    auto *ayuda = new QLabel(
        u"Arrastre los objetos por la hoja, o muévalos con Ctrl y las flechas. Doble clic o el botón derecho abren sus propiedades."_s);
    ayuda->setWordWrap(true);
    auto *lado = new QWidget;
    lado->setFixedWidth(210);
    setContents(lado, Column{Command1, Command5, Above(u"&Hoja :"_s, Combo1), Check1, ayuda, Stretch(),
                             Command2, Command3, Command4});
    setContents(this, Row{Expanding(Picture2), lado});
    resize(Picture2.sizeHint().width() + 290, 680);
}

void panConfigReceta::agregarMenu()
{
    menuEd1.setObjectName(u"menuEd1"_s);
    const std::pair<QAction *, QString> nombres[] = {{&menuAgregarObjeto, u"menuAgregarObjeto"_s},
                                                     {&menuPropiedades, u"menuPropiedades"_s},
                                                     {&menuEliminar, u"menuEliminar"_s}};
    for (const auto &[accion, nombre] : nombres) {
        accion->setObjectName(nombre);
        Picture2.addAction(accion);
    }
    menuEliminar.setShortcut(Qt::Key_Delete);
    menuEliminar.setShortcutContext(Qt::WidgetWithChildrenShortcut);
    menuEd1.addActions({&menuPropiedades, &menuEliminar});
}

void panConfigReceta::marcarArea()
{
    area_ = &Picture2.add(u"Area"_s, {}, ShapeLook{});
    rotuloDelArea_ = &Picture2.add(u"Label1"_s, {}, TextLook{});
    for (CanvasItem *item : {area_, rotuloDelArea_}) {
        item->setInert();
        item->setZValue(-1);
    }
}

void panConfigReceta::conectar()
{
    connect(&Picture2, &Canvas::dropped, this, [this](const QWidget *origen, QPointF lugar) {
        if (forms::tag(origen) == u"NUEVO")
            agregar(Picture2.snapped(lugar));
    });
    connect(&Picture2, &Canvas::moved, this, &panConfigReceta::mover);
    connect(&Picture2, &Canvas::contextMenu, this, &panConfigReceta::abrirMenu);
    connect(&Picture2, &Canvas::doubleClicked, this, &panConfigReceta::propiedades);
    connect(&Picture2, &Canvas::clicked, this, [this](const QString &item) {
        if (item == picture1)
            elegirImagen();
    });
    connect(&menuAgregarObjeto, &QAction::triggered, this, [this] { agregar(lugarLibre(diseno_)); });
    connect(&menuPropiedades, &QAction::triggered, this, &panConfigReceta::propiedades);
    connect(&menuEliminar, &QAction::triggered, this, &panConfigReceta::eliminar);
    connect(&Check1, &QCheckBox::toggled, this, [this](bool alinear) {
        Picture2.setGrid(alinear ? cuadricula : 0, true);
        settings::saveSetting(seccion, claveDeCuadricula, alinear ? u"SI"_s : u"NO"_s);
    });
    connect(&Combo1, &QComboBox::currentIndexChanged, this, &panConfigReceta::elegirPapel);
    connect(&Command1, &QPushButton::clicked, this, [this] { agregar(lugarLibre(diseno_)); });
    connect(&Command2, &QPushButton::clicked, this, &panConfigReceta::imprimirPrueba);
    connect(&Command3, &QPushButton::clicked, this, &panConfigReceta::guardar);
    connect(&Command4, &QPushButton::clicked, this, &panConfigReceta::unload);
}

void panConfigReceta::load()
{
    MODULE11::prepararRecetario();
    MODULE11::comprobarRecetario();
    Check1.setChecked(settings::getSetting(seccion, claveDeCuadricula) == u"SI");
    elegirPapel();
    ofrecerDisenos();
    mostrar(recetario::leer(MODULE11::TablaRecetario));
    guardado_ = diseno();
    Picture2.setFocus();
}

/// The place of the prescription only advises: nothing keeps an object off it.
void panConfigReceta::elegirPapel()
{
    const Papel &papel = recetario::papeles()[static_cast<std::size_t>(Combo1.currentIndex())];
    Picture2.setPapel(papel);
    area_->setPos(papel.receta.topLeft());
    ShapeLook marco =
        polygon(QRectF(QPointF(), papel.receta.size()), QColor(0xf4, 0xf8, 0xf8), QColor(0xb5, 0xc6, 0xcc));
    area_->setLook(marco);
    rotuloDelArea_->setPos(papel.receta.topLeft() + QPointF(150, 150));
    rotuloDelArea_->setLook(
        TextLook{u"Area de la receta (no ubicar objetos)..."_s, font(), 0, QColor(0x5a, 0x6a, 0x76)});
    if (forms::tag(&Picture2.imagen()).isEmpty())
        Picture2.imagen().setPos(esquina(papel));
}

void panConfigReceta::mostrar(const Diseno &diseno)
{
    Picture2.vaciar();
    diseno_ = {};
    for (const auto &[numero, elemento] : diseno.elementos)
        mostrarElemento(numero, elemento);
    mostrarImagen(diseno.imagen.value_or(Imagen{{}, esquina(Picture2.papel())}));
}

void panConfigReceta::mostrarElemento(int numero, const Elemento &elemento)
{
    diseno_.elementos[numero] = elemento;
    Picture2.mostrar(numero, elemento, elemento.valor);
    forms::setTag(&Picture2.elem(numero), recetario::esCampo(elemento.valor) ? elemento.valor : QString());
}

/// Without a picture, or where its file is none, its frame is there to choose one.
void panConfigReceta::mostrarImagen(const Imagen &imagen)
{
    QString problema;
    try {
        Picture2.mostrarImagen(imagen);
    } catch (const basic::Error &error) {
        problema = error.description();
    }
    if (!Picture2.imagen().isVisible()) {
        Picture2.imagen().setLook(marcoDeImagen());
        Picture2.imagen().setVisible(true);
    }
    if (!problema.isEmpty())
        MODULE11::MuestraError(problema);
}

Diseno panConfigReceta::diseno()
{
    Diseno actual = diseno_;
    const QString archivo = forms::tag(&Picture2.imagen());
    if (!archivo.isEmpty())
        actual.imagen = Imagen{archivo, Picture2.imagen().pos()};
    return actual;
}

void panConfigReceta::agregar(QPointF lugar)
{
    for (int numero = 0; numero < recetario::lugares; ++numero) {
        if (Picture2.enUso(numero))
            continue;
        mostrarElemento(numero, {u"Nuevo Elemento"_s, lugar, QFontInfo(font()).family()});
        Picture2.elem(numero).setFocus();
        Picture2.setFocus();
        return;
    }
}

void panConfigReceta::mover(const QString &item, QPointF lugar)
{
    if (const std::optional<int> numero = Picture2.numeroDe(item))
        diseno_.elementos[*numero].lugar = lugar;
}

void panConfigReceta::abrirMenu(const QString &item, QPoint pantalla)
{
    if (!Picture2.numeroDe(item))
        return;
    Picture2.item(item)->setFocus();
    menuEd1.exec(pantalla);
}

void panConfigReceta::propiedades()
{
    const std::optional<int> numero = elegido(Picture2);
    if (!numero)
        return;
    panCarElem dialogo(diseno_.elementos.at(*numero));
    dialogo.showModal();
    if (dialogo.tag() == u"SI")
        mostrarElemento(*numero, dialogo.elemento());
}

void panConfigReceta::eliminar()
{
    const std::optional<int> numero = elegido(Picture2);
    if (!numero)
        return;
    Picture2.elem(*numero).setVisible(false);
    diseno_.elementos.erase(*numero);
}

void panConfigReceta::elegirImagen()
{
    const QString archivo = openFileDialog(u"Imagen de la receta"_s, basic::programFolder(),
                                           u"Imágenes (*.png *.jpg *.jpeg *.bmp *.gif *.svg)"_s);
    if (archivo.isEmpty())
        return;
    const Imagen anterior{forms::tag(&Picture2.imagen()), Picture2.imagen().pos()};
    try {
        Picture2.mostrarImagen({rutaParaGuardar(archivo), anterior.lugar});
        traerALaHoja(Picture2.imagen(), Picture2.papel());
    } catch (const basic::Error &error) {
        mostrarImagen(anterior);
        MODULE11::MuestraError(error.description());
    }
}

void panConfigReceta::ofrecerDisenos()
{
    for (const QString &tabla : recetario::tablas()) {
        if (tabla.compare(MODULE11::TablaRecetario, Qt::CaseInsensitive) == 0)
            continue;
        const Entregado *diseno = entregado(tabla);
        QAction *accion = disenos_.addAction(diseno ? diseno->titulo.toString() : tabla);
        accion->setObjectName(tabla);
        connect(accion, &QAction::triggered, this, [this, tabla] { copiarDe(tabla); });
    }
}

void panConfigReceta::copiarDe(const QString &tabla)
{
    if (!diseno_.elementos.empty() && !MODULE11::PreguntaSiBorra(u"Reemplaza los objetos de la hoja"_s))
        return;
    if (const Entregado *diseno = entregado(tabla))
        Combo1.setCurrentIndex(diseno->papel);
    mostrar(recetario::leer(tabla));
}

/// The sheet as it stands, on paper of its size: window, scroll and zoom stay as they are.
void panConfigReceta::imprimirPrueba()
{
    const auto impresora = printing::defaultChoice(u"Prueba de la receta"_s);
    if (!impresora)
        return;
    CanvasItem &imagen = Picture2.imagen();
    imagen.setVisible(!forms::tag(&imagen).isEmpty()); // the frame to click on is none of the sheet's
    const QPageLayout hoja(QPageSize(Picture2.papel().pagina), QPageLayout::Portrait, {});
    printing::Job trabajo(*impresora, impresora->name, hoja);
    const double puntos = trabajo.device().logicalDpiX() / 1440.0;
    Picture2.paint(trabajo.painter(), QRectF(QPointF(), Picture2.sizeTwips() * puntos));
    trabajo.finish();
    imagen.setVisible(true);
}

void panConfigReceta::guardar()
{
    try {
        recetario::guardar(MODULE11::TablaRecetario, diseno());
    } catch (const basic::Error &error) {
        MODULE11::MuestraError(error.description());
        return;
    }
    recetario::usarPapel(Picture2.papel());
    guardado_ = diseno();
    unload();
}

bool panConfigReceta::queryUnload()
{
    const bool guardada = diseno() == guardado_ && Picture2.papel().nombre == recetario::papelEnUso().nombre;
    return guardada || MODULE11::PreguntaSiBorra(u"Cierra sin guardar los cambios de la hoja"_s);
}

#include "moc_panConfigReceta.cpp"
