#include "core/windows/panHelp.h"

#include "platform/forms/layout.h"
#include "platform/forms/twips.h"

#include <QGuiApplication>
#include <QScreen>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr double margen = 100; // twips from the top and right of the screen

} // namespace

panHelp::panHelp() : Form(u"panHelp"_s)
{
    setWindowTitle(u"Ayudante del entorno"_s);
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
    Label1.setWordWrap(true);
    setFixedWidth(220);
    setContents(this, Column{Label1});
}

void panHelp::load()
{
    const QRect pantalla = QGuiApplication::primaryScreen()->availableGeometry();
    const int borde = static_cast<int>(toPixels(margen));
    move(pantalla.right() - width() - borde, pantalla.top() + borde);
}

#include "moc_panHelp.cpp"
