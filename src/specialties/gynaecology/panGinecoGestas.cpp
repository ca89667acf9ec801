#include "specialties/gynaecology/panGinecoGestas.h"

#include "core/records/filas.h"
#include "core/services/paciente.h"
#include "core/session/screens.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"
#include "specialties/gynaecology/panNueExGesta.h"

using namespace Qt::StringLiterals;
using namespace forms;

panGinecoGestas::panGinecoGestas() : Form(u"panGinecoGestas"_s)
{
    setWindowTitle(u"Gestaciones"_s);
    DBGrid2.setSource(Data2, {{u"Gestación"_s, u"Gestacion"_s, {}, 76},
                              {u"FUM"_s, u"Dum"_s, u"dd/mm/yyyy"_s, 86},
                              {u"Parto"_s, u"Fecha Parto"_s, u"dd/mm/yyyy"_s, 86}});
    std::vector<GridColumn> visitas{{u"Fecha"_s, u"Fecha"_s, u"dd/mm/yyyy"_s, 84},
                                    {u"Detalles"_s, u"Detalles"_s, {}, 200}};
    for (const QString &columna :
         {u"IG"_s, u"Peso"_s, u"Presion"_s, u"Edema"_s, u"Toco"_s, u"AU"_s, u"CA"_s, u"BCF"_s})
        visitas.push_back({columna, columna, {}, 66});
    DBGrid1.setSource(Data1, visitas);
    QFont destacada = Label19.font();
    destacada.setBold(true);
    Label19.setFont(destacada);
    for (Label *calculado : {&lblFum, &lblEco}) {
        calculado->setEnabled(false); // reckoned, not written
        calculado->setWordWrap(true);
    }
    const Item lista =
        Group(u"Gestaciones :"_s, Column{barra_, Expanding(DBGrid2), Row{Command4, Command3}, Command5});
    const Item examenes =
        Group(u"Exámenes Realizados por gestación :"_s, Row{Expanding(DBGrid1), Column{Command8, Stretch()}});
    setContents(this, Column{Expanding(Row{lista, Expanding(Group(Frame1, gestacion()))}, 3),
                             Expanding(examenes, 2), Row{Label19, Stretch(), Command1}});
    resize(1080, 640);
    conectar();
}

void panGinecoGestas::enlazar(QWidget &control, const QString &columna)
{
    Data2.bind(control, columna);
    if (auto *fecha = qobject_cast<DTPicker *>(&control))
        connect(fecha, &DTPicker::dateChanged, this, &panGinecoGestas::calcular);
    if (auto *texto = qobject_cast<TextBox *>(&control))
        connect(texto, &QLineEdit::textChanged, this, &panGinecoGestas::calcular);
}

Item panGinecoGestas::gestacion()
{
    const auto campo = [this](const QString &columna) {
        TextBox &texto = mDato.add(mDato.size());
        enlazar(texto, columna);
        return FieldRow(columna + u" :"_s, texto);
    };
    enlazar(mDum, u"Dum"_s);
    enlazar(mDPPEco, u"DPP Eco"_s);
    enlazar(mFechaEco, u"Fecha Eco"_s);
    enlazar(mDetalles, u"Detalles"_s);
    return Tabs(SSTab1,
                {{u"Gestación"_s, Row{Expanding(Column{Fields{{u"Dum :"_s, Row{mDum, Stretch()}},
                                                              campo(u"Ciclo"_s),
                                                              campo(u"Altura"_s),
                                                              campo(u"Peso Inicial"_s),
                                                              campo(u"IG Semanas"_s),
                                                              campo(u"IG Dias"_s)},
                                                       lblFum, Stretch()}),
                                      Expanding(Column{Fields{{u"Fecha Eco :"_s, Row{mFechaEco, Stretch()}},
                                                              campo(u"IG Eco Semanas"_s),
                                                              campo(u"IG Eco Dias"_s),
                                                              campo(u"IG Eco 2 Semanas"_s),
                                                              campo(u"IG Eco 2 Dias"_s),
                                                              {u"DPP Eco :"_s, Row{mDPPEco, Stretch()}}},
                                                       lblEco, Stretch()})}},
                 {u"Detalles"_s, Above(u"Detalles :"_s, mDetalles)},
                 {u"Parto"_s, parto({}, mFechaParto)},
                 {u"Segundo nacimiento"_s, parto(u" 2"_s, mFechaParto2)},
                 {u"Curvas"_s, Graph1}});
}

Item panGinecoGestas::parto(const QString &fin, DTPicker &fecha)
{
    std::vector<FieldRow> filas;
    for (const QString &columna : {u"Tipo Parto"_s, u"Nombre RN"_s}) {
        TextBox &texto = mDato.add(mDato.size());
        enlazar(texto, columna + fin);
        filas.emplace_back(columna + fin + u" :"_s, texto);
    }
    enlazar(fecha, u"Fecha Parto"_s + fin);
    filas.emplace_back(u"Fecha Parto"_s + fin + u" :"_s, Row{fecha, Stretch()});
    return Column{Fields(filas), Stretch()};
}

void panGinecoGestas::conectar()
{
    connect(&Data2, &Data::reposition, this, &panGinecoGestas::mostrarGestacion);
    connect(&Command4, &QPushButton::clicked, this, &panGinecoGestas::nuevaGestacion);
    connect(&Command3, &QPushButton::clicked, this, &panGinecoGestas::borrarGestacion);
    connect(&Command8, &QPushButton::clicked, this, &panGinecoGestas::nuevoControl);
    connect(&Command5, &QPushButton::clicked, this,
            [this] { screens::showModal("panCalRiesgoGesta", tag()); });
    connect(&Command1, &QPushButton::clicked, this, &panGinecoGestas::unload);
}

