#include "core/service/opciones.h"

#include "platform/settings/settings.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

const QString seccion = u"Configuracion"_s;

/// A check box is on while its setting is not the one of off.
struct Casilla {
    const char *clave, *si, *no;
    bool alFaltar; ///< without a setting
};
constexpr Casilla bienvenida = {"Pantalla Inicial", "SI", "NO", true};
constexpr Casilla asistente = {"Mostrar Asistente al empezar", "", "NO", true};
constexpr Casilla ayudante = {"Mostrar Ayudante de Entorno", "SI", "NO", false};

/// One of the values that a setting chooses from; they stand in one group by the key.
struct Eleccion {
    int grupo;
    const char *clave, *valor, *titulo;
    bool alFaltar = false;
};
enum { Ficha, Historia, Diagnosticos };

// clang-format off
constexpr Eleccion elecciones[] = {
    {Ficha, "Abrir ficha paciente", "FICHA GLOBAL", "Ficha &Global", true},
    {Ficha, "Abrir ficha paciente", "HC TEXTUAL", "Historia clínica te&xtual"},
    {Ficha, "Abrir ficha paciente", "HC DESARROLLADA", "Historia clínica &desarrollada"},
    {Ficha, "Abrir ficha paciente", "HC MULTIMEDIA", "Historia clínica m&ultimedia"},
    {Historia, "HC por Defecto", "STANDARD", "&Historia clínica standard", true},
    {Historia, "HC por Defecto", "MULTIMEDIA", "&Apuntes multimedia"},
    {Diagnosticos, "Clasificador patologico", "CIE10", "Utilizar C&IE 10"},
    {Diagnosticos, "Clasificador patologico", "PERSONAL", "Utilizar TA&BLA PROPIA"},
};
// clang-format on

QString leer(const char *clave)
{
    return settings::getSetting(seccion, QString::fromUtf8(clave));
}

void escribir(const char *clave, const char *valor)
{
    settings::saveSetting(seccion, QString::fromUtf8(clave), QString::fromUtf8(valor));
}

bool vale(const char *clave, const char *valor, bool alFaltar)
{
    const QString guardado = leer(clave);
    return guardado.isEmpty() ? alFaltar : guardado == QString::fromUtf8(valor);
}

void ligar(CheckBox &control, const Casilla &casilla)
{
    QObject::connect(&control, &QCheckBox::clicked,
                     [casilla](bool si) { escribir(casilla.clave, si ? casilla.si : casilla.no); });
}

void poner(CheckBox &control, const Casilla &casilla)
{
    const QString guardado = leer(casilla.clave);
    control.setChecked(guardado.isEmpty() ? casilla.alFaltar : guardado != QString::fromUtf8(casilla.no));
}

} // namespace

Opciones::Opciones()
{
    Check5.setToolTip(u"Esta versión del programa no muestra el ayudante."_s);
    ligar(Check2, bienvenida);
    ligar(Check1, asistente);
    ligar(Check5, ayudante);
    int indice = 0;
    for (const Eleccion &eleccion : elecciones)
        QObject::connect(&Option1.add(indice++, QString::fromUtf8(eleccion.titulo)), &QRadioButton::clicked,
                         [&eleccion] { escribir(eleccion.clave, eleccion.valor); });
}

Item Opciones::grupo(int numero, const QString &titulo)
{
    std::vector<Item> botones;
    for (const auto &[indice, boton] : Option1)
        if (elecciones[indice].grupo == numero)
            botones.emplace_back(*boton);
    botones.push_back(Stretch());
    return Group(titulo, Column(std::move(botones)));
}

Item Opciones::contenido()
{
    return Column{Group(u"Al comenzar"_s, Column{Check2, Check1, Check5}),
                  Row{Expanding(grupo(Ficha, u"Al abrir la ficha de un paciente..."_s)),
                      Expanding(grupo(Historia, u"Asumir como Historia Clinica..."_s)),
                      Expanding(grupo(Diagnosticos, u"Base de datos de diagnósticos"_s))},
                  Stretch()};
}

void Opciones::mostrar()
{
    poner(Check2, bienvenida);
    poner(Check1, asistente);
    poner(Check5, ayudante);
    for (const auto &[indice, boton] : Option1) {
        const Eleccion &eleccion = elecciones[indice];
        boton->setChecked(vale(eleccion.clave, eleccion.valor, eleccion.alFaltar));
    }
}
