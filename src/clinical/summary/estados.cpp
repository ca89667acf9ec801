#include "clinical/summary/estados.h"

#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"

#include <array>

using namespace Qt::StringLiterals;

namespace clinical
{

namespace
{

using dao::Recordset;

Recordset filas(const QString &sql)
{
    return MODULE11::BaseDatos.openRecordset(sql, Recordset::Kind::Snapshot);
}

/// All of a table that is of the patient.
Recordset filasDe(const QString &tabla, const QString &columna, const Persona &persona,
                  const QString &mas = {})
{
    return filas(
        u"Select * from %1 where %2 = %3%4"_s.arg(tabla, columna, QString::number(persona.numero), mas));
}

QString nombre(const Recordset &fila, int campo)
{
    return fila.fields()[static_cast<std::size_t>(campo)].name;
}

/// One of the two pressures beyond the fifth or the ninety-fifth percentile of the nearest age not above the
/// patient's. No figures for the age, no finding.
Estado presionFuera(const Persona &persona, QChar signo, const basic::Value &medida, const QString &cual)
{
    const QString tipo = persona.sexo.left(1).toUpper() + signo;
    Recordset normal =
        filas(u"Select top 1 * from presion where edad <= %1 and tipo = %2 order by edad desc"_s.arg(
            QString::number(persona.edad.mesesDeVida), dao::quoted(tipo)));
    if (normal.eof() || medida.isBlank())
        return std::nullopt;
    if (medida.number() > normal[u"p_95"].number())
        return u"Presión %1 de %2, por encima del percentilo 95 (%3)"_s.arg(cual, medida.text(),
                                                                            normal[u"p_95"].text());
    if (medida.number() < normal[u"p_5"].number())
        return u"Presión %1 de %2, por debajo del percentilo 5 (%3)"_s.arg(cual, medida.text(),
                                                                           normal[u"p_5"].text());
    return std::nullopt;
}

} // namespace

Estado estadoDePresion(const Persona &persona)
{
    Recordset toma = filas(
        u"Select top 1 * from tomapresion where paciente = %1 order by fecha desc"_s.arg(persona.numero));
    if (toma.eof())
        return std::nullopt;
    Estado maxima = presionFuera(persona, u'+', toma[u"Maxima"], u"máxima"_s);
    return maxima ? maxima : presionFuera(persona, u'-', toma[u"Minima"], u"mínima"_s);
}

Estado estadoDeAlimentacion(const Persona &persona)
{
    Recordset alimento = filasDe(u"Alimentacion"_s, u"paciente"_s, persona, u" and tolerado = False"_s);
    if (alimento.eof())
        return std::nullopt;
    return u"No tolera %1"_s.arg(alimento[u"Alimento"].text());
}

Estado estadoDeMaduracion(const Persona &persona)
{
    Recordset prueba = filasDe(u"[Maduracion Neurologica]"_s, u"paciente"_s, persona,
                               u" and (calificacion like 'nocoincideedad*' or calificacion = 'SI')"_s);
    if (prueba.eof())
        return std::nullopt;
    return u"Maduración que no coincide con la edad: %1"_s.arg(prueba[u"detalle"].text());
}

namespace
{

/// The record of development and values: texts up to this place, yes/no columns behind.
constexpr int ultimoTexto = 35;

Estado delRegistroDeAlergia(const Persona &persona)
{
    Recordset registro = filasDe(u"Alergia"_s, u"paciente"_s, persona);
    for (int i = 1; !registro.eof() && i < static_cast<int>(registro.fields().size()); ++i) {
        const basic::Value valor = registro.value(i);
        if (i < ultimoTexto ? !valor.isBlank() : valor.truth())
            return u"Desarrollo y valores: %1"_s.arg(nombre(registro, i));
    }
    return std::nullopt;
}

/// Anything that the allergy record tells: the four kinds of what one is allergic to, and positive tests.
Estado deLaGestionDeAlergias(const Persona &persona)
{
    static constexpr std::array<std::pair<const char16_t *, const char *>, 4> clases = {
        {{u"AlCon", "contactantes"},
         {u"AlIn", "inhalantes"},
         {u"AlAl", "alimentos"},
         {u"AlMed", "medicamentos"}}};
    static constexpr std::array<const char16_t *, 8> pruebas = {
        u"In ",           u"Po ",     u"Alergia Bact ",  u"Alergia Alim ",
        u"Alergia Cont ", u"Hongos ", u"Alergia Medic ", u"Alergia Insectos "};
    Recordset registro =
        filasDe(u"[Antecedentes Personales]"_s, u"paciente"_s, persona, u" and Antecedente is null"_s);
    if (registro.eof())
        return std::nullopt;
    for (const auto &[columna, clase] : clases)
        if (registro[columna].truth())
            return u"Alérgico a %1"_s.arg(QLatin1StringView(clase));
    for (int i = 0; i < static_cast<int>(registro.fields().size()); ++i) {
        const QString columna = nombre(registro, i);
        const bool esPrueba = std::ranges::any_of(pruebas, [&](const char16_t *prefijo) {
            return columna.startsWith(QStringView(prefijo), Qt::CaseInsensitive);
        });
        if (const basic::Value valor = registro.value(i);
            esPrueba && !valor.isBlank() && valor.text() != u"-")
            return u"Prueba positiva: %1 %2"_s.arg(columna, valor.text());
    }
    return std::nullopt;
}

} // namespace

Estado estadoDeAlergias(const Persona &persona)
{
    Estado estado = delRegistroDeAlergia(persona);
    return estado ? estado : deLaGestionDeAlergias(persona);
}

/// A low fraction: its first figure is 1 to 7.
Estado estadoVisual(const Persona &persona)
{
    Recordset visual = filasDe(u"Visual"_s, u"paciente"_s, persona, u" order by fecha"_s);
    for (; !visual.eof(); visual.moveNext())
        for (const QStringView ojo :
             {u"ojo derecho cerca", u"ojo derecho lejos", u"ojo izquierdo cerca", u"ojo izquierdo lejos"}) {
            const QString agudeza = visual[ojo].text();
            if (agudeza.size() > 1 && agudeza[0] >= u'1' && agudeza[0] <= u'7' && agudeza[1] == u'/')
                return u"Agudeza visual de %1, %2"_s.arg(agudeza, ojo.toString());
        }
    return std::nullopt;
}

Estado estadoEscolar(const Persona &persona)
{
    Recordset mal =
        filas(u"select * from socioescolar where idPaciente = %1 and  Valor = 'MAL'"_s.arg(persona.numero));
    if (mal.eof())
        return std::nullopt;
    return u"%1: mal"_s.arg(mal[u"Signo"].text());
}

/// Sexual relations alarm where neither pregnancy nor infections are prevented; any other alarm as it stands.
Estado estadoDeAdolescencia(const Persona &persona)
{
    Estado hallazgo;
    bool relaciones = false, embarazo = false, infecciones = false;
    for (Recordset alarma = filasDe(u"Adolescente"_s, u"paciente"_s, persona, u" and Alarma = True"_s);
         !alarma.eof(); alarma.moveNext()) {
        const QString aspecto = alarma[u"aspecto"].text().toLower();
        if (aspecto == u"mantiene relaciones sexuales")
            relaciones = true;
        else if (aspecto == u"prevencion de embarazo")
            embarazo = true;
        else if (aspecto == u"prevencion de ets")
            infecciones = true;
        else if (!hallazgo)
            hallazgo = alarma[u"aspecto"].text();
    }
    if (!hallazgo && relaciones && !(embarazo && infecciones))
        return u"Mantiene relaciones sexuales sin prevención de %1"_s.arg(embarazo ? u"ETS"_s
                                                                                   : u"embarazo"_s);
    return hallazgo;
}

Estado estadoCardiologicoYPeso(const Persona &persona, const std::optional<Normal> &imc)
{
    Recordset antecedentes = filasDe(u"AntecedentesCardiologicos"_s, u"idPaciente"_s, persona);
    for (int i = 0; !antecedentes.eof() && i < static_cast<int>(antecedentes.fields().size()); ++i)
        if (const basic::Value valor = antecedentes.value(i); valor.as<bool>() && valor.truth())
            return nombre(antecedentes, i);
    Recordset medidas =
        filas(u"Select top 1 * from Medidas where paciente = %1 order by fecha desc"_s.arg(persona.numero));
    const double kilos = medidas.eof() ? 0 : medidas[u"Peso"].number() / 1000;
    const double metros = medidas.eof() ? 0 : medidas[u"Talla"].number() / 100;
    if (!imc || kilos <= 0 || metros <= 0)
        return std::nullopt;
    const double indice = kilos / (metros * metros);
    if (indice >= imc->desde && indice <= imc->hasta)
        return std::nullopt;
    return u"I.M.C. de %1, fuera de lo normal para la edad (%2 a %3)"_s.arg(
        basic::format(indice, u"0.0"), basic::format(imc->desde, u"0.0"), basic::format(imc->hasta, u"0.0"));
}

bool tieneEvolucionCardiologica(qint64 paciente)
{
    return !filas(u"Select top 1 idPaciente from ConsultaCardiologia where idPaciente = %1"_s.arg(paciente))
                .eof();
}

} // namespace clinical
