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
    const char16_t *rotulo;
    Medida medida;
    const char16_t *condicion; ///< 0 is a measure that was not taken
    const char16_t *formato;
};

constexpr Tomada tomadas[] = {
    {u"Peso", Medida::Peso, u"Peso <> 0", u"#,##0 \"g\""},
    {u"Talla", Medida::Talla, u"Talla <> 0", u"0.0 \"cm\""},
    {u"P. cefálico", Medida::PerimetroCefalico, u"Pc <> 0", u"0.0 \"cm\""},
    {u"I.M.C.", Medida::Imc, u"Peso <> 0 and Talla <> 0", u"0.0"},
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

std::vector<ports::MedidaEnPalabras> ultimasMedidas(qint64 paciente, const QString &sexo,
                                                    const basic::Date &nacimiento)
{
    std::vector<ports::MedidaEnPalabras> todas;
    for (const Tomada &tomada : tomadas) {
        dao::Recordset fila = MODULE11::BaseDatos.openRecordset(
            u"Select top 1 * from Medidas where Paciente = %1 and %2 order by fecha desc"_s.arg(
                QString::number(paciente), QStringView(tomada.condicion)));
        if (fila.eof())
            continue;
        const basic::Date fecha = fila[u"fecha"].value().date();
        const double valor = valorDe(tomada.medida, fila);
        const auto dias = static_cast<double>(fecha.wholeDays() - nacimiento.wholeDays());
        todas.push_back(
            {QString::fromUtf16(tomada.rotulo),
             u"%1 (%2)"_s.arg(basic::format(valor, tomada.formato), basic::format(fecha, u"dd/mm/yyyy")),
             enPalabras(tomada.medida, sexo, dias, valor)});
    }
    return todas;
}

} // namespace paediatrics
