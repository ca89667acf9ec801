#include "core/reports/panCrystal.h"

#include "core/reports/informes.h"
#include "core/services/services.h"
#include "platform/basic/typed.h"
#include "platform/forms/layout.h"
#include "platform/forms/progress.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QShortcut>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr int sliceMs = 15; ///< of the work on the pages to come, so that the window answers
constexpr int restMs =
    150; ///< before that work, which may read a million keys at once: the first page is seen first

struct Zoom {
    const char *caption;
    reports::PageView::Fit fit;
    double factor;
};
constexpr Zoom zooms[] = {
    {"Ancho de la ventana", reports::PageView::Fit::Width, 0},
    {"Página entera", reports::PageView::Fit::Page, 0},
    {"50 %", reports::PageView::Fit::None, 0.5},
    {"75 %", reports::PageView::Fit::None, 0.75},
    {"100 %", reports::PageView::Fit::None, 1},
    {"150 %", reports::PageView::Fit::None, 1.5},
    {"200 %", reports::PageView::Fit::None, 2},
};

/// Buttons of the toolbar have a name for who does not see their picture.
void nombrar(CommandButton &boton, const QString &nombre)
{
    boton.setToolTip(nombre);
    boton.setAccessibleName(nombre);
}

} // namespace

panCrystal::panCrystal(reports::Report report) : Form(u"panCrystal"_s), informe(std::move(report))
{
    setWindowTitle(informe.title());
    nombrar(Primera, u"Primera página"_s);
    nombrar(Anterior, u"Página anterior"_s);
    nombrar(Siguiente, u"Página siguiente"_s);
    nombrar(Ultima, u"Última página"_s);
    for (const Zoom &zoom : zooms)
        Combo1.addItem(QString::fromUtf8(zoom.caption));
    Combo1.setCurrentIndex(0);
    Text2.setMaximumWidth(70);
    Text1.setMinimumWidth(160);
    Combo1.setMinimumWidth(160);
    setContents(this,
                Column{
                    Row{Command1, Command3, Command4, Command5, Stretch(), Command2},
                    Row{Primera, Anterior, lblPagina, Siguiente, Ultima, Fields{{u"I&r a :"_s, Text2}},
                        Fields{{u"&Zoom :"_s, Combo1}}, Stretch(), Fields{{u"B&uscar :"_s, Text1}}, Command6},
                    Expanding(cr1),
                });
    resize(1100, 720);
    cr1.setFocus();

    connect(&Command1, &QPushButton::clicked, this, &panCrystal::imprimir);
    connect(&Command2, &QPushButton::clicked, this, &panCrystal::unload);
    connect(&Command3, &QPushButton::clicked, this, [this] { informes::guardaPdf(informe); });
    connect(&Command4, &QPushButton::clicked, this,
            [this] { informes::exportaCsv(reports::listing(informe), informe.title()); });
    connect(&Command5, &QPushButton::clicked, this,
            [this] { informes::exportaPlanilla(reports::listing(informe), informe.title()); });
    connect(&Command6, &QPushButton::clicked, this, &panCrystal::buscar);
    connect(&Text1, &QLineEdit::returnPressed, this, &panCrystal::buscar);
    connect(&Text1, &QLineEdit::textEdited, this, [this] { hallada = -1; });
    connect(&Text2, &QLineEdit::returnPressed, this, &panCrystal::irA);
    connect(&Primera, &QPushButton::clicked, this, [this] { cr1.goTo(0); });
    connect(&Anterior, &QPushButton::clicked, this, [this] { cr1.goTo(qMax(0, cr1.page() - 1)); });
    connect(&Siguiente, &QPushButton::clicked, this, [this] { cr1.goTo(cr1.page() + 1); });
    connect(&Ultima, &QPushButton::clicked, this, [this] {
        forms::Progress avance(u"Se arman las páginas:"_s);
        if (informe.layOut([&](int paginas) { return avance.tell(paginas); }))
            cr1.goTo(informe.pagesKnown() - 1);
    });
    connect(&Combo1, &QComboBox::activated, this, [this](int elegido) {
        const Zoom &zoom = zooms[elegido];
        if (zoom.factor > 0)
            cr1.zoomBy(zoom.factor / cr1.zoom());
        else
            cr1.setFit(zoom.fit);
    });
    connect(&cr1, &reports::PageView::pageChanged, this, [this] {
        hallada = -1;
        mostrarLugar();
    });
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, &Text1,
            qOverload<>(&QWidget::setFocus));
    connect(&Timer1, &QTimer::timeout, this, &panCrystal::laminar);
    informe.hasPage(1);
    mostrarLugar();
    Timer1.start(restMs);
}

