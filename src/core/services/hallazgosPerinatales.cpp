#include "core/services/hallazgosPerinatales.h"

#include "core/services/opcionesPerinatales.h"
#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/dao/database.h"

using namespace Qt::StringLiterals;

namespace services
{

namespace
{

/// When a column's value has its sentence.
enum class Cuando {
    Dice,        ///< whatever it says
    Si,          ///< it is a yes
    EdadExtrema, ///< a mother below 16 or above 38
    PesoExtremo, ///< of a mother, below 40 or above 90 kilograms
    PesoAlto,    ///< above 90
    ApgarBajo,   ///< below 7
    SeHizo,      ///< a manoeuvre: anything but "No se hizo"
    Anormal,     ///< a fluid that is not clear
    Sufrimiento, ///< "SI"
    NoInstitucional,
    Gemelar,
};

/// The value stands where the sentence has %1.
struct Frase {
    const char16_t *columna;
    Cuando cuando;
    const char *dice;
    const char16_t *formato = nullptr;
};

constexpr Frase antesDelAumento[] = {
    {u"Edad de la madre al nacer", Cuando::EdadExtrema, "Edad de la madre en parto : %1"},
    {u"Peso anterior de la madre", Cuando::PesoExtremo, "Peso de la madre ante el embarazo : %1"},
    {u"peso al nacer de la madre", Cuando::PesoAlto, "Peso de la madre en parto : %1"},
};

constexpr Frase trasElAumento[] = {
    {u"sensibilización", Cuando::Si, "Registro de sensibilizacion de la madre en el embarazo."},
    {u"VDRL", Cuando::Si, "Registro de VDRL positivo de la madre en el embarazo."},
    {u"HIV Madre", Cuando::Si, "Registro de HIV de la madre en el embarazo."},
    {u"Chagas Madre", Cuando::Si, "Registro de Chagas de la madre en el embarazo."},
    {u"Toxoplasmosis Madre", Cuando::Si, "Registro de Toxoplasmosis de la madre en el embarazo."},
    {u"Gestas de la madre", Cuando::Dice, "Registro de %1 gestas de la madre."},
    {u"Patologias de la madre", Cuando::Dice, "Registro de patologia : %1 durante el embarazo de la madre."},
    {u"Control prenatal", Cuando::Si, "Ausencia de control prenatal de la madre."},
    {u"Tipo liquido amniotico", Cuando::Anormal, "Liquido amniotico anormal : %1"},
    {u"nombre drogas parto", Cuando::Dice, "Registro de drogas en parto : %1 // Tiempo anteparto :%2"},
    {u"sufrimiento fetal", Cuando::Sufrimiento, "Registro de sufrimiento fetal."},
    {u"parto atendido en", Cuando::NoInstitucional,
     "Registro de atención del parto en ambiente no institucional."},
    {u"nacimiento", Cuando::Gemelar, "Registro de nacimiento gemelar."},
    {u"Cordon presento anomalias", Cuando::Si, "Registro de anomalias en el cordón."},
    {u"Apgar total 1 min", Cuando::ApgarBajo, "Apgar al min. : %1"},
    {u"Apgar total 5 min", Cuando::ApgarBajo, "Apgar a los 5 min. : %1"},
    {u"maniobras especiales cardiacas", Cuando::SeHizo, "Registro de maniobras especiales cardíacas : %1"},
    {u"maniobras especiales metabolicas", Cuando::SeHizo,
     "Registro de maniobras especiales metabólicas : %1"},
    {u"maniobras especiales respiracion", Cuando::SeHizo,
     "Registro de maniobras especiales de respiración : %1"},
    {u"Peso al Nacer", Cuando::Dice, "Registro de peso al nacer :%1 Gramos.", u"##,###"},
    {u"edad gestacional por examen fisico", Cuando::Dice,
     "Registro de edad gestacional por ex. físico :%1 Semanas.", u"###"},
    {u"color de la piel ictericia", Cuando::Si, "Presencia de ICTERICIA en el color de la piel."},
    {u"color de la piel palida", Cuando::Si, "Presencia de PALIDEZ en el color de la piel."},
    {u"color de la piel sianosis", Cuando::Si, "Presencia de tono CIANOTICO en el color de la piel."},
    {u"presenta malformaciones", Cuando::Si, "Presencia de malformaciones."},
    {u"malformaciones destacadas", Cuando::Dice, "Malformaciones destacadas : %1"},
    {u"neurologico deprimido", Cuando::Si, "Registro de observación neurológica deprimido."},
    {u"neurologico excitado", Cuando::Si, "Registro de observación neurológica excitado."},
    {u"presencia de dificultad respiratoria", Cuando::Si,
     "Registro de presencia de dificultad respiratoria."},
    {u"presencia de dificultad cardiovascular", Cuando::Si,
     "Registro de presencia de dificultad cardiovascular."},
    {u"abdomen anormal", Cuando::Si, "Registro de presencia de abdomen anormal."},
};

/// A limit is asked of a number only.
bool sale(const basic::Value &valor, double desde, double hasta)
{
    return valor.isNumeric() && (valor.number() < desde || valor.number() > hasta);
}

bool es(const QString &palabra, QStringView otra)
{
    return palabra.compare(otra, Qt::CaseInsensitive) == 0;
}

bool corresponde(Cuando cuando, const basic::Value &valor, const QString &palabra)
{
    if (valor.isBlank())
        return false;
    switch (cuando) {
    case Cuando::Dice:
        return true;
    case Cuando::Si:
        return valor.truth() || es(palabra, u"SI");
    case Cuando::EdadExtrema:
        return sale(valor, 16, 38);
    case Cuando::PesoExtremo:
        return sale(valor, 40, 90);
    case Cuando::PesoAlto:
        return sale(valor, 0, 90);
    case Cuando::ApgarBajo:
        return sale(valor, 7, 10);
    case Cuando::SeHizo:
        return !palabra.isEmpty() && !es(palabra, u"NO SE HIZO");
    case Cuando::Anormal:
        return !palabra.isEmpty() && !es(palabra, u"CLARO");
    case Cuando::Sufrimiento:
        return es(palabra, u"SI");
    case Cuando::NoInstitucional:
        return es(palabra, u"NO INSTITUCIONAL");
    case Cuando::Gemelar:
        return es(palabra, u"GEMELAR");
    }
    return false;
}

/// The two records of one birth: what the companion has (the manoeuvres) is read there.
class Registro
{
public:
    explicit Registro(qint64 paciente)
        : perinatal_(abrir(u"Select * from Perinatal where idPaciente = %1"_s, paciente)),
          pediatria_(abrir(u"Select * from Pediatria where numero = %1"_s, paciente))
    {
    }