/// What was typed is written before the rows are read again.
void panGinecoGestas::activate()
{
    const auto paciente = services::numeroDePaciente(tag());
    Command4.setEnabled(paciente.has_value());
    Command5.setEnabled(paciente.has_value());
    if (!paciente || Data2.hasRecordset())
        return;
    Data2.setRecordSource(
        u"Select * from Gestaciones where idPaciente = %1 order by Gestacion"_s.arg(*paciente));
    Data2.refresh();
    mostrarGestacion();
}

bool panGinecoGestas::queryUnload()
{
    if (Data2.hasRecordset())
        Data2.updateRecord();
    return true;
}

void panGinecoGestas::mostrarGestacion()
{
    const bool hay = Data2.hasRow();
    Frame1.setEnabled(hay);
    Command3.setEnabled(hay);
    const QString numero = hay ? Data2.recordset()[u"Gestacion"].text() : QString();
    Label19.setCaption(hay ? u"Gestación Seleccionada : "_s + numero : u"Presione 'Nueva Gestación'"_s);
    barra_.setCaption(hay ? numero : u"n/r"_s);
    mostrarControles();
    calcular();
}

void panGinecoGestas::mostrarControles()
{
    const QString gesta = Data2.hasRow() ? Data2.recordset()[u"Gestacion"].text() : u"0"_s;
    Data1.setRecordSource(
        u"Select * from historicoGestaciones where idPaciente = %1 and Gesta = %2 order by Fecha"_s.arg(
            tag(), gesta));
    Data1.refresh();
    mostrarCurvas();
}

void panGinecoGestas::mostrarCurvas()
{
    std::vector<gestacion::Control> controles;
    const basic::Value dum = Data2.hasRow() ? Data2.recordset()[u"Dum"].value() : basic::Value();
    dao::Recordset filas =
        MODULE11::BaseDatos.openRecordset(Data1.recordSource(), dao::Recordset::Kind::Snapshot);
    for (; !filas.eof(); filas.moveNext())
        if (const auto control = gestacion::control(
                filas[u"IG"].text(), filas[u"AU"].text(), filas[u"Peso"].text(), filas[u"Presion"].text(),
                filas[u"Fecha"].isNull() ? QDate() : filas[u"Fecha"].date().date(),
                dum.isNull() ? QDate() : dum.date().date()))
            controles.push_back(*control);
    Graph1.mostrar(std::move(controles));
}

/// Until the birth, as of today; after it, as of that day.
void panGinecoGestas::calcular()
{
    const auto leida = [](const DTPicker &campo) { return campo.readable() ? campo.date() : QDate(); };
    const auto entero = [this](const QString &columna) {
        const basic::Value valor = Data2.hasRow() ? Data2.recordset()[columna].value() : basic::Value();
        return valor.isNumeric() ? static_cast<int>(valor.number()) : 0;
    };
    const QDate nacio = leida(mFechaParto);
    const QDate dia = nacio.isValid() ? nacio : basic::today().date();
    const QDate dum = leida(mDum), eco = leida(mFechaEco);
    const auto decir = [](const std::optional<int> &dias, QDate parto, const QString &segun) {
        return dias ? u"%1: %2, parto %3"_s.arg(segun, gestacion::enPalabras(*dias),
                                                parto.toString(u"dd/MM/yyyy"))
                    : QString();
    };
    lblFum.setCaption(decir(gestacion::diasPorFum(dum, dia), gestacion::parto(dum), u"según FUM"_s));
    const int semanas = entero(u"IG Eco Semanas"_s), dias = entero(u"IG Eco Dias"_s);
    lblEco.setCaption(decir(gestacion::diasPorEco(eco, semanas, dias, dia),
                            gestacion::partoPorEco(eco, semanas, dias), u"según eco"_s));
}

void panGinecoGestas::nuevaGestacion()
{
    dao::Recordset gestaciones = MODULE11::BaseDatos.openRecordset(
        u"select * from Gestaciones where idPaciente = %1 order by gestacion"_s.arg(tag()));
    qint64 numero = 1;
    if (!gestaciones.eof()) {
        gestaciones.moveLast();
        numero = gestaciones[u"Gestacion"].integer() + 1;
    }
    Data2.change([&](dao::Recordset &filas) {
        filas.addNew();
        filas[u"idPaciente"] = tag().toLongLong();
        filas[u"Gestacion"] = numero;
        filas.update();
    });
    Data2.refresh(u"Gestacion = %1"_s.arg(numero));
}

void panGinecoGestas::borrarGestacion()
{
    if (!Data2.hasRow() ||
        !askBox(u"Está seguro de borrar esta gestación completamente de la base de datos??"_s,
                u"Atención..."_s, Answer::No))
        return;
    dao::Batch juntas(MODULE11::BaseDatos);
    MODULE11::BaseDatos.execute(
        u"Delete from historicoGestaciones where gesta = %1 and idPaciente = %2"_s.arg(
            Data2.recordset()[u"Gestacion"].text(), tag()));
    Data2.deleteRow();
    juntas.commit();
}

void panGinecoGestas::nuevoControl()
{
    if (!Data2.hasRow()) {
        msgBox(u"Debe seleccionar una gesta para cargar examen !"_s, Icon::Information, u"Atención"_s);
        return;
    }
    Data2.updateRecord();
    panNueExGesta examen;
    records::capture(Data1, examen, [&](dao::Recordset &visita) {
        visita[u"idPaciente"] = tag().toLongLong();
        visita[u"Gesta"] = Data2.recordset()[u"Gestacion"].value();
        examen.escribir(visita);
    });
    mostrarCurvas();
}

#include "moc_panGinecoGestas.cpp"
