#include "clinical/laboratory/analisis.h"

#include "core/session/session.h"
#include "platform/basic/runtime.h"

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace laboratorio
{

namespace
{

constexpr int largoDeLaPlanilla = 255;

const dao::FieldDef &columna(const dao::Recordset &filas, const QString &nombre)
{
    const int ordinal = filas.ordinal(nombre);
    if (ordinal < 0)
        throw dao::Error(dao::Error::ItemNotFound, u"La tabla de análisis no tiene \"%1\"."_s.arg(nombre));
    return filas.fields()[static_cast<std::size_t>(ordinal)];
}

} // namespace

void escribirPedido(dao::Recordset &fila, qint64 paciente, const Pedido &pedido)
{
    fila[u"Paciente"] = paciente;
    fila[u"Fecha"] = pedido.fecha;
    fila[u"Hora"] = pedido.hora;
    fila[u"Bioquimico"] = pedido.bioquimico;
    fila[u"Descripcion"] = pedido.descripcion;
    for (const QString &estudio : pedido.estudios)
        escribirResultado(fila, {estudio, pendiente});
}

std::vector<Resultado> resultados(dao::Recordset &orden)
{
    std::vector<Resultado> pedidos;
    for (const dao::FieldDef &columna : orden.fields())
        if (const basic::Value valor = orden[columna.name]; esEstudio(columna) && !valor.isNull())
            pedidos.push_back({columna.name, valor.text()});
    return pedidos;
}

void escribirResultado(dao::Recordset &orden, const Resultado &resultado)
{
    basic::Value valor = resultado.valor;
    if (columna(orden, resultado.estudio).type == dao::FieldType::Date) {
        if (resultado.valor == pendiente)
            valor = basic::Null{};
        else if (const auto dia = basic::toDate(resultado.valor))
            valor = *dia;
    }
    orden[resultado.estudio] = valor;
}

int largoDelResultado(const dao::Recordset &orden, const QString &estudio)
{
    const dao::FieldDef &definicion = columna(orden, estudio);
    return definicion.type == dao::FieldType::Text ? definicion.size : 0;
}

void llenarPlanilla(const std::vector<Resultado> &resultados)
{
    BaseDatos.execute(u"Delete * from tmpAnalisis"_s);
    dao::Recordset planilla = BaseDatos.openRecordset(u"tmpAnalisis"_s);
    for (const auto &[estudio, valor] : resultados) {
        planilla.addNew();
        planilla[u"Estudio"] = estudio;
        planilla[u"Resultado"] = valor.left(largoDeLaPlanilla);
        planilla.update();
    }
}

QString comparacion(qint64 paciente, const QStringList &estudios)
{
    QString columnas;
    for (const QString &estudio : estudios)
        columnas += u", ["_s + estudio + u']';
    return u"Select fecha, hora"_s + columnas + u" from analisis where paciente = "_s +
           QString::number(paciente) + u" order by fecha, hora"_s;
}

} // namespace laboratorio
