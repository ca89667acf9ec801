#include "core/database/actualiza.h"

#include "core/session/session.h"
#include "platform/basic/errors.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/boxes.h"

using namespace Qt::StringLiterals;

namespace MODULE11
{

namespace
{

// In this order; a later index needs an earlier column. Some fail at every run by design.
constexpr const char *antesDeLosEstados[] = {
    "ALTER TABLE TURNOS ADD COLUMN idTurno COUNTER",
    "CREATE INDEX idTurno ON Turnos (idTurno)",
    "ALTER TABLE Profesionales ADD COLUMN interturnos INTEGER",
    "ALTER TABLE TRATAMIENTOS ADD COLUMN IMAGEN TEXT(100)",
    "ALTER TABLE TRATAMIENTOS ADD COLUMN NOMBRECOMERCIAL TEXT(50)",
    "ALTER TABLE TRATAMIENTOS ADD COLUMN DETALLES MEMO",
    "ALTER TABLE PACIENTES ADD COLUMN IdProfesional LONG",
    "CREATE INDEX idProfesional ON Pacientes (IdProfesional)",
    "ALTER TABLE CAJA ADD COLUMN idCaja COUNTER",
    "ALTER TABLE Recetario ADD COLUMN idReceta COUNTER",
    "ALTER TABLE Recetario ADD COLUMN idPaciente Long",
    "CREATE INDEX idReceta on Recetario (idReceta)",
    "CREATE INDEX idPaciente on Recetario (idPaciente)",
    "CREATE TABLE ExFisico (idExFisico COUNTER, idPaciente LONG, idConsulta LONG, Fecha DATE, Titulo TEXT(50), Valor TEXT(100), Dr TEXT(50))",
    "CREATE INDEX idExFisico on ExFisico (idExFisico)",
    "CREATE INDEX idPaciente on ExFisico (idPaciente)",
    "CREATE INDEX Fecha on ExFisico (Fecha)",
    "ALTER TABLE Consulta ADD COLUMN idConsulta COUNTER",
    "CREATE INDEX idConsulta on Consulta (idConsulta)",
    "ALTER TABLE Recetario ADD COLUMN Dr TEXT(50)",
    "ALTER TABLE Tratamientos ADD COLUMN idTratamiento COUNTER",
    "CREATE INDEX idTratamiento on Tratamientos (idTratamiento)",
    "ALTER TABLE Diagnosticos ADD COLUMN idDiagnosticoCIE COUNTER",
    "CREATE INDEX idDiagnosticoCIE on Diagnosticos (idDiagnosticoCIE)",
    "ALTER TABLE DIAGPERSONALES ADD COLUMN idDiagPersonales COUNTER",
    "CREATE INDEX idDiagPersonales on DIAGPERSONALES (idDiagPersonales)",
    "ALTER TABLE Consulta ADD COLUMN Dosis1 TEXT(30)",
    "ALTER TABLE Consulta ADD COLUMN Dosis2 TEXT(30)",
    "ALTER TABLE Consulta ADD COLUMN Dosis3 TEXT(30)",
    "ALTER TABLE Consulta ADD COLUMN Dosis4 TEXT(30)",
    "ALTER TABLE Consulta ADD COLUMN Dosis5 TEXT(30)",
    "ALTER TABLE Consulta ADD COLUMN Intervalo1 TEXT(30)",
    "ALTER TABLE Consulta ADD COLUMN Intervalo2 TEXT(30)",
    "ALTER TABLE Consulta ADD COLUMN Intervalo3 TEXT(30)",
    "ALTER TABLE Consulta ADD COLUMN Intervalo4 TEXT(30)",
    "ALTER TABLE Consulta ADD COLUMN Intervalo5 TEXT(30)",
    "ALTER TABLE Consulta ADD COLUMN Lapso1 TEXT(30)",
    "ALTER TABLE Consulta ADD COLUMN Lapso2 TEXT(30)",
    "ALTER TABLE Consulta ADD COLUMN Lapso3 TEXT(30)",
    "ALTER TABLE Consulta ADD COLUMN Lapso4 TEXT(30)",
    "ALTER TABLE Consulta ADD COLUMN Lapso5 TEXT(30)",
    "ALTER TABLE Estudios ADD COLUMN Hora TIME",
    "ALTER TABLE Turnos ADD COLUMN Estado TEXT(20)",
    "CREATE INDEX Estado on Turnos (Estado)",
    "ALTER TABLE Consulta ADD COLUMN idPrestacion LONG",
    "CREATE INDEX IdPrestacion ON Consulta (IdPrestacion)",
    "ALTER TABLE Consulta ADD COLUMN NroOrden TEXT(50)",
    "ALTER TABLE Consulta ADD COLUMN ObrSocial TEXT(50)",
    "CREATE INDEX ObrSocial ON Consulta (ObrSocial)",
    "ALTER TABLE Consulta ADD COLUMN StatusOrden TEXT(20)",
    "CREATE INDEX StatusOrden ON Consulta (StatusOrden)",
    "ALTER TABLE [Obra Social] ADD COLUMN idObraSocial COUNTER",
    "CREATE INDEX IdObraSocial ON [Obra Social] (idObraSocial)",
    "ALTER TABLE Turnos ADD COLUMN idPaciente LONG",
    "ALTER TABLE Turnos ADD COLUMN idProfesional LONG",
    "ALTER TABLE Turnos ADD COLUMN idMutual LONG",
    "CREATE INDEX idPaciente ON Turnos (idPaciente)",
    "CREATE INDEX idProfesional ON Turnos (idProfesional)",
    "CREATE INDEX idMutual ON Turnos (idMutual)",
    "CREATE TABLE EstadosTurnos (idEstado COUNTER, Estado TEXT(40))",
    "CREATE INDEX idEstado ON EstadosTurnos (idEstado)",
    "CREATE INDEX Estado ON EstadosTurnos (Estado)",
    "ALTER TABLE Pacientes ADD COLUMN FechaBaja DATE",
};

constexpr const char *estados[] = {"Asignado", "Ausente", "En Curso", "En espera", "Espontáneo", "Rechazado"};

constexpr const char *trasLosEstados[] = {
    "CREATE TABLE Prestaciones (idPrestacion COUNTER, idGrupoPrestaciones LONG, Codigo TEXT(10), Descripcion TEXT(50), [Honorarios Especialista] Currency, [Honorarios Ayudantes] Currency, [Cantidad Ayudantes] Integer, [Total Honorarios] Currency, Gastos Currency, CoSeguro Currency, [Valor Total] Currency, idTipoUnidadArancelaria LONG, idPlanDeSalud LONG, TipoFacturacion TEXT(2), AlicuotaIva Currency)",
    "CREATE UNIQUE INDEX idPrestacion ON Prestaciones (idPrestacion) WITH PRIMARY",
    "CREATE INDEX Codigo ON Prestaciones (Codigo)",
    "CREATE INDEX Descripcion ON Prestaciones (Descripcion)",
    "CREATE INDEX idGrupo ON Prestaciones (idGrupo)",
    "CREATE INDEX idPlanDeSalud on Prestaciones (idPlanDeSalud)",
    "ALTER TABLE Usuarios ADD COLUMN Tipo Text(1)",
    "ALTER TABLE Usuarios ADD COLUMN idUsuario COUNTER",
    "CREATE UNIQUE INDEX idUsuario on Usuarios (idUsuario) WITH PRIMARY",
    "ALTER TABLE Profesionales ADD COLUMN TipoPermiso Text(1)",
    "ALTER TABLE Profesionales ADD COLUMN idUsuario LONG",
    "CREATE INDEX idUsuario ON Profesionales (idUsuario)",
    "ALTER TABLE Turnos ADD COLUMN Coseguro TEXT(60)",
    "ALTER TABLE Turnos ADD COLUMN Observaciones MEMO",
    "ALTER TABLE Consulta ADD COLUMN Facturada BIT",
    "CREATE INDEX Facturada ON Consulta (Facturada)",
    "ALTER TABLE Consulta ADD COLUMN TmpCheck Text(1)",
    "CREATE TABLE Facturacion (idFacturacion COUNTER, idPrestador LONG, Numero TEXT(15), Fecha DATE, idObraSocial LONG, Total CURRENCY, Cobrada BIT)",
    "CREATE INDEX idFacturacion on Facturacion (idFacturacion)",
    "CREATE INDEX Fecha on Facturacion (Fecha)",
    "CREATE INDEX idObraSocial on Facturacion (idObraSocial)",
    "CREATE INDEX Numero on Facturacion (Numero)",
    "CREATE INDEX idPrestador on Facturacion (idPrestador)",
    "CREATE TABLE DetalleFacturacion (idDetFacturacion COUNTER, idFactura LONG,idPaciente LONG, NroOrden TEXT (30), idPrestacion LONG, Importe CURRENCY, idConsulta LONG)",
    "CREATE INDEX idDetFacturacion on DetalleFacturacion (idDetFacturacion)",
    "CREATE INDEX idFactura on DetalleFacturacion (idFactura)",
    "CREATE INDEX idPaciente on DetalleFacturacion (idPaciente)",
    "CREATE INDEX idCOnsulta on DetalleFacturacion (idConsulta)",
    "ALTER TABLE Turnos ADD COLUMN Observaciones MEMO",
    "ALTER TABLE Niveles ADD COLUMN AgregarFacturacion BIT",
    "ALTER TABLE Niveles ADD COLUMN BorrarFacturacion BIT",
    "ALTER TABLE Niveles ADD COLUMN IngresarAFacturacion BIT",
};

constexpr const char *trasLosTamanos[] = {
    "ALTER TABLE Turnos ADD Column EDAD TEXT(15)",
    "UPDATE Niveles SET AgregarFacturacion = TRUE, BorrarFacturacion = TRUE, IngresarAFacturacion = TRUE WHERE Descripcion = 'supervisor' and Nivel = 3",
    "CREATE TABLE Articulos (idArticulo COUNTER, idProfesional LONG, Codigo TEXT(15), Descripcion TEXT(50), idProveedor LONG, idRubro LONG, StockActual DOUBLE, StockIdeal DOUBLE, StockMinimo DOUBLE, idUnidadMedida LONG, PrecioCostoSinImpuestos CURRENCY, CostoTotal CURRENCY, PrecioVenta CURRENCY)",
    "CREATE UNIQUE INDEX idArticulo ON Articulos (idArticulo)",
    "CREATE INDEX idProfesional ON Articulos (idProfesional)",
    "CREATE INDEX Codigo ON Articulos (Codigo)",
    "CREATE INDEX Descripcion ON Articulos (Descripcion)",
    "CREATE INDEX idProveedor ON Articulos (idProveedor)",
    "CREATE INDEX idRubro ON Articulos (idRubro)",
    "CREATE INDEX idUnidadMedida ON Articulos (idUnidadMedida)",
    "CREATE TABLE MovStock (idMovStock COUNTER, idArticulo LONG, Cantidad DOUBLE, Fecha DATE, idTipoMovimiento LONG, Comprobante TEXT(20))",
    "CREATE UNIQUE INDEX idMovStock on MovStock (idMovStock)",
    "CREATE INDEX idArticulo ON MovStock (idArticulo)",
    "CREATE INDEX Fecha ON MovStock (Fecha)",
    "CREATE INDEX idTipoMovimiento on MovStock (idTipoMovimiento)",
    "CREATE INDEX Comprobante ON MovStock (Comprobante)",
    "CREATE TABLE TipoMovimientos (idTipoMovimiento COUNTER, Descripcion TEXT(50))",
    "CREATE UNIQUE INDEX idTipoMovimiento ON TipoMovimientos (idTipoMovimiento)",
    "CREATE TABLE Proveedores (idProveedor COUNTER, Persona TEXT(50), Empresa TEXT(50), Domicilio TEXT(50), Telefono TEXT(50), Email TEXT(60), Cuit TEXT(15))",
    "CREATE UNIQUE INDEX idProveedor ON Proveedores (idProveedor)",
    "CREATE INDEX Persona ON Proveedores (Persona)",
    "CREATE INDEX Empresa ON Proveedores (Empresa)",
    "CREATE TABLE Rubros (idRubro COUNTER, Descripcion TEXT(50))",
    "CREATE UNIQUE INDEX idRubro ON Rubros (idRubro)",
    "CREATE TABLE UnidadMedidas (idUnidadMedida COUNTER, Descripcion TEXT(50))",
    "CREATE UNIQUE INDEX idUnidadMedida ON UnidadMedidas (idUnidadMedida)",
};

// No rule asks for these; speed does. A visit on the screen asks for its examination by patient and day, a
// visit deleted takes its rows by number, and a practice of years has a million of them: an index over the
// patient alone leaves all rows of a child of many visits to be read, one over the day those of all children.
// The reports list the visits by day and hour: unsorted, their first page waits for a million to be put in
// order. Who is late for a vaccine is asked dose by dose of all patients at once: the index holds all that is
// asked. The day book lists its visits by their hour and sums them at every arrow key; the pending ones of an
// insurer are summed at every change: both indexes hold all that is asked. The marks of a bill are a few
// among all visits. The cashbook adds its amounts at each step: from an index that holds them.
constexpr const char *indicesDeVelocidad[] = {
    "CREATE INDEX PacFecha ON ExFisico (idPaciente, Fecha)",
    "CREATE INDEX idConsulta ON ExFisico (idConsulta)",
    "CREATE INDEX fechaPaciente ON Recetario (fecha, Paciente)",
    "CREATE INDEX FechaHora ON Consulta (Fecha, Hora)",
    "CREATE INDEX Poblacion ON Consulta (Sexo, Edad, Tipo, Fecha)",
    "CREATE INDEX PorDosis ON Vacunas (Vacuna, Dosis, Paciente, fecha, observaciones)",
    "CREATE INDEX idCaja ON Caja (idCaja)",
    "CREATE INDEX FechaMontos ON Caja (Fecha, Cuenta, Entrada, Salida)",
    "CREATE INDEX ArticuloFecha ON MovStock (idArticulo, Fecha)",
    "CREATE INDEX DiaDelConsultorio ON Consulta (Fecha, Dr, Mutual, Monto, Hora)",
    "CREATE INDEX PorFacturar ON Consulta (Dr, Mutual, Facturada, Fecha, Monto)",
    "CREATE INDEX Marcadas ON Consulta (TmpCheck, Facturada)",
};

// The allergy record of a patient and the lines of the patient's history stand in one table: the record has
// no `Antecedente`. Older files allowed one row a patient.
constexpr const char *antecedentesDeVariasFilas[] = {
    "DROP INDEX PrimaryKey ON [Antecedentes Personales]",
    "CREATE INDEX paciente ON [Antecedentes Personales] (paciente)",
};

// The plan of accounts is kept as the other catalogues are, by a key.
constexpr const char *clavesDeCatalogos[] = {"ALTER TABLE Cuentas ADD COLUMN idCuenta COUNTER"};

/// What a new stock begins with.
struct Inicio {
    const char *tabla;
    std::initializer_list<const char *> descripciones;
};
constexpr std::initializer_list<const char *> tiposDeMovimiento = {
    "Ajuste de inventario", "Compra", "Consumo", "Devolución", "Donación", "Vencimiento"};
constexpr std::initializer_list<const char *> unidades = {"Ampolla", "Caja",  "Comprimido", "Frasco",
                                                          "Litro",   "Metro", "Paquete",    "Unidad"};
constexpr std::initializer_list<const char *> rubros = {"Descartables", "Instrumental", "Librería",
                                                        "Limpieza",     "Medicamentos", "Vacunas"};
constexpr Inicio iniciosDeStock[] = {
    {"TipoMovimientos", tiposDeMovimiento}, {"UnidadMedidas", unidades}, {"Rubros", rubros}};

constexpr const char *columnasDelResumen[] = {"ALTER TABLE Gineco ADD COLUMN Paridad TEXT(30)"};

// The reference of pressures once had the columns of a measuring.
constexpr const char *columnasAjenasDePresion[] = {
    "ALTER TABLE Presion DROP COLUMN Maxima",
    "ALTER TABLE Presion DROP COLUMN Minima",
    "ALTER TABLE Presion DROP COLUMN Fecha",
};

// The notes of the gynaecological sub-specialties are dated: they belong to the examinations.
constexpr const char *columnasDeExamenGO[] = {
    "ALTER TABLE ExamenGO ADD COLUMN Obs_Menopausia MEMO",
    "ALTER TABLE ExamenGO ADD COLUMN Obs_Mastologia MEMO",
    "ALTER TABLE ExamenGO ADD COLUMN Obs_Infecciosas MEMO",
    "ALTER TABLE ExamenGO ADD COLUMN Obs_Esterilidad MEMO",
    "ALTER TABLE ExamenGO ADD COLUMN Obs_GinInfJuvenil MEMO",
    "ALTER TABLE ExamenGO ADD COLUMN Obs_EnfVaginaVulva MEMO",
    "ALTER TABLE ExamenGO ADD COLUMN Obs_EnfUteroAnexos MEMO",
    "ALTER TABLE ExamenGO ADD COLUMN Obs_Oncologia MEMO",
};

constexpr const char *tablasDeVacunas[] = {
    "CREATE TABLE EdadesVacunas (Vacuna TEXT(20), Dosis TEXT(30), edad_recomendada_dias LONG, edad_minima_dias LONG, edad_maxima_dias LONG, intervalo_minimo_dias LONG, grupo TEXT(255))",
    "CREATE INDEX VacunaDosis ON EdadesVacunas (Vacuna, Dosis)",
    "CREATE TABLE CartasVacunas (Lote TEXT(40), Paciente LONG, Renglon LONG, Vacuna TEXT(100), Dosis TEXT(30), Atraso TEXT(60))",
    "CREATE INDEX Lote ON CartasVacunas (Lote)",
};

// What a practice notes of its laboratory: the tests that it orders together, and from and to what a result
// is normal. Its tests are those that its table of orders has.
constexpr const char *tablasDeLaboratorio[] = {
    "CREATE TABLE PerfilesLaboratorio (Perfil TEXT(60), Estudio TEXT(64))",
    "CREATE INDEX Perfil ON PerfilesLaboratorio (Perfil)",
    "CREATE TABLE RangosLaboratorio (Estudio TEXT(64), Minimo DOUBLE, Maximo DOUBLE)",
    "CREATE UNIQUE INDEX Estudio ON RangosLaboratorio (Estudio)",
};

// Motives and prescriptions that the practice writes again and again in its eye visits.
constexpr const char *tablasDeOftalmologia[] = {
    "CREATE TABLE AuxiliarOftalmo (Clase TEXT(4), Descripcion TEXT(255))",
    "CREATE INDEX Clase ON AuxiliarOftalmo (Clase, Descripcion)",
};

// A line of a budget keeps the name that its practice had; those of older versions have only its key. The key
// of the budget stands in its head.
constexpr const char *renglonesDePresupuesto =
    "Select RelPractico.codpresupuesto, RelPractico.codpractico, "
    "IIf(RelPractico.detalle Is Null, Practicos.detalle, RelPractico.detalle) AS detalle, RelPractico.cantidad, "
    "RelPractico.precio, RelPractico.subtotal, Presupuestos.idpresupuesto FROM (RelPractico LEFT JOIN Practicos "
    "ON RelPractico.codpractico = Practicos.idpractico) LEFT JOIN Presupuestos "
    "ON RelPractico.codpresupuesto = Presupuestos.idpresupuesto";
constexpr const char *indicesDeOdontologia[] = {
    "CREATE INDEX fecha ON Presupuestos (fecha)",
    "CREATE INDEX detalle ON Practicos (detalle)",
};

/// A statement that has taken effect fails, and so does one that names a column that never was.
constexpr std::initializer_list<int> yaHecho = {
    dao::Error::TableExists,   dao::Error::IndexExists,  dao::Error::FieldExists,   dao::Error::FieldNotFound,
    dao::Error::TableNotFound, dao::Error::ItemNotFound, dao::Error::BadParameters, dao::Error::NotATable,
    dao::Error::DuplicateKey,  dao::Error::IndexNotFound};

constexpr int largoDeClave = 60;
constexpr int largoDeResultado = 255, largoDeCorreccion = 255;

void ejecuta(const QString &sentencia)
{
    basic::ignoring(yaHecho, [&] { BaseDatos.execute(sentencia); });
}

template <std::size_t n>
void ejecuta(const char *const (&sentencias)[n])
{
    for (const char *sentencia : sentencias)
        ejecuta(QString::fromUtf8(sentencia));
}

/// Gives a column of `Turnos` that is still `tamano` characters long its present 60; its values are lost. One
/// that an upgrade of an older version, interrupted between the two steps, has left out comes back.
void alargaCampoDeTurnos(const QString &campo, int tamano)
{
    const QString agregar = u"ALTER TABLE Turnos ADD COLUMN %1 TEXT(60)"_s.arg(campo);
    const dao::TableDef turnos = BaseDatos.tableDef(u"turnos");
    const dao::FieldDef *columna = turnos.field(campo);
    if (columna && columna->size == tamano)
        ejecuta(u"ALTER TABLE Turnos DROP COLUMN "_s + campo);
    ejecuta(agregar);
}

/// A test whose result is told in words needs room for them. The tests are the columns of the table, whatever
/// they are.
void alargaResultados()
{
    const dao::TableDef analisis = BaseDatos.tableDef(u"Analisis");
    for (const dao::FieldDef &columna : analisis.fields())
        if (columna.type == dao::FieldType::Text && columna.size < largoDeResultado)
            BaseDatos.widenText(u"Analisis"_s, columna.name, largoDeResultado);
}

/// Gives a column another type; what it holds stays, read by `valor`, where %1 is the column.
void cambiaTipo(const QString &tabla, const QString &campo, const QString &tipo, const QString &valor)
{
    const QString paso = u"enCambio"_s;
    const auto agregar = [&](const QString &nombre) {
        BaseDatos.execute(u"ALTER TABLE %1 ADD COLUMN [%2] %3"_s.arg(tabla, nombre, tipo));
    };
    const auto pasar = [&](const QString &de, const QString &a, const QString &leido) {
        BaseDatos.execute(u"UPDATE %1 SET [%2] = %3 WHERE [%4] IS NOT NULL"_s.arg(tabla, a, leido, de));
        BaseDatos.execute(u"ALTER TABLE %1 DROP COLUMN [%2]"_s.arg(tabla, de));
    };
    agregar(paso);
    pasar(campo, paso, valor.arg(campo));
    agregar(campo);
    pasar(paso, campo, paso);
}

bool esNumero(const dao::FieldDef &columna)
{
    return columna.type == dao::FieldType::Double || columna.type == dao::FieldType::Long;
}

/// The birth record takes what is written, number or not; the patient's number alone is one.
void liberaFichaPerinatal()
{
    const dao::TableDef perinatal = BaseDatos.tableDef(u"Perinatal");
    for (const dao::FieldDef &columna : perinatal.fields())
        if (esNumero(columna) && columna.name.compare(u"IdPaciente", Qt::CaseInsensitive) != 0)
            cambiaTipo(u"Perinatal"_s, columna.name, u"TEXT(30)"_s, u"[%1] & ''"_s);
}

/// A test that was not made is neither positive nor negative. Where there was no third answer, one that was
/// not positive counts as made if its value was written.
void distingueScreeningNoHecho()
{
    const dao::TableDef perinatal = BaseDatos.tableDef(u"Perinatal");
    for (const QString &campo : {u"Screening - TSH Neonatal"_s, u"Screening - Fenilanalina Neonatal"_s})
        if (const dao::FieldDef *columna = perinatal.field(campo);
            columna && columna->type == dao::FieldType::Bit)
            cambiaTipo(u"Perinatal"_s, campo, u"TEXT(2)"_s,
                       u"IIf([%1], 'SI', IIf([%1 (Valor)] & '' <> '', 'NO', Null))"_s);
}

/// A pressure may be the mean of several takings.
void fraccionaPresiones()
{
    const dao::TableDef tomas = BaseDatos.tableDef(u"TomaPresion");
    for (const QString &campo : {u"minima"_s, u"maxima"_s})
        if (const dao::FieldDef *columna = tomas.field(campo);
            columna && columna->type == dao::FieldType::Long)
            cambiaTipo(u"TomaPresion"_s, campo, u"DOUBLE"_s, u"[%1]"_s);
}

/// An eye visit is known by its number, and a correction may be told in many words. Numbers that nobody gave
/// out are given out anew: no other table keeps them.
void reparaConsultasOftalmologicas()
{
    const dao::TableDef visitas = BaseDatos.tableDef(u"ConsultaOftalmo");
    if (const dao::FieldDef *id = visitas.field(u"idConsulta"); id && id->type != dao::FieldType::Counter) {
        ejecuta(u"DROP INDEX idConsulta ON ConsultaOftalmo"_s);
        BaseDatos.execute(u"ALTER TABLE ConsultaOftalmo DROP COLUMN idConsulta"_s);
        BaseDatos.execute(u"ALTER TABLE ConsultaOftalmo ADD COLUMN idConsulta COUNTER"_s);
        BaseDatos.execute(u"CREATE INDEX idConsulta ON ConsultaOftalmo (idConsulta)"_s);
    }
    for (int n = 1; n <= 4; ++n)
        BaseDatos.widenText(u"ConsultaOftalmo"_s, u"Auxiliar%1"_s.arg(n), largoDeCorreccion);
}

/// Once: the column tells whether it was done.
void reparaPresupuestos()
{
    if (BaseDatos.tableDef(u"RelPractico").field(u"detalle"))
        return;
    BaseDatos.execute(u"ALTER TABLE RelPractico ADD COLUMN detalle TEXT(100)"_s);
    BaseDatos.createQuery(u"ConsultaPresupuesto"_s, QString::fromUtf8(renglonesDePresupuesto));
}

/// Once, with the tables: what a practice has taken off does not come back.
void iniciaStock()
{
    for (const Inicio &inicio : iniciosDeStock)
        for (const char *descripcion : inicio.descripciones)
            BaseDatos.execute(u"INSERT INTO %1 (Descripcion) VALUES (%2)"_s.arg(
                QString::fromUtf8(inicio.tabla), dao::quoted(QString::fromUtf8(descripcion))));
}

/// A stock that was never written is none.
void reparaStock()
{
    ejecuta(u"UPDATE Articulos SET StockActual = 0 WHERE StockActual IS NULL"_s);
}

/// Accounts of older versions have no type; they count as doctors.
void reparaTipoDeUsuarios()
{
    ejecuta(u"UPDATE Usuarios SET Tipo = 'M' WHERE Tipo IS NULL"_s);
}

} // namespace

/// All of it is one stroke: a station that is interrupted leaves the file as it was, and of two that start at
/// once the second finds it done.
void ActualizaBase()
{
    if (!BaseDatos.isOpen())
        return;
    dao::Batch lista(BaseDatos);
    ejecuta(antesDeLosEstados);
    for (const char *estado : estados)
        basic::ignoring(yaHecho, [&] { AgregaEstadoTurno(QString::fromUtf8(estado)); });
    ejecuta(trasLosEstados);
    basic::ignoring(yaHecho, [] {
        alargaCampoDeTurnos(u"Coseguro"_s, 20);
        alargaCampoDeTurnos(u"Motivo"_s, 50);
    });
    const bool stockNuevo = !BaseDatos.tableNames().contains(u"TipoMovimientos"_s, Qt::CaseInsensitive);
    ejecuta(trasLosTamanos);
    if (stockNuevo)
        iniciaStock();
    reparaStock();
    ejecuta(indicesDeVelocidad);
    ejecuta(antecedentesDeVariasFilas);
    ejecuta(clavesDeCatalogos);
    ejecuta(columnasDelResumen);
    ejecuta(columnasAjenasDePresion);
    basic::ignoring(yaHecho, liberaFichaPerinatal);
    basic::ignoring(yaHecho, distingueScreeningNoHecho);
    basic::ignoring(yaHecho, fraccionaPresiones);
    ejecuta(columnasDeExamenGO);
    ejecuta(tablasDeVacunas);
    ejecuta(tablasDeLaboratorio);
    ejecuta(tablasDeOftalmologia);
    basic::ignoring(yaHecho, reparaConsultasOftalmologicas);
    basic::ignoring(yaHecho, reparaPresupuestos);
    ejecuta(indicesDeOdontologia);
    reparaTipoDeUsuarios();
    basic::ignoring(yaHecho, [] { BaseDatos.widenText(u"Usuarios"_s, u"Clave"_s, largoDeClave); });
    basic::ignoring(yaHecho, alargaResultados);
    lista.commit();
}

void AgregaEstadoTurno(const QString &estado)
{
    dao::Recordset filas =
        BaseDatos.openRecordset(u"Select * from EstadosTurnos where estado = "_s + dao::quoted(estado));
    if (!filas.eof())
        return;
    filas.addNew();
    filas[u"estado"] = estado;
    filas.update();
}

void ModificaCampo(const QString &tabla, const QString &campo, dao::FieldType tipo, int tamano,
                   const QString &accion)
{
    dao::TableDef definicion = BaseDatos.tableDef(tabla);
    if (!definicion.updatable()) {
        forms::msgBox(u"¡TableDef no se puede actualizar! No se puede terminar la tarea."_s,
                      forms::Icon::None, u"Error"_s);
        return;
    }
    if (accion == u"DELETE")
        definicion.deleteField(campo);
    else if (!definicion.field(campo))
        definicion.append({campo, tipo, tamano});
}

} // namespace MODULE11
