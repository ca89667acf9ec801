// Makes the delivered database: the base tables, which the program's upgrade completes at its first start,
// and what they hold on delivery.
#include "csv.h"
#include "seeds.h"

#include "platform/dao/database.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <iostream>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace
{

/// The statements of a file, each ended by a semicolon at the end of a line.
QStringList statements(const QString &file)
{
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly))
        throw std::runtime_error("cannot read " + file.toStdString());
    QStringList found;
    QString statement;
    for (const QString &line : QString::fromUtf8(input.readAll()).split(u'\n')) {
        if (line.startsWith(u"--"))
            continue;
        statement += line + u'\n';
        if (line.endsWith(u';')) {
            found += statement.trimmed().chopped(1);
            statement.clear();
        }
    }
    return found;
}

void makeTables(dao::Database &base, const QDir &data)
{
    for (const QString &statement : statements(data.filePath(u"esquema.sql"_s)))
        base.execute(statement);
    for (const seeds::Query &query : seeds::queries())
        base.createQuery(QString::fromUtf8(query.name), QString::fromUtf8(query.select));
}

void make(const QString &file, const QDir &data)
{
    const QString unfinished = file + u".nueva"_s;
    QFile::remove(unfinished);
    dao::Database base;
    base.create(unfinished, u";PWD=qTzR8mvW2"_s);
    base.beginTrans();
    makeTables(base, data);
    seeds::fill(base, data);
    base.commitTrans();
    base.close();
    for (const QString &left : {u"-journal"_s, u".cola"_s})
        QFile::remove(unfinished + left);
    QFile::remove(file);
    if (!QFile::rename(unfinished, file))
        throw std::runtime_error("cannot write " + file.toStdString());
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (argc != 3) {
        std::cerr << "base FILE DATA-FOLDER\n";
        return 2;
    }
    try {
        make(QString::fromLocal8Bit(argv[1]), QDir(QString::fromLocal8Bit(argv[2])));
        return 0;
    } catch (const std::exception &error) {
        std::cerr << "base: " << error.what() << '\n';
        return 1;
    }
}
