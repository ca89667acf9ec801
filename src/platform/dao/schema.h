#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace dao
{

enum class FieldType { Counter, Long, Integer, Double, Currency, Text, Memo, Bit, Date, Time };

/// A column as the dialect sees it. `size` is the length in characters of a Text, else the size in bytes of
/// the type (Memo 0).
struct FieldDef {
    QString name;
    FieldType type = FieldType::Text;
    int size = 0;

    bool operator==(const FieldDef &) const = default;
};

struct IndexDef {
    QString name;
    QStringList fields;
    bool unique = false;
    bool primary = false;
};

class Database;

/// The definition of one table, for inspection and change.
class TableDef
{
public:
    const QString &name() const { return name_; }
    const std::vector<FieldDef> &fields() const { return fields_; }
    const std::vector<IndexDef> &indexes() const { return indexes_; }
    const FieldDef *field(QStringView name) const; ///< without regard to case; null when there is none
    const IndexDef *index(QStringView name) const;
    bool updatable() const { return updatable_; }

    /// Appends a column, as ALTER TABLE ADD COLUMN does; throws Error.
    void append(const FieldDef &field);
    /// Deletes a column with its values; throws Error::FieldNotFound.
    void deleteField(QStringView name);

private:
    friend class Database;
    Database *database_ = nullptr;
    QString name_;
    std::vector<FieldDef> fields_;
    std::vector<IndexDef> indexes_;
    bool updatable_ = true;
};

} // namespace dao
