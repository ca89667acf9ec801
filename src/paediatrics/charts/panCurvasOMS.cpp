#include "paediatrics/charts/panCurvasOMS.h"

#include "core/services/paciente.h"
#include "core/session/session.h"
#include "paediatrics/anthropometry/edadCorregida.h"
#include "paediatrics/anthropometry/medidas.h"
#include "paediatrics/charts/mapping.h"
#include "paediatrics/charts/palabras.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"
#include "platform/forms/twips.h"
#include "platform/printing/printer.h"

#include <QPainter>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr int nitidez = 2; // pixels on paper for each of the screen

/// Whose measures stand on the chart, and a warning where it is one of the other sex.
QString advertencia(dao::Recordset &paciente, const charts::WhoChart &chart)
{
    const QString nombre = paciente[u"Apellido y Nombres"].text();
    const QString sexo = paciente[u"Sexo"].text().left(1).toUpper();
    if (sexo == u"V" && chart.sex == charts::Sex::Girls)
        return nombre + u" — ATENCIÓN: es varón y la curva es de niñas."_s;
    if (sexo == u"M" && chart.sex == charts::Sex::Boys)
        return nombre + u" — ATENCIÓN: es mujer y la curva es de niños."_s;
    return nombre;
}

QStringView columnaProbada(charts::Measure medida)
{
    return medida == charts::Measure::Talla ? u"talla" : u"peso";
}

} // namespace

panCurvasOMS::panCurvasOMS() : Form(u"panCurvasOMS"_s), Image1(u"Image1"_s, charts::whoPictureBox.size())
{
    setWindowTitle(u"Curvas OMS"_s);
    for (const charts::WhoChart &chart : charts::whoCharts())
        Combo1.addItem(chart.text.toString());
    Combo1.setCurrentIndex(-1);
    Combo1.setMaxVisibleItems(30);
    marcadores_.resize(toPixels(charts::whoPictureBox.size()).toSize());
    setContents(this, Column{
                          Row{Fields{{Label1, Combo1}}, Check1, chkCorregida, Stretch(), Command2, Command1},
                          lblPaciente,
                          Image1,
                      });
    connect(&Combo1, &QComboBox::currentIndexChanged, this, &panCurvasOMS::mostrarCurva);
    chkCorregida.setToolTip(u"La de un prematuro se cuenta desde las 40 semanas, hasta los dos años"_s);
    for (CheckBox *casilla : {&Check1, &chkCorregida})
        connect(casilla, &QCheckBox::toggled, this, &panCurvasOMS::mostrarCurva);
    connect(&Command1, &QPushButton::clicked, this, &panCurvasOMS::unload);
    connect(&Command2, &QPushButton::clicked, this, &panCurvasOMS::imprimir);
}

void panCurvasOMS::activate()
{
    lblPaciente.setCaption(services::nombreDePaciente(tag()));
    const auto numero = services::numeroDePaciente(tag());
    diasDePrematuro_ = numero ? paediatrics::diasDePrematuro(*numero) : 0;
    chkCorregida.setVisible(diasDePrematuro_ > 0);
}

void panCurvasOMS::mostrarCurva()
{
    if (Combo1.currentIndex() < 0)
        return;
    try {
        dibujar(charts::whoCharts()[static_cast<std::size_t>(Combo1.currentIndex())]);
    } catch (const basic::Error &error) {
        msgBox(u"Error detectado : "_s + error.description(), Icon::None, u"Sanirell!"_s);
    }
}

/// With all patients every measure is placed as if its child were born on this patient's birthday.
void panCurvasOMS::dibujar(const charts::WhoChart &chart)
{
    marcadores_.quitar();
    const QString seleccion = Check1.isChecked() ? u"true"_s : u"paciente = %1 order by fecha"_s.arg(tag());
    Image1.loadPicture(basic::programFile(u"curvas/oms/%1.jpg"_s.arg(chart.picture)));
    auto paciente = services::paciente(tag());
    lblPaciente.setCaption(paciente ? advertencia(*paciente, chart)
                                    : u"Sin un paciente elegido no hay medidas que ubicar en la curva."_s);
    if (!paciente)
        return;
    const basic::Value nacimiento = (*paciente)[u"Fecha de Nacimiento"];
    dao::Recordset medidas = MODULE11::BaseDatos.openRecordset(u"select * from Medidas where "_s + seleccion);
    if (nacimiento.isNull())
        return;
    for (; !medidas.eof(); medidas.moveNext())
        dibujarFila(chart, medidas, nacimiento.date());
}

void panCurvasOMS::dibujarFila(const charts::WhoChart &chart, dao::Recordset &medidas, basic::Date nacimiento)
{
    if (medidas[columnaProbada(chart.measure)].number() == 0)
        return;
    const basic::Date fecha = medidas[u"fecha"].date();
    const auto diasDeVida = static_cast<double>(fecha.wholeDays() - nacimiento.wholeDays());
    const double dias =
        chkCorregida.isChecked() ? paediatrics::edadCorregida(diasDeVida, diasDePrematuro_) : diasDeVida;
    const double peso = medidas[u"peso"].number();
    const double talla = medidas[u"talla"].number();
    // With all patients the age is the birthday's of this one: nothing true can be said of it.
    const QString lugar =
        Check1.isChecked()
            ? QString()
            : charts::enPalabras(chart.measure, chart.sex, {dias, peso, talla, medidas[u"pc"].number()});
    const QString rotulo = basic::dateText(fecha) + u": "_s;
    const QString unidad = chart.unit.toString();

    if (chart.measure == charts::Measure::PesoParaTalla) {
        if (dias >= chart.lowestDays && (!chart.highestDays || dias <= *chart.highestDays))
            marcadores_.poner(charts::mapped(chart.frame, talla, peso), rotulo + unidad, lugar);
        return;
    }
    const double valor = chart.measure == charts::Measure::Imc     ? paediatrics::CalcularIMC(peso, talla)
                         : chart.measure == charts::Measure::Talla ? talla
                                                                   : peso;
    marcadores_.poner(charts::mapped(chart.frame, dias, valor),
                      rotulo + basic::format(valor, u"###.#") + unidad, lugar);
}

void panCurvasOMS::imprimir()
{
    const auto impresora =
        printing::defaultChoice(services::nombreDePaciente(tag()) + u" - "_s + windowTitle());
    if (!impresora)
        return;
    QImage imagen(Image1.size() * nitidez, QImage::Format_RGB32);
    imagen.setDevicePixelRatio(nitidez);
    QPainter painter(&imagen);
    Image1.render(&painter);
    painter.end();
    printing::Document documento(*impresora, impresora->name, true);
    documento.print(lblPaciente.caption());
    documento.print(Combo1.value() + (chkCorregida.isChecked() ? u" - edad corregida"_s : QString()));
    documento.paintPicture(imagen, Image1.sizeTwips().width(), Image1.sizeTwips().height());
    documento.endDoc();
}

#include "moc_panCurvasOMS.cpp"
