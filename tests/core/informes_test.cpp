#include "delivered.h"

#include "platform/reports/report.h"

using namespace Qt::StringLiterals;

namespace
{

/// A delivered report with the selection that its caller makes, and what one of its rows shows.
struct Informe {
    const char *archivo, *seleccion, *muestra;
};
constexpr Informe informes[] = {
    {"consultorio.rpt", "{consulta.fecha} >= date(2024,03,01) and {consulta.fecha} <= date(2024,03,31)",
     "viernes 15 de marzo de 2024 / 10:30\tD'Angelo Núñez, José\tTos & fiebre\tAsma, Otitis <media>\tAgua, Sal"},
    {"patologia.rpt",
     "{consulta.fecha} >= date(2024,03,01) and {consulta.fecha} <= date(2024,03,31) and ( {consulta.Diagnostico 1} "
     "= 'Otitis <media>' or {consulta.diagnostico 2} = 'Otitis <media>')",
     "15/03/2024\tD'Angelo Núñez, José\tVarón\tDra. Paz\tAsma, Otitis <media>"},
    {"pacientes.rpt", "{pacientes.numero} <> 0", "7\tD'Angelo Núñez, José\t29/02/2020"},
    {"CONS.RPT",
     "{Consulta.Fecha} >= date(2024,03,01) and {Consulta.fecha} <= date(2024,03,31) and {Consulta.Dr} = 'Dra. Paz' "
     "and  true  and {consulta.statusorden} = 'Entregada' and {Consulta.[Nombre del Paciente]} = 'D''Angelo Núñez, "
     "José' and TRUE",
     "15/03/2024\t10:30\tD'Angelo Núñez, José\tO'Brien\tDra. Paz\t\tEntregada\t1.250,50 / Total: 1\t"},
    {"turnos.rpt",
     "{Turnos.Fecha} >= date(2024,03,01) and {turnos.fecha} <= date(2024,03,31) and {Turnos.Dr} = 'Dra. Paz'",
     "Dra. Paz  / viernes 15 de marzo de 2024 / 10:30\tD'Angelo Núñez, José"},
    {"eventos.rpt", "{Eventos.Fecha} >= date(2024,03,01)",
     "15/03/2024\t10:30\tmaría\tTurnos\tBorró el de <D'Angelo>"},
    {"receta.rpt", "{recetario.idReceta} = 1", "\nAgua <destilada> & {{sal}}"},
    {"cie10.rpt", "{Diagnosticos.idDiagnostico} = 'A00.9'", "A00.9\tCólera, no especificado"},
    {"profesionales.rpt", "", "Dra. Paz\tPediatría"},
};

class InformesTest : public DeliveredBase
{
protected:
    static QString paginas(const char *archivo, const QString &seleccion)
    {
        const QString ruta = QStringLiteral(REPORT_FILES "/") + QString::fromUtf8(archivo);
        reports::Report informe(reports::readReportFile(ruta), MODULE11::BaseDatos, seleccion, {});
        QStringList textos;
        for (int pagina = 0; informe.hasPage(pagina); ++pagina)
            for (const reports::Report::Reading &parte : informe.read(pagina))
                textos += parte.text;
        return textos.join(u" / ");
    }
};

} // namespace

TEST_F(InformesTest, losEntregadosMuestranLoQueSuSeleccionElige)
{
    run({"INSERT INTO Profesionales (idProfesional, Nombre, Especialidad) VALUES (9, 'Dra. Paz', 'Pediatría')",
         "INSERT INTO Pacientes (Numero, [Apellido y Nombres], [Fecha de Nacimiento]) VALUES (7, 'D''Angelo Núñez, "
         "José', #02/29/2020#)",
         "INSERT INTO Consulta (Fecha, Hora, [Nombre del Paciente], Motivo, [Diagnostico 1], [Diagnostico 2], "
         "[Tratamiento 1], [Tratamiento 2], Sexo, Dr, Mutual, statusorden, Monto) VALUES (#03/15/2024#, #10:30#, "
         "'D''Angelo Núñez, José', 'Tos & fiebre', 'Asma', 'Otitis <media>', 'Agua', 'Sal', 'Varón', 'Dra. Paz', "
         "'O''Brien', 'Entregada', 1250.5)",
         "INSERT INTO Turnos (Fecha, Hora, Paciente, Dr) VALUES (#03/15/2024#, '10:30', 'D''Angelo Núñez, José', "
         "'Dra. Paz')",
         "INSERT INTO Eventos (Fecha, Hora, Usuario, Proceso, Suceso) VALUES (#03/15/2024#, '10:30', 'maría', "
         "'Turnos', 'Borró el de <D''Angelo>')",
         "INSERT INTO Recetario (Paciente, Receta, Dr) VALUES ('José', 'Agua <destilada> & {{sal}}', 'Dra. Paz')"});
    for (const Informe &cada : informes) {
        const QString texto = paginas(cada.archivo, QString::fromUtf8(cada.seleccion));
        EXPECT_TRUE(texto.contains(QString::fromUtf8(cada.muestra))) << cada.archivo << "\n"
                                                                     << texto.toStdString();
        const QString ninguno = paginas(cada.archivo, u"1 = 2"_s);
        EXPECT_TRUE(ninguno.contains(u"Sin datos"_s)) << cada.archivo << "\n" << ninguno.toStdString();
        EXPECT_FALSE(ninguno.contains(u"Total"_s)) << cada.archivo;
    }
}
