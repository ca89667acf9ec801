#pragma once

#include "platform/dao/schema.h"

#include <QHash>
#include <QString>
#include <QStringView>

#include <memory>
#include <optional>
#include <vector>

namespace dao
{

class Engine;

/// One table as the engine's file describes it.
struct Table {
    QString name;
    QString schema; ///< of the engine; empty for the file's own
    std::vector<FieldDef> columns;
    QString keyColumn; ///< the whole number that identifies a row for ever: the COUNTER or a hidden column
    int counter = -1;  ///< ordinal of the COUNTER
    std::vector<IndexDef> indexes;

    int ordinal(QStringView column) const; ///< without regard to case; -1 when there is none
    const IndexDef *index(QStringView name) const;
};
using TablePtr = std::shared_ptr<const Table>;

/// Tables and saved queries of the open file, held in memory. It is read again when somebody's DDL changed
/// it.
class Catalogue
{
public:
    explicit Catalogue(Engine &engine) : engine_(&engine) {}
    void setEngine(Engine &engine) { engine_ = &engine; } ///< over the same file

    TablePtr table(QStringView name) const; ///< null when there is none
    std::optional<QString> query(QStringView name) const;
    QStringList tableNames() const;
    QStringList queryNames() const;

    void reload();
    /// Reads the catalogue again if the file's differs; true when it did.
    bool refresh();
    /// Counts the times it was read, so that what was made from an older state can be told.
    int generation() const { return generation_; }

private:
    Engine *engine_;
    QHash<QString, TablePtr> tables_;                     // by folded name
    QHash<QString, std::pair<QString, QString>> queries_; // name and text by folded name
    qint64 version_ = -1;
    int generation_ = 0;
};

} // namespace dao
