#include "delivered.h"

#include "core/service/archivos.h"
#include "core/service/nombres.h"
#include "core/service/seleccion.h"
#include "core/service/vaciado.h"
#include "core/services/criterio.h"
#include "core/session/recetario.h"

using namespace Qt::StringLiterals;
using dao::FieldType;
using MODULE11::BaseDatos;

namespace
{

dao::FieldDef campo(FieldType tipo)
{
    return {u"Un campo"_s, tipo};
}

QString escrito(FieldType tipo, const QString &valor, const QString &comparacion = u"="_s)
{
    return seleccion::criterio(campo(tipo), comparacion, valor).value_or(u"<nada>"_s);
}

} // namespace

TEST(Seleccion, theValueHasTheFormOfItsColumn)
{
    EXPECT_EQ(escrito(FieldType::Text, u"D'Angelo"_s), u"[Un campo] = 'D''Angelo'"_s);
    EXPECT_EQ(escrito(FieldType::Memo, u"' or 1=1"_s, u">"_s), u"[Un campo] > ''' or 1=1'"_s);
    EXPECT_EQ(escrito(FieldType::Text, u"d'an"_s, u"LIKE"_s), u"[Un campo] LIKE '*d''an*'"_s);
    EXPECT_EQ(escrito(FieldType::Date, u"1/3/2024"_s, u"<="_s), u"[Un campo] <= cdate('1/3/2024')"_s);
    EXPECT_EQ(escrito(FieldType::Time, u"9:30"_s), u"[Un campo] = cdate('9:30')"_s);
    EXPECT_EQ(escrito(FieldType::Currency, u"1.234,5"_s), u"[Un campo] = 1234.5"_s);
    EXPECT_EQ(escrito(FieldType::Long, u" -3 "_s), u"[Un campo] = -3"_s);
    EXPECT_EQ(escrito(FieldType::Double, u"1,5"_s, u"LIKE"_s), u"[Un campo] LIKE 1.5"_s) << "bare";
    EXPECT_EQ(escrito(FieldType::Bit, u"SÍ"_s), u"[Un campo] = -1"_s);
    EXPECT_EQ(escrito(FieldType::Bit, u"Falso"_s), u"[Un campo] = 0"_s);
    for (const auto &[tipo, valor] : {std::pair{FieldType::Date, u"31/2/2024"_s},
                                      {FieldType::Double, u"12abc"_s},
                                      {FieldType::Counter, u"1; drop table Caja"_s},
                                      {FieldType::Time, u"tarde"_s},
                                      {FieldType::Bit, u"quizás"_s}})
        EXPECT_EQ(escrito(tipo, valor), u"<nada>"_s) << valor.toStdString();
}

TEST(Seleccion, clausesTakeTheirPlaceInTheText)
{
    EXPECT_EQ(seleccion::consulta(u"Obra Social"_s, {}, {}), u"Select * from [Obra Social]"_s);
    EXPECT_EQ(seleccion::consulta(u"Order"_s, u"[a] = 1"_s, u"b"_s),
              u"Select * from [Order] where [a] = 1 order by [b]"_s);
    EXPECT_EQ(seleccion::deColumnas(u"Caja"_s, {u"Fecha"_s, u"Obra Social"_s}),
              u"Select [Fecha], [Obra Social] FROM Caja"_s);
    EXPECT_EQ(seleccion::conOrden(u"Select * from Caja order by [where order by];"_s, {u"Fecha"_s}),
              u"Select * from Caja ORDER BY [Fecha]"_s);
    EXPECT_EQ(seleccion::conCriterio(u"Select * from Caja ORDER BY [Fecha]"_s, u"[a] = 1"_s),
              u"Select * from Caja where [a] = 1 ORDER BY [Fecha]"_s);
    EXPECT_EQ(seleccion::conCriterio(u"Select * from Caja where [a] = 'x where' or [b] = 2"_s, u"[c] = 3"_s),
              u"Select * from Caja where ([a] = 'x where' or [b] = 2) and [c] = 3"_s);
    EXPECT_EQ(seleccion::conCriterio(u"Select a from (Select a from Caja where b = 1) as t group by a"_s,
                                     u"[c] = 3"_s),
              u"Select a from (Select a from Caja where b = 1) as t where [c] = 3 group by a"_s);
}

TEST(Nombres, whatAStatementCannotNameIsRefused)
{
    EXPECT_EQ(service::reparoDelNombre(u"Ácido D'Amico (2ª)"_s), QString());
    for (const QString &malo : {QString(), u"a]b"_s, u"a.b"_s, u"a\nb"_s, u"a\"b"_s, QString(65, u'x')})
        EXPECT_NE(service::reparoDelNombre(malo), QString()) << malo.toStdString();
}

class ServicioTest : public DeliveredBase
{
};

