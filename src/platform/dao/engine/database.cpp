#include "platform/dao/database.h"

#include "platform/dao/dialect/names.h"
#include "platform/dao/dialect/parser.h"
#include "platform/dao/engine/connection.h"
#include "platform/dao/recordsets/dynaset.h"
#include "platform/dao/recordsets/snapshot.h"
#include "platform/dao/recordsets/tablerecordset.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace dao
{

namespace
{

QString bareName(const QString &source)
{
    const QString name = source.trimmed();
    return name.startsWith(u'[') && name.endsWith(u']') ? name.sliced(1, name.size() - 2) : name;
}

QString bracketed(const QString &name)
{
    return u'[' + name + u']';
}

std::unique_ptr<RecordsetPrivate> openQuery(DatabasePrivate &d, const QString &text, Recordset::Kind kind)
{
    const PreparedPtr prepared = d.prepare(text);
    if (!std::holds_alternative<SelectPtr>(prepared->bound->statement))
        throw Error(Error::SyntaxError, QStringLiteral("La instrucción no devuelve registros."));
    if (kind == Recordset::Kind::Snapshot || !prepared->bound->rowwise)
        return std::make_unique<Snapshot>(d, kind, text, prepared);
    return std::make_unique<Dynaset>(d, text, prepared);
}

} // namespace

Database::Database() : d_(std::make_unique<DatabasePrivate>())
{
}

Database::~Database()
{
    try {
        close();
    } catch (const Error &) {
        // nobody is left to be told
    }
    d_->detach();
}

void Database::open(const QString &path, bool exclusive, bool readOnly, const QString &connect)
{
    close();
    const auto opener = [this, exclusive, readOnly, path = QFileInfo(path).absoluteFilePath(), connect] {
        return openEngine(path, connect,
                          {.exclusive = exclusive, .readOnly = readOnly, .patienceMs = d_->patience()});
    };
    d_->attach(opener(), path, opener);
}

void Database::create(const QString &path, const QString &connect)
{
    close();
    if (QFile::exists(path))
        throw Error(Error::FileExists,
                    QStringLiteral("El archivo '%1' ya existe.").arg(QDir::toNativeSeparators(path)));
    d_->attach(createEngine(path, connect), path);
    // The practice's people share the file through their group; nobody else reads it.
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::WriteGroup);
}

bool Database::isOpen() const
{
    return d_->isOpen();
}

void Database::close()
{
    if (!d_->isOpen())
        return;
    // What a batch holds is committed, never lost.
    std::optional<Error> failure;
    try {
        if (d_->engine().inTransaction())
            d_->engine().commit();
    } catch (const Error &error) {
        failure = error;
    }
    d_->detach();
    if (failure)
        throw *failure;
}

QString Database::path() const
{
    return d_->path();
}

Recordset Database::openRecordset(const QString &source)
{
    const QString name = bareName(source);
    const bool isTable = d_->withFreshCatalogue([&] {
        if (d_->catalogue().table(name))
            return true;
        if (d_->catalogue().query(name) || source.trimmed().startsWith(u"select", Qt::CaseInsensitive))
            return false;
        throw Error(Error::NotATable,
                    QStringLiteral("No se encuentra la tabla o consulta de entrada '%1'.").arg(name));
    });
    return openRecordset(source, isTable ? Recordset::Kind::Table : Recordset::Kind::Dynaset);
}

Recordset Database::openRecordset(const QString &source, Recordset::Kind kind)
{
    const QString name = bareName(source);
    return d_->withFreshCatalogue([&] {
        if (kind == Recordset::Kind::Table)
            return Recordset(std::make_unique<TableRecordset>(*d_, name));
        const bool named = d_->catalogue().table(name) || d_->catalogue().query(name);
        return Recordset(
            openQuery(*d_, named ? QStringLiteral("SELECT * FROM ") + bracketed(name) : source, kind));
    });
}

qint64 Database::execute(const QString &sql)
{
    return d_->execute(sql);
}

QStringList Database::tableNames() const
{
    return d_->catalogue().tableNames();
}

/// As the table is now: a column that another station has added counts.
TableDef Database::tableDef(QStringView name)
{
    const bool updatable = !d_->engine().readOnly();
    d_->catalogue().refresh();
    const TablePtr table = d_->catalogue().table(name);
    if (!table)
        throw Error(Error::ItemNotFound,
                    QStringLiteral("No se encontró el elemento '%1' en esta colección.").arg(name));
    TableDef def;
    def.database_ = this;
    def.name_ = table->name;
    def.fields_ = table->columns;
    def.indexes_ = table->indexes;
    def.updatable_ = updatable;
    return def;
}

void Database::createQuery(const QString &name, const QString &select)
{
    parseSelect(select);
    d_->saveQuery(name, select);
}

QStringList Database::queryNames() const
{
    return d_->catalogue().queryNames();
}

void Database::setPatience(int ms)
{
    d_->setPatience(ms);
}

void Database::widenText(const QString &table, const QString &column, int size)
{
    d_->widenText(table, column, size);
}

void Database::beginTrans(int batchRows)
{
    d_->beginBatch(batchRows);
}

void Database::commitTrans()
{
    d_->endBatch();
}

Batch::Batch(Database &database, Kind kind) : database_(database)
{
    constexpr int rowsOfLongJob = 1000;
    database_.beginTrans(kind == Long ? rowsOfLongJob : std::numeric_limits<int>::max());
}

Batch::~Batch()
{
    if (!open_)
        return;
    try {
        database_.commitTrans();
    } catch (const std::exception &) {
        // the failure that left the batch is on its way to be told
    }
}

void Batch::commit()
{
    open_ = false;
    database_.commitTrans();
}

void Database::readTogether(const std::function<void()> &loop)
{
    Engine &engine = d_->engine();
    if (engine.inTransaction()) {
        loop();
        return;
    }
    engine.beginRead();
    try {
        loop();
    } catch (...) {
        engine.rollback();
        throw;
    }
    engine.commit();
}

QStringList Database::check(Check depth)
{
    return d_->engine().check(depth == Check::Whole);
}

const FieldDef *TableDef::field(QStringView fieldName) const
{
    for (const FieldDef &field : fields_) {
        if (sameName(field.name, fieldName))
            return &field;
    }
    return nullptr;
}

const IndexDef *TableDef::index(QStringView indexName) const
{
    for (const IndexDef &index : indexes_) {
        if (sameName(index.name, indexName))
            return &index;
    }
    return nullptr;
}

void TableDef::append(const FieldDef &field)
{
    database_->d().define(AddColumn{name_, field});
    *this = database_->tableDef(name_);
}

void TableDef::deleteField(QStringView fieldName)
{
    database_->d().define(DropColumn{name_, fieldName.toString()});
    *this = database_->tableDef(name_);
}

Translation translate(Database &database, const QString &sql)
{
    const PreparedPtr prepared = database.d().prepare(sql);
    Translation translation{prepared->sql.text, prepared->sql.parameters, {}};
    for (const OutputColumn &column : prepared->bound->columns)
        translation.columns.push_back(column.field);
    return translation;
}

} // namespace dao
