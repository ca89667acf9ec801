#pragma once

#include "platform/dao/database.h"
#include "platform/forms/dbgrid.h"

#include <QString>

#include <array>
#include <vector>

/// The list of the practice's services with their prices, `Prestaciones`. No money column is computed from
/// another: each is what somebody typed.
namespace tarifas
{

struct Columna {
    enum Tipo { Texto, Importe, Cantidad };
    QStringView campo, titulo;
    Tipo tipo = Importe;
    int largo = 0; ///< of a text
};

/// In the order in which they are shown and typed.
inline constexpr std::array<Columna, 10> columnas{{
    {u"Codigo", u"Código", Columna::Texto, 10},
    {u"Descripcion", u"Descripción", Columna::Texto, 50},
    {u"Valor Total", u"Valor Total"},
    {u"Honorarios Especialista", u"Hon. Especialista"},
    {u"Honorarios Ayudantes", u"Hon. Ayudantes"},
    {u"Cantidad Ayudantes", u"Cant. Ayud.", Columna::Cantidad},
    {u"Total Honorarios", u"Tot. Honorarios"},
    {u"Gastos", u"Gastos"},
    {u"CoSeguro", u"Co-Seguro"},
    {u"AlicuotaIva", u"Alícuota IVA"},
}};
inline constexpr int cCodigo = 0, cDescripcion = 1;

/// What the grids show of them.
std::vector<forms::GridColumn> columnasDeGrilla();

/// The columns that a raise changes; the rate of a tax is no price.
std::vector<QString> precios();

/// A raise of prices: by hundredths of a percent, to a multiple of so many cents. The engine rounds a half
/// up.
struct Aumento {
    qint64 centesimosDePorCiento = 0;
    int paso = 1; ///< in cents
    std::vector<QString> campos;

    /// The price of a column after it, as an expression of the dialect.
    QString nuevo(const QString &campo) const;
};

/// Raises all tariffs at one stroke; how many there were. Throws dao::Error.
qint64 aumenta(dao::Database &base, const Aumento &aumento);

} // namespace tarifas