TEST_F(ServicioTest, whoUsesTheProgramIsOutOfReach)
{
    run({"CREATE TABLE MSyAlgo (a LONG)", "CREATE TABLE Mesas (a LONG)"});
    const QStringList tablas = archivos::tablas();
    EXPECT_TRUE(tablas.contains(u"Pacientes"_s) && tablas.contains(u"Mesas"_s));
    for (const QString &tabla : {u"Usuarios"_s, u"Eventos"_s, u"Niveles"_s, u"MSyAlgo"_s})
        EXPECT_FALSE(tablas.contains(tabla, Qt::CaseInsensitive)) << tabla.toStdString();
    BaseDatos.createQuery(u"Claves"_s, u"Select Clave from Usuarios"_s);
    for (const char *sql :
         {"Select * from USUARIOS", "Select * from [usuarios]", "Select * from Claves",
          "Select * from Caja, Niveles as n", "Select * from Caja union Select * from Eventos",
          "Select * from Caja inner join [Usuarios] on Caja.idCaja = Usuarios.idUsuario",
          "Select (Select top 1 Clave from Usuarios) from Caja",
          "Select * from Caja where exists (Select * from usuarios)",
          "Select idCaja from Caja order by (Select max(Nivel) from usuarios)",
          "Select count(*) from Caja group by Fecha having count(*) in (Select Nivel from Usuarios)"})
        EXPECT_FALSE(archivos::alcanza(QString::fromUtf8(sql))) << sql;
    EXPECT_TRUE(archivos::alcanza(u"Select 'Usuarios' from Caja as Usuarios, [pacientes]"_s));
    EXPECT_THROW(archivos::alcanza(u"Delete * from Caja"_s), dao::Error);
}

TEST_F(ServicioTest, emptyingPassesOverWhatIsNotThereAndKeepsTheRest)
{
    run({"INSERT INTO Consulta (Paciente) VALUES (1)", "INSERT INTO [Examen Fisico] (Paciente) VALUES (1)",
         "INSERT INTO DetalleFacturacion (idFactura) VALUES (1)", "INSERT INTO Caja (Detalle) VALUES ('x')",
         "DROP TABLE Alergia"});
    const auto columnas = BaseDatos.tableDef(u"Consulta").fields();
    QStringList pasos;
    const vaciado::Resultado hecho = vaciado::vaciar(BaseDatos, [&](const QString &tabla) {
        pasos += tabla;
        return true;
    });
    EXPECT_EQ(pasos.size(), 36);
    EXPECT_EQ(pasos.first() + u' ' + pasos.last(), u"CONSULTA DETALLEFACTURACION"_s);
    EXPECT_EQ(hecho.vaciadas, 35);
    EXPECT_TRUE(hecho.fallas.isEmpty() && !hecho.detenido);
    EXPECT_EQ(one(u"Select count(*) from Caja"_s), u"1"_s);
    EXPECT_EQ(BaseDatos.tableDef(u"Consulta").fields(), columnas);
    for (const vaciado::Cuenta &cuenta : vaciado::cuentas())
        EXPECT_EQ(cuenta.registros, cuenta.tabla == u"ALERGIA" ? std::nullopt : std::optional<qint64>(0))
            << cuenta.tabla.toStdString();
}

TEST_F(ServicioTest, emptyingStopsBetweenTablesAndNamesWhatItCouldNotEmpty)
{
    run({"INSERT INTO Consulta (Paciente) VALUES (1)", "INSERT INTO Visual (Paciente) VALUES (1)"});
    const vaciado::Resultado hecho =
        vaciado::vaciar(BaseDatos, [](const QString &tabla) { return tabla == u"CONSULTA"; });
    EXPECT_TRUE(hecho.detenido);
    EXPECT_EQ(one(u"Select count(*) from Consulta"_s) + one(u"Select count(*) from Visual"_s), u"01"_s);
    dao::Database otra; // another station holds the file
    otra.open(BaseDatos.path(), false, false, MODULE11::conexionDeLaBase());
    BaseDatos.setPatience(1);
    dao::Batch sinSoltar(otra);
    otra.execute(u"INSERT INTO Visual (Paciente) VALUES (2)"_s);
    const vaciado::Resultado fallido = vaciado::vaciar(BaseDatos, [](const QString &) { return true; });
    EXPECT_EQ(fallido.vaciadas, 0);
    EXPECT_EQ(fallido.fallas.size(), 36);
}

TEST_F(ServicioTest, onlyALayoutServesAsOne)
{
    EXPECT_TRUE(MODULE11::esRecetario(u"posrecetario"_s));
    EXPECT_FALSE(MODULE11::esRecetario(u"Pacientes"_s));
    EXPECT_FALSE(MODULE11::esRecetario(u"No hay"_s));
    MODULE11::crearRecetario(u"Dr D'Amico"_s);
    EXPECT_TRUE(MODULE11::esRecetario(u"DR D'AMICO"_s));
    EXPECT_THROW(MODULE11::crearRecetario(u"Pacientes"_s), dao::Error);
}
