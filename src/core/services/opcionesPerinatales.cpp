#include "core/services/opcionesPerinatales.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace services
{

namespace
{

struct Opciones {
    const char16_t *campo;
    const char *palabras; ///< in the order of the buttons, by bar
};

constexpr Opciones opciones[] = {
    {u"Tipo liquido amniotico", "Claro|Meconial|Sanguinolento|Otro"},
    {u"sufrimiento fetal", "SI|NO|Se ignoran"},
    {u"Parto efectuado por",
     "Neonatólogo|Pediatra|Médico Obstetra|Médico General|Anestesista|Partera|Enfermera|"
     "Empirica|Otros|Nadie|Se ignora"},
    {u"Parto atendido en",
     "Institución ambiente quirurgico|Institución ambiente no quirurgico|No institucional"},
    {u"Nacimiento", "Simple|Gemelar"},
    {u"Maniobras especiales respiracion", "No se hizo|Máscara|Intubación"},
    {u"Maniobras especiales Cardiacas", "No se hizo|Masaje externo|Drogas"},
    {u"Maniobras especiales metabolicas", "No se hizo|Alcalinizante|Otros"},
};

} // namespace

QStringList opcionesPerinatales(QStringView campo)
{
    for (const Opciones &deUnCampo : opciones)
        if (campo.compare(QStringView(deUnCampo.campo), Qt::CaseInsensitive) == 0)
            return QString::fromUtf8(deUnCampo.palabras).split(u'|');
    return {};
}

QString opcionPerinatal(QStringView campo, const basic::Value &guardado)
{
    const QString texto = guardado.text();
    bool esLugar = false;
    const int lugar = texto.toInt(&esLugar);
    return esLugar ? opcionesPerinatales(campo).value(lugar) : texto;
}

} // namespace services
