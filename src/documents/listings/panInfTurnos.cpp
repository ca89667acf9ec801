#include "documents/listings/panInfTurnos.h"

#include "core/reports/informes.h"
#include "core/services/listas.h"
#include "core/session/session.h"
#include "documents/listings/pedido.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr int letrasDeUnNombre = 40;
const QStringList estadosDeOrden = {u"EFECTUADO"_s, u"PENDIENTE"_s, u"INGRESADO"_s,
                                    u"FACTURADO"_s, u"COBRADO"_s,   u"DENEGADO!"_s};

} // namespace

panInfTurnos::panInfTurnos() : Form(u"panInfTurnos"_s)
{
    // The register is long: the field is not measured by its names.
    Combo3.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    Combo3.setMinimumContentsLength(letrasDeUnNombre);
    cbStatus.addItems(estadosDeOrden);
    setContents(
        this,
        Column{
            Row{Fields{{u"&Desde :"_s, dt1}}, Fields{{u"&Hasta :"_s, dt2}}, Stretch()},
            Fields{{u"&Obra social :"_s, Combo1}, {u"P&rofesional :"_s, Combo2}, {u"&Paciente :"_s, Combo3}},
            Group(picCons,
                  Fields{{u"Pre&stación :"_s, cbPrestaciones}, {u"&Estado de la orden :"_s, cbStatus}}),
            Stretch(),
            Row{Stretch(), Command1, Command2},
        });
    connect(&Command1, &QPushButton::clicked, this, &panInfTurnos::imprimir);
    connect(&Command2, &QPushButton::clicked, this, &panInfTurnos::unload);
}

void panInfTurnos::load()
{
    setWindowTitle(deConsultorio() ? u"Informe de consultorio"_s : u"Informe de Turnos"_s);
    picCons.setVisible(deConsultorio());
    services::agregarConClave(Combo1, u"Select * from [Obra Social] order by Descripcion"_s, u"Descripcion",
                              u"idObraSocial");
    services::agregarConClave(Combo2, u"Select * from Profesionales order by Nombre"_s, u"Nombre",
                              u"idProfesional");
    services::agregarConClave(cbPrestaciones, u"Select idprestacion, descripcion from prestaciones"_s,
                              u"descripcion", u"idprestacion");
    llenarPacientes();
    for (ComboBox *filtro : {&Combo1, &Combo2, &Combo3, &cbPrestaciones, &cbStatus})
        filtro->setCurrentIndex(0);
}

bool panInfTurnos::deConsultorio() const
{
    return tag() == u"CONS";
}

/// A name may also be typed: whoever is not in the register may have an appointment.
void panInfTurnos::llenarPacientes()
{
    QStringList nombres;
    dao::Recordset pacientes = MODULE11::BaseDatos.openRecordset(
        u"Select [Apellido y Nombres] from Pacientes order by [Apellido y Nombres]"_s);
    MODULE11::BaseDatos.readTogether([&] {
        for (qint64 fila = 0; pacientes.hasRow(fila); ++fila)
            if (const QString nombre = pacientes.valueAt(fila, 0).text(); !nombre.isEmpty())
                nombres += nombre;
    });
    Combo3.addItems(nombres);
}

void panInfTurnos::imprimir()
{
    const auto periodo = seleccion::periodoElegido(dt1, dt2);
    if (!periodo)
        return;
    seleccion::Filtros filtros;
    filtros.obraSocial = seleccion::textoElegido(Combo1);
    filtros.profesional = seleccion::textoElegido(Combo2);
    filtros.paciente = seleccion::textoElegido(Combo3);
    if (!deConsultorio()) {
        informes::muestra(u"turnos.rpt"_s, seleccion::deTurnos(*periodo, filtros));
        return;
    }
    filtros.idPrestacion = seleccion::claveElegida(cbPrestaciones);
    filtros.estadoDeOrden = seleccion::textoElegido(cbStatus);
    informes::muestra(u"CONS.RPT"_s, seleccion::deAtenciones(*periodo, filtros));
}

#include "moc_panInfTurnos.cpp"
