#include "paediatrics/control/ventanasMotoras.h"

#include "platform/basic/runtime.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace forms;

namespace sano
{

namespace
{

constexpr double diasDelMes = 30.4375;
constexpr int meses = 24;
constexpr double anchoDeMes = 330, altoDeHito = 520, altoDeBarra = 230; // twips
constexpr double izquierda = 200, arriba = 620, abajo = 620;
constexpr double ancho = 2 * izquierda + meses * anchoDeMes;
const QColor tintaDeEscala(0xd9e0e5), tintaDeRotulo(0x3a4550), colorDeVentana(0x8fc1a9),
    colorDeMedia(0x2f6b4f), colorDeEdad(0xc8141e), colorDeCorregida(0x1f5fa8);

double lugarDe(double mesesDeVida)
{
    return izquierda + mesesDeVida * anchoDeMes;
}

double alturaDe(std::size_t hito)
{
    return arriba + static_cast<double>(hito) * altoDeHito;
}

std::vector<Hito> leer()
{
    QFile csv(u":/desarrollo/desarrollo.csv"_s);
    if (!csv.open(QIODevice::ReadOnly))
        qFatal("Falta la referencia %s", qUtf8Printable(csv.fileName())); // compiled into the program
    std::vector<Hito> todos;
    csv.readLine();
    while (!csv.atEnd()) {
        const QStringList campos = QString::fromUtf8(csv.readLine()).trimmed().split(u',');
        todos.push_back({campos[2], campos[3].toDouble(), campos[4].toDouble(), campos[5].toDouble(),
                         campos[6].toDouble(), campos[7].toDouble()});
    }
    return todos;
}

QString dicho(Momento momento)
{
    switch (momento) {
    case Momento::Antes:
        return u"todavía no se espera"_s;
    case Momento::Dentro:
        return u"está en edad de lograrlo"_s;
    case Momento::Despues:
        return u"ya debería lograrlo"_s;
    }
    Q_UNREACHABLE();
}

QString enMeses(double cuantos)
{
    return basic::format(cuantos, u"0.0");
}

QString ventana(const Hito &hito)
{
    return u"%1: de %2 a %3 meses, media %4"_s.arg(hito.nombre, enMeses(hito.mesesPrimero),
                                                   enMeses(hito.mesesUltimo), enMeses(hito.mesesMedia));
}

QFont letra(double puntos)
{
    QFont fuente;
    fuente.setPointSizeF(puntos);
    return fuente;
}

} // namespace

std::span<const Hito> hitos()
{
    static const std::vector<Hito> todos = leer();
    return todos;
}

Momento momento(const Hito &hito, double diasDeVida)
{
    if (diasDeVida < hito.primero)
        return Momento::Antes;
    return diasDeVida <= hito.ultimo ? Momento::Dentro : Momento::Despues;
}

VentanasMotoras::VentanasMotoras(const QString &nombre)
    : Canvas(nombre, {ancho, alturaDe(hitos().size()) + abajo})
{
    setAccessibleName(u"Hitos motores por edad"_s);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::NoFrame); // its measures are those of the picture
    setFixedSize(sizeHint());
    trazar();
}

void VentanasMotoras::trazar()
{
    const double pie = alturaDe(hitos().size());
    QPainterPath lineas;
    for (int mes = 0; mes <= meses; mes += 3) {
        lineas.moveTo(lugarDe(mes), arriba - 60);
        lineas.lineTo(lugarDe(mes), pie);
        add(u"mes(%1)"_s.arg(mes), {lugarDe(mes) - 110, pie + 30},
            TextLook{QString::number(mes), letra(7), 0, tintaDeRotulo})
            .setInert();
    }
    CanvasItem &escala = add(u"escala"_s, {}, ShapeLook{lineas, Qt::transparent, tintaDeEscala, 8});
    escala.setInert();
    escala.setZValue(-1);
    add(u"fuente"_s, {izquierda, pie + 270},
        TextLook{u"Meses de vida. Del percentilo 1 al 99; la raya es la media. OMS, 2006."_s, letra(7), 0,
                 tintaDeRotulo})
        .setInert();
    for (std::size_t i = 0; i < hitos().size(); ++i) {
        const Hito &hito = hitos()[i];
        const double desde = lugarDe(hito.mesesPrimero), hasta = lugarDe(hito.mesesUltimo);
        const double altura = alturaDe(i) + altoDeHito - altoDeBarra - 60;
        add(u"nombre(%1)"_s.arg(i), {desde - 40, alturaDe(i) - 20},
            TextLook{hito.nombre, letra(8), 0, tintaDeRotulo})
            .setInert();
        QPainterPath barra;
        barra.addRoundedRect(QRectF(0, 0, hasta - desde, altoDeBarra), 60, 60);
        add(u"hito(%1)"_s.arg(i), {desde, altura}, ShapeLook{barra, colorDeVentana, colorDeVentana})
            .setToolTip(ventana(hito));
        QPainterPath media;
        media.lineTo(0, altoDeBarra);
        add(u"media(%1)"_s.arg(i), {lugarDe(hito.mesesMedia), altura},
            ShapeLook{media, Qt::transparent, colorDeMedia, 40})
            .setInert();
    }
}

void VentanasMotoras::mostrarEdad(double diasDeVida, const std::optional<double> &corregida)
{
    marcar(u"edad"_s, diasDeVida, u"Edad %1 meses"_s.arg(enMeses(diasDeVida / diasDelMes)), colorDeEdad, 0);
    const double queCuenta = corregida.value_or(diasDeVida);
    marcar(u"edadCorregida"_s, corregida.value_or(-1),
           u"Edad corregida %1 meses"_s.arg(enMeses(queCuenta / diasDelMes)), colorDeCorregida, 1);
    for (std::size_t i = 0; i < hitos().size(); ++i)
        item(u"hito(%1)"_s.arg(i))
            ->setToolTip(ventana(hitos()[i]) + u"; "_s + dicho(momento(hitos()[i], queCuenta)));
}

void VentanasMotoras::marcar(const QString &nombre, double dias, const QString &rotulo, const QColor &color,
                             int renglon)
{
    const QString nombreDelRotulo = nombre + u"Rotulo"_s;
    for (const QString &anterior : {nombre, nombreDelRotulo})
        if (item(anterior))
            remove(anterior);
    const double mesesDeVida = dias / diasDelMes;
    if (mesesDeVida < 0 || mesesDeVida > meses)
        return;
    constexpr double altoDeRotulo = 260;
    QPainterPath raya;
    raya.lineTo(0, alturaDe(hitos().size()) - altoDeRotulo);
    add(nombre, {lugarDe(mesesDeVida), altoDeRotulo}, ShapeLook{raya, Qt::transparent, color, 30})
        .setToolTip(rotulo);
    // Towards the middle of the picture, where it has room.
    TextLook texto{rotulo, letra(8), anchoDeMes * 9, color};
    const bool aLaDerecha = mesesDeVida <= meses / 2;
    texto.alignment = aLaDerecha ? Qt::AlignLeft : Qt::AlignRight;
    add(nombreDelRotulo,
        {aLaDerecha ? lugarDe(mesesDeVida) + 40 : lugarDe(mesesDeVida) - texto.width - 40,
         renglon * altoDeRotulo},
        texto)
        .setInert();
}

} // namespace sano

#include "moc_ventanasMotoras.cpp"
