#include "figures/panEstadTurnos.h"

#include "core/reports/informes.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

const QString todos = u"<Todos>"_s;
const QStringList especialidades = {u"Pediatría"_s,   u"Alergia"_s,     u"Oftalmología"_s, u"Cardiología"_s,
                                    u"Obstetricia"_s, u"Odontología"_s, u"Ginecología"_s,  u"Neonatología"_s};

QString elegido(const ComboBox &lista)
{
    return lista.value() == todos ? QString() : lista.value();
}

void llenar(ComboBox &lista, const QString &sql, QStringView campo)
{
    MODULE11::LlenaLista(lista, sql, campo);
    lista.insertItem(0, todos);
    lista.setCurrentIndex(0);
}

} // namespace

panEstadTurnos::panEstadTurnos() : Form(u"panEstadTurnos"_s)
{
    setWindowTitle(u"Estadísticas"_s);
    DBGrid1.setSource(Data1, {{u"Mes"_s, u"Mes"_s, {}, 90},
                              {u"Dr."_s, u"Dr"_s, {}, 170},
                              {u"Estado"_s, u"Estado"_s, {}, 120},
                              {u"Cantidad"_s, u"Cantidad"_s, {}, 80},
                              {u"Especialidad"_s, u"Especialidad"_s, {}, 130},
                              {u"O. Social"_s, u"Descripcion"_s, {}, 170}});
    txtCant.setReadOnly(true);
    txtCant.setMaximumWidth(110);
    setContents(this, Column{
                          Row{Fields{{u"&Desde :"_s, DTPicker1}, {u"&Hasta :"_s, DTPicker2}},
                              Expanding(Fields{{u"D&r. :"_s, Combo1}, {u"&Especialidad :"_s, Combo2}}),
                              Expanding(Fields{{u"E&stado :"_s, Combo3}, {u"&O. Social :"_s, Combo4}}),
                              Column{Command2, Command3}},
                          Expanding(DBGrid1),
                          Row{Fields{{u"Cantidad:"_s, txtCant}}, Stretch(), Command1},
                      });
    resize(920, 480);
    connect(&Command2, &QPushButton::clicked, this, &panEstadTurnos::ver);
    connect(&Command3, &QPushButton::clicked, this,
            [this] { informes::muestra(u"turnosestadistica.rpt"_s, figures::seleccionDeTurnos(filtro())); });
    connect(&Command1, &QPushButton::clicked, this, &panEstadTurnos::unload);
}

void panEstadTurnos::load()
{
    llenar(Combo1, u"Select * from profesionales order by idProfesional"_s, u"Nombre");
    Combo2.addItem(todos);
    Combo2.addItems(especialidades);
    Combo2.setCurrentIndex(0);
    llenar(Combo3, u"Select * from EstadosTurnos"_s, u"Estado");
    llenar(Combo4, u"Select * from [Obra Social] order by Descripcion"_s, u"Descripcion");
}

figures::FiltroDeTurnos panEstadTurnos::filtro() const
{
    return {DTPicker1.date(), DTPicker2.date(), elegido(Combo1),
            elegido(Combo2),  elegido(Combo3),  elegido(Combo4)};
}

void panEstadTurnos::ver()
{
    Data1.setRecordSource(figures::consultaDeTurnos(filtro()));
    Data1.refresh();
    qint64 suma = 0;
    for (dao::Recordset fila = MODULE11::BaseDatos.openRecordset(Data1.recordSource()); !fila.eof();
         fila.moveNext())
        suma += fila[u"Cantidad"].integer();
    txtCant.setText(QString::number(suma));
}

#include "moc_panEstadTurnos.cpp"
