#include "paediatrics/pressure/panTomaTension.h"

#include "core/services/services.h"
#include "platform/basic/runtime.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

std::optional<double> presionEn(const TextBox &campo)
{
    const auto valor = basic::toNumber(campo.text());
    return valor && *valor > 0 ? valor : std::nullopt;
}

} // namespace

panTomaTension::panTomaTension() : Form(u"panTomaTension"_s)
{
    setWindowTitle(u"Captura de tensión arterial"_s);
    Command1.setDefault(true);
    setContents(this, Column{
                          Fields{{u"&Tensión tomada el día :"_s, mFecha},
                                 {u"&Máxima :"_s, mMaxima},
                                 {u"Mí&nima :"_s, mMinima}},
                          Row{Stretch(), Command1, Command2},
                      });
    setMinimumWidth(340);
    mMaxima.setFocus();
    connect(&Command1, &QPushButton::clicked, this, &panTomaTension::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void panTomaTension::mostrar(const presion::Toma &toma)
{
    mFecha.setValue(toma.fecha);
    mMaxima.setText(basic::Value(toma.maxima).text());
    mMinima.setText(basic::Value(toma.minima).text());
}

presion::Toma panTomaTension::toma() const
{
    return {mFecha.value(), presionEn(mMinima).value_or(0), presionEn(mMaxima).value_or(0)};
}

void panTomaTension::aceptar()
{
    for (TextBox *campo : {&mMaxima, &mMinima}) {
        if (presionEn(*campo))
            continue;
        MODULE11::MuestraError(u"Datos mal ingresados."_s);
        markWrong(*campo, u"La presión en milímetros de mercurio"_s);
        return;
    }
    if (toma().minima > toma().maxima) {
        MODULE11::MuestraError(u"La mínima es mayor que la máxima."_s);
        markWrong(mMinima, u"Más que la máxima"_s);
        return;
    }
    answer(u"SI"_s);
}

#include "moc_panTomaTension.cpp"
