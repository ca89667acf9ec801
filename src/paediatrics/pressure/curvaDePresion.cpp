#include "paediatrics/pressure/curvaDePresion.h"

#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace presion
{

namespace
{

constexpr QSizeF tamanoDeCurva(11400, 6000); // twips
constexpr double meses = 180, dias = 5475;
constexpr double ladoDePunto = 106;
constexpr int percentiles[] = {5, 25, 50, 75, 95};
const QColor tintaDeEscala(0xc9d3da), tintaDeRotulo(0x4a5560), tintaDeCurva(0x2f7f8f),
    tintaDelMedio(0x14505c);
const QColor rellenoDePunto(0xc8141e), rellenoDestacado(0xf2a900);

/// From where a height measures values, in heights of the picture.
struct Origen {
    double curva, toma;
};

Origen origenDe(Cual cual)
{
    return cual == Cual::Minima ? Origen{1 + 1.0 / 11, 1.1} : Origen{1 + 1 / 2.00625, 1.5};
}

/// What lies beyond the right edge is cut off there.
QPainterPath hastaElBorde(const QPolygonF &puntos, double ancho)
{
    QPainterPath trazo;
    for (int i = 1; i < puntos.size(); ++i) {
        const QPointF desde = puntos[i - 1];
        QPointF hasta = puntos[i];
        if (desde.x() >= ancho)
            break;
        if (hasta.x() > ancho)
            hasta = desde + (hasta - desde) * ((ancho - desde.x()) / (hasta.x() - desde.x()));
        trazo.moveTo(desde);
        trazo.lineTo(hasta);
    }
    return trazo;
}

ShapeLook linea(const QPainterPath &trazo, const QColor &tinta, double ancho)
{
    return {trazo, Qt::transparent, tinta, ancho};
}

} // namespace

QPointF lugarEnCurva(Cual cual, QSizeF tamano, double edad, double valor)
{
    return {edad * tamano.width() / meses, tamano.height() * (origenDe(cual).curva - valor / 100)};
}

QPointF lugarDeToma(Cual cual, QSizeF tamano, double edad, double valor)
{
    constexpr double alturaDeValor = 1.1 / 110;
    return {tamano.width() / dias * edad, tamano.height() * (origenDe(cual).toma - valor * alturaDeValor)};
}

Curva::Curva(const QString &nombre, Cual cual) : Canvas(nombre, tamanoDeCurva), cual_(cual)
{
    setAccessibleName(cual == Cual::Minima ? u"Curva de la mínima"_s : u"Curva de la máxima"_s);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::NoFrame); // its measures are those of the picture
    setFixedSize(sizeHint());
    trazarEscala();
}

void Curva::escribir(const QString &nombre, QPointF lugar, const QString &texto)
{
    QFont letra;
    letra.setPointSizeF(7);
    CanvasItem &rotulo = add(nombre, lugar, TextLook{texto, letra, 0, tintaDeRotulo});
    rotulo.setInert();
}

/// A line for each year and for each ten of pressure, by the scale of the curves.
void Curva::trazarEscala()
{
    constexpr int tercio = 20; // twips by which a label stands off its line
    QPainterPath lineas;
    lineas.addRect(QRectF({}, sizeTwips()));
    for (int anio = 1; anio * 12 < meses; ++anio) {
        const double x = lugarEnCurva(cual_, sizeTwips(), anio * 12, 0).x();
        lineas.moveTo(x, 0);
        lineas.lineTo(x, sizeTwips().height());
        escribir(u"anio(%1)"_s.arg(anio), {x + tercio, sizeTwips().height() - 210}, u"%1 a."_s.arg(anio));
    }
    for (int valor = 0; valor <= 200; valor += 10) {
        const double y = lugarEnCurva(cual_, sizeTwips(), 0, valor).y();
        if (y <= 0 || y >= sizeTwips().height())
            continue;
        lineas.moveTo(0, y);
        lineas.lineTo(sizeTwips().width(), y);
        escribir(u"escala(%1)"_s.arg(valor), {tercio, y - 200}, QString::number(valor));
    }
    CanvasItem &escala = add(u"escala"_s, {}, linea(lineas, tintaDeEscala, 8));
    escala.setInert();
    escala.setZValue(-1);
}

