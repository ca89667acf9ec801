#include "clinical/history/historiaComoTexto.h"

#include "clinical/history/panConvHC.h"
#include "core/services/opcionesPerinatales.h"
#include "core/services/paciente.h"
#include "core/services/planDeVacunas.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/boxes.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace clinical
{

namespace
{

const QString fin = u"\r\n"_s;
constexpr int diasDelResumen = 365;
const basic::Date sinNacimiento{QDate(1980, 1, 1)};

using Recordset = dao::Recordset;
using Casilla = ContenidoDeHistoria::Casilla;

QString texto(Recordset &fila, QStringView campo)
{
    return fila[campo].text();
}

Recordset filas(const QString &tabla, const QString &campo, qint64 numero)
{
    return MODULE11::BaseDatos.openRecordset(
        u"Select * from %1 where %2 = %3"_s.arg(tabla, campo, QString::number(numero)));
}

/// What a source that failed has to say; the history goes on without it.
void siSePuede(const std::function<void()> &fuente)
{
    try {
        fuente();
    } catch (const basic::Error &error) {
        forms::msgBox(u"Se detectó el siguiente error : \n%1\nEl proceso seguirá ejecutándose."_s.arg(
                          error.description()),
                      forms::Icon::Critical, u"Detección de error"_s);
    }
}

// --- what is known of the person ---

QString informacionPersonal(qint64 numero)
{
    Recordset p = filas(u"Pacientes"_s, u"numero"_s, numero);
    if (p.eof())
        return {};
    return u"INFORMACION PERSONAL : "_s + fin + u"PACIENTE: "_s + texto(p, u"Apellido y Nombres") + fin +
           u"FECHA DE NACIMIENTO : "_s + texto(p, u"Fecha de Nacimiento") + u"  SEXO : "_s +
           texto(p, u"Sexo") + u" G.SANG.: "_s + texto(p, u"grupo sanguineo") + fin + u"DOCUMENTO : "_s +
           texto(p, u"Documento") + u" OBRA SOCIAL : "_s + texto(p, u"Obra social") + u" Nº AFIL : "_s +
           texto(p, u"Numero de Afiliado") + fin + u"DOMICILIO : "_s + texto(p, u"Domicilio") +
           u" LOCALIDAD : "_s + texto(p, u"Localidad") + u" PCIA : "_s + texto(p, u"Provincia") + fin +
           u"TELEFONOS : "_s + texto(p, u"Telefono") + fin + u"- "_s.repeated(47) + fin;
}

/// A finding of the birth record and how the history says it.
struct Hallazgo {
    QStringView campo, dice;
};

constexpr Hallazgo delRecienNacido[] = {
    {u"presenta malformaciones", u"Presencia de malformaciones"},
    {u"color de la piel ictericia", u"Presencia de Color de la piel ictericia"},
    {u"color de la piel palida", u"Presencia de Color de la piel palida"},
    {u"color de la piel sianosis", u"Presencia de Color de la piel sianosis"},
    {u"neurologico deprimido", u"Presencia de Neurologico deprimido"},
    {u"neurologico excitado", u"Presencia de Neurologico excitado"},
    {u"presencia de dificultad respiratoria", u"Presencia de Presencia de dificultad respiratoria"},
    {u"presencia de dificultad cardiovascular", u"Presencia de Presencia de dificultad cardiovascular"},
    {u"abdomen anormal", u"Presencia de Abdomen anormal"},
};
constexpr Hallazgo deLaMadre[] = {
    {u"Control prenatal", u"Ausencia de control prenatal"},
    {u"VDRL", u"Presencia de VDRL madre"},
    {u"HIV Madre", u"Presencia de HIV madre"},
    {u"Chagas Madre", u"Presencia de CHAGAS madre"},
    {u"Toxoplasmosis Madre", u"Presencia de TOXOPLASMOSIS madre"},
};
constexpr Hallazgo maniobras{u"Maniobras especiales estimulo ext",
                             u"Presencia de maniobras especiales de estímule ext."};
constexpr Hallazgo cordon{u"Cordon presento anomalias", u"Presencia de anomalias en el cordón."};

QString dicho(Recordset &fila, const Hallazgo &hallazgo)
{
    return fila[hallazgo.campo].truth() ? hallazgo.dice.toString() + fin : QString();
}

/// A record that was only opened holds the patient's number and nothing else; yes/no columns then say no.
bool estaEnBlanco(Recordset &fila, QStringView clave)
{
    for (int i = 0; i < static_cast<int>(fila.fields().size()); ++i) {
        const basic::Value valor = fila.value(i);
        const bool no = valor.as<bool>() && !valor.truth();
        if (fila.fields()[static_cast<std::size_t>(i)].name.compare(clave, Qt::CaseInsensitive) != 0 &&
            !valor.isBlank() && !no)
            return false;
    }
    return true;
}

QString informacionPerinatal(qint64 numero)
{
    Recordset p = filas(u"Perinatal"_s, u"idPaciente"_s, numero);
    if (p.eof() || estaEnBlanco(p, u"idPaciente"))
        return {};
    QString dice = u"INFORMACION PERINATAL : "_s + fin + u"PESO AL NACER      : "_s +
                   texto(p, u"Peso al Nacer") + u" TALLA : "_s + texto(p, u"Talla al Nacer") + fin +
                   u"APGAR TOTAL  1 min : "_s + texto(p, u"Apgar total 1 min") + u" 5 min : "_s +
                   texto(p, u"Apgar total 5 min") + fin;
    if (Recordset pediatria = filas(u"Pediatria"_s, u"numero"_s, numero); !pediatria.eof())
        dice += dicho(pediatria, maniobras);
    for (const Hallazgo &hallazgo : delRecienNacido)
        dice += dicho(p, hallazgo);
    dice += u"DATOS MATERNOS : "_s + fin;
    for (const Hallazgo &hallazgo : deLaMadre)
        dice += dicho(p, hallazgo);
    if (services::opcionPerinatal(u"sufrimiento fetal", p[u"sufrimiento fetal"]) == u"SI")
        dice += u"Signos de sufrimiento fetal."_s + fin;
    dice += dicho(p, cordon);
    return dice + u"EDAD DE LA MADRE AL NACIMIENTO : "_s + texto(p, u"Edad de la madre al nacer") +
           u" PESO DE LA MADRE : "_s + texto(p, u"peso al nacer de la madre") + fin;
}

/// A head and a line for each row; nothing without rows.
QString lista(Recordset fila, const QString &cabeza, const std::function<QString(Recordset &)> &linea)
{
    QString dice;
    for (; !fila.eof(); fila.moveNext())
        dice += linea(fila) + fin;
    return dice.isEmpty() ? dice : cabeza + fin + dice;
}

std::function<QString(Recordset &)> guion(QStringView campo)
{
    return [campo = campo.toString()](Recordset &fila) { return u" - "_s + texto(fila, campo); };
}

QString antecedentesPersonales(qint64 numero)
{
    return lista(
        MODULE11::BaseDatos.openRecordset(
            u"Select * from [Antecedentes Personales] where paciente = %1 and not (Antecedente is null)"_s
                .arg(numero)),
        u"ANTECEDENTES PERSONALES : "_s, guion(u"Antecedente"));
}

QString antecedentesFamiliares(qint64 numero)
{
    return lista(filas(u"Antecedentes"_s, u"Paciente"_s, numero), u"ANTECEDENTES FAMILIARES : "_s,
                 [](Recordset &fila) {
                     return u"  - "_s + texto(fila, u"Pariente") + u"->"_s + texto(fila, u"Afeccion");
                 });
}

QString relacionSocioEscolar(qint64 numero)
{
    return lista(
        filas(u"SocioEscolar"_s, u"idPaciente"_s, numero), u"RELACION SOCIO-ESCOLAR : "_s,
        [](Recordset &fila) { return u" - "_s + texto(fila, u"Signo") + u" : "_s + texto(fila, u"Valor"); });
}

QString antecedentesCardiologicos(qint64 numero)
{
    Recordset fila = filas(u"AntecedentesCardiologicos"_s, u"idPaciente"_s, numero);
    if (fila.eof())
        return {};
    QString dice;
    for (int i = 0; i < static_cast<int>(fila.fields().size()); ++i)
        if (const basic::Value valor = fila.value(i); valor.as<bool>() && valor.truth())
            dice += fila.fields()[static_cast<std::size_t>(i)].name + u" // "_s;
    if (!dice.isEmpty())
        dice = u"ANTECEDENTES CARDIOLOGICOS : "_s + fin + dice + fin;
    if (const QString otros = texto(fila, u"Otros"); !otros.isEmpty())
        dice += otros + fin;
    return dice;
}

/// Each field that says something with its value; a yes/no field says something when it is a yes.
QString cadaCampo(Recordset &fila)
{
    QString dice;
    for (int i = 0; i < static_cast<int>(fila.fields().size()); ++i) {
        const basic::Value valor = fila.value(i);
        if (!valor.isBlank() && !(valor.as<bool>() && !valor.truth()))
            dice += fila.fields()[static_cast<std::size_t>(i)].name + u" : "_s + valor.text() + u" // "_s;
    }
    return dice;
}

QString antecedentesGinecologicos(qint64 numero)
{
    Recordset fila = filas(u"Gineco"_s, u"idPaciente"_s, numero);
    const QString dice = fila.eof() ? QString() : cadaCampo(fila);
    return dice.isEmpty() ? dice : u"ANTECEDENTES GINECOLOGICOS : "_s + fin + dice + fin;
}

/// A section of the history and the box that lets it in; none is always in.
struct Seccion {
    std::optional<Casilla> casilla;
    QString (*decir)(qint64 numero);
};

QString patologiasPerinatales(qint64 numero)
{
    return lista(filas(u"[Patologias Perinatales]"_s, u"paciente"_s, numero), u"PATOLOGIAS PERINATALES : "_s,
                 guion(u"Patologia"));
}

QString diagnosticoDelRecienNacido(qint64 numero)
{
    return lista(filas(u"[Diagnostico RN]"_s, u"paciente"_s, numero), u"DIAGNOSTICO DEL RN : "_s,
                 guion(u"Patologia"));
}

QString condicionFamiliar(qint64 numero)
{
    return lista(filas(u"[Patologias Familiares]"_s, u"Paciente"_s, numero), u"CONDICION FLIAR : "_s,
                 guion(u"Patologia"));
}

constexpr Seccion secciones[] = {
    {Casilla::Personales, informacionPersonal},
    {Casilla::Perinatal, informacionPerinatal},
    {Casilla::Perinatal, patologiasPerinatales},
    {Casilla::Perinatal, diagnosticoDelRecienNacido},
    {Casilla::AntecedentesPersonales, antecedentesPersonales},
    {Casilla::CondicionFamiliar, condicionFamiliar},
    {Casilla::AntecedentesFamiliares, antecedentesFamiliares},
    {std::nullopt, relacionSocioEscolar},
    {Casilla::Cardiologia, antecedentesCardiologicos},
    {Casilla::Ginecologia, antecedentesGinecologicos},
};

// --- what happened, by date ---

QString nombres(Recordset &visita, const QString &cabeza, const QString &grupo)
{
    QString dice = cabeza;
    for (int i = 1; i <= 5; ++i)
        if (const QString nombre = texto(visita, grupo + u' ' + QString::number(i)); !nombre.isEmpty())
            dice += nombre + u" /"_s;
    return dice;
}

QString visita(Recordset &v)
{
    return texto(v, u"Fecha") + fin + u"-"_s.repeated(56) + fin + u"Motivo : "_s + texto(v, u"Motivo") + fin +
           nombres(v, u"SINTOMAS: "_s, u"Sintoma"_s) + fin +
           nombres(v, u"DIAGNOSTICO: "_s, u"Diagnostico"_s) + fin +
           nombres(v, u"TRATAMIENTO: "_s, u"Tratamiento"_s) + fin;
}

QString vacuna(Recordset &v)
{
    const bool indicada = texto(v, u"observaciones") == vacunas::indicada;
    return (indicada ? u"INDICACION DE VACUNA :"_s : u"REG.VACUNA :"_s) + texto(v, u"fecha") + u' ' +
           texto(v, u"Vacuna") + u' ' + texto(v, u"Dosis");
}

QString medicion(Recordset &m)
{
    const auto cifra = [&](QStringView campo, QStringView forma) { return basic::format(m[campo], forma); };
    return u"MEDICIONES : "_s + texto(m, u"fecha") + u" : PESO "_s + cifra(u"Peso", u"##,###,##0") +
           u" gramos. // TALLA : "_s + cifra(u"Talla", u"##,##0.0") + u" cm. // P.C. : "_s +
           cifra(u"Pc", u"##,##0.0") + u" cm."_s;
}

QString laboratorio(Recordset &a)
{
    return u"LABORATORIO : "_s + texto(a, u"Fecha") + u' ' + cadaCampo(a);
}

QString estudio(Recordset &e)
{
    return texto(e, u"Fecha") + fin + u"ESTUDIO : "_s + texto(e, u"tipo") + fin + u"Realizado por : "_s +
           texto(e, u"Especialista") + fin + u"Desarrollo del estudio :"_s + fin +
           texto(e, u"Observaciones") + fin + u"Resultados : "_s + fin + texto(e, u"Resultados");
}

QString ginecologia(Recordset &g)
{
    return texto(g, u"Fecha") + u" EX. GINECO: "_s + texto(g, u"Examen") + u' ' + texto(g, u"Detalle") +
           u' ' + texto(g, u"Observaciones") + u' ' + texto(g, u"Resultados");
}

QString oftalmologia(Recordset &o)
{
    return u"EXAM OFTALMOLOGICO : "_s + texto(o, u"Fecha") + u" MOTIVO : "_s + texto(o, u"Motivo") + u' ' +
           texto(o, u"Diagnostico");
}

QString cardiologia(Recordset &c)
{
    return u"EXAM CARDIOL : "_s + texto(c, u"Fecha") + u' ' + cadaCampo(c);
}

struct Fuente {
    Casilla casilla;
    const char *tabla, *paciente;
    bool tieneHora;
    QString (*decir)(Recordset &fila);
};

constexpr Fuente fuentes[] = {
    {Casilla::Consultas, "Consulta", "paciente", true, visita},
    {Casilla::Vacunas, "Vacunas", "paciente", false, vacuna},
    {Casilla::Medidas, "Medidas", "paciente", false, medicion},
    {Casilla::Laboratorio, "Analisis", "paciente", true, laboratorio},
    {Casilla::Estudios, "Estudios", "paciente", true, estudio},
    {Casilla::Ginecologia, "ConsultaGineco", "idpaciente", false, ginecologia},
    {Casilla::Oftalmologia, "ConsultaOftalmo", "paciente", false, oftalmologia},
    {Casilla::Cardiologia, "ConsultaCardiologia", "idpaciente", false, cardiologia},
};

struct Suceso {
    basic::Value fecha, hora;
    QString detalles;

    double momento() const
    {
        return fecha.number() + (hora.isNull() ? -1e-9 : hora.number() - std::floor(hora.number()));
    }
};

std::vector<Suceso> sucesosDe(const Fuente &fuente, qint64 numero, const ContenidoDeHistoria &contenido)
{
    std::vector<Suceso> sucesos;
    Recordset fila = MODULE11::BaseDatos.openRecordset(u"Select * from %1 where %2 = %3 and %4"_s.arg(
        QLatin1StringView(fuente.tabla), QLatin1StringView(fuente.paciente), QString::number(numero),
        dao::period(u"fecha"_s, contenido.desde, contenido.hasta)));
    for (; !fila.eof(); fila.moveNext())
        sucesos.push_back({fila[u"fecha"],
                           fuente.tieneHora ? fila[u"Hora"].value() : basic::Value(basic::Null{}),
                           fuente.decir(fila)});
    return sucesos;
}

/// A page that is woken without news finds the table as it left it.
bool yaEstanEnLaTabla(const std::vector<Suceso> &sucesos)
{
    Recordset fila = MODULE11::BaseDatos.openRecordset(
        u"Select Fecha, Hora, Detalles from TablaTempHC where Dr = "_s + dao::quoted(MODULE11::DrActual),
        Recordset::Kind::Snapshot);
    for (const Suceso &suceso : sucesos) {
        if (fila.eof() || fila[u"Fecha"].value() != suceso.fecha || fila[u"Hora"].value() != suceso.hora ||
            fila[u"Detalles"].text() != suceso.detalles)
            return false;
        fila.moveNext();
    }
    return fila.eof();
}

/// The rows of other professionals stay as they are.
void dejarEnLaTabla(const std::vector<Suceso> &sucesos)
{
    if (yaEstanEnLaTabla(sucesos))
        return;
    dao::Batch juntos(MODULE11::BaseDatos);
    MODULE11::BaseDatos.execute(u"Delete * from TablaTempHC where Dr = "_s + dao::quoted(MODULE11::DrActual));
    Recordset tabla = MODULE11::BaseDatos.openRecordset(u"TablaTempHC"_s);
    for (const Suceso &suceso : sucesos) {
        tabla.addNew();
        tabla[u"Fecha"] = suceso.fecha;
        tabla[u"Dr"] = MODULE11::DrActual;
        tabla[u"Detalles"] = suceso.detalles;
        if (!suceso.hora.isNull())
            tabla[u"Hora"] = suceso.hora;
        tabla.update();
    }
    juntos.commit();
}

/// By date and hour, what has no hour first; what ties keeps the order of the sources.
QString sucesosPorFecha(qint64 numero, const ContenidoDeHistoria &contenido)
{
    std::vector<Suceso> sucesos;
    for (const Fuente &fuente : fuentes)
        if (contenido.tiene(fuente.casilla))
            siSePuede([&] {
                const std::vector<Suceso> suyos = sucesosDe(fuente, numero, contenido);
                sucesos.insert(sucesos.end(), suyos.begin(), suyos.end());
            });
    siSePuede([&] { dejarEnLaTabla(sucesos); });
    std::ranges::stable_sort(sucesos, {}, &Suceso::momento);
    QString dice;
    for (const Suceso &suceso : sucesos)
        dice += suceso.detalles + fin;
    return dice;
}

} // namespace

ContenidoDeHistoria ContenidoDeHistoria::todo(basic::Date desde, basic::Date hasta)
{
    ContenidoDeHistoria contenido;
    contenido.casillas_.set();
    contenido.desde = desde;
    contenido.hasta = hasta;
    return contenido;
}

QString textoDeHistoria(qint64 numero, const ContenidoDeHistoria &contenido)
{
    QString dice;
    for (const Seccion &seccion : secciones)
        if (!seccion.casilla || contenido.tiene(*seccion.casilla))
            siSePuede([&] { dice += seccion.decir(numero); });
    if (contenido.tiene(Casilla::Consultas))
        dice += sucesosPorFecha(numero, contenido);
    return dice;
}

QString historiaComoTexto(qint64 numero, bool interactivo)
{
    const basic::Date hoy = basic::today();
    if (!interactivo)
        return textoDeHistoria(numero,
                               ContenidoDeHistoria::todo(basic::dateAdd(u"d", -diasDelResumen, hoy), hoy));
    panConvHC dialogo;
    dialogo.showModal();
    if (dialogo.tag() != u"SI")
        return {};
    ContenidoDeHistoria contenido = dialogo.contenido();
    contenido.poner(Casilla::Personales, true);
    // Whatever the dialogue's dates, the text that is asked for tells the whole life.
    auto paciente = services::paciente(numero);
    const basic::Value nacimiento = paciente ? (*paciente)[u"Fecha de Nacimiento"].value() : basic::Value();
    contenido.desde = nacimiento.isBlank() ? sinNacimiento : nacimiento.date();
    contenido.hasta =
        basic::Date::fromSerial(hoy.serial() + basic::dateAdd(u"d", diasDelResumen, hoy).serial());
    return textoDeHistoria(numero, contenido);
}

} // namespace clinical
