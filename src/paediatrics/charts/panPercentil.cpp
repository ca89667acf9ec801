#include "paediatrics/charts/panPercentil.h"

#include "core/services/paciente.h"
#include "core/session/session.h"
#include "paediatrics/anthropometry/edadCorregida.h"
#include "paediatrics/charts/mapping.h"
#include "paediatrics/charts/palabras.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/forms/layout.h"
#include "platform/forms/twips.h"
#include "platform/printing/printer.h"

#include <QHelpEvent>
#include <QLineF>
#include <QToolTip>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

const QString todos = u"<TODOS>"_s;

QStringView columna(charts::Measure medida)
{
    switch (medida) {
    case charts::Measure::Talla:
        return u"Talla";
    case charts::Measure::Pc:
        return u"Pc";
    default:
        return u"Peso";
    }
}

/// The measures of a chart, each once, in the order in which they are drawn.
std::vector<charts::Measure> medidasDe(const charts::ClassicalChart &chart)
{
    std::vector<charts::Measure> medidas;
    for (const charts::Panel &panel : chart.panels)
        if (std::find(medidas.begin(), medidas.end(), panel.measure) == medidas.end())
            medidas.push_back(panel.measure);
    return medidas;
}

} // namespace

panPercentil::panPercentil(const charts::ClassicalChart &chart)
    : Form(chart.form.toString()), chart_(chart), Picture1(u"Picture1"_s, chart.pictureBox.size())
{
    setWindowTitle(chart.captionOfPatient.toString());
    chkCorregida.setToolTip(u"La de un prematuro se cuenta desde las 40 semanas, hasta los dos años"_s);
    setContents(this, Column{Picture1, Row{chkCorregida, Stretch(), Command1, Command2}});
    chkCorregida.hide();
    Picture1.installEventFilter(this);
    connect(&chkCorregida, &QCheckBox::toggled, this, &panPercentil::redibujar);
    connect(&Command1, &QPushButton::clicked, this, &panPercentil::imprimir);
    connect(&Command2, &QPushButton::clicked, this, &panPercentil::unload);
}

void panPercentil::load()
{
    Picture1.loadPicture(basic::programFile(u"curvas/"_s + chart_.picture.toString()));
}

void panPercentil::activate()
{
    if (tag() == todos)
        MODULE11::BaseDatos.readTogether([this] { dibujarTodos(); });
    else if (!tag().isEmpty())
        dibujarPaciente();
}

/// The age by which the points stand has changed.
void panPercentil::redibujar()
{
    Picture1.clear();
    dibujarPaciente();
}

void panPercentil::dibujarPaciente()
{
    puntos_.clear();
    auto paciente = services::paciente(tag());
    if (!paciente)
        return;
    setWindowTitle(chart_.captionOfPatient.toString() + (*paciente)[u"Apellido y Nombres"].text());
    diasDePrematuro_ = paediatrics::diasDePrematuro((*paciente)[u"Numero"].integer());
    chkCorregida.setVisible(diasDePrematuro_ > 0);
    const basic::Value nacimiento = (*paciente)[u"Fecha de Nacimiento"];
    dao::Recordset medidas = MODULE11::BaseDatos.openRecordset(
        u"select * from Medidas where paciente = %1 order by fecha"_s.arg(tag()));
    if (medidas.eof() || nacimiento.isNull())
        return;
    for (const charts::Measure medida : medidasDe(chart_))
        dibujarMedida(medidas, medida, nacimiento.date());
}

