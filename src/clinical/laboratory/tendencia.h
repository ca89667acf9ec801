#pragma once

#include <QDateTime>
#include <QStringList>

#include <optional>
#include <vector>

/// The results of one laboratory test of a patient over time, and what is normal for it.
namespace laboratorio
{

/// The figure that a result begins with, by the locale ("11,2 g/dl", "< 0,5"); nothing for words, and for
/// what is several figures ("1:80", "2-4").
std::optional<double> valorDelResultado(QStringView resultado);

struct Punto {
    QDateTime momento;
    double valor = 0;
    QString texto; ///< the result as it was noted

    bool operator==(const Punto &) const = default;
};

/// By day and hour; results without a figure, and orders without a day, are left out.
std::vector<Punto> tendencia(qint64 paciente, const QString &estudio);
/// The tests of which the patient has any figure, in the order of the table.
QStringList estudiosConValores(qint64 paciente);

/// From and to what a result is normal, as the practice has noted it; either side may be open.
struct Rango {
    std::optional<double> minimo, maximo;

    bool vacio() const { return !minimo && !maximo; }
    bool contiene(double valor) const
    {
        return (!minimo || valor >= *minimo) && (!maximo || valor <= *maximo);
    }
    bool operator==(const Rango &) const = default;
};

Rango rango(const QString &estudio);
void guardarRango(const QString &estudio, const Rango &rango);

} // namespace laboratorio
