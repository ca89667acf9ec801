#include "paediatrics/vaccines/planilla.h"

#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/dao/database.h"

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace vacunas
{

namespace
{

constexpr FilaDeEdad filas[] = {
    {u"1 mes", u"1 MES", 1},        {u"2 meses", u"2 MESES", 2},
    {u"3 meses", u"3 MESES", 3},    {u"4 meses", u"4 MESES", 4},
    {u"5 meses", u"5 MESES", 5},    {u"6 meses", u"6 MESES", 6},
    {u"12 meses", u"12 MESES", 12}, {u"18 meses", u"18 MESES", 18},
    {u"2 años", u"2 AÑOS", 24},     {u"Ingreso Escol.", u"INGRESO ESCOL.", 72},
    {u"16 años", u"16 AÑOS", 192},  {u"Cada 4 años", u"C/4 AÑOS", 192},
};
constexpr int mesesSinFila = 192;

/// From how many months on the band stands on the line of each row.
constexpr int mesesDeLaBanda[] = {0, 2, 3, 4, 5, 6, 15, 18, 48, 72, 192, 240};
static_assert(std::size(mesesDeLaBanda) == std::size(filas));

/// Vaccine and dose as the sheet compares them: whatever their case.
using Clave = std::pair<QString, QString>;
Clave claveDe(const QString &vacuna, const QString &dosis)
{
    return {vacuna.toUpper(), dosis.toUpper()};
}

} // namespace

std::span<const FilaDeEdad> filasDeEdad()
{
    return filas;
}

std::optional<int> filaDe(const QString &dosis)
{
    const QString clave = dosis.toUpper();
    const auto fila = std::ranges::find_if(filas, [&](const FilaDeEdad &una) { return clave == una.clave; });
    if (fila == std::end(filas))
        return std::nullopt;
    return static_cast<int>(fila - std::begin(filas));
}

int mesesAlAgregar(const QString &dosis)
{
    const auto fila = filaDe(dosis);
    return fila ? filas[*fila].meses : mesesSinFila;
}

int mesesAlEditar(const QString &dosis)
{
    const int meses = mesesAlAgregar(dosis);
    return meses == 3 || meses == 5 ? mesesSinFila : meses;
}

EdadDelPlan edadDelPlan(basic::Date nacimiento, basic::Date hoy)
{
    constexpr double diasDelMes = 30, mesesDelAnio = 12;
    const auto dias = static_cast<double>(hoy.wholeDays() - nacimiento.wholeDays());
    const qint64 meses = basic::intPart(dias / diasDelMes);
    const qint64 anios = basic::intPart(static_cast<double>(meses) / mesesDelAnio);
    return {meses, anios, meses - 12 * anios};
}

int filaDeLaBanda(qint64 meses)
{
    const auto despues = std::ranges::upper_bound(mesesDeLaBanda, meses);
    return std::max(0, static_cast<int>(despues - std::begin(mesesDeLaBanda)) - 1);
}

QString leyenda(Estado estado)
{
    switch (estado) {
    case Estado::Falta:
        return u"Sin colocar"_s;
    case Estado::Proxima:
        return u"Próxima a colocar"_s;
    case Estado::Indicada:
        return u"Indicada"_s;
    case Estado::Colocada:
        return u"Colocada"_s;
    case Estado::SinEdad:
        break;
    }
    return {};
}

QString Marca::enPalabras() const
{
    const QString vacuna =
        dosis.descripcion == dosis.vacuna ? dosis.vacuna : u"%1 (%2)"_s.arg(dosis.descripcion, dosis.vacuna);
    QString texto = vacuna + u", "_s + dosis.dosis;
    if (const QString estadoEnPalabras = leyenda(estado); !estadoEnPalabras.isEmpty())
        texto += u": "_s + estadoEnPalabras;
    if (fecha)
        texto += u" el "_s + basic::dateText(fecha->dateOnly());
    return texto;
}

Planilla planilla(const std::vector<DosisDelPlan> &plan)
{
    Planilla hoja;
    std::map<std::pair<int, int>, int> enElLugar;
    for (const DosisDelPlan &dosis : plan) {
        const auto igual = [&](const Columna &una) { return una.descripcion == dosis.descripcion; };
        auto columna = std::ranges::find_if(hoja.columnas, igual);
        if (columna == hoja.columnas.end() && hoja.columnas.size() < Planilla::columnasQueCaben)
            columna = hoja.columnas.insert(columna, {dosis.descripcion, dosis.detalle});
        const auto fila = filaDe(dosis.dosis);
        if (columna == hoja.columnas.end() || !fila) {
            ++hoja.sinLugar;
            continue;
        }
        const int numero = static_cast<int>(columna - hoja.columnas.begin());
        hoja.marcas.push_back(
            {*fila, numero, enElLugar[{*fila, numero}]++, dosis, Estado::SinEdad, {}, false});
    }
    return hoja;
}

Planilla planillaSinPlan()
{
    Planilla hoja;
    hoja.columnas = {{u"BCG"_s, u"Tuberculosis"_s},
                     {u"Sabin"_s, u"Poliomelitis"_s},
                     {u"Cuadr."_s, u"Difteria, Tetanos, Tos convulsa + Hemophilus"_s},
                     {u"Tr.Viral"_s, u"Sarampion, Rubeola, Paperas"_s},
                     {u"DTa"_s, u"Meningoc. A y C"_s}};
    for (const char16_t *detalle :
         {u"Hemophilus B", u"Hepatitis A", u"Hepatitis B", u"Doble", u"Sarampión", u"Varicela"})
        hoja.columnas.push_back({{}, QString::fromUtf16(detalle)});
    return hoja;
}

/// The rows are read in the order in which they were noted: of two of one dose the later counts.
void Planilla::ponerEstados(qint64 paciente, const std::optional<EdadDelPlan> &edad)
{
    const int banda = edad ? filaDeLaBanda(edad->meses) : 0;
    for (Marca &marca : marcas) {
        marca.fecha.reset();
        marca.vencida = edad && marca.fila <= banda;
        marca.estado = !edad ? Estado::SinEdad : marca.vencida ? Estado::Falta : Estado::Proxima;
    }
    if (!edad)
        return;
    std::multimap<Clave, Marca *> porClave;
    for (Marca &marca : marcas)
        porClave.emplace(claveDe(marca.dosis.vacuna, marca.dosis.dosis), &marca);
    dao::Recordset dadas = MODULE11::BaseDatos.openRecordset(u"Vacunas"_s);
    dadas.setIndex(u"Paciente");
    for (dadas.seek(u"=", paciente);
         !dadas.noMatch() && !dadas.eof() && dadas[u"Paciente"].integer() == paciente; dadas.moveNext()) {
        const auto [desde, hasta] =
            porClave.equal_range(claveDe(dadas[u"Vacuna"].text(), dadas[u"Dosis"].text()));
        for (auto una = desde; una != hasta; ++una) {
            Marca &marca = *una->second;
            marca.estado = dadas[u"observaciones"].text() == indicada ? Estado::Indicada : Estado::Colocada;
            if (!dadas[u"fecha"].isNull())
                marca.fecha = dadas[u"fecha"].date();
        }
    }
}

} // namespace vacunas
