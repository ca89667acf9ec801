#include "specialties/gynaecology/panGinecoExamen.h"

#include "core/reports/informes.h"
#include "core/session/session.h"
#include "platform/forms/boxes.h"
#include "specialties/gynaecology/panExaGineco.h"
#include "specialties/gynaecology/panNueExamenGineco.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

/// The window in which an examination of this kind is written.
std::unique_ptr<panExaGineco> ventanaDe(const QString &clase)
{
    if (clase == u"Examen de Mamas")
        return std::make_unique<panExaMamas>();
    if (clase == u"Colposcopía")
        return std::make_unique<panExaColpo>();
    return std::make_unique<panExaGineco>();
}

void escribir(dao::Recordset &fila, const gineco::Examen &examen)
{
    fila[u"Detalle"] = examen.detalle;
    fila[u"Resultados"] = examen.resultados;
    fila[u"Observaciones"] = examen.observaciones;
}

} // namespace

panGinecoExamen::panGinecoExamen()
    : ListaDelPaciente(u"panGinecoExamen"_s, u"Exámenes ginecológicos"_s,
                       {{u"Fecha"_s, u"Fecha"_s, u"dd/mm/yyyy"_s, 90},
                        {u"Examen"_s, u"Examen"_s, {}, 150},
                        {u"Detalle"_s, u"Detalle"_s, {}, 220},
                        {u"Resultados"_s, u"Resultados"_s, {}, 220}},
                       u"Select * from ConsultaGineco where idPaciente = %1 order by Fecha, idExamen"_s)
{
    setContents(this,
                Column{Expanding(DBGrid1),
                       Row{command(u"Command1"_s, u"&Nuevo..."_s, u"agregar"_s, [this] { nuevo(); }),
                           rowCommand(u"Command3"_s, u"A&brir..."_s, u"abrir"_s, [this] { abrir(); }),
                           rowCommand(u"Command2"_s, u"&Quitar"_s, u"quitar"_s, [this] { deleteRow(); }),
                           command(u"Command4"_s, u"&Imprimir"_s, u"imprimir"_s, [this] { imprimir(); }),
                           Stretch(), closes(u"Command5"_s, u"&Cerrar"_s)}});
    connect(&DBGrid1, &DBGrid::accepted, this, &panGinecoExamen::abrir);
    resize(820, 420);
}

/// The drawing goes with the row just written, by its own number.
void panGinecoExamen::nuevo()
{
    panNueExamenGineco pregunta;
    pregunta.showModal();
    const QString clase = pregunta.tag();
    if (clase == u"NO" || clase.isEmpty() || paciente() == 0)
        return;
    const auto ventana = ventanaDe(clase);
    ventana->setTag(tag());
    ventana->showModal();
    if (ventana->tag() != u"SI")
        return;
    dao::Batch juntas(MODULE11::BaseDatos);
    addRow([&](dao::Recordset &fila) {
        fila[u"idPaciente"] = paciente();
        fila[u"Fecha"] = pregunta.fecha();
        fila[u"Examen"] = clase;
        escribir(fila, ventana->examen());
    });
    if (const auto marcas = ventana->marcas())
        gineco::guardarMarcas(Data1.recordset()[u"idExamen"].integer(), *marcas);
    juntas.commit();
}

void panGinecoExamen::abrir()
{
    if (!Data1.hasRow())
        return;
    dao::Recordset &fila = Data1.recordset();
    const qint64 numero = fila[u"idExamen"].integer();
    const auto ventana = ventanaDe(fila[u"Examen"].text());
    ventana->setTag(tag());
    ventana->mostrar({fila[u"Detalle"].text(), fila[u"Resultados"].text(), fila[u"Observaciones"].text()});
    ventana->mostrarMarcas(gineco::marcasDe(numero));
    ventana->showModal();
    if (ventana->tag() != u"SI")
        return;
    dao::Batch juntas(MODULE11::BaseDatos);
    Data1.change([&](dao::Recordset &filas) { filas.edit([&] { escribir(filas, ventana->examen()); }); });
    if (const auto marcas = ventana->marcas())
        gineco::guardarMarcas(numero, *marcas);
    juntas.commit();
}

void panGinecoExamen::deleteRow()
{
    if (!Data1.hasRow() || !askBox(u"Seguro de borrar este registro ?"_s, u"Atención"_s, Answer::No))
        return;
    dao::Batch juntas(MODULE11::BaseDatos);
    MODULE11::BaseDatos.execute(u"Delete * from DetExamenGinecoGraf where idexamen = %1"_s.arg(
        Data1.recordset()[u"idExamen"].integer()));
    Data1.deleteRow();
    juntas.commit();
}

void panGinecoExamen::imprimir()
{
    informes::muestra(u"gineco1.rpt"_s, u"{ConsultaGineco.idPaciente} = %1"_s.arg(paciente()));
}

#include "moc_panGinecoExamen.cpp"