/// The pages turn by their keys wherever the focus is, but in a field that takes the key for itself.
void panCrystal::keyPressEvent(QKeyEvent *event)
{
    constexpr int dePagina[] = {Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};
    if (std::ranges::find(dePagina, event->key()) != std::end(dePagina))
        QApplication::sendEvent(&cr1, event);
    else
        Form::keyPressEvent(event);
}

/// The pages to come are laid out while nobody does anything, so that their number can be told.
void panCrystal::laminar()
{
    Timer1.stop();
    QElapsedTimer desde;
    desde.start();
    while (!informe.complete() && desde.elapsed() < sliceMs)
        informe.hasPage(informe.pagesKnown());
    if (!informe.complete()) {
        Timer1.start(1);
        return;
    }
    mostrarLugar();
    cr1.viewport()->update();
}

void panCrystal::mostrarLugar()
{
    lblPagina.setCaption(
        u"página %1 de %2"_s.arg(QString::number(cr1.page() + 1),
                                 informe.complete() ? QString::number(informe.pagesKnown()) : u"…"_s));
    const bool primera = cr1.page() == 0;
    const bool ultima = informe.complete() && cr1.page() == informe.pagesKnown() - 1;
    Primera.setEnabled(!primera);
    Anterior.setEnabled(!primera);
    Siguiente.setEnabled(!ultima);
    Ultima.setEnabled(!ultima);
}

void panCrystal::irA()
{
    bool numero = false;
    const int pagina = Text2.text().toInt(&numero);
    if (!numero || pagina < 1 || !informe.hasPage(pagina - 1)) {
        MODULE11::MuestraError(u"No hay tal página"_s);
        return;
    }
    cr1.goTo(pagina - 1);
}

/// From what was found last onwards; from the last page it goes on at the first, once.
void panCrystal::buscar()
{
    const QString buscado = Text1.text().trimmed();
    if (buscado.isEmpty())
        return;
    forms::Progress avance(u"Se busca en la página"_s);
    int pagina = cr1.page();
    int desde = hallada + 1;
    for (bool vuelta = false; !vuelta || pagina <= cr1.page(); ++pagina, desde = 0) {
        if (!informe.hasPage(pagina)) {
            if (vuelta)
                break;
            vuelta = true;
            pagina = -1;
            continue;
        }
        if (!avance.tell(pagina + 1))
            return;
        const std::vector<reports::Report::Reading> partes = informe.read(pagina);
        for (int parte = desde; parte < static_cast<int>(partes.size()); ++parte)
            if (basic::containsTyped(partes[static_cast<std::size_t>(parte)].text, buscado)) {
                cr1.mark(pagina, partes[static_cast<std::size_t>(parte)].place);
                hallada = parte;
                return;
            }
    }
    MODULE11::MuestraError(u"No se encuentra «%1»"_s.arg(buscado));
}

void panCrystal::imprimir()
{
    const auto eleccion = printing::chooserDialog(informe.title(), informe.title());
    if (!eleccion)
        return;
    forms::Progress avance(u"Se imprime la página"_s);
    reports::print(informe, *eleccion, [&](qint64 pagina) { return avance.tell(pagina + 1); });
}

#include "moc_panCrystal.cpp"
