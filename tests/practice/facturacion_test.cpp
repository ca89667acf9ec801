#include "delivered.h"

#include "platform/basic/errors.h"
#include "practice/billing/facturacion.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace
{

basic::Date march15()
{
    return basic::Date(QDate(2024, 3, 15));
}

const facturacion::Partes parties{1, 1, u"Dra. O'Higgins"_s, u"Mutual d'Oc"_s};

/// Three visits that are marked, the second without an amount.
class Bills : public DeliveredBase
{
protected:
    void SetUp() override
    {
        DeliveredBase::SetUp();
        run({"Delete * from [Obra Social]", "INSERT INTO [Obra Social] (Descripcion) VALUES ('Mutual d''Oc')",
             "INSERT INTO Profesionales (idProfesional, Nombre) VALUES (1, 'Dra. O''Higgins')"});
        addVisits(3);
        run({"UPDATE Consulta SET Monto = Null WHERE idConsulta = 2"});
    }

    static void addVisits(int count)
    {
        dao::Batch together(BaseDatos);
        dao::Recordset visits = BaseDatos.openRecordset(u"Consulta"_s);
        for (int i = 0; i < count; ++i) {
            visits.addNew();
            visits[u"Paciente"] = 7;
            visits[u"Fecha"] = march15();
            visits[u"Dr"] = parties.prestador;
            visits[u"Mutual"] = parties.obraSocial;
            visits[u"Monto"] = basic::Currency::fromUnits(10001);
            visits[u"NroOrden"] = QString(50, u'9');
            visits[u"TmpCheck"] = u"o"_s;
            visits.update();
        }
        together.commit();
    }
    static qint64 bill(const QString &number, bool posted = false)
    {
        return facturacion::factura(BaseDatos, parties, {number, march15(), false, posted}).value_or(0);
    }
};

/// Another workstation, a process of its own, bills whatever is marked.
pid_t stationThatBills(const QString &path)
{
    const pid_t station = fork();
    if (station != 0)
        return station;
    int result = 1;
    try {
        dao::Database own;
        own.open(path, false, false, MODULE11::conexionDeLaBase());
        facturacion::factura(own, parties, {u"X"_s, march15(), false, false});
        own.close();
        result = 0;
    } catch (const std::exception &) {
    }
    _exit(result);
}

} // namespace

TEST(BillNumbers, goUpByOneInTheirPlaces)
{
    EXPECT_EQ(facturacion::siguiente(u"X0001-00000009"_s), u"X0001-00000010");
    EXPECT_EQ(facturacion::siguiente(u"A 99"_s), u"A 100");
    EXPECT_EQ(facturacion::siguiente(u"0001-07 bis"_s), u"0001-08 bis");
    EXPECT_EQ(facturacion::siguiente(u"sin número"_s), u"X0001-00000001");
}

TEST_F(Bills, takeEveryMarkedVisitUnderTheirHeader)
{
    run({"UPDATE Consulta SET Mutual = 'Otra', Dr = 'Otro' WHERE idConsulta = 3"});
    EXPECT_EQ(one(facturacion::sumaDePendientes(parties, march15(), march15())), u"1,0001");
    EXPECT_EQ(facturacion::proximoNumero(BaseDatos, 1), u"X0001-00000001");
    const qint64 key = bill(u"X0001-00000007"_s, true);
    EXPECT_EQ(facturacion::proximoNumero(BaseDatos, 1), u"X0001-00000008");
    EXPECT_EQ(rows(u"Select idPrestador, idObraSocial, Total from Facturacion"_s), u"1,1,2,0002");
    EXPECT_EQ(rows(u"Select idConsulta, Importe, Len(NroOrden) from DetalleFacturacion where idFactura = %1 "
                   u"order by idDetFacturacion"_s.arg(key)),
              u"1,1,0001,30|2,,30|3,1,0001,30");
    EXPECT_EQ(one(u"Select count(*) from Consulta where Facturada = -1 and TmpCheck = ''"_s), u"3");
    EXPECT_EQ(rows(u"Select Cuenta, Detalle, Entrada, Salida, Hora, Tipo from Caja"_s),
              u"Facturacion,Cobro de factura X0001-00000007,2,0002,0,00:00,-");
    EXPECT_EQ(bill(u"X0001-00000008"_s), 0); // nothing is left
    EXPECT_EQ(one(u"Select count(*) from Facturacion"_s), u"1");
    // neither patient nor service is there any more
    EXPECT_EQ(column(facturacion::detalle(key)).size(), 3);
    EXPECT_EQ(one(facturacion::detalle(key).replace(u"DetalleFacturacion.idDetFacturacion, "_s, QString())),
              u"<Null>");
}

