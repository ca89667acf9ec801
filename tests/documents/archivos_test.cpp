#include "core/reports/informes.h"
#include "delivered.h"
#include "documents/listings/selecciones.h"
#include "platform/reports/report.h"

#include <QDir>

#include <map>

using namespace Qt::StringLiterals;

namespace
{

/// The report files that the installation delivers, over its base with a row for each.
class ArchivosTest : public DeliveredBase
{
protected:
    void SetUp() override
    {
        DeliveredBase::SetUp();
        run({"INSERT INTO Profesionales (idProfesional, Nombre) VALUES (1, 'Dra. O''Higgins')",
             "INSERT INTO Pacientes (Numero, [Apellido y Nombres], idProfesional) VALUES (1, 'D''Angelo', 1)",
             "INSERT INTO Consulta (Paciente, [nombre del paciente], Fecha, Hora, [Diagnostico 4], Dr, Monto) "
             "VALUES (1, 'D''Angelo', cdate('15/03/2024'), cdate('10:30:00'), 'Crup d''emblée', "
             "'Dra. O''Higgins', 1234.5)",
             "INSERT INTO ConsultaGineco (idpaciente, Fecha, Examen, Detalle) VALUES (1, cdate('15/03/2024'), "
             "'Colposcopía', 'Sin lesiones')",
             "INSERT INTO [Obra Social] (Descripcion) VALUES ('Plan d''Oro')",
             "INSERT INTO Turnos (Fecha, Hora, Paciente, Dr, idProfesional, idMutual) SELECT cdate('15/03/2024'), "
             "'08:00', 'D''Angelo', 'Dra. O''Higgins', 1, idObraSocial FROM [Obra Social] WHERE Descripcion = "
             "'Plan d''Oro'",
             "INSERT INTO Eventos (Proceso, Usuario, Fecha, Hora, Suceso) VALUES ('IngresarATurnos', "
             "'D''Angelo', cdate('15/03/2024'), '08:20', 'INGRESO CORRECTO')",
             "INSERT INTO Recetario (idPaciente, Paciente, fecha, Receta, Dr) VALUES (1, 'D''Angelo', "
             "cdate('15/03/2024'), 'Amoxicilina <500> & reposo', 'Dra. O''Higgins')",
             "INSERT INTO ConsultaOftalmo (paciente, Fecha, motivo, aguVisOdCCC) VALUES (1, cdate('15/03/2024'), "
             "'Control d''anteojos & <lentes>', '8/10')",
             "INSERT INTO Prestaciones (Codigo, Descripcion, [Honorarios Especialista]) VALUES ('420101', 'Consulta "
             "d''hospital', 1234.5)",
             "INSERT INTO [Obra Social] (Descripcion) VALUES ('Mutual d''Oc')",
             "INSERT INTO Facturacion (Numero, Fecha, idPrestador, idObraSocial, Total, Cobrada) VALUES "
             "('X0001-00000007', cdate('31/03/2024'), 1, 1, 1234.5, FALSE)",
             "INSERT INTO DetalleFacturacion (idFactura, idPaciente, NroOrden, idPrestacion, Importe) VALUES (1, 1, "
             "'A-77', 1, 1234.5)",
             "INSERT INTO CartasVacunas (Lote, Paciente, Renglon, Vacuna, Dosis, Atraso) VALUES ('L', 1, 1, 'BCG', "
             "'1 MES', '2 meses')",
             "INSERT INTO Caja (Fecha, Cuenta, Detalle, Entrada, Salida) VALUES (cdate('15/03/2024'), 'O''Luz', "
             "'Marzo', 0, 1234.5)",
             "INSERT INTO Presupuestos (codpaciente, fecha, Descripcion) VALUES (1, cdate('15/03/2024'), 'Boca d''oro')",
             "INSERT INTO Practicos (detalle, precio) VALUES ('Corona d''acero', 1234.5)",
             "INSERT INTO RelPractico (codpresupuesto, codpractico, cantidad, precio, subtotal) VALUES (1, 1, 2, 1234.5, "
             "2469)",
             "INSERT INTO Proveedores (Empresa) VALUES ('D''Alba')",
             "INSERT INTO Articulos (idProfesional, Descripcion, idProveedor, StockActual, StockMinimo, StockIdeal) "
             "VALUES (1, 'Gasa d''hilo', 1, 2.5, 3, 12)"});
    }

    static reports::Report report(const QString &file, const QString &formula)
    {
        return {reports::readReportFile(QStringLiteral(REPORT_FILES "/") + file), MODULE11::BaseDatos,
                formula,
                informes::datosDeLaSesion({{u"historia"_s, u"Asma <leve>"_s}, {u"periodo"_s, u"Marzo"_s}})};
    }

