#include "paediatrics/anthropometry/panMedidas.h"

#include "core/services/services.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"
#include "platform/settings/settings.h"

using namespace Qt::StringLiterals;
using namespace forms;

panMedidas::panMedidas() : Form(u"panMedidas"_s)
{
    setWindowTitle(u"Antropometría"_s);
    medidas_ = {
        {1, &Command3, u"Peso"_s, u"Gr."_s, u"Kg."_s, 1000, paediatrics::Medida::Peso},
        {2, &Command4, u"Talla"_s, u"Cm."_s, u"Mts."_s, 100, paediatrics::Medida::Talla},
        {3, &Command5, u"Pc"_s, u"Cm."_s, u"Mts."_s, 100, paediatrics::Medida::PerimetroCefalico},
    };
    for (const Medida &medida : medidas_) {
        Text1.add(medida.indice, 12).setMaximumWidth(110);
        lblLugar.add(medida.indice).setMinimumWidth(250);
        connect(&Text1(medida.indice), &QLineEdit::textChanged, this,
                [this, &medida] { mostrarLugar(medida); });
        medida.unidad->setFixedWidth(56);
        medida.unidad->setToolTip(u"Cambiar la unidad"_s);
        mostrarUnidad(medida, u"1"_s);
        connect(medida.unidad, &QPushButton::clicked, this, [this, &medida] { cambiarUnidad(medida); });
    }
    Command1.setDefault(true);
    setContents(this,
                Column{
                    Fields{{u"&Fecha :"_s, TextF},
                           {u"&Peso :"_s, Row{Text1(1), Command3, Expanding(lblLugar(1))}},
                           {u"&Talla :"_s, Row{Text1(2), Command4, Expanding(lblLugar(2))}},
                           {u"P. C&efálico :"_s, Row{Text1(3), Command5, Expanding(lblLugar(3))}}},
                    Row{Stretch(), Command1, Command2},
                },
                {&Command3, &Command4, &Command5});
    setMinimumWidth(360);
    connect(&TextF, &DTPicker::dateChanged, this, [this] {
        for (const Medida &medida : medidas_)
            mostrarLugar(medida);
    });
    connect(&Command1, &QPushButton::clicked, this, &panMedidas::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void panMedidas::load()
{
    for (const Medida &medida : medidas_)
        if (const QString guardado = settings::getSetting(u"Medidas"_s, medida.clave); !guardado.isEmpty())
            mostrarUnidad(medida, guardado);
    TextF.setValue(basic::today());
    MODULE11::MuestraAyudante(
        u"Aquí se ingresan las medidas tomadas al paciente, fíjese que puede seleccionar la fecha de medición, y que puede diferir de la fecha de hoy, de esta forma se integran las curvas en forma cronológica.\nUd. puede ingresar la fecha desde el calendario adjunto a la casilla de entrada."_s);
}

void panMedidas::activate()
{
    Text1(1).setFocus();
}

double panMedidas::enUnidad(int indice, const CommandButton &unidad) const
{
    return basic::toNumber(Text1(indice).text()).value_or(0) * basic::val(forms::tag(&unidad));
}

void panMedidas::mostrarUnidad(const Medida &medida, const QString &tag)
{
    forms::setTag(medida.unidad, tag);
    medida.unidad->setText(tag == u"1" ? medida.chica : medida.grande);
}

void panMedidas::medirA(const QString &sexo, const basic::Date &nacimiento)
{
    sexo_ = sexo;
    nacimiento_ = nacimiento;
}

void panMedidas::mostrarLugar(const Medida &medida)
{
    const auto dias = static_cast<double>(fecha().wholeDays() - nacimiento_.wholeDays());
    lblLugar(medida.indice)
        .setCaption(sexo_.isEmpty() ? QString()
                                    : paediatrics::enPalabras(medida.clase, sexo_, dias,
                                                              enUnidad(medida.indice, *medida.unidad)));
}

/// What was typed in the other unit is thrown away.
void panMedidas::cambiarUnidad(const Medida &medida)
{
    const QString tag = forms::tag(medida.unidad) == u"1" ? QString::number(medida.factor) : u"1"_s;
    mostrarUnidad(medida, tag);
    Text1(medida.indice).clear();
    Text1(medida.indice).setFocus();
    settings::saveSetting(u"Medidas"_s, medida.clave, tag);
}

void panMedidas::aceptar()
{
    for (const Medida &medida : medidas_) {
        if (!basic::isNumeric(Text1(medida.indice).text())) {
            MODULE11::MuestraError(u"Datos mal ingresados."_s);
            markWrong(Text1(medida.indice), u"Un número; 0 si no se midió"_s);
            return;
        }
    }
    answer(u"SI"_s);
}

#include "moc_panMedidas.cpp"