TEST_F(Bills, keepTheirLinesAfterTheTableWasEmptied)
{
    bill(u"1"_s);
    run({"DELETE * FROM FACTURACION"}); // its lines stay behind
    addVisits(1);
    const qint64 key = bill(u"2"_s);
    EXPECT_EQ(one(u"Select count(*) from DetalleFacturacion where idFactura = %1"_s.arg(key)), u"1");
    EXPECT_EQ(one(u"Select Total from Facturacion"_s), u"1,0001");
}

TEST_F(Bills, areCollectedOnce)
{
    const qint64 key = bill(u"9"_s);
    EXPECT_TRUE(facturacion::cobra(BaseDatos, key, true, march15()));
    EXPECT_FALSE(facturacion::cobra(BaseDatos, key, true, march15()));
    EXPECT_EQ(rows(u"Select Detalle, Entrada from Caja"_s), u"Cobro de factura 9,2,0002");
    EXPECT_EQ(column(facturacion::sinCobrar(parties, march15(), march15())), QStringList());
    EXPECT_EQ(one(facturacion::sumaDeCobradas(parties, 2024)), u"2,0002");
    EXPECT_EQ(one(facturacion::sumaDeCobradas(parties, 2023)), u"<Null>");
    facturacion::Partes another = parties;
    another.idObraSocial = 2;
    EXPECT_EQ(column(facturacion::cobradas(another, 2024)), QStringList());
    another.idObraSocial = 0;
    EXPECT_EQ(column(facturacion::cobradas(another, 2024)).size(), 1);
}

/// However the strokes of three stations fall between one another, a visit stands on one bill, and a bill's
/// total is that of its lines.
TEST_F(Bills, ofStationsShareNoVisit)
{
    addVisits(2500);
    run({"UPDATE Consulta SET Monto = 1 WHERE idConsulta = 2"});
    const QString path = folder.filePath(u"BASE.MDB"_s);
    MODULE11::BaseDatos.close();
    std::vector<pid_t> stations;
    for (int i = 0; i < 3; ++i)
        stations.push_back(stationThatBills(path));
    for (const pid_t station : stations) {
        int status = 1;
        waitpid(station, &status, 0);
        EXPECT_EQ(status, 0);
    }
    MODULE11::BaseDatos.open(path, false, false, MODULE11::conexionDeLaBase());
    EXPECT_EQ(one(u"Select count(*) from DetalleFacturacion"_s), u"2503");
    EXPECT_EQ(column(u"Select idConsulta from DetalleFacturacion group by idConsulta having count(*) > 1"_s),
              QStringList());
    EXPECT_EQ(one(u"Select count(*) from Consulta where Facturada = FALSE or TmpCheck = 'o'"_s), u"0");
    EXPECT_EQ(one(u"Select sum(Total) from Facturacion"_s),
              one(u"Select sum(Importe) from DetalleFacturacion"_s));
    for (const QString &key : column(u"Select idFacturacion from Facturacion"_s))
        EXPECT_EQ(one(u"Select sum(Importe) from DetalleFacturacion where idFactura = "_s + key),
                  one(u"Select Total from Facturacion where idFacturacion = "_s + key));
}
