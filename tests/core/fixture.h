#pragma once

#include "core/session/session.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <ostream>

/// The session over a fresh file of its own for each test.
class SesionTest : public testing::Test
{
protected:
    void SetUp() override
    {
        MODULE11::BaseDatos.create(carpeta.filePath(QStringLiteral("BASE.MDB")),
                                   QStringLiteral(";PWD=prueba"));
        MODULE11::valoresIniciales();
    }
    void TearDown() override { MODULE11::BaseDatos.close(); }

    void ejecutar(std::initializer_list<const char *> sentencias)
    {
        for (const char *sql : sentencias)
            MODULE11::BaseDatos.execute(QString::fromUtf8(sql));
    }

    /// The rows of a query: fields by comma, rows by bar.
    QString filas(const char *sql)
    {
        dao::Recordset resultado = MODULE11::BaseDatos.openRecordset(QString::fromUtf8(sql));
        QStringList renglones;
        for (; !resultado.eof(); resultado.moveNext()) {
            QStringList campos;
            for (int i = 0; i < static_cast<int>(resultado.fields().size()); ++i)
                campos += resultado.value(i).text();
            renglones += campos.join(u',');
        }
        return renglones.join(u'|');
    }

    QTemporaryDir carpeta;
};

inline void PrintTo(const QString &texto, std::ostream *salida)
{
    *salida << texto.toStdString();
}
