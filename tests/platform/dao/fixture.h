#pragma once

#include "platform/dao/database.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <ostream>

/// A fresh enciphered file for each test; `other` is what a second workstation would hold open.
class DaoTest : public testing::Test
{
protected:
    static constexpr const char16_t *connect = u";PWD=clave0001";

    void SetUp() override
    {
        // Copies of one empty file share its salt, so that the key is derived once for all tests.
        static const QTemporaryDir shared;
        const QString empty = shared.filePath("vacia.MDB");
        if (!QFile::exists(empty)) {
            dao::Database fresh;
            fresh.create(empty, QString::fromUtf16(connect));
        }
        ASSERT_TRUE(QFile::copy(empty, path()));
        db.open(path(), false, false, QString::fromUtf16(connect));
    }

    QString path(const QString &name = "BASE.MDB") const { return folder.filePath(name); }
    void openOther() { other.open(path(), false, false, QString::fromUtf16(connect)); }
    void run(std::initializer_list<const char *> statements)
    {
        for (const char *sql : statements)
            db.execute(QString::fromUtf8(sql));
    }
    /// First column of the first row.
    basic::Value one(const QString &sql) { return db.openRecordset(sql).value(0); }
    /// The rows of a query: fields by comma, rows by bar.
    QString all(const QString &sql)
    {
        auto rs = db.openRecordset(sql);
        QStringList rows;
        for (; !rs.eof(); rs.moveNext()) {
            QStringList fields;
            for (int i = 0; i < static_cast<int>(rs.fields().size()); ++i)
                fields << (rs.value(i).isNull() ? "<Null>" : rs.value(i).text());
            rows << fields.join(',');
        }
        return rows.join('|');
    }

    QTemporaryDir folder;
    dao::Database db;
    dao::Database other;
};

/// The number of the Error that a statement throws; 0 when it goes through.
template <class Statement>
int errorOf(Statement &&statement)
{
    try {
        statement();
        return 0;
    } catch (const dao::Error &error) {
        return error.number();
    }
}

inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << text.toStdString();
}
