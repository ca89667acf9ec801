#include "core/security/alarmas.h"

#include "core/session/session.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/colour.h"
#include "platform/forms/tag.h"

#include <QWidget>

using namespace Qt::StringLiterals;

namespace MODULE11
{

namespace
{

/// In the order in which clicks lead through them.
struct Marca {
    QStringView letra;
    int color;
};
constexpr Marca amarilla = {u"A", 65535};
constexpr Marca roja = {u"R", 255};
constexpr Marca verde = {u"V", 65280};

const Marca &marcaDe(const QString &letra)
{
    return letra == amarilla.letra ? amarilla : letra == roja.letra ? roja : verde;
}

QStringView siguiente(const QString &letra)
{
    return letra == amarilla.letra ? roja.letra : letra == roja.letra ? verde.letra : amarilla.letra;
}

dao::Recordset filasDe(qint64 idPaciente, const QString &especialidad, const QString &tema,
                       const QString &objeto)
{
    return BaseDatos.openRecordset(
        u"Select * from Alarmas where idPaciente = %1 AND Especialidad = %2 and Tema = %3 and Objeto = %4"_s
            .arg(QString::number(idPaciente), dao::quoted(especialidad), dao::quoted(tema),
                 dao::quoted(objeto)));
}

} // namespace

void AsignaAlarma(qint64 idPaciente, const QString &especialidad, const QString &tema, QWidget &objeto)
{
    const QString nombre = objeto.objectName();
    dao::Recordset alarmas = filasDe(idPaciente, especialidad, tema, nombre);
    if (alarmas.eof()) {
        alarmas.addNew();
        alarmas[u"Especialidad"] = especialidad;
        alarmas[u"Tema"] = tema;
        alarmas[u"Objeto"] = nombre;
        alarmas[u"Color"] = amarilla.letra;
        alarmas[u"idPaciente"] = idPaciente;
    } else {
        alarmas.edit();
        alarmas[u"Color"] = siguiente(alarmas[u"Color"].text());
    }
    alarmas.update();
    alarmas.close();
    if (const auto color = ColorAlarma(idPaciente, especialidad, tema, nombre))
        forms::setBackColor(objeto, forms::fromColourValue(*color));
}

std::optional<int> ColorAlarma(qint64 idPaciente, const QString &especialidad, const QString &tema,
                               const QString &objeto)
{
    dao::Recordset alarmas = filasDe(idPaciente, especialidad, tema, objeto);
    if (alarmas.eof())
        return std::nullopt;
    return marcaDe(alarmas[u"Color"].text()).color;
}

void PintaAlarmas(QWidget &formulario, qint64 idPaciente)
{
    for (QWidget *control : formulario.findChildren<QWidget *>()) {
        if (forms::tag(control) != u"ALARMA")
            continue;
        dao::Recordset alarmas =
            BaseDatos.openRecordset(u"Select * from Alarmas where Objeto = %1 and idPaciente = %2"_s.arg(
                dao::quoted(control->objectName()), QString::number(idPaciente)));
        if (!alarmas.eof())
            forms::setBackColor(*control, forms::fromColourValue(marcaDe(alarmas[u"Color"].text()).color));
    }
}

} // namespace MODULE11
