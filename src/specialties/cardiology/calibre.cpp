#include "specialties/cardiology/calibre.h"

#include <QRegularExpression>

#include <cmath>

using namespace Qt::StringLiterals;

namespace calibre
{

namespace
{

QString escrito(double numero, int decimales)
{
    return QString::number(numero, 'f', decimales).replace(u'.', u',');
}

} // namespace

QString intervalo(double twips, const Escala &escala)
{
    if (escala.porMilimetro <= 0)
        return {};
    const double milimetros = std::fabs(twips) / escala.porMilimetro;
    const double segundos = milimetros / escala.milimetrosPorSegundo;
    const QString medido = u"%1 mm = %2 ms"_s.arg(escrito(milimetros, 1), escrito(1000 * segundos, 0));
    return segundos > 0 ? medido + u" (%1 por minuto)"_s.arg(escrito(60 / segundos, 0)) : medido;
}

QString amplitud(double twips, const Escala &escala)
{
    if (escala.porMilimetro <= 0)
        return {};
    const double milimetros = std::fabs(twips) / escala.porMilimetro;
    return u"%1 mm = %2 mV"_s.arg(escrito(milimetros, 1), escrito(milimetros / milimetrosPorMilivolt, 2));
}

std::optional<double> velocidad(const QString &escrita)
{
    static const QRegularExpression numero(u"^\\s*(\\d+(?:[.,]\\d+)?)"_s);
    const double leida = numero.match(escrita).captured(1).replace(u',', u'.').toDouble();
    return leida > 0 ? std::optional(leida) : std::nullopt;
}

} // namespace calibre
