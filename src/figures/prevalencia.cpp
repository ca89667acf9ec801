#include "figures/prevalencia.h"

#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"

#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace figures
{

namespace
{

constexpr int sinLimite = 1'000'000;
constexpr GrupoDeEdad grupos[] = {
    {"RN", "Recien Nacidos ", -sinLimite, 30},         {"Lactantes", "Lactantes", 31, 730},
    {"Preescolares", "Pre-escolares", 731, 2190},      {"Escolares", "Escolares", 2191, 4380},
    {"Adolescentes", "Adolescentes", 4381, sinLimite},
};

constexpr Fuente fuentes[] = {
    {"Diagnosticos", "", "", "Prevalencia x Diagnósticos"},
    {"Antecedentes Personales", "[Antecedentes Personales]", "Antecedente",
     "Prevalencia x Antecedentes Personales"},
    {"Antecedentes Perinatales", "[Patologias Perinatales]", "Patologia",
     "Prevalencia x Patologías Perinatales"},
    {"Diagnostico RN", "[Diagnostico RN]", "Patologia", "Prevalencia x Diagnósticos del R.N."},
    {"Antecedentes Familiares", "[Patologias Familiares]", "Patologia",
     "Prevalencia x Antecedentes Familiares"},
};

constexpr const char *titulosDeNombres[] = {"Prevalencia x Diagnósticos", "Prevalencia x Sintomas",
                                            "Prevalencia x Tratamientos"};
constexpr std::size_t porciones = 10;
constexpr qint64 entreAvisos = 20000;

using Cuentas = QHash<QString, qint64>;

QString delSexo(const Seleccion &seleccion)
{
    return seleccion.sexo == u"Ambos" ? QString() : u" and sexo = "_s + dao::quoted(seleccion.sexo);
}

/// The group's limits over an expression that yields days.
QString deLaEdad(const Seleccion &seleccion, const QString &dias)
{
    const auto grupo = std::ranges::find_if(
        grupos, [&](const GrupoDeEdad &uno) { return seleccion.edad == QLatin1StringView(uno.nombre); });
    if (grupo == std::end(grupos))
        return {};
    QString condicion;
    if (grupo->desde > -sinLimite)
        condicion += u" and %1 >= %2"_s.arg(dias).arg(grupo->desde);
    if (grupo->hasta < sinLimite)
        condicion += u" and %1 <= %2"_s.arg(dias).arg(grupo->hasta);
    return condicion;
}

QString delRango(const Seleccion &seleccion, const QString &fecha, basic::Date hoy)
{
    const QDate dia = hoy.date();
    switch (seleccion.rango) {
    case Seleccion::Rango::EsteAnio:
        return u" and year(%1) = %2"_s.arg(fecha).arg(dia.year());
    case Seleccion::Rango::AnioPasado:
        return u" and year(%1) = %2"_s.arg(fecha).arg(dia.year() - 1);
    case Seleccion::Rango::EsteMes:
        return u" and month(%1) = %2 and year(%1) = %3"_s.arg(fecha).arg(dia.month()).arg(dia.year());
    case Seleccion::Rango::Todos:
        break;
    }
    return {};
}

qint64 cuantos(const QString &sql)
{
    return BaseDatos.openRecordset(sql)[0].integer();
}

QString sobre(qint64 total, const QString &que)
{
    return u"Sobre %1 %2"_s.arg(basic::format(total, u"##,###,##0"), que);
}

QString casos(const QString &nombre, qint64 cantidad, QStringView forma)
{
    return u"%1 - %2 casos."_s.arg(nombre, basic::format(cantidad, forma));
}

/// Leaves the counts in the catalogue's scratch column: a name that it does not have counts for nothing.
void dejarEnElCatalogo(const QString &tabla, const Cuentas &cuentas)
{
    dao::Batch juntas(BaseDatos);
    BaseDatos.execute(u"UPDATE %1 SET Estadistica = 0"_s.arg(tabla));
    dao::Recordset catalogo = BaseDatos.openRecordset(tabla);
    catalogo.setIndex(u"Descripcion");
    for (auto nombre = cuentas.begin(); nombre != cuentas.end(); ++nombre) {
        catalogo.seek(u"=", nombre.key());
        if (catalogo.noMatch())
            continue;
        const qint64 hasta = catalogo[u"Estadistica"].integer() + nombre.value();
        catalogo.edit([&] { catalogo[u"Estadistica"] = hasta; });
    }
    juntas.commit();
}

/// From the highest count down: ten slices, and the rest in one.
std::vector<Dato> losMasNombrados(const QString &tabla)
{
    std::vector<Dato> datos;
    qint64 otros = 0;
    for (
        dao::Recordset fila = BaseDatos.openRecordset(
            u"Select Descripcion, Estadistica from %1 where Estadistica > 0 order by Estadistica desc, Descripcion"_s
                .arg(tabla));
        !fila.eof(); fila.moveNext()) {
        const qint64 cantidad = fila[u"Estadistica"].integer();
        if (datos.size() < porciones)
            datos.push_back(
                {casos(fila[u"Descripcion"].text(), cantidad, u"##,###"), static_cast<double>(cantidad)});
        else
            otros += cantidad;
    }
    datos.push_back({casos(u"Otros"_s, otros, u"##,##0"), static_cast<double>(otros)});
    return datos;
}

} // namespace

std::span<const GrupoDeEdad> gruposDeEdad()
{
    return grupos;
}

std::optional<int> grupoDe(qint64 dias)
{
    const auto grupo = std::ranges::find_if(
        grupos, [&](const GrupoDeEdad &uno) { return dias >= uno.desde && dias <= uno.hasta; });
    return grupo == std::end(grupos) ? std::nullopt
                                     : std::optional(static_cast<int>(grupo - std::begin(grupos)));
}

std::span<const Fuente> fuentesDeDiagnosticos()
{
    return fuentes;
}

QString condicionDeVisitas(const Seleccion &seleccion, basic::Date hoy)
{
    QString condicion = u"true"_s + delSexo(seleccion) + deLaEdad(seleccion, u"edad"_s);
    if (seleccion.consulta == u"Ulterior")
        condicion += u" and trim(tipo) = 'Ulterior'"_s;
    else if (seleccion.consulta == u"1º vez")
        condicion += u" and trim(tipo) = '1ra.'"_s;
    return condicion + delRango(seleccion, u"fecha"_s, hoy);
}

QString condicionDePacientes(const Seleccion &seleccion, basic::Date hoy)
{
    const QString dias = u"cdate('%1') - [Fecha de Nacimiento]"_s.arg(hoy.date().toString(u"dd/MM/yyyy"));
    return u"true"_s + delSexo(seleccion) + deLaEdad(seleccion, dias) +
           delRango(seleccion, u"[ultima fecha visita]"_s, hoy);
}

Figura porSexo(const Seleccion &seleccion, basic::Date hoy)
{
    Figura figura{u"Prevalencia x Sexo"_s, {}, u"Sexo"_s, u"Consultas"_s, {}};
    const QString visitas = u"Select count(*) from consulta where "_s + condicionDeVisitas(seleccion, hoy);
    const qint64 total = cuantos(visitas);
    if (total == 0)
        return figura;
    figura.sobre = sobre(total, u"consultas"_s);
    for (const auto &[sexo, nombre] : {std::pair{u"Varon"_s, u"Varones"_s}, {u"Mujer"_s, u"Mujeres"_s}}) {
        const qint64 suyos = cuantos(visitas + u" and sexo = "_s + dao::quoted(sexo));
        figura.datos.push_back({casos(nombre, suyos, u"##,###,##0"), static_cast<double>(suyos)});
    }
    return figura;
}

Figura porEdades(const Seleccion &seleccion, basic::Date hoy)
{
    Figura figura{u"Prevalencia x Grupo Etáreo"_s, {}, u"Edad"_s, u"Consultas"_s, {}};
    QStringList sumas{u"count(*)"_s};
    for (const GrupoDeEdad &grupo : grupos)
        sumas += u"sum(iif(edad >= %1 and edad <= %2, 1, 0))"_s.arg(grupo.desde).arg(grupo.hasta);
    const dao::Recordset fila = BaseDatos.openRecordset(
        u"Select %1 from consulta where %2"_s.arg(sumas.join(u", "_s), condicionDeVisitas(seleccion, hoy)));
    if (fila.value(0).integer() == 0)
        return figura;
    figura.sobre = sobre(fila.value(0).integer(), u"consultas"_s);
    int columna = 1;
    for (const GrupoDeEdad &grupo : grupos) {
        const qint64 suyos = fila.value(columna++).integer();
        figura.datos.push_back(
            {casos(QString::fromLatin1(grupo.porcion), suyos, u"##,###,##0"), static_cast<double>(suyos)});
    }
    return figura;
}

std::optional<Figura> porNombre(Nombrado que, const Seleccion &seleccion, basic::Date hoy,
                                const Avance &avance)
{
    Figura figura{
        QString::fromUtf8(titulosDeNombres[static_cast<int>(que)]), {}, u"Nombre"_s, u"Consultas"_s, {}};
    QStringList columnas;
    for (int n = 1; n <= lugaresDeLaVisita; ++n)
        columnas += u"[%1 %2]"_s.arg(QLatin1StringView(origen(que).columna)).arg(n);
    dao::Recordset visitas = BaseDatos.openRecordset(u"Select %1 from consulta where %2"_s.arg(
        columnas.join(u", "_s), condicionDeVisitas(seleccion, hoy)));
    Cuentas cuentas;
    qint64 total = 0;
    bool seguir = true;
    BaseDatos.readTogether([&] {
        for (; seguir && visitas.hasRow(total); ++total) {
            for (int lugar = 0; lugar < lugaresDeLaVisita; ++lugar)
                if (const QString nombre = visitas.valueAt(total, lugar).text(); !nombre.isEmpty())
                    ++cuentas[nombre];
            if (total % entreAvisos == 0)
                seguir = avance(total);
        }
    });
    if (!seguir)
        return std::nullopt;
    dejarEnElCatalogo(tablaDe(que), cuentas);
    if (total > 0) {
        figura.sobre = sobre(total, u"consultas"_s);
        figura.datos = losMasNombrados(tablaDe(que));
    }
    return figura;
}

Figura porFuente(int fuente, const Seleccion &seleccion, basic::Date hoy)
{
    const Fuente &una = fuentes[fuente];
    Figura figura{QString::fromUtf8(una.titulo), {}, u"Nombre"_s, u"Pacientes"_s, {}};
    const QString pacientes = condicionDePacientes(seleccion, hoy);
    const qint64 total = cuantos(u"Select count(*) from pacientes where "_s + pacientes);
    Cuentas cuentas;
    for (
        dao::Recordset fila = BaseDatos.openRecordset(
            u"Select %1 from %2 where paciente in (Select Numero from Pacientes where %3) and not (%1 is null)"_s
                .arg(QLatin1StringView(una.columna), QLatin1StringView(una.tabla), pacientes));
        !fila.eof(); fila.moveNext())
        ++cuentas[fila[0].text()];
    dejarEnElCatalogo(tablaDe(Nombrado::Patologias), cuentas);
    if (total > 0) {
        figura.sobre = sobre(total, u"pacientes"_s);
        figura.datos = losMasNombrados(tablaDe(Nombrado::Patologias));
    }
    return figura;
}

} // namespace figures
