#pragma once

#include "platform/dao/engine/emitter.h"

namespace dao
{

/// The texts of the embedded engine.
class EmbeddedEmitter final : public Emitter
{
public:
    EngineSql statement(const Bound &bound) const override;
    EngineSql keys(const Bound &bound, const KeyQuery &query) const override;
    EngineSql rows(const Bound &bound, const std::vector<int> &columns, Fetch fetch, int keys) const override;
    QString page(const Table &table, const std::vector<int> &columns, const PageQuery &query) const override;
    QString countRows(const Table &table) const override;
    QString insertRow(const Table &table, const std::vector<int> &columns) const override;
    QString updateRow(const Table &table, const std::vector<int> &columns) const override;
    QString deleteRow(const Table &table) const override;
};

/// Names as the engine takes them.
QString engineName(const QString &name);
QString engineTable(const Table &table);
QString engineColumn(const Table &table, int ordinal);

} // namespace dao
