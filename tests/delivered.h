#pragma once

#include "core/session/session.h"
#include "core/session/startup.h"
#include "platform/basic/environment.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include <initializer_list>

/// The delivered file, up to date, for each test, opened as the session's, with settings of its own.
class DeliveredBase : public testing::Test
{
protected:
    void SetUp() override
    {
        const QString path = folder.filePath(QStringLiteral("BASE.MDB"));
        ASSERT_TRUE(QFile::copy(QStringLiteral(UPGRADED_BASE), path));
        qputenv("SANIRELL_AJUSTES", folder.path().toUtf8());
        MODULE11::valoresIniciales();
        MODULE11::BaseDatos.open(path, false, false, MODULE11::conexionDeLaBase());
    }
    void TearDown() override
    {
        basic::setClock({});
        MODULE11::BaseDatos.close();
        qunsetenv("SANIRELL_AJUSTES");
    }

    static void run(std::initializer_list<const char *> statements)
    {
        for (const char *sql : statements)
            MODULE11::BaseDatos.execute(QString::fromUtf8(sql));
    }
    /// The first column of the first row.
    static QString one(const QString &sql)
    {
        dao::Recordset rows = MODULE11::BaseDatos.openRecordset(sql);
        return rows.eof()         ? QStringLiteral("<nada>")
               : rows[0].isNull() ? QStringLiteral("<Null>")
                                  : rows[0].text();
    }
    /// The first column of all rows.
    static QStringList column(const QString &sql)
    {
        QStringList values;
        for (dao::Recordset rows = MODULE11::BaseDatos.openRecordset(sql); !rows.eof(); rows.moveNext())
            values += rows[0].text();
        return values;
    }

    /// All rows: fields by comma, rows by bar.
    static QString rows(const QString &sql)
    {
        QStringList lines;
        for (dao::Recordset rows = MODULE11::BaseDatos.openRecordset(sql); !rows.eof(); rows.moveNext()) {
            QStringList fields;
            for (int i = 0; i < static_cast<int>(rows.fields().size()); ++i)
                fields += rows.value(i).text();
            lines += fields.join(u',');
        }
        return lines.join(u'|');
    }

    QTemporaryDir folder;
};
