#include "specialties/risk/panRiesgoOperatorio.h"

#include "platform/forms/colour.h"
#include "platform/forms/layout.h"
#include "specialties/risk/impresionDeRiesgo.h"
#include "specialties/risk/riesgoOperatorio.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>

#include <array>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

const QColor blanco(Qt::white), marcada(255, 224, 192);
constexpr int anchoDeCelda = 138;

const riesgoOperatorio::Celda &factor(int celda)
{
    return riesgoOperatorio::celdas()[static_cast<std::size_t>(celda)];
}

} // namespace

panRiesgoOperatorio::Celda::Celda(const QString &nombre, const QString &texto) : Label(nombre, texto)
{
    setWordWrap(true);
    setAlignment(Qt::AlignCenter);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setMinimumWidth(anchoDeCelda);
    setBackColor(*this, blanco);
}

void panRiesgoOperatorio::Celda::keyPressEvent(QKeyEvent *evento)
{
    if (evento->key() == Qt::Key_Space || evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter)
        emit clicked();
    else
        Label::keyPressEvent(evento);
}

void panRiesgoOperatorio::Celda::focusInEvent(QFocusEvent *evento)
{
    Label::focusInEvent(evento);
    update();
}

void panRiesgoOperatorio::Celda::focusOutEvent(QFocusEvent *evento)
{
    Label::focusOutEvent(evento);
    update();
}

void panRiesgoOperatorio::Celda::paintEvent(QPaintEvent *evento)
{
    Label::paintEvent(evento);
    QPainter pintor(this);
    pintor.setPen(
        QPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid), hasFocus() ? 2 : 1));
    pintor.drawRect(rect().adjusted(0, 0, -1, -1));
}

panRiesgoOperatorio::panRiesgoOperatorio() : Form(u"panRiesgoOperatorio"_s)
{
    setWindowTitle(u"Calculadora de riesgo operatorio"_s);
    agregarGrilla();
    for (const riesgoOperatorio::Clase &clase : riesgoOperatorio::clases()) {
        Label &caja = Picture1.add(Picture1.size(), clase.nombre.toString());
        forms::setTag(&caja, QString::number(clase.desde));
        caja.setAlignment(Qt::AlignCenter);
        caja.setFrameShape(QFrame::StyledPanel);
        setBackColor(caja, QColor(clase.color));
        escala_.agregar(caja);
    }
    QFont destacada = Label8.font();
    destacada.setBold(true);
    destacada.setPointSizeF(destacada.pointSizeF() * 1.4);
    Label8.setFont(destacada);
    setContents(this, Column{
                          grilla_,
                          Row{Expanding(Group(u"Escala de la asociación Americana de Anestesia"_s, escala_)),
                              Fields{{u"Apreciación final :"_s, Label8}}},
                          Row{Command3, Stretch(), Command1},
                      });
    connect(&Command3, &QPushButton::clicked, this, &panRiesgoOperatorio::imprimir);
    connect(&Command1, &QPushButton::clicked, this, &panRiesgoOperatorio::unload);
}

void panRiesgoOperatorio::agregarGrilla()
{
    auto *cuadro = new QGridLayout(&grilla_);
    cuadro->setContentsMargins({});
    cuadro->setSpacing(2);
    cuadro->addWidget(new QLabel(u"Puntos"_s), 0, 0);
    int columna = 1;
    for (const int puntos : riesgoOperatorio::puntosDeColumna) {
        Label &cabeza = Label6.add(Label6.size(), QString::number(puntos));
        cabeza.setAlignment(Qt::AlignCenter);
        cuadro->addWidget(&cabeza, 0, columna++);
    }
    for (int fila = 0; fila < riesgoOperatorio::filas; ++fila) {
        Label &suma = sumaPunto.add(fila, u"0"_s);
        suma.setAlignment(Qt::AlignCenter);
        cuadro->addWidget(&suma, fila + 1, 0);
    }
    for (const riesgoOperatorio::Celda &uno : riesgoOperatorio::celdas()) {
        const int numero = celdaR.size();
        Celda &celda = celdaR.add(numero, uno.texto.toString());
        forms::setTag(&celda, QString::number(uno.puntos));
        const auto lugar = std::ranges::find(riesgoOperatorio::puntosDeColumna, uno.puntos);
        cuadro->addWidget(&celda, uno.fila + 1,
                          static_cast<int>(lugar - riesgoOperatorio::puntosDeColumna.begin()) + 1);
        connect(&celda, &Label::clicked, this, [this, numero] { alternar(numero); });
    }
}

bool panRiesgoOperatorio::elegida(int celda) const
{
    return backColor(celdaR(celda)) == marcada;
}

void panRiesgoOperatorio::alternar(int celda)
{
    setBackColor(celdaR(celda), elegida(celda) ? blanco : marcada);
    sumar();
}

/// Several factors of a row add up.
void panRiesgoOperatorio::sumar()
{
    std::array<int, riesgoOperatorio::filas> sumas{};
    int total = 0;
    for (const auto &[i, celda] : celdaR)
        if (elegida(i)) {
            sumas[static_cast<std::size_t>(factor(i).fila)] += factor(i).puntos;
            total += factor(i).puntos;
        }
    for (auto &[fila, suma] : sumaPunto)
        suma->setCaption(QString::number(sumas[static_cast<std::size_t>(fila)]));
    Label8.setCaption(QString::number(total));
    escala_.senalar(riesgoOperatorio::claseDe(total));
}

void panRiesgoOperatorio::imprimir()
{
    QStringList lineas;
    int total = 0;
    for (const auto &[i, celda] : celdaR)
        if (elegida(i)) {
            lineas += u"%1 (%2)"_s.arg(factor(i).texto).arg(factor(i).puntos);
            total += factor(i).puntos;
        }
    const int clase = riesgoOperatorio::claseDe(total);
    riesgo::imprimir(*this, lineas,
                     u"Apreciación final : %1 - Clase %2"_s.arg(total).arg(
                         riesgoOperatorio::clases()[static_cast<std::size_t>(clase)].nombre));
}

#include "moc_panRiesgoOperatorio.cpp"
