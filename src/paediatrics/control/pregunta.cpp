#include "paediatrics/control/pregunta.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace sano
{

namespace
{

enum Boton { Si, No, SinRespuesta };

constexpr int largoDeValor = 30;
constexpr std::array nombresDePruebas = {"TSH neonatal", "Fenilalanina neonatal"};

const Pregunta::Palabras palabrasDePrueba{u"(+)"_s, u"(-)"_s, u"No se hizo"_s};

} // namespace

Pregunta::Pregunta(ControlArray<OptionButton> &botones, const Palabras &palabras)
{
    int boton = Si;
    for (const QString &palabra : {palabras.si, palabras.no, palabras.sinRespuesta})
        grupo_.addButton(&botones.add(botones.size(), palabra), boton++);
    mostrar(basic::Null{});
}

Item Pregunta::contenido()
{
    return Row{grupo_.button(Si), grupo_.button(No), grupo_.button(SinRespuesta), Stretch()};
}

void Pregunta::mostrar(const Respuesta &respuesta)
{
    const QString texto = respuesta.text();
    grupo_.button(texto == u"SI" ? Si : texto == u"NO" ? No : SinRespuesta)->setChecked(true);
}

Respuesta Pregunta::respuesta() const
{
    switch (grupo_.checkedId()) {
    case Si:
        return u"SI"_s;
    case No:
        return u"NO"_s;
    default:
        return basic::Null{};
    }
}

PanelDeScreening::PanelDeScreening()
    : preguntas_{Pregunta(Option1, palabrasDePrueba), Pregunta(Option1, palabrasDePrueba)}
{
    for (int i = 0; i < static_cast<int>(preguntas_.size()); ++i)
        Valor.add(i, largoDeValor);
}

Item PanelDeScreening::contenido()
{
    std::vector<Item> grupos;
    for (std::size_t i = 0; i < preguntas_.size(); ++i)
        grupos.push_back(
            Group(QLatin1StringView(nombresDePruebas[i]),
                  Column{preguntas_[i].contenido(), Fields{{u"Valor :"_s, Valor(static_cast<int>(i))}}}));
    return Column(std::move(grupos));
}

void PanelDeScreening::mostrar(const Screening &pruebas)
{
    for (std::size_t i = 0; i < pruebas.size(); ++i) {
        preguntas_[i].mostrar(pruebas[i].positiva);
        Valor(static_cast<int>(i)).setText(pruebas[i].valor);
    }
}

Screening PanelDeScreening::pruebas() const
{
    Screening pruebas;
    for (std::size_t i = 0; i < pruebas.size(); ++i)
        pruebas[i] = {preguntas_[i].respuesta(), Valor(static_cast<int>(i)).text()};
    return pruebas;
}

QStringList PanelDeScreening::enPalabras() const
{
    QStringList lineas;
    for (std::size_t i = 0; i < preguntas_.size(); ++i)
        lineas += u"%1 : %2 %3"_s
                      .arg(QLatin1StringView(nombresDePruebas[i]), preguntas_[i].enPalabras(),
                           Valor(static_cast<int>(i)).text())
                      .trimmed();
    return lineas;
}

} // namespace sano
