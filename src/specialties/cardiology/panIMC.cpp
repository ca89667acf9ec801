#include "specialties/cardiology/panIMC.h"

#include "core/services/paciente.h"
#include "core/session/ports.h"
#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

panIMC::panIMC() : Form(u"panIMC"_s)
{
    setWindowTitle(u"Cálculo y determinación del I.M.C."_s);
    QFont destacada = lblPaciente.font();
    destacada.setBold(true);
    lblPaciente.setFont(destacada);
    destacada.setPointSizeF(destacada.pointSizeF() * 1.8);
    Label2.setFont(destacada);
    Slider1.setObjectName(u"Slider1"_s);
    Slider1.setAccessibleName(u"I.M.C."_s);
    Slider1.setRange(0, static_cast<int>(EscalaDelImc::hasta));
    setContents(this,
                Column{lblPaciente, Expanding(Above(u"&Registros anteriores:"_s, List1)),
                       Group(u"Según últimas mediciones de peso y talla del paciente :"_s,
                             Column{Row{Label1, Space(12), Label2, Stretch()}, escala_, Slider1, lblPeso}),
                       Row{Stretch(), Command1}});
    resize(520, 480);
    connect(&Slider1, &QSlider::valueChanged, this, &panIMC::decirPeso);
    connect(&Command1, &QPushButton::clicked, this, &panIMC::unload);
}

void panIMC::activate()
{
    lblPaciente.setCaption(services::nombreDePaciente(tag()));
    List1.clear();
    Label1.setCaption({});
    Label2.setCaption({});
    escala_.setNormal(std::nullopt);
    ultimaTalla_ = 0;
    Slider1.setValue(0);
    leer();
    decirPeso();
}

void panIMC::leer()
{
    const auto paciente = services::numeroDePaciente(tag());
    if (!paciente)
        return;
    dao::Recordset medidas = MODULE11::BaseDatos.openRecordset(
        u"Select * from medidas where paciente = %1 order by fecha"_s.arg(*paciente));
    double imc = 0;
    basic::Date fecha;
    for (; !medidas.eof(); medidas.moveNext()) {
        const basic::Value peso = medidas[u"Peso"].value(), talla = medidas[u"Talla"].value();
        imc = ports::calculaImc ? ports::calculaImc(peso, talla) : 0;
        fecha = medidas[u"fecha"].date();
        ultimaTalla_ = talla.number();
        List1.addLine(u"%1 -- %2 Kg. -- %3 Cm. -- %4 IMC"_s.arg(
            medidas[u"fecha"].text(), basic::format(peso.number() / 1000, u"###"),
            basic::format(talla.number(), u"###"), basic::format(imc, u"##")));
    }
    if (List1.count() > 0)
        mostrarUltima(imc, fecha);
}

/// An index beyond the scale stands at its end.
void panIMC::mostrarUltima(double imc, const basic::Date &fecha)
{
    Label1.setCaption(basic::format(fecha, u"dd/mm/yyyy"));
    Label2.setCaption(basic::format(imc, u"#0.0"));
    Slider1.setValue(static_cast<int>(imc));
    auto persona = services::paciente(tag());
    if (persona && !(*persona)[u"Fecha de Nacimiento"].isNull() && ports::imcNormal)
        escala_.setNormal(
            ports::imcNormal((*persona)[u"Sexo"].text(),
                             fecha.wholeDays() - (*persona)[u"Fecha de Nacimiento"].date().wholeDays()));
    List1.setCurrentRow(List1.count() - 1);
}

void panIMC::decirPeso()
{
    const double metros = ultimaTalla_ / 100;
    lblPeso.setCaption(metros == 0 ? QString()
                                   : u"Con la última talla, un I.M.C. de %1 es un peso de %2 Kg."_s.arg(
                                         QString::number(Slider1.value()),
                                         basic::format(Slider1.value() * metros * metros, u"0.0")));
}

#include "moc_panIMC.cpp"
