#include "practice/tariffs/tarifas.h"

using namespace Qt::StringLiterals;

namespace tarifas
{

std::vector<forms::GridColumn> columnasDeGrilla()
{
    constexpr int anchoDeDescripcion = 240;
    std::vector<forms::GridColumn> grilla;
    for (const Columna &columna : columnas)
        grilla.push_back({columna.titulo.toString(), columna.campo.toString(),
                          columna.tipo == Columna::Importe ? u"#,##0.00"_s : QString(),
                          columna.campo == u"Descripcion" ? anchoDeDescripcion : 0});
    return grilla;
}

std::vector<QString> precios()
{
    std::vector<QString> campos;
    for (const Columna &columna : columnas)
        if (columna.tipo == Columna::Importe && columna.campo != u"AlicuotaIva")
            campos.push_back(columna.campo.toString());
    return campos;
}

QString Aumento::nuevo(const QString &campo) const
{
    constexpr qint64 entero = 10000;
    // Price by factor by 100, over ten thousand and the step: whole steps, a half of which is exact.
    return u"Int([%1] * %2 / %3 + 0.5) * %4 / 100"_s.arg(campo)
        .arg(entero + centesimosDePorCiento)
        .arg(entero / 100 * paso)
        .arg(paso);
}

qint64 aumenta(dao::Database &base, const Aumento &aumento)
{
    QStringList cambios;
    for (const QString &campo : aumento.campos)
        cambios += u"[%1] = %2"_s.arg(campo, aumento.nuevo(campo));
    return cambios.isEmpty() ? 0 : base.execute(u"UPDATE Prestaciones SET "_s + cambios.join(u", "));
}

} // namespace tarifas