    static QString textOf(reports::Report report)
    {
        report.layOut([](int) { return true; });
        QStringList texts;
        for (int page = 0; report.hasPage(page); ++page)
            for (const reports::Report::Reading &reading : report.read(page))
                texts += reading.text;
        return texts.join(u'\n');
    }
};

struct Expected {
    QString formula, reads;
};

std::map<QString, Expected> files()
{
    const seleccion::Periodo march{basic::Date(QDate(2024, 3, 1)), basic::Date(QDate(2024, 3, 31))};
    return {
        {u"CONS.RPT"_s, {seleccion::deAtenciones(march, {.paciente = u"D'Angelo"_s}), u"\t1.234,50"_s}},
        {u"articulos1.rpt"_s, {u"{Articulos.idProfesional} = 1"_s, u"Gasa d'hilo\t\t2,5\t3\t12"_s}},
        {u"caja.rpt"_s, {u"{caja.cuenta} = 'O''Luz'"_s, u"\t1.234,50"_s}},
        {u"cie10.rpt"_s, {u"{Diagnosticos.idDiagnostico} <> ''"_s, u"Total de diagnósticos: 10594"_s}},
        {u"cierre.rpt"_s,
         {seleccion::deConsultas(march), u"Total de Dra. O'Higgins: 1\t\t\t\t\t\t\t1.234,50\t0,00"_s}},
        {u"consultorio.rpt"_s, {seleccion::deConsultas(march), u"viernes 15 de marzo de 2024"_s}},
        {u"deuda.rpt"_s, {u"{Facturacion.Cobrada} = FALSE"_s, u"X0001-00000007"_s}},
        {u"eventos.rpt"_s, {u"{Eventos.Usuario} = 'D''Angelo'"_s, u"IngresarATurnos\tINGRESO CORRECTO"_s}},
        {u"facturacion1.rpt"_s,
         {u"{Facturacion.idFacturacion} = 1"_s, u"D'Angelo\tA-77\t420101\tConsulta d'hospital\t1.234,50"_s}},
        {u"fichap1.rpt"_s, {QString(), u"Institución, ambiente quirúrgico"_s}},
        {u"fichap2.rpt"_s, {QString(), u"Latidos cardíacos"_s}},
        {u"gineco1.rpt"_s, {u"{ConsultaGineco.idPaciente} = 1"_s, u"Colposcopía"_s}},
        {u"historia.rpt"_s, {u"{Pacientes.Numero} = 1"_s, u"Asma <leve>"_s}},
        {u"oftalmo.rpt"_s, {u"{ConsultaOftalmo.idConsulta} = 1"_s, u"Control d'anteojos & <lentes>"_s}},
        {u"pacientes.rpt"_s, {seleccion::dePacientes(1), u"Total de pacientes: 1"_s}},
        {u"patologia.rpt"_s, {seleccion::dePatologia(march, u"Crup d'emblée"_s), u"Crup d'emblée"_s}},
        {u"prestaciones.rpt"_s, {u"{prestaciones.descripcion} <> ''"_s, u"420101\tConsulta d'hospital"_s}},
        {u"presupuesto.rpt"_s,
         {u"{ConsultaPresupuesto.idPresupuesto} = 1"_s, u"Corona d'acero\t2\t1.234,50\t2.469,00"_s}},
        {u"profesionales.rpt"_s, {QString(), u"Dra. O'Higgins"_s}},
        {u"receta.rpt"_s, {u"{recetario.idReceta} = 1"_s, u"Amoxicilina <500> & reposo"_s}},
        {u"recibo.rpt"_s, {u"{Caja.idCaja} = 1"_s, u"$ 1.234,50"_s}},
        {u"reposicion.rpt"_s,
         {u"{Articulos.StockActual} < {Articulos.StockMinimo}"_s, u"Gasa d'hilo\t2,5\t12\t9,5"_s}},
        {u"turnosestadistica.rpt"_s,
         {u"{Profesionales.Nombre} = 'Dra. O''Higgins'"_s, u"Turnos de Dra. O'Higgins: 1"_s}},
        {u"turnos.rpt"_s, {seleccion::deTurnos(march, {}), u"Turnos de Dra. O'Higgins: 1"_s}},
        {u"vacunas.rpt"_s, {u"{CartasVacunas.Lote} = 'L'"_s, u"BCG\t1 MES\t2 meses"_s}},
    };
}

} // namespace

TEST_F(ArchivosTest, eachIsLaidOutWithItsSelection)
{
    const auto known = files();
    for (const QString &file : QDir(QStringLiteral(REPORT_FILES)).entryList(QDir::Files)) {
        SCOPED_TRACE(file.toStdString());
        const auto found = known.find(file);
        ASSERT_NE(found, known.end()) << "a report file without a selection to try it with";
        const QString text = textOf(report(file, found->second.formula));
        EXPECT_TRUE(text.contains(found->second.reads)) << text.right(600).toStdString();
    }
}

TEST_F(ArchivosTest, theManualsExampleIsAReport)
{
    QFile manual(QStringLiteral(MANUAL "/15-informes.md"));
    ASSERT_TRUE(manual.open(QIODevice::ReadOnly));
    const QString example = QString::fromUtf8(manual.readAll()).section(u"```\n"_s, 1, 1);
    const QString text = textOf(reports::Report(reports::parseReportFile(example, u"ejemplo.rpt"_s),
                                                MODULE11::BaseDatos, seleccion::dePacientes({}), {}));
    EXPECT_TRUE(text.contains(u"Sin obra social\nD'Angelo"_s)) << text.toStdString();
    EXPECT_TRUE(text.contains(u"Son 1"_s)) << text.toStdString();
}

/// A blank form has none to begin with.
TEST_F(ArchivosTest, eachSaysThatItHasNoData)
{
    for (const auto &[file, expected] : files()) {
        const bool lists = !reports::readReportFile(QStringLiteral(REPORT_FILES "/") + file).query.isEmpty();
        EXPECT_EQ(textOf(report(file, u"FALSE"_s)).contains(u"Sin datos"), lists) << file.toStdString();
    }
}
