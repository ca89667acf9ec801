#include "seeds.h"

#include "csv.h"

#include <set>

using namespace Qt::StringLiterals;

namespace seeds
{

namespace
{

constexpr Query savedQueries[] = {
    {"ConsultaDiagnostico",
     "Select Diagnosticos.descripcion, Diagnosticos.idDiagnostico, Diagnosticos.idDiagnosticoCIE, "
     "Diagnosticos.idCategoria, Categorias.idClasificacion FROM Diagnosticos INNER JOIN Categorias "
     "ON Diagnosticos.idCategoria = Categorias.idCategoria"},
    {"ConsPresupuesto",
     "Select Presupuestos.idpresupuesto, Presupuestos.fecha, Presupuestos.Descripcion, Pacientes.Numero, "
     "Pacientes.[Apellido y Nombres] FROM Presupuestos LEFT JOIN Pacientes "
     "ON Presupuestos.codpaciente = Pacientes.Numero"},
    {"ConsultaPresupuesto",
     "Select RelPractico.codpresupuesto, RelPractico.codpractico, Practicos.detalle, RelPractico.cantidad, "
     "RelPractico.precio, RelPractico.subtotal, RelPractico.idpresupuesto FROM RelPractico LEFT JOIN Practicos "
     "ON RelPractico.codpractico = Practicos.idpractico"},
};

/// A data file whose headings are the columns of a table.
struct Source {
    const char *file, *table;
};
constexpr Source sources[] = {
    {"cie10/clasificacion.csv", "Clasificacion"},
    {"cie10/grupos.csv", "Grupos"},
    {"cie10/diagnosticos.csv", "Diagnosticos"},
    {"presion.csv", "Presion"},
    {"calvacunas.csv", "CalVacunas"},
    {"sintomas.csv", "Sintomas"},
    {"diagnosticos.csv", "DIAGPERSONALES"},
    {"tratamientos.csv", "Tratamientos"},
    {"estudios.csv", "TablaEstudios"},
    {"cuentas.csv", "Cuentas"},
    {"recetario.csv", "POSRECETARIO"},
    {"recetario_media_hoja.csv", "POSRECETARIOMEDIA"},
};

/// A column whose distinct values are a catalogue of their own.
struct Catalogue {
    const char *file, *column, *table, *field;
};
constexpr Catalogue catalogues[] = {
    {"diagnosticos.csv", "Clasificacion", "ClasPersonales", "Nombre"},
    {"tratamientos.csv", "Clasificacion", "ClasTratamiento", "Nombre"},
};

constexpr const char *psychosocialAntecedents[] = {
    "Alcoholismo",
    "Depresión",
    "Duelo reciente",
    "Hacinamiento",
    "Separación de los padres",
    "Tabaquismo en el hogar",
    "Violencia familiar",
    "Desempleo",
};

struct Level {
    int number;
    const char *name;
    std::vector<const char *> rights; ///< empty: all
};

const std::vector<Level> &levels()
{
    static const std::vector<Level> all = {
        {1,
         "Secretaria",
         {"IngresarAPacientes", "AgregarPacientes", "IngresarATurnos", "AgregarTurnos", "BorrarTurnos",
          "IngresarAEmpresas", "AgregarEmpresas", "IngresarAProfesionales", "IngresarAInformes",
          "IngresarARecetario", "IngresarATablasApoyo", "IngresarAEstudios", "IngresarALaboratorio"}},
        {2, "Médico", {"IngresarAPacientes",    "AgregarPacientes",     "IngresarATurnos",
                       "AgregarTurnos",         "BorrarTurnos",         "IngresarAConsultas",
                       "AgregarConsultas",      "BorrarConsultas",      "IngresarAEstudios",
                       "AgregarEstudios",       "BorrarEstudios",       "IngresarALaboratorio",
                       "AgregarLaboratorio",    "BorrarLaboratorio",    "IngresarAProfesionales",
                       "IngresarAEmpresas",     "ConsultarEstadistica", "IngresarAInformes",
                       "IngresarACie10",        "IngresarARecetario",   "IngresarABibliotecaRecursos",
                       "IngresarAEditorTextos", "IngresarATablasApoyo"}},
        {3, "Supervisor", {}},
    };
    return all;
}

void addRow(dao::Recordset &rows, const QStringList &columns, const QStringList &values)
{
    rows.addNew();
    for (qsizetype i = 0; i < columns.size(); ++i)
        if (!values[i].isEmpty())
            rows[columns[i]] = values[i];
    rows.update();
}

/// Numbers in the data files have a decimal point.
QStringList localNumbers(const dao::Recordset &rows, const QStringList &columns, QStringList values)
{
    for (qsizetype i = 0; i < columns.size(); ++i)
        if (const int at = rows.ordinal(columns[i]);
            at >= 0 && rows.fields()[static_cast<std::size_t>(at)].type == dao::FieldType::Double)
            values[i].replace(u'.', u',');
    return values;
}

void fillFrom(dao::Database &base, const QDir &data, const Source &source)
{
    const CsvTable table = readCsv(data.filePath(QString::fromUtf8(source.file)));
    dao::Recordset rows = base.openRecordset(QString::fromUtf8(source.table));
    for (const QStringList &values : table.rows)
        addRow(rows, table.headings, localNumbers(rows, table.headings, values));
}

/// The delivered plan is the national calendar's; that one tells the true ages of its doses besides.
void fillVaccineAges(dao::Database &base, const QDir &data)
{
    const CsvTable table = readCsv(data.filePath(u"calendarios/argentina.csv"_s));
    dao::Recordset rows = base.openRecordset(u"EdadesVacunas"_s);
    for (const QStringList &row : table.rows) {
        rows.addNew();
        for (const dao::FieldDef &column : rows.fields())
            if (const QString &value = row[table.column(column.name)]; !value.isEmpty())
                rows[column.name] = value;
        rows.update();
    }
}

void fillCatalogue(dao::Database &base, const QDir &data, const Catalogue &catalogue)
{
    const CsvTable table = readCsv(data.filePath(QString::fromUtf8(catalogue.file)));
    const qsizetype column = table.column(QString::fromUtf8(catalogue.column));
    std::set<QString> names;
    for (const QStringList &row : table.rows)
        names.insert(row[column]);
    dao::Recordset rows = base.openRecordset(QString::fromUtf8(catalogue.table));
    for (const QString &name : names)
        addRow(rows, {QString::fromUtf8(catalogue.field)}, {name});
}

/// Categories carry the chapter of their group, which the data file leaves to the group.
void fillCategories(dao::Database &base, const QDir &data)
{
    const CsvTable groups = readCsv(data.filePath(u"cie10/grupos.csv"_s));
    std::map<QString, QString> chapterOf;
    for (const QStringList &row : groups.rows)
        chapterOf[row[groups.column(u"idGrupo"_s)]] = row[groups.column(u"idClasificacion"_s)];

    const CsvTable table = readCsv(data.filePath(u"cie10/categorias.csv"_s));
    dao::Recordset rows = base.openRecordset(u"Categorias"_s);
    for (QStringList values : table.rows) {
        values += chapterOf.at(values[table.column(u"idGrupo"_s)]);
        addRow(rows, table.headings + QStringList{u"idClasificacion"_s}, values);
    }
}

void fillLevels(dao::Database &base)
{
    dao::Recordset rows = base.openRecordset(u"Niveles"_s);
    for (const Level &level : levels()) {
        rows.addNew();
        for (const dao::FieldDef &field : rows.fields())
            if (field.type == dao::FieldType::Bit)
                rows[field.name] = level.rights.empty();
        for (const char *right : level.rights)
            rows[QString::fromUtf8(right)] = true;
        rows[u"Nivel"] = level.number;
        rows[u"Descripcion"] = level.name;
        rows.update();
    }
}

} // namespace

std::span<const Query> queries()
{
    return savedQueries;
}

void fill(dao::Database &base, const QDir &data)
{
    for (const Source &source : sources)
        fillFrom(base, data, source);
    fillVaccineAges(base, data);
    fillCategories(base, data);
    for (const Catalogue &catalogue : catalogues)
        fillCatalogue(base, data, catalogue);
    dao::Recordset antecedents = base.openRecordset(u"AntecPsicoFliares"_s);
    for (const char *antecedent : psychosocialAntecedents)
        addRow(antecedents, {u"Descripcion"_s}, {QString::fromUtf8(antecedent)});
    fillLevels(base);
    dao::Recordset users = base.openRecordset(u"Usuarios"_s);
    addRow(users, {u"Nombre"_s, u"Clave"_s, u"Nivel"_s}, {u"supervisor"_s, u"supervisor"_s, u"3"_s});
}

} // namespace seeds
