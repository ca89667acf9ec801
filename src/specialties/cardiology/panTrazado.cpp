#include "specialties/cardiology/panTrazado.h"

#include "platform/forms/layout.h"

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr double grueso = 60; ///< of a bar, in twips
constexpr double paso = 1.25;
enum Barra { desde, hasta, arriba, abajo };
constexpr std::array barras = {desde, hasta, arriba, abajo};
const char *const nombres[] = {"Comienzo del intervalo", "Fin del intervalo", "Punto más alto",
                               "Punto más bajo"};

QString nombreDe(int barra)
{
    return u"calibre(%1)"_s.arg(barra);
}

/// Those of intervals stand, those of amplitudes lie.
bool deIntervalos(int barra)
{
    return barra <= hasta;
}

} // namespace

panTrazado::panTrazado(const QString &archivo, const QString &velocidad)
    : Form(u"panTrazado"_s), Image1(u"Image1"_s, Picture(archivo).sizeTwips())
{
    setWindowTitle(u"Trazado"_s);
    Image1.loadBackground(archivo);
    ponerCalibres();
    escala_.milimetrosPorSegundo = calibre::velocidad(velocidad).value_or(escala_.milimetrosPorSegundo);
    Text1.setText(QString::number(escala_.milimetrosPorSegundo).replace(u'.', u','));
    Text1.setFixedWidth(60);
    Command4.setToolTip(u"Las barras rojas están ahora a %1 mm de papel"_s.arg(calibre::milimetrosDelCuadro));
    lblAyuda.setCaption(
        u"Ponga las barras rojas sobre dos líneas gruesas seguidas del papel (5 mm) y pulse Calibrar."_s);
    lblAyuda.setWordWrap(true);
    setContents(this, Column{Expanding(Image1), lblAyuda,
                             Row{Fields{{u"&Velocidad, mm/s :"_s, Text1}}, Command4, lblIntervalo,
                                 lblAmplitud, Stretch()},
                             Row{Command2, Command3, Stretch(), Command1}});
    resize(1000, 620);
    connect(&Image1, &Canvas::moved, this, &panTrazado::medir);
    connect(&Text1, &QLineEdit::textChanged, this, &panTrazado::medir);
    connect(&Command1, &QPushButton::clicked, this, &panTrazado::unload);
    connect(&Command2, &QPushButton::clicked, this, [this] { ampliar(paso); });
    connect(&Command3, &QPushButton::clicked, this, [this] { ampliar(1 / paso); });
    connect(&Command4, &QPushButton::clicked, this, &panTrazado::calibrar);
    medir();
}

void panTrazado::ponerCalibres()
{
    const QSizeF hoja = Image1.sizeTwips();
    const double parte[] = {0.4, 0.6, 0.4, 0.6};
    for (const int barra : barras) {
        const bool parada = deIntervalos(barra);
        const QColor color = parada ? QColor(0xc0, 0x20, 0x20) : QColor(0x1c, 0x4f, 0x9c);
        QColor relleno = color;
        relleno.setAlpha(70);
        const QSizeF medida = parada ? QSizeF(grueso, hoja.height()) : QSizeF(hoja.width(), grueso);
        CanvasItem &puesta = Image1.add(nombreDe(barra),
                                        parada ? QPointF(hoja.width() * parte[barra], 0)
                                               : QPointF(0, hoja.height() * parte[barra]),
                                        polygon(QRectF(QPointF(), medida), relleno, color));
        puesta.setMovable(true);
        puesta.setAccessibleName(QString::fromUtf8(nombres[barra]));
        puesta.setToolTip(puesta.accessibleName());
        puesta.setCursor(parada ? Qt::SizeHorCursor : Qt::SizeVerCursor);
    }
}

double panTrazado::entre(int uno, int otro) const
{
    const QPointF tramo = Image1.item(nombreDe(otro))->pos() - Image1.item(nombreDe(uno))->pos();
    return std::fabs(deIntervalos(uno) ? tramo.x() : tramo.y());
}

void panTrazado::calibrar()
{
    escala_.porMilimetro = entre(desde, hasta) / calibre::milimetrosDelCuadro;
    medir();
}

/// A speed that is no number leaves nothing to read, rather than a wrong interval.
void panTrazado::medir()
{
    const auto velocidad = calibre::velocidad(Text1.text());
    escala_.milimetrosPorSegundo = velocidad.value_or(0);
    const bool lista = escala_.porMilimetro > 0;
    lblIntervalo.setCaption(lista && velocidad
                                ? u"Intervalo : "_s + calibre::intervalo(entre(desde, hasta), escala_)
                                : QString());
    lblAmplitud.setCaption(lista ? u"Amplitud : "_s + calibre::amplitud(entre(arriba, abajo), escala_)
                                 : QString());
    lblAyuda.setVisible(!lista);
}

void panTrazado::ampliar(double factor)
{
    Image1.setZoom(Image1.zoom() * factor);
}

#include "moc_panTrazado.cpp"
