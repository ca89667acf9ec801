#include "paediatrics/sight/agudeza.h"

#include "platform/basic/runtime.h"

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace agudeza
{

const QStringList &columnas()
{
    static const QStringList todas = {u"ojo derecho cerca"_s, u"ojo derecho lejos"_s,
                                      u"ojo izquierdo cerca"_s, u"ojo izquierdo lejos"_s};
    return todas;
}

QStringList valores()
{
    QStringList todos;
    for (int decimos = 10; decimos >= 1; --decimos)
        todos += u"%1/10"_s.arg(decimos);
    return todos;
}

Medicion leer(dao::Recordset &fila)
{
    Medicion medicion{fila[u"fecha"].date(), {}, fila[u"observaciones"].text()};
    std::ranges::transform(columnas(), medicion.agudezas.begin(),
                           [&](const QString &columna) { return fila[columna].text(); });
    return medicion;
}

void escribir(dao::Recordset &fila, const Medicion &medicion)
{
    fila[u"fecha"] = medicion.fecha;
    for (std::size_t i = 0; i < medicion.agudezas.size(); ++i)
        fila[columnas()[static_cast<qsizetype>(i)]] = medicion.agudezas[i];
    const QString observaciones = medicion.observaciones.trimmed();
    fila[u"observaciones"] = observaciones.isEmpty() ? u"-"_s : observaciones;
}

double valor(const QString &agudeza)
{
    const qsizetype barra = agudeza.indexOf(u'/');
    return barra < 0 ? 0 : basic::val(QStringView(agudeza).left(barra));
}

double promedio(const Medicion &medicion)
{
    const double suma = std::accumulate(medicion.agudezas.begin(), medicion.agudezas.end(), 0.0,
                                        [](double total, const QString &una) { return total + valor(una); });
    return static_cast<double>(basic::fixPart(suma / static_cast<double>(medicion.agudezas.size())));
}

} // namespace agudeza
