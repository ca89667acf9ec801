// practica FILE [--pacientes N] [--consultas N] [--medidas N] [--examenes N] [--cronico N] [--vacunados N]
// [--turnos] [--semilla N]
#include "practice.h"

#include "core/database/actualiza.h"
#include "core/session/session.h"
#include "core/session/startup.h"

#include <QApplication>
#include <QCommandLineParser>

#include <iostream>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QCommandLineParser line;
    line.setApplicationDescription(u"Fills a delivered database with a synthetic practice."_s);
    line.addPositionalArgument(u"file"_s, u"the database, as delivered"_s);
    line.addHelpOption();
    const auto number = [&](const QString &name, const QString &fallback) {
        line.addOption({name, name, u"N"_s, fallback});
    };
    number(u"pacientes"_s, u"200"_s);
    number(u"consultas"_s, u"0"_s);
    number(u"medidas"_s, u"0"_s);
    number(u"examenes"_s, u"-1"_s);
    number(u"cronico"_s, u"0"_s);
    number(u"vacunados"_s, u"2000"_s);
    number(u"semilla"_s, u"1"_s);
    line.addOption({u"turnos"_s, u"a year of appointments"_s});
    line.process(application);
    if (line.positionalArguments().size() != 1 || line.value(u"pacientes"_s).toInt() < 1)
        line.showHelp(2);
    try {
        MODULE11::valoresIniciales();
        MODULE11::BaseDatos.open(line.positionalArguments().first(), false, false,
                                 MODULE11::conexionDeLaBase());
        MODULE11::ActualizaBase();
        practica::Size size;
        size.patients = line.value(u"pacientes"_s).toInt();
        size.visits = line.value(u"consultas"_s).toInt();
        size.measures = line.value(u"medidas"_s).toInt();
        size.yearOfAppointments = line.isSet(u"turnos"_s);
        size.examinations = line.value(u"examenes"_s).toInt();
        size.chronic = line.value(u"cronico"_s).toInt();
        size.vaccinated = line.value(u"vacunados"_s).toInt();
        size.seed = line.value(u"semilla"_s).toUInt();
        size.today = QDate::currentDate();
        practica::fill(size);
        MODULE11::BaseDatos.close();
        return 0;
    } catch (const std::exception &error) {
        std::cerr << "practica: " << error.what() << '\n';
        return 1;
    }
}
