#include "clinical/catalogues/panBuscaInternet.h"

#include "clinical/catalogues/buscaInternet.h"
#include "core/services/services.h"
#include "platform/forms/layout.h"
#include "platform/settings/settings.h"
#include "platform/shell/shell.h"

#include <QUrl>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

const QString seccion = u"Miscelaneas"_s;
const QString clave = u"Buscador de Internet"_s;
const QString habitual = u"https://duckduckgo.com/?q=%1"_s;

} // namespace

QString catalogos::direccionDeBusqueda(const QString &buscador, const QString &texto)
{
    const QString base = buscador.trimmed();
    const QUrl direccion(base.left(base.indexOf(u'?')));
    if ((direccion.scheme() != u"http" && direccion.scheme() != u"https") || direccion.host().isEmpty())
        return {};
    const QString palabras = QString::fromLatin1(QUrl::toPercentEncoding(texto.simplified()));
    const QString lugar = u"%1"_s;
    return base.contains(lugar) ? QString(base).replace(lugar, palabras) : base + palabras;
}

panBuscaInternet::panBuscaInternet(const QString &texto) : Form(u"panBuscaInternet"_s)
{
    setWindowTitle(u"Buscar en internet"_s);
    Label1.setWordWrap(true);
    Text1.setText(texto);
    Text2.setToolTip(u"Dirección del buscador; %1 es el lugar del texto"_s);
    Command1.setDefault(true);
    setContents(this, Column{
                          Fields{{u"&Texto a buscar :"_s, Text1}, {u"&Dirección del buscador :"_s, Text2}},
                          Label1,
                          Row{Stretch(), Command1, Command2},
                      });
    resize(620, 190);
    connect(&Command1, &QPushButton::clicked, this, &panBuscaInternet::buscar);
    connect(&Command2, &QPushButton::clicked, this, &panBuscaInternet::unload);
}

void panBuscaInternet::load()
{
    const QString buscador = settings::getSetting(seccion, clave);
    Text2.setText(buscador.isEmpty() ? habitual : buscador);
}

/// The address is kept for the next time once it has served.
void panBuscaInternet::buscar()
{
    if (Text1.text().trimmed().isEmpty()) {
        MODULE11::MuestraError(u"Escriba el texto que quiere buscar."_s);
        Text1.setFocus();
        return;
    }
    const QString direccion = catalogos::direccionDeBusqueda(Text2.text(), Text1.text());
    if (direccion.isEmpty()) {
        MODULE11::MuestraError(u"La dirección del buscador debe comenzar con http:// o https://"_s);
        Text2.setFocus();
        return;
    }
    if (!shell::openDocument(direccion)) {
        MODULE11::MuestraError(u"No se pudo abrir el navegador de Internet de este equipo."_s);
        return;
    }
    settings::saveSetting(seccion, clave, Text2.text().trimmed());
    answer(u"SI"_s);
}

#include "moc_panBuscaInternet.cpp"
