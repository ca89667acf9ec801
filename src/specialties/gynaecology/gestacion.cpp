#include "specialties/gynaecology/gestacion.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace gestacion
{

namespace
{

constexpr int diasDeSemana = 7, diasDelTermino = 280, masLarga = 44 * diasDeSemana;

std::optional<int> entre(qint64 dias)
{
    return dias < 0 || dias > masLarga ? std::nullopt : std::optional(static_cast<int>(dias));
}

/// The numbers in a text, in their order; a decimal comma or point.
std::vector<double> numeros(const QString &texto)
{
    static const QRegularExpression numero(u"\\d+(?:[.,]\\d+)?"_s);
    std::vector<double> hallados;
    for (auto lugar = numero.globalMatch(texto); lugar.hasNext();)
        hallados.push_back(lugar.next().captured().replace(u',', u'.').toDouble());
    return hallados;
}

std::optional<double> primero(const QString &texto)
{
    const auto hallados = numeros(texto);
    return hallados.empty() ? std::nullopt : std::optional(hallados.front());
}

} // namespace

std::optional<int> diasPorFum(QDate ultimaMenstruacion, QDate dia)
{
    return ultimaMenstruacion.isValid() ? entre(ultimaMenstruacion.daysTo(dia)) : std::nullopt;
}

std::optional<int> diasPorEco(QDate eco, int semanas, int dias, QDate dia)
{
    if (!eco.isValid() || semanas + dias <= 0)
        return std::nullopt;
    return entre(semanas * diasDeSemana + dias + eco.daysTo(dia));
}

QString enPalabras(int dias)
{
    const int semanas = dias / diasDeSemana, resto = dias % diasDeSemana;
    const QString enSemanas = u"%1 %2"_s.arg(semanas).arg(semanas == 1 ? u"semana"_s : u"semanas"_s);
    return resto == 0 ? enSemanas
                      : enSemanas + u" y %1 %2"_s.arg(resto).arg(resto == 1 ? u"día"_s : u"días"_s);
}

QDate parto(QDate ultimaMenstruacion)
{
    return ultimaMenstruacion.addDays(7).addMonths(-3).addYears(1);
}

QDate partoPorEco(QDate eco, int semanas, int dias)
{
    return eco.addDays(diasDelTermino - semanas * diasDeSemana - dias);
}

std::optional<Control> control(const QString &ig, const QString &au, const QString &peso,
                               const QString &presion, QDate fecha, QDate ultimaMenstruacion)
{
    const auto edad = numeros(ig);
    const auto contados = diasPorFum(ultimaMenstruacion, fecha);
    Control control{};
    if (!edad.empty())
        control.semana = edad[0] + (edad.size() > 1 ? edad[1] / diasDeSemana : 0);
    else if (contados)
        control.semana = static_cast<double>(*contados) / diasDeSemana;
    else
        return std::nullopt;
    control.altura = primero(au);
    control.peso = primero(peso);
    if (const auto cifras = numeros(presion); cifras.size() > 1) {
        control.maxima = cifras[0];
        control.minima = cifras[1];
    }
    return control;
}

} // namespace gestacion
