#include "clinical/family/arbolFamiliar.h"

#include "platform/forms/tag.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace familia
{

namespace
{

// Twips. Each branch has two rows of two boxes: the grandparents and their children.
constexpr QSizeF medida{13800, 7800};
constexpr QSizeF caja{2850, 1500}, rama{6300, 4800};
constexpr double margen = 150, figura = 1080, redondez = 120;
constexpr double paterna = 300, materna = 7200, alto = 300; ///< where the branches are
constexpr double primera = 150, segunda = 3300;             ///< a branch's columns
constexpr double abuelos = 900, padres = 3300, hijos = 6000;
constexpr QRectF delPaciente{5100, hijos, 3600, 1500};
constexpr QPointF lugares[] = {
    {paterna + primera, abuelos}, {materna + primera, abuelos}, // grandfathers
    {paterna + segunda, abuelos}, {materna + segunda, abuelos}, // grandmothers
    {paterna + segunda, padres},  {materna + primera, padres},  // the parents, side by side
    {paterna + primera, padres},  {materna + segunda, padres},  // uncles and aunts
    {paterna + primera, hijos},                                 // brothers and sisters
};
constexpr QSizeF lazo{690, 300}; ///< the ribbon of the mark

enum Altura { Ramas, Lineas, Cajas, Adornos, Marcas }; ///< what lies over what

const QColor tinta(0x22, 0x33, 0x44), tenue(0x5a, 0x67, 0x75), linea(0x7d, 0x8c, 0x9b);
const QColor sana(Qt::white), conAntecedentes(0xff, 0xf1, 0xcf), muerto(0xe4, 0xe6, 0xe9);
const QColor azulada(0xea, 0xf2, 0xf9), rosada(0xfa, 0xee, 0xf1), verdosa(0xd8, 0xef, 0xec),
    luto(0x2b, 0x2f, 0x36);

QString nombreDeParte(const QString &parte, int numero)
{
    return u"%1(%2)"_s.arg(parte).arg(numero);
}

QFont letra(int puntos, bool negrita = false)
{
    QFont fuente;
    fuente.setPointSize(puntos);
    fuente.setBold(negrita);
    return fuente;
}

ShapeLook recuadro(QSizeF tamano, const QColor &color, const QColor &borde)
{
    ShapeLook aspecto{{}, color, borde};
    aspecto.outline.addRoundedRect(QRectF(QPointF(), tamano), redondez, redondez);
    return aspecto;
}

PictureLook retrato(const QString &nombre)
{
    return {Picture(u":/familia/%1.svg"_s.arg(nombre)), {figura, figura}};
}

QPointF junto(QPointF esquina) ///< beside a box's figure
{
    return esquina + QPointF(2 * margen + figura, 0);
}

/// From a couple down to the bar over their children, and from it to each of them.
QPainterPath descendencia(QPointF pareja, const QList<QPointF> &nacidos)
{
    const double barra = nacidos.front().y() - 450;
    QPainterPath camino(pareja);
    camino.lineTo(pareja.x(), barra);
    for (const QPointF &hijo : nacidos) {
        camino.moveTo(pareja.x(), barra);
        camino.lineTo(hijo.x(), barra);
        camino.lineTo(hijo);
    }
    return camino;
}

QString cuenta(const Antecedentes &antecedentes)
{
    const qsizetype cuantos = enPalabras(antecedentes).size();
    return cuantos == 0   ? u"Sin datos"_s
           : cuantos == 1 ? u"1 antecedente"_s
                          : u"%1 antecedentes"_s.arg(cuantos);
}

} // namespace

ArbolFamiliar::ArbolFamiliar() : Canvas(u"arbol"_s, medida)
{
    dibujarRama(u"Rama Paterna"_s, paterna, azulada);
    dibujarRama(u"Rama Materna"_s, materna, rosada);
    dibujarLineas();
    for (int numero = 0; numero < static_cast<int>(parientes().size()); ++numero)
        dibujarPariente(numero);
    dibujarPaciente();
}

CanvasItem &ArbolFamiliar::inerte(const QString &nombre, QPointF lugar, Look aspecto, double altura)
{
    CanvasItem &item = add(nombre, lugar, std::move(aspecto));
    item.setInert();
    item.setZValue(altura);
    return item;
}

void ArbolFamiliar::dibujarRama(const QString &nombre, double izquierda, const QColor &color)
{
    inerte(u"marco "_s + nombre, {izquierda, alto}, recuadro(rama, color, linea), Ramas);
    inerte(nombre, {izquierda, alto + margen},
           TextLook{nombre, letra(11, true), rama.width(), tinta, Qt::AlignHCenter}, Adornos);
}

void ArbolFamiliar::dibujarLineas()
{
    const QPointF arriba(caja.width() / 2, 0);
    const double medio = caja.height() / 2;
    QPainterPath camino;
    for (const double izquierda : {paterna, materna}) {
        camino.moveTo(izquierda + primera + caja.width(), abuelos + medio);
        camino.lineTo(izquierda + segunda, abuelos + medio);
        camino.addPath(descendencia(
            {izquierda + segunda - margen, abuelos + medio},
            {QPointF(izquierda + primera, padres) + arriba, QPointF(izquierda + segunda, padres) + arriba}));
    }
    camino.moveTo(paterna + segunda + caja.width(), padres + medio);
    camino.lineTo(materna + primera, padres + medio);
    camino.addPath(
        descendencia({medida.width() / 2, padres + medio},
                     {QPointF(delPaciente.center().x(), hijos), QPointF(paterna + primera, hijos) + arriba}));
    ShapeLook lineas{camino, Qt::transparent, linea, 30};
    inerte(u"lineas"_s, {}, std::move(lineas), Lineas);
}

void ArbolFamiliar::dibujarPariente(int numero)
{
    const Pariente &pariente = parientes()[static_cast<std::size_t>(numero)];
    const QPointF lugar = lugares[numero];
    const double ancho = caja.width() - 3 * margen - figura;
    const auto adorno = [&](const QString &parte, QPointF donde, Look aspecto, Altura altura) {
        inerte(nombreDeParte(parte, numero), donde, std::move(aspecto), altura);
    };
    CanvasItem &cuadro = add(nombreDeParte(u"ssp"_s, numero), lugar, recuadro(caja, sana, linea));
    cuadro.setZValue(Cajas);
    forms::setTag(&cuadro, pariente.nombre);
    cuadro.setCursor(Qt::PointingHandCursor);
    adorno(u"figura"_s, lugar + QPointF(margen, (caja.height() - figura) / 2), retrato(pariente.figura),
           Adornos);
    adorno(u"pariente"_s, junto(lugar) + QPointF(0, 450),
           TextLook{pariente.titulo, letra(10, true), ancho, tinta}, Adornos);
    adorno(u"cuenta"_s, junto(lugar) + QPointF(0, 750), TextLook{{}, letra(8), ancho, tenue}, Adornos);
    const QPointF esquina = lugar + QPointF(caja.width() - lazo.width() - margen / 2, margen / 2);
    adorno(u"lazo"_s, esquina, recuadro(lazo, luto, luto), Marcas);
    adorno(u"RIP"_s, esquina + QPointF(0, 30),
           TextLook{u"RIP"_s, letra(9, true), lazo.width(), Qt::white, Qt::AlignHCenter}, Marcas);
    mostrar(numero, {});
}

void ArbolFamiliar::dibujarPaciente()
{
    const QPointF lugar = delPaciente.topLeft();
    inerte(u"cuadro"_s, lugar, recuadro(delPaciente.size(), verdosa, QColor(0x1f, 0x94, 0x88)), Cajas);
    inerte(u"retrato"_s, lugar + QPointF(margen, (delPaciente.height() - figura) / 2), PictureLook{},
           Adornos);
    inerte(u"paciente"_s, junto(lugar) + QPointF(0, 450),
           TextLook{{}, letra(10, true), delPaciente.width() - 3 * margen - figura, tinta}, Adornos);
}

void ArbolFamiliar::mostrarPaciente(const QString &nombre, const QString &sexo)
{
    item(u"paciente"_s)->setText(nombre);
    item(u"retrato"_s)->setLook(retrato(sexo == u"Mujer" ? u"nina"_s : u"nino"_s));
}

CanvasItem &ArbolFamiliar::parte(const QString &nombre, int numero) const
{
    return *item(nombreDeParte(nombre, numero));
}

void ArbolFamiliar::mostrar(int numero, const Antecedentes &antecedentes)
{
    const QStringList palabras = enPalabras(antecedentes);
    const bool murio = antecedentes.muerte.has_value();
    CanvasItem &cuadro = parte(u"ssp"_s, numero);
    cuadro.setFill(murio ? muerto : palabras.isEmpty() ? sana : conAntecedentes);
    cuadro.setAccessibleName(
        u"%1. %2: %3"_s.arg(forms::tag(&cuadro), cuenta(antecedentes), palabras.join(u", ")));
    parte(u"cuenta"_s, numero).setText(cuenta(antecedentes));
    parte(u"lazo"_s, numero).setVisible(murio);
    parte(u"RIP"_s, numero).setVisible(murio);
}

std::optional<int> ArbolFamiliar::numeroDe(const QString &caja) const
{
    for (int numero = 0; numero < static_cast<int>(parientes().size()); ++numero)
        if (caja == nombreDeParte(u"ssp"_s, numero))
            return numero;
    return std::nullopt;
}

} // namespace familia

#include "moc_arbolFamiliar.cpp"
