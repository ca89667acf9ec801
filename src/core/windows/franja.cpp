#include "core/windows/franja.h"

#include <QHBoxLayout>

Franja::Franja()
{
    setObjectName(QStringLiteral("franja"));
    setAutoFillBackground(true);
    QPalette colores = palette();
    colores.setColor(QPalette::Window, QColor(0xff, 0xf4, 0xd6));
    setPalette(colores);
    lblAviso.setWordWrap(true);
    auto *fila = new QHBoxLayout(this);
    fila->setContentsMargins(12, 4, 8, 4);
    fila->addWidget(&lblAviso, 1);
    fila->addWidget(&cmdAviso);
    fila->addWidget(&cmdCerrarAviso);
    connect(&cmdCerrarAviso, &QPushButton::clicked, this, &QWidget::hide);
    connect(&cmdAviso, &QPushButton::clicked, this, [this] { obra_(); });
    hide();
}

void Franja::avisar(const QString &texto, const QString &orden, std::function<void()> obra)
{
    lblAviso.setCaption(texto);
    cmdAviso.setText(orden);
    obra_ = std::move(obra);
    cmdAviso.setVisible(obra_ != nullptr);
    show();
}

void Franja::avisar(const QString &texto)
{
    avisar(texto, {}, {});
}

#include "moc_franja.cpp"