    bool existe() const { return !perinatal_.eof(); }

    basic::Value valor(QStringView columna)
    {
        const bool maniobra = columna.startsWith(u"maniobras especiales", Qt::CaseInsensitive);
        dao::Recordset &fila = maniobra ? pediatria_ : perinatal_;
        return fila.eof() ? basic::Value() : fila[columna].value();
    }

private:
    static dao::Recordset abrir(const QString &sql, qint64 paciente)
    {
        return MODULE11::BaseDatos.openRecordset(sql.arg(paciente), dao::Recordset::Kind::Snapshot);
    }
    dao::Recordset perinatal_, pediatria_;
};

void decir(QStringList &lineas, Registro &registro, const Frase &frase)
{
    const QStringView columna(frase.columna);
    const basic::Value valor = registro.valor(columna);
    const bool tieneOpciones = !opcionesPerinatales(columna).isEmpty();
    QString palabra = tieneOpciones ? opcionPerinatal(columna, valor) : valor.text();
    if (!corresponde(frase.cuando, valor, palabra))
        return;
    if (frase.cuando == Cuando::Anormal) // what it was like may be told in words of its own
        if (const QString descrito = registro.valor(u"Tipo de liquido amniotico").text(); !descrito.isEmpty())
            palabra = descrito;
    if (frase.formato)
        palabra = basic::format(valor, frase.formato);
    QString linea = QString::fromUtf8(frase.dice);
    linea.replace(u"%2"_s, registro.valor(u"Tiempo drogas anteparto").text());
    lineas += linea.replace(u"%1"_s, palabra);
}

/// More than a fifth of the weight before the pregnancy is too much, less than 6 % too little.
void decirAumento(QStringList &lineas, Registro &registro)
{
    const basic::Value antes = registro.valor(u"Peso anterior de la madre");
    const basic::Value despues = registro.valor(u"peso al nacer de la madre");
    if (!antes.isNumeric() || !despues.isNumeric() || antes.number() <= 0)
        return;
    const double aumento = despues.number() - antes.number();
    const QString cuanto = basic::Value(aumento).text();
    if (aumento > antes.number() * 20 / 100)
        lineas += u"Excesivo aumento de peso de la madre durante embarazo : "_s + cuanto;
    else if (aumento < antes.number() * 6 / 100)
        lineas += u"Escaso aumento de peso de la madre durante embarazo : "_s + cuanto;
}

} // namespace

QStringList hallazgosPerinatales(qint64 paciente)
{
    QStringList lineas;
    Registro registro(paciente);
    if (!registro.existe())
        return lineas;
    for (const Frase &frase : antesDelAumento)
        decir(lineas, registro, frase);
    decirAumento(lineas, registro);
    for (const Frase &frase : trasElAumento)
        decir(lineas, registro, frase);
    return lineas;
}

} // namespace services