void Curva::trazarReferencia(QChar letra)
{
    const QString tipo = letra + (cual_ == Cual::Minima ? u"-"_s : u"+"_s);
    dao::Recordset filas = MODULE11::BaseDatos.openRecordset(
        u"Select * from presion where tipo = %1 order by edad"_s.arg(dao::quoted(tipo)),
        dao::Recordset::Kind::Snapshot);
    for (const int percentil : percentiles) {
        remove(u"curva(%1)"_s.arg(percentil));
        remove(u"percentil(%1)"_s.arg(percentil));
        if (filas.recordCount() == 0)
            continue;
        filas.moveFirst();
        trazarPercentil(filas, percentil);
    }
}

void Curva::trazarPercentil(dao::Recordset &filas, int percentil)
{
    QPolygonF puntos;
    const QString columna = u"P_%1"_s.arg(percentil);
    for (; !filas.eof(); filas.moveNext())
        puntos += lugarEnCurva(cual_, sizeTwips(), filas[u"Edad"].number(), filas[columna].number());
    const QPainterPath trazo = hastaElBorde(puntos, sizeTwips().width());
    if (trazo.isEmpty())
        return;
    const bool medio = percentil == 50;
    CanvasItem &curva = add(u"curva(%1)"_s.arg(percentil), {},
                            linea(trazo, medio ? tintaDelMedio : tintaDeCurva, medio ? 30 : 15));
    curva.setInert();
    const QPointF fin = trazo.currentPosition();
    escribir(u"percentil(%1)"_s.arg(percentil), fin - QPointF(420, 210), u"P %1"_s.arg(percentil));
}

QString Curva::punto(int numero) const
{
    return (cual_ == Cual::Minima ? u"minima(%1)"_s : u"maxima(%1)"_s).arg(numero);
}

void Curva::ponerTomas(const std::vector<Toma> &tomas, basic::Date nacimiento)
{
    qDeleteAll(puntos_);
    puntos_.clear();
    destacado_ = nullptr;
    const QString dice = cual_ == Cual::Minima ? u"Minima del dia %1 : %2"_s : u"Máxima del dia %1 : %2"_s;
    const QSizeF lado(ladoDePunto, ladoDePunto);
    for (const Toma &toma : tomas) {
        const auto edad = static_cast<double>(toma.fecha.wholeDays() - nacimiento.wholeDays());
        const QPointF centro = lugarDeToma(cual_, sizeTwips(), edad, toma.valor(cual_));
        CanvasItem &marca =
            add(punto(static_cast<int>(puntos_.size())), centro - QPointF(ladoDePunto, ladoDePunto) / 2,
                ellipse(lado, rellenoDePunto, Qt::white));
        marca.setToolTip(dice.arg(basic::dateText(toma.fecha), basic::format(toma.valor(cual_), u"##0.00")));
        puntos_.push_back(&marca);
    }
}

void Curva::destacar(std::optional<int> toma)
{
    if (destacado_) {
        destacado_->setFill(rellenoDePunto);
        destacado_->setZValue(0);
    }
    const bool hay = toma && *toma >= 0 && *toma < static_cast<int>(puntos_.size());
    destacado_ = hay ? puntos_[static_cast<std::size_t>(*toma)] : nullptr;
    if (!destacado_)
        return;
    destacado_->setFill(rellenoDestacado);
    destacado_->setZValue(1);
}

std::optional<int> Curva::numeroDe(const QString &item) const
{
    for (std::size_t i = 0; i < puntos_.size(); ++i)
        if (puntos_[i]->name() == item)
            return static_cast<int>(i);
    return std::nullopt;
}

} // namespace presion

#include "moc_curvaDePresion.cpp"
