#include "clinical/laboratory/panAnalisis.h"

#include "clinical/laboratory/panComparaAnalisis.h"
#include "clinical/laboratory/panInAn.h"
#include "clinical/laboratory/panNueAnalisis.h"
#include "clinical/laboratory/panTendencia.h"
#include "core/services/paciente.h"
#include "core/services/services.h"
#include "core/session/session.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

enum { cHora = 1, cDescripcion, cBioquimico }; // mDato

RowLook aspecto(const basic::Value &resultado)
{
    return resultado.text() == laboratorio::pendiente ? RowLook::standingBack() : RowLook::standingOut();
}

} // namespace

panAnalisis::panAnalisis()
    : ListaDelPaciente(u"panAnalisis"_s, u"Pantalla de Análisis efectuados a :"_s,
                       {{u"Fecha"_s, u"Fecha"_s, u"dd/mm/yyyy"_s, 84},
                        {u"Hora"_s, u"Hora"_s, u"HH:MM"_s, 50},
                        {u"Descripción"_s, u"Descripcion"_s, {}, 150},
                        {u"Bioquímico"_s, u"Bioquimico"_s, {}, 120}},
                       u"Select * from Analisis where paciente = %1 order by fecha"_s)
{
    Data1.bind(mFecha, u"Fecha"_s);
    Data1.bind(mDato.add(cHora, 10), u"Hora"_s, u"HH:MM"_s);
    Data1.bind(mDato.add(cDescripcion), u"Descripcion"_s);
    Data1.bind(mDato.add(cBioquimico), u"Bioquimico"_s);
    Data2.setRecordSource(u"Select * from tmpAnalisis"_s);
    DBGrid2.setSource(Data2, {{u"Estudio"_s, u"Estudio"_s, {}, 260}, {u"Resultado"_s, u"Resultado"_s}});
    DBGrid2.setRowLook(u"Resultado"_s, aspecto);
    DBGrid2.setToolTip(u"Doble clic o Entrar: ingresar el resultado de este estudio"_s);
    setContents(this,
                Column{Expanding(Row{Expanding(DBGrid1, 4), Expanding(orden(), 5)}),
                       Row{command(u"Command2"_s, u"&Nuevo"_s, u"agregar"_s, [this] { nuevo(); },
                                   {.gate = u"AgregarLaboratorio"_s}),
                           deletes(u"Command3"_s, u"&Quitar"_s,
                                   {.gate = u"BorrarLaboratorio"_s, .question = u"Borra este Análisis"_s}),
                           rowCommand(u"Command7"_s, u"&Ingresar resultados..."_s, u"editar"_s,
                                      [this] { ingresarTodos(); }),
                           rowCommand(u"Command4"_s, u"C&omparación de laboratorio"_s, u"ver"_s,
                                      [this] { comparar(); }),
                           rowCommand(u"Command5"_s, u"&Tendencia..."_s, u"estadisticas"_s,
                                      [this] { mostrarTendencia(); }),
                           Stretch(), closes(u"Command1"_s, u"&Cerrar"_s)}});
    resize(1000, 520);
    connect(&DBGrid2, &DBGrid::accepted, this, &panAnalisis::ingresarUno);
}

Item panAnalisis::orden()
{
    mDato(cHora).setFixedWidth(60);
    return Column{
        Row{Fields{{u"&Fecha :"_s, mFecha}}, Fields{{u"&Hora :"_s, mDato(cHora)}}, Stretch()},
        Fields{{u"&Descripción :"_s, mDato(cDescripcion)}, {u"&Bioquímico :"_s, mDato(cBioquimico)}},
        Expanding(DBGrid2),
    };
}

void panAnalisis::activate()
{
    setWindowTitle(u"Planilla de Análisis efectuados a "_s + services::nombreDePaciente(tag()));
    ListaDelPaciente::activate();
}

/// Filled and read in one stroke, so that no other station's order is in between.
void panAnalisis::rowShown()
{
    const bool hay = Data1.hasRow();
    mFecha.setEnabled(hay);
    for (auto &[indice, texto] : mDato)
        texto->setEnabled(hay);
    Data2.close();
    const std::vector<laboratorio::Resultado> pedidos =
        hay ? laboratorio::resultados(Data1.recordset()) : std::vector<laboratorio::Resultado>();
    dao::Batch lote(MODULE11::BaseDatos);
    laboratorio::llenarPlanilla(pedidos);
    Data2.refresh();
    lote.commit();
}

void panAnalisis::nuevo()
{
    panNueAnalisis pedido;
    capture(pedido,
            [&](dao::Recordset &fila) { laboratorio::escribirPedido(fila, paciente(), pedido.pedido()); });
}

void panAnalisis::comparar()
{
    Data1.updateRecord();
    panComparaAnalisis comparacion;
    comparacion.setTag(tag());
    comparacion.showModal();
}

/// Of the test that one stands on.
void panAnalisis::mostrarTendencia()
{
    Data1.updateRecord();
    panTendencia tendencia;
    tendencia.setTag(tag());
    if (Data2.hasRow())
        tendencia.setEstudio(Data2.recordset()[u"Estudio"].text());
    tendencia.showModal();
}

void panAnalisis::ingresarTodos()
{
    const std::vector<laboratorio::Resultado> pedidos = laboratorio::resultados(Data1.recordset());
    if (pedidos.empty())
        MODULE11::Aviso(u"Este pedido no tiene estudios."_s);
    else
        ingresar(pedidos);
}

void panAnalisis::ingresarUno()
{
    if (Data1.hasRow() && Data2.hasRow())
        ingresar({{Data2.recordset()[u"Estudio"].text(), Data2.recordset()[u"Resultado"].text()}});
}

/// The order is gone to before each result is written: the rows are read anew when the window wakes up.
void panAnalisis::ingresar(const std::vector<laboratorio::Resultado> &pedidos)
{
    const dao::Recordset::Bookmark orden = Data1.recordset().bookmark();
    for (std::size_t i = 0; i < pedidos.size(); ++i) {
        const QString &estudio = pedidos[i].estudio;
        panInAn ingreso;
        ingreso.setEstudio(estudio, pedidos[i].valor,
                           laboratorio::largoDelResultado(Data1.recordset(), estudio),
                           u"%1 de %2"_s.arg(i + 1).arg(pedidos.size()));
        ingreso.showModal();
        if (ingreso.tag() == u"FIN")
            return;
        if (ingreso.tag() != u"SI")
            continue;
        Data1.change([&](dao::Recordset &filas) {
            filas.setBookmark(orden);
            filas.edit([&] { laboratorio::escribirResultado(filas, {estudio, ingreso.valor()}); });
        });
    }
}

#include "moc_panAnalisis.cpp"
