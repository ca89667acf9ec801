#include "core/windows/acerca.h"

#include "core/session/version.h"
#include "platform/forms/layout.h"

#include <QIcon>

using namespace Qt::StringLiterals;
using namespace forms;

acerca::acerca() : Form(u"acerca"_s)
{
    setWindowTitle(u"Acerca de ..."_s);
    Image1.setPixmap(QIcon(u":/logo.svg"_s).pixmap(96, 96));
    QFont titulo = Label1.font();
    titulo.setPointSizeF(titulo.pointSizeF() * 1.8);
    titulo.setBold(true);
    Label1.setFont(titulo);
    Label2.setCaption(u"Versión %1.%2 Rev. %3"_s.arg(core::version::major)
                          .arg(core::version::minor)
                          .arg(core::version::revision));
    Command1.setDefault(true);
    setContents(this, Column{
                          Row{Image1, Column{Label1, Label2, Label3}},
                          Row{Stretch(), Command1},
                      });
    connect(&Command1, &QPushButton::clicked, this, &acerca::unload);
}

#include "moc_acerca.cpp"
