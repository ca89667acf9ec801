#include "specialties/odontology/flotante.h"

#include <QMouseEvent>

#include <algorithm>

namespace odonto
{

namespace
{

constexpr int separacion = 6;

} // namespace

Flotante::Flotante(const QString &titulo, const QString &rotulo) : titulo_(titulo, rotulo)
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    QFont destacada = titulo_.font();
    destacada.setBold(true);
    titulo_.setFont(destacada);
    titulo_.setCursor(Qt::SizeAllCursor);
    titulo_.installEventFilter(this);
}

bool Flotante::eventFilter(QObject *objeto, QEvent *evento)
{
    const auto *raton = dynamic_cast<QMouseEvent *>(evento);
    if (!raton || !parentWidget())
        return QFrame::eventFilter(objeto, evento);
    const QPoint lugar = parentWidget()->mapFromGlobal(raton->globalPosition().toPoint());
    if (raton->type() == QEvent::MouseButtonPress) {
        asida_ = lugar - pos();
        raise();
    } else if (raton->type() == QEvent::MouseMove && raton->buttons() & Qt::LeftButton) {
        const QSize sobra = parentWidget()->size() - size();
        move(std::clamp((lugar - asida_).x(), 0, std::max(0, sobra.width())),
             std::clamp((lugar - asida_).y(), 0, std::max(0, sobra.height())));
        movida_ = true;
    }
    return QFrame::eventFilter(objeto, evento);
}

void Flotante::showEvent(QShowEvent *event)
{
    QFrame::showEvent(event);
    emit mostrada();
}

void Flotante::hideEvent(QHideEvent *event)
{
    QFrame::hideEvent(event);
    emit mostrada();
}

Mesa::Mesa(QWidget &centro) : centro_(centro)
{
    centro_.setParent(this);
}

/// What stands here belongs to the window, which lets it go by itself.
Mesa::~Mesa()
{
    centro_.setParent(nullptr);
    for (Flotante *ventana : ventanas_) {
        ventana->disconnect(this);
        ventana->setParent(nullptr);
    }
}

void Mesa::agregar(Flotante &ventana)
{
    ventana.setParent(this);
    ventanas_.push_back(&ventana);
    connect(&ventana, &Flotante::mostrada, this, &Mesa::acomodar);
}

QSize Mesa::sizeHint() const
{
    QSize medida = centro_.sizeHint();
    int ancho = 0;
    for (const Flotante *ventana : ventanas_)
        ancho = std::max(ancho, ventana->sizeHint().width());
    return {medida.width() + ancho + separacion, medida.height()};
}

void Mesa::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    acomodar();
}

/// A small window that was dragged leaves its place to the chart, and stays in sight.
void Mesa::acomodar()
{
    int ancho = 0, alto = 0;
    for (const Flotante *ventana : ventanas_)
        if (!ventana->isHidden() && !ventana->movida())
            ancho = std::max(ancho, ventana->sizeHint().width());
    for (Flotante *ventana : ventanas_) {
        ventana->resize(std::max(ancho, ventana->sizeHint().width()), ventana->sizeHint().height());
        if (ventana->movida()) {
            const QSize sobra = size() - ventana->size();
            ventana->move(std::clamp(ventana->x(), 0, std::max(0, sobra.width())),
                          std::clamp(ventana->y(), 0, std::max(0, sobra.height())));
        } else if (!ventana->isHidden()) {
            ventana->move(width() - ancho, alto);
            alto += ventana->height() + separacion;
        }
        ventana->raise();
    }
    centro_.setGeometry(0, 0, width() - (ancho > 0 ? ancho + separacion : 0), height());
}

} // namespace odonto

#include "moc_flotante.cpp"
