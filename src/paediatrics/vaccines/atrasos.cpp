#include "paediatrics/vaccines/atrasos.h"

#include "core/services/paciente.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/dao/database.h"
#include "platform/dao/sqltext.h"

#include <algorithm>
#include <map>
#include <numeric>

using namespace Qt::StringLiterals;

namespace vacunas
{

namespace
{

enum CampoDelPaciente { Numero, Nombre, Nacimiento, Telefono };
enum CampoDeLaDosis { Paciente, Fecha, Observaciones };

/// The doses in the order in which they are given.
std::vector<std::size_t> dosisPorEdad(const std::vector<EdadDeDosis> &edades)
{
    std::vector<std::size_t> orden(edades.size());
    std::iota(orden.begin(), orden.end(), 0);
    std::ranges::stable_sort(orden, {}, [&](std::size_t dosis) { return edades[dosis].recomendada; });
    return orden;
}

} // namespace

QStringList dosisQueFaltan(const Planilla &planilla, qint64 paciente)
{
    auto fila = services::paciente(paciente);
    if (!fila || (*fila)[u"Fecha de Nacimiento"].isNull())
        return {};
    const basic::Date nacimiento = (*fila)[u"Fecha de Nacimiento"].date();
    const Edades edades;
    QStringList faltan;
    for (const Marca &marca : planilla.marcas)
        if (marca.vencida && marca.estado != Estado::Colocada &&
            edades.de(marca.dosis).corresponde(nacimiento))
            faltan += marca.dosis.descripcion + u", "_s + marca.dosis.dosis;
    return faltan;
}

std::optional<Atrasos> Atrasos::buscar(const Busqueda &busqueda, basic::Date hoy, const Avance &avance)
{
    Atrasos atrasos;
    atrasos.hoy_ = hoy;
    atrasos.plan_ = plan();
    const Edades edades;
    for (const DosisDelPlan &dosis : atrasos.plan_)
        atrasos.edades_.push_back(edades.de(dosis));
    atrasos.leerNinos(busqueda);
    std::vector<std::vector<Renglon>> porDosis(atrasos.plan_.size());
    std::map<QString, std::vector<int>> ultimas; // by vaccine
    qint64 hechas = 0;
    for (const std::size_t numero : dosisPorEdad(atrasos.edades_)) {
        const DosisDelPlan &dosis = atrasos.plan_[numero];
        if (avance && !avance(hechas++, static_cast<qint64>(atrasos.plan_.size())))
            return std::nullopt;
        if (!busqueda.descripcion.isEmpty() && dosis.descripcion != busqueda.descripcion)
            continue;
        const std::vector<Dada> dadas = atrasos.dadas(dosis);
        std::vector<int> &previas = ultimas[dosis.vacuna.toUpper()];
        previas.resize(atrasos.ninos_.size());
        porDosis[numero] = atrasos.comparar(numero, dadas, previas, busqueda.diasDeAtraso);
        for (std::size_t nino = 0; nino < dadas.size(); ++nino)
            if (!dadas[nino].indicada)
                previas[nino] = std::max(previas[nino], dadas[nino].dia);
    }
    for (const std::vector<Renglon> &renglones : porDosis)
        atrasos.renglones_.insert(atrasos.renglones_.end(), renglones.begin(), renglones.end());
    return atrasos;
}

/// Who has left the practice is not called.
void Atrasos::leerNinos(const Busqueda &busqueda)
{
    const QDate hoy = hoy_.date();
    pacientes_ = MODULE11::BaseDatos.openRecordset(
        u"Select Numero, [Apellido y Nombres], [Fecha de Nacimiento], Telefono from Pacientes "
        u"where %1 and (FechaBaja is null or FechaBaja > %2)"_s.arg(
            dao::period(u"[Fecha de Nacimiento]"_s,
                        basic::Date(hoy.addYears(-busqueda.hastaAnios - 1).addDays(1)),
                        basic::Date(hoy.addYears(-busqueda.desdeAnios))),
            dao::cdate(hoy_)),
        dao::Recordset::Kind::Snapshot);
    for (qint64 fila = 0; pacientes_.hasRow(fila); ++fila)
        ninos_.push_back({pacientes_.valueAt(fila, Numero).integer(),
                          pacientes_.valueAt(fila, Nacimiento).date().dateOnly(), fila});
    std::ranges::sort(ninos_, {}, &Nino::numero);
    porEdad_.resize(ninos_.size());
    std::iota(porEdad_.begin(), porEdad_.end(), 0);
    std::ranges::stable_sort(porEdad_, std::greater(),
                             [this](std::size_t nino) { return ninos_[nino].nacimiento; });
}

/// Of each child, in their order. The rows come by patient, so that both are walked side by side.
std::vector<Atrasos::Dada> Atrasos::dadas(const DosisDelPlan &dosis) const
{
    std::vector<Dada> todas(ninos_.size());
    const dao::Recordset filas = MODULE11::BaseDatos.openRecordset(
        u"Select Paciente, fecha, observaciones from Vacunas where Vacuna = %1 and Dosis = %2 order by Paciente"_s
            .arg(dao::quoted(dosis.vacuna), dao::quoted(dosis.dosis)),
        dao::Recordset::Kind::Snapshot);
    std::size_t nino = 0;
    for (qint64 fila = 0; filas.hasRow(fila); ++fila) {
        const qint64 paciente = filas.valueAt(fila, Paciente).integer();
        while (nino < ninos_.size() && ninos_[nino].numero < paciente)
            ++nino;
        if (nino == ninos_.size())
            break;
        if (ninos_[nino].numero != paciente)
            continue;
        const int dia = std::max(1, static_cast<int>(filas.valueAt(fila, Fecha).date().wholeDays()));
        const bool indicadaSolo = filas.valueAt(fila, Observaciones).text() == indicada;
        if (todas[nino].dia == 0 || todas[nino].indicada)
            todas[nino] = {dia, indicadaSolo};
    }
    return todas;
}

std::vector<Atrasos::Renglon> Atrasos::comparar(std::size_t dosis, const std::vector<Dada> &dadas,
                                                const std::vector<int> &ultimas, int diasDeAtraso) const
{
    std::vector<Renglon> renglones;
    for (const std::size_t nino : porEdad_) {
        if (dadas[nino].dia != 0 && !dadas[nino].indicada)
            continue;
        const auto anterior =
            ultimas[nino] == 0 ? std::nullopt : std::optional(basic::Date::fromSerial(ultimas[nino]));
        const auto dias = edades_[dosis].atraso(ninos_[nino].nacimiento, hoy_, anterior);
        if (dias && *dias >= diasDeAtraso)
            renglones.push_back({nino, dosis, *dias, dadas[nino].indicada});
    }
    return renglones;
}

int Atrasos::ninos() const
{
    std::vector<bool> contados(ninos_.size());
    int cuantos = 0;
    for (const Renglon &renglon : renglones_) {
        cuantos += contados[renglon.nino] ? 0 : 1;
        contados[renglon.nino] = true;
    }
    return cuantos;
}

const QStringList &Atrasos::titulos()
{
    static const QStringList todos = {u"Vacuna"_s, u"Dosis"_s,    u"Paciente"_s,     u"Edad"_s,
                                      u"Atraso"_s, u"Teléfono"_s, u"Observaciones"_s};
    return todos;
}

basic::Value Atrasos::valor(qint64 renglon, int columna) const
{
    const Renglon &este = renglones_[static_cast<std::size_t>(renglon)];
    const Nino &nino = ninos_[este.nino];
    switch (columna) {
    case DeVacuna:
        return plan_[este.dosis].descripcion;
    case DeDosis:
        return plan_[este.dosis].dosis;
    case DePaciente:
        return pacientes_.valueAt(nino.fila, Nombre);
    case DeEdad:
        return tiempoEnPalabras(nino.nacimiento, hoy_);
    case DeAtraso:
        return tiempoEnPalabras(basic::Date(hoy_.date().addDays(-este.dias)), hoy_);
    case DeTelefono:
        return pacientes_.valueAt(nino.fila, Telefono);
    case DeEstado:
        return este.indicada ? u"Indicada"_s : QString();
    default:
        return {};
    }
}

qint64 Atrasos::paciente(qint64 renglon) const
{
    return ninos_[renglones_[static_cast<std::size_t>(renglon)].nino].numero;
}

} // namespace vacunas