/// The points in date order, joined where the chart joins them.
void panPercentil::dibujarMedida(dao::Recordset &medidas, charts::Measure medida, basic::Date nacimiento)
{
    std::optional<QPointF> pluma;
    for (medidas.moveFirst(); !medidas.eof(); medidas.moveNext()) {
        const double valor = medidas[columna(medida)].number();
        if (valor == 0)
            continue;
        const basic::Date fecha = medidas[u"fecha"].date();
        const auto diasDeVida = static_cast<double>(fecha.wholeDays() - nacimiento.wholeDays());
        const double dias =
            chkCorregida.isChecked() ? paediatrics::edadCorregida(diasDeVida, diasDePrematuro_) : diasDeVida;
        const charts::Panel *panel = charts::panelFor(chart_, medida, dias);
        if (!panel)
            continue;
        const QPointF punto = charts::mapped(panel->frame, dias, valor);
        if (chart_.joinsPoints) {
            // A first row that belongs to the second panel starts the line at the first panel's place.
            const charts::Frame &inicio = chart_.panels.front().frame;
            const QPointF desvio = punto - QPointF(panel->frame.box.left(), panel->frame.box.bottom());
            const QPointF comienzo = QPointF(inicio.box.left(), inicio.box.bottom()) + desvio;
            Picture1.drawLine(pluma.value_or(comienzo), punto, QColor(panel->colour));
        }
        Picture1.drawCircle(punto, chart_.radius, QColor(panel->colour));
        const charts::Toma toma{dias, medidas[u"Peso"].number(), medidas[u"Talla"].number(),
                                medidas[u"Pc"].number()};
        puntos_.push_back({punto, u"%1: %2 %3\n%4"_s
                                      .arg(basic::dateText(fecha), medidas[columna(medida)].text(),
                                           medida == charts::Measure::Peso ? u"g"_s : u"cm"_s,
                                           charts::enPalabras(medida, chart_.sex, toma))
                                      .trimmed()});
        pluma = punto;
    }
}

bool panPercentil::eventFilter(QObject *control, QEvent *evento)
{
    if (control != &Picture1 || evento->type() != QEvent::ToolTip)
        return false;
    const auto *ayuda = static_cast<QHelpEvent *>(evento);
    QToolTip::showText(ayuda->globalPos(), leyendaEn(ayuda->pos()), &Picture1); // an empty text hides it
    return true;
}

/// Of the last point drawn within reach of the pointer.
QString panPercentil::leyendaEn(QPointF pixel) const
{
    const QPointF lugar = pixel * twipsPerPixel;
    const auto cerca = std::ranges::find_if(puntos_.rbegin(), puntos_.rend(), [&](const Punto &punto) {
        return QLineF(punto.lugar, lugar).length() <= chart_.radius * 2;
    });
    return cerca == puntos_.rend() ? QString() : cerca->dice;
}

void panPercentil::dibujarTodos()
{
    dao::Recordset pacientes = MODULE11::BaseDatos.openRecordset(u"Pacientes"_s);
    pacientes.setIndex(u"PrimaryKey");
    setWindowTitle(chart_.captionOfAll.toString());
    const QString sexo = chart_.sex == charts::Sex::Boys ? u"Varon"_s : u"Mujer"_s;
    dao::Recordset medidas = MODULE11::BaseDatos.openRecordset(u"Medidas"_s);
    const std::vector<charts::Measure> clases = medidasDe(chart_);
    for (; !medidas.eof(); medidas.moveNext()) {
        for (const charts::Measure medida : clases) {
            const double valor = medidas[columna(medida)].number();
            if (valor == 0)
                continue;
            pacientes.seek(u"=", medidas[u"Paciente"].value());
            if (pacientes.noMatch() || (chart_.filtersSex && pacientes[u"Sexo"].text() != sexo))
                continue;
            const basic::Value nacimiento = pacientes[u"Fecha de Nacimiento"];
            if (nacimiento.isNull())
                continue;
            const auto dias =
                static_cast<double>(medidas[u"fecha"].date().wholeDays() - nacimiento.date().wholeDays());
            if (const charts::Panel *panel = charts::panelFor(chart_, medida, dias))
                Picture1.drawCircle(charts::mapped(panel->frame, dias, valor), chart_.radius,
                                    QColor(panel->colour));
        }
    }
}

void panPercentil::imprimir()
{
    const auto impresora = printing::chooserDialog(windowTitle());
    if (!impresora)
        return;
    printing::Document documento(*impresora, impresora->name);
    documento.setFont(QFont(u"Arial"_s, 15));
    documento.print((chart_.printsDoctor ? u"Dr. "_s : QString()) + MODULE11::DrActual);
    documento.setFont(QFont(u"Arial"_s, 10));
    documento.print(windowTitle() + (chkCorregida.isChecked() ? u" - edad corregida"_s : QString()));
    documento.paintPicture(Picture1.image(), Picture1.sizeTwips().width(), Picture1.sizeTwips().height());
    documento.print(u"Impresión realizada el "_s + basic::format(basic::today(), u"dddd d  mmmm, yyyy"));
    documento.endDoc();
}

#include "moc_panPercentil.cpp"
