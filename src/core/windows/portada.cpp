#include "core/windows/portada.h"

#include "core/session/version.h"
#include "platform/basic/environment.h"

#include <QDir>
#include <QIcon>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

portada::portada() : Form(u"portada"_s)
{
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    Image1.setPixmap(QIcon(u":/portada.svg"_s).pixmap(600, 360));
    Label2.setCaption(u"Versión %1 Rev. %2"_s.arg(core::version::major).arg(core::version::revision));
    Label2.setAlignment(Qt::AlignRight);
    Label2.setMargin(6);

    auto *columna = new QVBoxLayout(this);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(0);
    columna->addWidget(&Image1);
    columna->addWidget(&Label2);
    columna->setSizeConstraint(QLayout::SetFixedSize);

    QDir::setCurrent(basic::programFolder());
    connect(&Image1, &forms::Label::clicked, this, &portada::unload);
    connect(&Timer1, &QTimer::timeout, this, [this] {
        Timer1.stop();
        unload();
    });
    Timer1.start();
}

#include "moc_portada.cpp"
