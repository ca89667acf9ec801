#include "core/windows/ayuda.h"

#include "platform/basic/environment.h"
#include "platform/forms/layout.h"

#include <QApplication>
#include <QFileInfo>
#include <QKeyEvent>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

QString pagina(const QString &nombre)
{
    return basic::programFile(u"ayuda/%1.html"_s.arg(nombre));
}

/// The name of the window that the person looks at.
QString ventanaEnUso()
{
    if (const auto *form = qobject_cast<Form *>(QApplication::activeModalWidget()))
        return form->name();
    if (const Form *form = activeChild())
        return form->name();
    return u"Vademecum"_s;
}

class FiltroF1 : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *receptor, QEvent *evento) override
    {
        if (evento->type() != QEvent::KeyPress || static_cast<QKeyEvent *>(evento)->key() != Qt::Key_F1 ||
            !receptor->isWidgetType() || abierta_)
            return false;
        abierta_ = true;
        ayuda ventana;
        ventana.mostrarPagina(ventanaEnUso());
        ventana.showModal();
        abierta_ = false;
        return true;
    }

private:
    bool abierta_ = false;
};

} // namespace

ayuda::ayuda() : Form(u"ayuda"_s)
{
    setWindowTitle(u"Ayuda de Sanirell!"_s);
    navegador_.setObjectName(u"Navegador"_s);
    navegador_.setOpenExternalLinks(true);
    setContents(this, Column{Expanding(navegador_), Row{Command1, Command2, Stretch(), Command3}});
    resize(760, 560);
    connect(&Command1, &QPushButton::clicked, &navegador_, &QTextBrowser::backward);
    connect(&Command2, &QPushButton::clicked, this, [this] { mostrarPagina(u"index"_s); });
    connect(&Command3, &QPushButton::clicked, this, &ayuda::unload);
    connect(&navegador_, &QTextBrowser::backwardAvailable, &Command1, &QPushButton::setEnabled);
    Command1.setEnabled(false);
}

void ayuda::mostrarPagina(const QString &ventana)
{
    const QString propia = pagina(ventana);
    navegador_.setSource(QUrl::fromLocalFile(QFileInfo::exists(propia) ? propia : pagina(u"index"_s)));
}

void instalarAyuda()
{
    qApp->installEventFilter(new FiltroF1(qApp));
}

#include "moc_ayuda.cpp"
