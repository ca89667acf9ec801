#include "specialties/risk/escala.h"

#include <QHBoxLayout>

namespace riesgo
{

namespace
{

constexpr int anchoDelMarcador = 22, altoDelMarcador = 20;

} // namespace

Escala::Escala(const QString &marcador, Lugar lugar) : lugar_(lugar), marcador_(marcador, QStringLiteral("▲"))
{
    auto *clases = new QHBoxLayout(this);
    clases->setContentsMargins(0, 0, 0, altoDelMarcador + 4);
    marcador_.setParent(this);
    marcador_.setFixedSize(anchoDelMarcador, altoDelMarcador);
    marcador_.setFocusPolicy(Qt::NoFocus); // it shows, and does nothing
    marcador_.hide();
}

void Escala::agregar(QWidget &clase)
{
    layout()->addWidget(&clase);
    clases_.push_back(&clase);
}

void Escala::senalar(int clase)
{
    senalada_ = clase;
    ubicar();
    marcador_.show();
}

void Escala::resizeEvent(QResizeEvent *evento)
{
    QWidget::resizeEvent(evento);
    layout()->activate();
    ubicar();
}

void Escala::ubicar()
{
    if (senalada_ < 0)
        return;
    const QRect clase = clases_[static_cast<std::size_t>(senalada_)]->geometry();
    const int aLaIzquierda = lugar_ == Lugar::AlMedio ? (clase.width() - marcador_.width()) / 2 : 0;
    marcador_.move(clase.left() + aLaIzquierda, clase.bottom() + 3);
}

} // namespace riesgo
