#include "specialties/eye/visor.h"

#include "core/services/paciente.h"
#include "core/session/session.h"
#include "platform/basic/errors.h"
#include "platform/basic/runtime.h"
#include "specialties/drawing/hoja.h"
#include "specialties/eye/visita.h"

#include <QScrollBar>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace forms;

namespace oftalmo
{

namespace
{

constexpr double anchoInicial = 620, menor = 310, mayor = 3720, paso = 1.25;

} // namespace

Visor::Visor(const QString &ventana, const QString &titulo, Clase clase)
    : Form(ventana), clase_(clase), titulo_(titulo), ancho_(anchoInicial), paneles_(new QScrollArea)
{
    setWindowTitle(titulo);
    auto *contenido = new QWidget;
    auto *columna = new QVBoxLayout(contenido);
    columna->setAlignment(Qt::AlignTop);
    columna->addWidget(&lblVacio);
    paneles_->setWidget(contenido);
    paneles_->setWidgetResizable(true);
    setContents(this, Column{Expanding(paneles_), Row{Command2, Command3, Stretch(), Command1}});
    resize(720, 600);
    connect(&Command1, &QPushButton::clicked, this, &Visor::unload);
    connect(&Command2, &QPushButton::clicked, this, [this] { ampliar(paso); });
    connect(&Command3, &QPushButton::clicked, this, [this] { ampliar(1 / paso); });
}

/// A drawing whose file cannot be read has a panel that says so.
void Visor::load()
{
    const QString nombre = services::nombreDePaciente(tag());
    const QString columna = columnaDe(clase_);
    for (
        dao::Recordset visita = MODULE11::BaseDatos.openRecordset(
            u"Select Fecha, %1 from consultaOftalmo where paciente = %2 and %1 <> '' order by Fecha, idConsulta"_s
                .arg(columna)
                .arg(services::numeroDePaciente(tag()).value_or(0)));
        !visita.eof(); visita.moveNext()) {
        const QString rotulo = u"%1 de %2 de la fecha %3"_s.arg(titulo_, nombre, visita[u"Fecha"].text());
        try {
            agregarPanel(rotulo, leerDibujo(visita[columna].text()));
        } catch (const basic::Error &error) {
            agregarPanel(rotulo, {.sellos = {}, .rotulos = {}, .observaciones = error.description()});
        }
    }
    lblVacio.setVisible(Picture1.size() == 0);
    ampliar(1);
}

void Visor::agregarPanel(const QString &rotulo, const Dibujo &dibujo)
{
    const int indice = Picture1.size();
    Label &titulo = lblDibujo.add(indice, rotulo);
    QFont destacada = titulo.font();
    destacada.setBold(true);
    titulo.setFont(destacada);
    Lienzo &lienzo = Picture1.add(indice, clase_);
    lienzo.setAccessibleName(rotulo);
    lienzo.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lienzo.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    lienzo.viewport()->installEventFilter(this);
    lienzo.mostrar(dibujo);
    Label &observaciones = lblObservaciones.add(indice, dibujo.observaciones);
    observaciones.setWordWrap(true);
    observaciones.setVisible(!dibujo.observaciones.isEmpty());
    CommandButton &imprime = comImprimir.add(indice, u"Imprimir"_s, u"imprimir"_s);
    imprime.setAccessibleName(u"Imprimir "_s + rotulo);
    connect(&imprime, &QPushButton::clicked, this, [&lienzo, rotulo, texto = dibujo.observaciones] {
        dibujo::imprimir(lienzo, rotulo, {}, {texto});
    });
    auto *panel = new QWidget;
    setContents(panel, Column{Row{titulo, Stretch(), imprime}, lienzo, observaciones, Stretch()});
    paneles_->widget()->layout()->addWidget(panel);
}

void Visor::ampliar(double factor)
{
    ancho_ = std::clamp(ancho_ * factor, menor, mayor);
    for (auto &[i, lienzo] : Picture1) {
        const QSizeF medida = lienzo->sizeTwips();
        lienzo->setFixedSize(static_cast<int>(ancho_),
                             static_cast<int>(ancho_ * medida.height() / medida.width()));
    }
}

/// The wheel over a drawing scrolls the panels, with Ctrl it enlarges them all.
bool Visor::eventFilter(QObject *objeto, QEvent *evento)
{
    if (evento->type() != QEvent::Wheel)
        return Form::eventFilter(objeto, evento);
    auto *rueda = static_cast<QWheelEvent *>(evento);
    if (rueda->modifiers() & Qt::ControlModifier)
        ampliar(rueda->angleDelta().y() > 0 ? paso : 1 / paso);
    else
        paneles_->verticalScrollBar()->setValue(paneles_->verticalScrollBar()->value() -
                                                rueda->angleDelta().y());
    return true;
}

void dibujoOjo(qint64 numero, Clase clase)
{
    const auto visor = clase == Clase::Biomicroscopia ? std::unique_ptr<Visor>(std::make_unique<panGraBioX>())
                                                      : std::make_unique<panGraFondoX>();
    visor->setTag(QString::number(numero));
    visor->showModal();
}

} // namespace oftalmo

panGraBioX::panGraBioX() : Visor(u"panGraBioX"_s, u"Biomicroscopia"_s, oftalmo::Clase::Biomicroscopia)
{
}

panGraFondoX::panGraFondoX() : Visor(u"panGraFondoX"_s, u"Fondo de Ojo"_s, oftalmo::Clase::Fondo)
{
}

#include "moc_visor.cpp"
