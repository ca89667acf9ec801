#include "paediatrics/anthropometry/ultimasMedidas.h"

#include "core/session/session.h"
#include "paediatrics/anthropometry/medidas.h"
#include "paediatrics/anthropometry/referencia.h"
#include "platform/basic/runtime.h"

using namespace Qt::StringLiterals;

namespace paediatrics
{

namespace
{

struct Tomada {
    Medida medida;
    const char16_t *condicion; ///< 0 is a measure that was not taken
    const char16_t *formato;
};

constexpr Tomada tomadas[] = {
    {Medida::Peso, u"Peso <> 0", u"#,##0 \"g\""},
    {Medida::Talla, u"Talla <> 0", u"0.0 \"cm\""},
    {Medida::PerimetroCefalico, u"Pc <> 0", u"0.0 \"cm\""},
    {Medida::Imc, u"Peso <> 0 and Talla <> 0", u"0.0"},
};

double valorDe(Medida medida, dao::Recordset &fila)
{
    switch (medida) {
    case Medida::Peso:
        return fila[u"Peso"].value().number();
    case Medida::Talla:
        return fila[u"Talla"].value().number();
    case Medida::PerimetroCefalico:
        return fila[u"Pc"].value().number();
    case Medida::Imc:
        return CalcularIMC(fila[u"Peso"], fila[u"Talla"]);
    }
    Q_UNREACHABLE();
}

} // namespace

std::array<ports::MedidaEnPalabras, 4> ultimasMedidas(qint64 paciente, const QString &sexo,
                                                      const basic::Date &nacimiento)
{
    std::array<ports::MedidaEnPalabras, std::size(tomadas)> todas;
    for (std::size_t i = 0; i < todas.size(); ++i) {
        const Tomada &tomada = tomadas[i];
        dao::Recordset fila = MODULE11::BaseDatos.openRecordset(
            u"Select top 1 * from Medidas where Paciente = %1 and %2 order by fecha desc"_s.arg(
                QString::number(paciente), QString::fromUtf16(tomada.condicion)));
        if (fila.eof())
            continue;
        const basic::Date fecha = fila[u"fecha"].value().date();
        const double valor = valorDe(tomada.medida, fila);
        const auto dias = static_cast<double>(fecha.wholeDays() - nacimiento.wholeDays());
        todas[i] = {basic::format(valor, tomada.formato), fecha,
                    enPalabras(tomada.medida, sexo, dias, valor)};
    }
    return todas;
}

} // namespace paediatrics
