#include "paediatrics/vaccines/hojaDeVacunas.h"

#include "platform/forms/tag.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace vacunas
{

namespace
{

// Twips.
constexpr double borde = 150, rotulos = 1500, ancho = 1170;
constexpr double izquierda = borde + rotulos, derecha = izquierda + 12 * ancho;
constexpr double certificado = 150, cabezas = 600, nombres = 1010, arriba = 1750, alto = 450;
constexpr double abajo = arriba + 12 * alto, leyendas = abajo + 180, firma = abajo + 1250;
constexpr QSizeF medida{derecha + borde, firma + 400};
/// A marker rests on its row: a taller one than a row and 130 would reach into the states of the row above.
constexpr double marcador = 340, hundido = 30, corrido = 100, separacion = 30;
static_assert(marcador >= 130 && marcador < alto + 130);
constexpr int marcasDeLaHoja = 144;

const QColor tinta(0x22, 0x33, 0x44), tenue(0x5a, 0x67, 0x75), trazo(0x9f, 0xad, 0xb9);
const QColor delPeriodo(0xff, 0xf1, 0xcf), sinEdad(0xe4, 0xe6, 0xe9);

QString numerado(const QString &nombre, int numero)
{
    return u"%1(%2)"_s.arg(nombre).arg(numero);
}

QFont letra(double puntos, bool negrita = false)
{
    QFont fuente;
    fuente.setPointSizeF(puntos);
    fuente.setBold(negrita);
    return fuente;
}

ShapeLook lineas(const QPainterPath &camino, double grosor = 15)
{
    return {camino, Qt::transparent, trazo, grosor};
}

QPainterPath horizontal(double largo)
{
    QPainterPath camino;
    camino.lineTo(largo, 0);
    return camino;
}

QPainterPath vertical(double largo)
{
    QPainterPath camino;
    camino.lineTo(0, largo);
    return camino;
}

double lineaDe(int fila)
{
    return arriba + alto * (fila + 1);
}

const char16_t *dibujoDe(Estado estado)
{
    switch (estado) {
    case Estado::Proxima:
        return u"proxima";
    case Estado::Indicada:
        return u"indicada";
    case Estado::Colocada:
        return u"puesta";
    default:
        return u"falta";
    }
}

/// Each picture is read once.
const Picture &imagenDe(Estado estado)
{
    static std::map<Estado, Picture> imagenes;
    Picture &imagen = imagenes[estado];
    if (imagen.isNull())
        imagen = Picture(u":/vacunas/%1.svg"_s.arg(QStringView(dibujoDe(estado))));
    return imagen;
}

Look aspectoDe(Estado estado)
{
    constexpr QSizeF tamano(marcador, marcador);
    if (estado == Estado::SinEdad)
        return ellipse(tamano, sinEdad, trazo);
    return PictureLook{imagenDe(estado), tamano};
}

} // namespace

HojaDeVacunas::HojaDeVacunas() : Canvas(u"hoja"_s, medida)
{
    QPainterPath recuadro;
    recuadro.addRect(QRectF(0, 0, derecha - borde, alto));
    inerte(u"Shape6"_s, {borde, arriba}, ShapeLook{recuadro, delPeriodo, delPeriodo}).hide();
    inerte(u"Label12"_s, {borde, certificado}, TextLook{{}, letra(10, true), derecha - borde, tinta});
    dibujarFilas();
    dibujarLeyenda();
    dibujarFirma();
    for (int numero = 0; numero < marcasDeLaHoja; ++numero)
        marca(numero).hide();
}

CanvasItem &HojaDeVacunas::inerte(const QString &nombre, QPointF lugar, Look aspecto)
{
    CanvasItem &item = add(nombre, lugar, std::move(aspecto));
    item.setInert();
    return item;
}

void HojaDeVacunas::dibujarFilas()
{
    inerte(u"cabecera"_s, {borde, arriba}, lineas(horizontal(derecha - borde)));
    for (int columna = 0; columna < static_cast<int>(Planilla::columnasQueCaben); ++columna) {
        const double x = izquierda + columna * ancho;
        inerte(numerado(u"columna"_s, columna), {x, cabezas}, lineas(vertical(abajo - cabezas), 8));
        inerte(numerado(u"label2"_s, columna), {x + separacion, cabezas},
               TextLook{{}, letra(7.5, true), ancho - 2 * separacion, tinta, Qt::AlignHCenter});
        inerte(numerado(u"Label3"_s, columna), {x + separacion, nombres},
               TextLook{{}, letra(6.5), ancho - 2 * separacion, tenue, Qt::AlignHCenter});
    }
    int fila = 0;
    for (const FilaDeEdad &edad : filasDeEdad()) {
        inerte(numerado(u"edad"_s, fila), {borde, lineaDe(fila) - 330},
               TextLook{edad.rotulo.toString(), letra(9, true), rotulos - separacion, tinta});
        CanvasItem &linea =
            inerte(numerado(u"linea"_s, fila), {borde, lineaDe(fila)}, lineas(horizontal(derecha - borde)));
        forms::setTag(&linea, edad.clave.toString());
        ++fila;
    }
}

void HojaDeVacunas::dibujarLeyenda()
{
    double x = borde;
    for (const auto &[nombre, estado] :
         {std::pair{u"Falta"_s, Estado::Falta}, std::pair{u"prox"_s, Estado::Proxima},
          std::pair{u"Image2"_s, Estado::Indicada}, std::pair{u"Puesta"_s, Estado::Colocada}}) {
        inerte(nombre, {x, leyendas}, aspectoDe(estado)).setToolTip(leyenda(estado));
        inerte(u"leyenda "_s + nombre, {x + marcador + 60, leyendas + 60},
               TextLook{leyenda(estado), letra(9), 2000, tinta});
        x += 2600;
    }
}

void HojaDeVacunas::dibujarFirma()
{
    constexpr double largo = 4200;
    inerte(u"firma"_s, {derecha - largo, firma}, lineas(horizontal(largo)));
    inerte(u"Label13"_s, {derecha - largo, firma + 60},
           TextLook{u"Firma y sello del profesional"_s, letra(9), largo, tinta, Qt::AlignHCenter});
}

/// There are as many as a full sheet has places, and more for a plan that needs them.
CanvasItem &HojaDeVacunas::marca(int numero)
{
    while (static_cast<int>(marcas_.size()) <= numero) {
        const int nuevo = static_cast<int>(marcas_.size());
        CanvasItem &item = add(numerado(u"marca"_s, nuevo), {}, aspectoDe(Estado::SinEdad));
        item.setCursor(Qt::PointingHandCursor);
        marcas_.push_back(&item);
    }
    return *marcas_[static_cast<std::size_t>(numero)];
}

void HojaDeVacunas::mostrar(const Planilla &planilla, const std::optional<EdadDelPlan> &edad)
{
    for (std::size_t columna = 0; columna < Planilla::columnasQueCaben; ++columna) {
        const bool usada = columna < planilla.columnas.size();
        const auto numero = static_cast<int>(columna);
        item(numerado(u"label2"_s, numero))
            ->setText(usada ? planilla.columnas[columna].descripcion : QString());
        item(numerado(u"Label3"_s, numero))->setText(usada ? planilla.columnas[columna].detalle : QString());
    }
    int numero = 0;
    for (const Marca &una : planilla.marcas)
        mostrarMarca(marca(numero++), una);
    for (; numero < static_cast<int>(marcas_.size()); ++numero) {
        marca(numero).hide();
        forms::setTag(&marca(numero), {});
    }
    CanvasItem &banda = *item(u"Shape6"_s);
    const int fila = edad ? filaDeLaBanda(edad->meses) : 0;
    banda.setPos(borde, lineaDe(fila));
    banda.setVisible(edad &&
                     fila + 1 < static_cast<int>(filasDeEdad().size())); // below the last there is no row
}

void HojaDeVacunas::mostrarMarca(CanvasItem &item, const Marca &marca)
{
    item.setPos(izquierda + marca.columna * ancho + separacion + corrido +
                    marca.lugar * (marcador + separacion),
                lineaDe(marca.fila) - marcador + hundido);
    item.setLook(aspectoDe(marca.estado));
    forms::setTag(&item, marca.dosis.vacuna);
    item.setToolTip(marca.enPalabras());
    item.show();
}

void HojaDeVacunas::mostrarCertificado(const QString &texto)
{
    item(u"Label12"_s)->setText(texto);
}

std::optional<int> HojaDeVacunas::numeroDe(const QString &item) const
{
    for (std::size_t numero = 0; numero < marcas_.size(); ++numero)
        if (marcas_[numero]->name() == item)
            return static_cast<int>(numero);
    return std::nullopt;
}

} // namespace vacunas

#include "moc_hojaDeVacunas.cpp"
