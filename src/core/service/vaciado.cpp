#include "core/service/vaciado.h"

#include "core/session/session.h"
#include "platform/basic/errors.h"

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace vaciado
{

namespace
{

constexpr QStringView delDia[] = {
    u"CONSULTA",
    u"PEDIATRIA",
    u"VACUNAS",
    u"ADOLESCENTE",
    u"ALERGIA",
    u"ALIMENTACION",
    u"ANALISIS",
    u"ANTECEDENTES",
    u"ANTECEDENTES PERSONALES",
    u"ANTECEDENTESCARDIOLOGICOS",
    u"BINOMIO",
    u"COMPLEMENTOS",
    u"CONSULTACARDIOLOGIA",
    u"CONSULTAGINECO",
    u"CONSULTAOFTALMO",
    u"DIAGNOSTICO RN",
    u"ESTUDIOS",
    u"EXAMEN FISICO",
    u"EXAMENGO",
    u"EXFISICO",
    u"GESTACIONES",
    u"GINECO",
    u"HISTORICOGESTACIONES",
    u"MADURACION NEUROLOGICA",
    u"MEDIDAS",
    u"ODONTOGRAMA",
    u"PATOLOGIAS FAMILIARES",
    u"PATOLOGIAS PERINATALES",
    u"PERINATAL",
    u"PRESUPUESTOS",
    u"RECETARIO",
    u"TOMAPRESION",
    u"VIDASEXUAL",
    u"VISUAL",
    u"FACTURACION",
    u"DETALLEFACTURACION",
};

/// A file of an earlier version has not got all of them.
bool siExiste(const std::function<void()> &trabajo)
{
    return basic::ignoring({dao::Error::NotATable}, trabajo);
}

} // namespace

std::span<const QStringView> tablas()
{
    return delDia;
}

std::vector<Cuenta> cuentas()
{
    std::vector<Cuenta> todas;
    for (QStringView tabla : delDia) {
        Cuenta cuenta{tabla.toString(), std::nullopt};
        siExiste([&] {
            cuenta.registros =
                BaseDatos.openRecordset(u"Select count(*) from [%1]"_s.arg(tabla))[0].integer();
            cuenta.tabla = BaseDatos.tableDef(tabla).name();
        });
        todas.push_back(cuenta);
    }
    return todas;
}

Resultado vaciar(dao::Database &base, const std::function<bool(const QString &tabla)> &sigue)
{
    Resultado resultado;
    for (QStringView tabla : delDia) {
        if (!sigue(tabla.toString())) {
            resultado.detenido = true;
            break;
        }
        try {
            resultado.vaciadas += siExiste([&] { base.execute(u"DELETE * FROM [%1]"_s.arg(tabla)); });
        } catch (const dao::Error &error) {
            resultado.fallas += u"%1: %2"_s.arg(tabla, error.description());
        }
    }
    return resultado;
}

} // namespace vaciado
