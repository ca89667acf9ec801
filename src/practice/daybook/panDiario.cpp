#include "practice/daybook/panDiario.h"

#include "core/reports/exportaHtml.h"
#include "core/reports/informes.h"
#include "core/security/eventos.h"
#include "core/security/niveles.h"
#include "core/services/listas.h"
#include "core/services/services.h"
#include "core/session/ports.h"
#include "core/session/screens.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"
#include "platform/forms/colour.h"
#include "practice/daybook/panEdConPrestacion.h"
#include "practice/tariffs/importe.h"

using namespace Qt::StringLiterals;
using namespace forms;
using diario::Periodo;

namespace
{

constexpr int anchoDelListado = 800;
constexpr int primerAnio = 2000; ///< offered, unless the practice has older visits
constexpr int anchoDelLado = 350;
const QColor mesElegido(0x2f, 0x6f, 0xb5), mesLibre(0xe4, 0xea, 0xf1);

} // namespace

panDiario::panDiario()
    : Form(u"panDiario"_s),
      Command11(records::comando(*this, u"Command11"_s, u"&Facturación"_s, u"consultorio"_s,
                                 [] { screens::showModal("panFacturacion"); })),
      Command7(records::comando(*this, u"Command7"_s, u"&Informe"_s, u"informes"_s,
                                [] { screens::showModal("panInfTurnos", u"CONS"_s); }))
{
    setWindowTitle(u"Gestión Consultorio"_s);
    DBGrid1.setSource(Data1, {{u"Fecha"_s, u"Fecha"_s, u"dd/mm/yyyy"_s, 84},
                              {u"Hora"_s, u"Hora"_s, u"HH:MM"_s, 50},
                              {u"Paciente"_s, u"Nombre del Paciente"_s, {}, 160},
                              {u"Obra Social"_s, u"Mutual"_s, {}, 110},
                              {u"Tipo"_s, u"Tipo"_s, {}, 62},
                              {u"Monto"_s, u"Monto"_s, u"#,##0.00"_s, 84},
                              {u"Nro Orden"_s, u"NroOrden"_s, {}, 84},
                              {u"Estado"_s, u"StatusOrden"_s, {}, 90},
                              {u"Dr."_s, u"Dr"_s, {}, 120},
                              {u"Diagnóstico"_s, u"Diagnostico 1"_s, {}, 160}});
    disponer();
    resize(1160, 640);
}

void panDiario::disponer()
{
    QFont titulo = panelFecha.font();
    titulo.setPointSizeF(titulo.pointSizeF() * 1.25);
    titulo.setBold(true);
    panelFecha.setFont(titulo);
    for (TextBox *total : {&Text1, &Text2}) {
        total->setReadOnly(true);
        total->setFocusPolicy(Qt::NoFocus);
        total->setAlignment(Qt::AlignRight);
        total->setMaximumWidth(150);
    }
    calendar1.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    SSTab1.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto *lado = new QWidget;
    lado->setFixedWidth(anchoDelLado);
    setContents(lado, Column{
                          Tabs(SSTab1, {{u"&Diario"_s, calendar1},
                                        {u"&Mensual"_s, meses()},
                                        {u"Anua&l"_s, Column{Fields{{u"Añ&o ?"_s, Combo2}}, Stretch(),
                                                             Row{Stretch(), Command8}}}}),
                          filtros(),
                          Stretch(),
                          Fields{{u"Total Atención :"_s, Text1}, {u"Total :"_s, Text2}},
                      });
    setContents(this, Column{
                          Expanding(Row{lado, Expanding(Column{panelFecha, Expanding(DBGrid1)})}),
                          Row{Command3, Command4, Command5, Command2, Command9, Command11, Command7,
                              Command12, Command1, Stretch(), Command10},
                      });
}

Item panDiario::meses()
{
    std::vector<Item> paneles;
    for (int mes = 1; mes <= 12; ++mes) {
        Label &panel = sspanel1.add(mes - 1, MODULE11::NombreMes(mes));
        panel.setAlignment(Qt::AlignCenter);
        setBackColor(panel, mesLibre);
        paneles.emplace_back(panel);
        connect(&panel, &Label::clicked, this, [this, mes] { elegirMes(mes); });
    }
    return Column{Fields{{u"Añ&o ?"_s, Combo1}}, Grid(3, std::move(paneles)), Stretch(),
                  Row{Stretch(), Command6}};
}

Item panDiario::filtros()
{
    Option1.add(0, u"Todas"_s).setChecked(true);
    Option1.add(1, u"1º Vez"_s);
    Option1.add(2, u"Ulterior"_s);
    return Group(u"Ver"_s, Column{
                               Above(u"Obra Social o Pres&tadora de Servicio de Salud :"_s, Combo3),
                               Above(u"P&rofesional :"_s, Combo4),
                               Row{Option1(0), Option1(1), Option1(2), Stretch()},
                           });
}

void panDiario::load()
{
    llenarFiltros();
    llenarAnios();
    Command3.setEnabled(bool(ports::eligePaciente) && bool(ports::registraConsulta));
    Command11.setVisible(MODULE11::TieneNivel(u"IngresarAFacturacion"_s));
    conectar();
    refrescar();
    DBGrid1.setFocus();
}

/// A doctor sees the own visits only.
void panDiario::llenarFiltros()
{
    services::agregarConClave(Combo3, u"Select * from [Obra Social] order by Descripcion"_s, u"Descripcion",
                              u"idObraSocial");
    services::agregarConClave(Combo4, u"Select * from Profesionales order by Nombre"_s, u"Nombre",
                              u"idProfesional");
    Combo3.setCurrentIndex(0);
    Combo4.setCurrentIndex(0);
    if (MODULE11::TipoUsuario != u"M")
        return;
    Combo4.setValue(MODULE11::DrActual);
    Combo4.setEnabled(false);
}

void panDiario::llenarAnios()
{
    const int este = basic::today().date().year();
    const basic::Value primera =
        MODULE11::BuscaCampo(u"Select min(fecha) as primera from consulta"_s, u"primera");
    const int desde = primera.isNull() ? primerAnio : qMin(primerAnio, primera.date().date().year());
    for (int anio = este; anio >= desde; --anio)
        for (ComboBox *combo : {&Combo1, &Combo2})
            combo->addItem(QString::number(anio), anio);
    Combo1.setCurrentIndex(0);
    Combo2.setCurrentIndex(0);
}

void panDiario::conectar()
{
    connect(&Data1, &Data::reposition, this, &panDiario::mostrarTotales);
    connect(&calendar1, &QCalendarWidget::selectionChanged, this, [this] { ver(Periodo::Dia); });
    connect(&SSTab1, &QTabWidget::currentChanged, this, &panDiario::elegirFicha);
    connect(&Command6, &QPushButton::clicked, this, [this] { ver(Periodo::Mes); });
    connect(&Command8, &QPushButton::clicked, this, [this] { ver(Periodo::Anio); });
    for (ComboBox *filtro : {&Combo3, &Combo4})
        connect(filtro, &QComboBox::currentIndexChanged, this, &panDiario::refrescar);
    for (auto &[indice, opcion] : Option1)
        connect(opcion.get(), &QRadioButton::clicked, this, &panDiario::refrescar);
    connect(&DBGrid1, &DBGrid::accepted, this, &panDiario::editarPrestacion);
}

void panDiario::elegirMes(int mes)
{
    mes_ = mes;
    for (auto &[indice, panel] : sspanel1) {
        const bool elegido = indice == mes - 1;
        setBackColor(*panel, elegido ? mesElegido : mesLibre);
        setForeColor(*panel, elegido ? Qt::white : Qt::black);
    }
    forms::setTag(&Command6, QString::number(mes));
}

/// A page shows what it chooses: what the list has below another page's title would be misread.
void panDiario::elegirFicha(int ficha)
{
    constexpr Periodo periodos[] = {Periodo::Dia, Periodo::Mes, Periodo::Anio};
    ver(periodos[ficha]);
}

void panDiario::ver(Periodo periodo)
{
    periodo_ = periodo;
    if (periodo == Periodo::Mes && mes_ == 0)
        elegirMes(basic::today().date().month());
    refrescar();
}

diario::Pedido panDiario::pedido() const
{
    diario::Pedido pedido;
    pedido.periodo = periodo_;
    pedido.dia = calendar1.value();
    pedido.mes = qMax(1, mes_);
    pedido.anio = (periodo_ == Periodo::Mes ? Combo1 : Combo2).currentData().toInt();
    pedido.obraSocial = Combo3.value();
    pedido.profesional = Combo4.value();
    pedido.clase = Option1(1).isChecked()   ? diario::Clase::PrimeraVez
                   : Option1(2).isChecked() ? diario::Clase::Ulterior
                                            : diario::Clase::Todas;
    return pedido;
}

/// What cannot be listed is told, and the list stays as it was.
void panDiario::refrescar()
{
    const diario::Pedido pedida = pedido();
    try {
        const dao::Recordset visitas = MODULE11::BaseDatos.openRecordset(pedida.suma());
    } catch (const dao::Error &error) {
        msgBox(error.description(), Icon::Critical, u"Error"_s);
        return;
    }
    mostrado_ = pedida;
    panelFecha.setCaption(pedida.titulo());
    Data1.setRecordSource(pedida.consulta());
    Data1.refresh();
}

/// The same rows again, on the visit of this key if it is among them.
void panDiario::releer(qint64 idConsulta)
{
    Data1.refresh(u"idConsulta = "_s + QString::number(idConsulta));
}

void panDiario::mostrarTotales()
{
    const bool hay = Data1.hasRow();
    for (CommandButton *boton : {&Command4, &Command2, &Command9})
        boton->setEnabled(hay);
    Command5.setEnabled(hay && ports::abreFicha);
    Command7.setEnabled(hay && screens::has("panInfTurnos"));
    Text1.setText(u"<Ninguna>"_s);
    Text2.setText(u"0,00"_s);
    if (!hay)
        return;
    Text1.setText(basic::format(Data1.recordset().rowCount(), u"##,###"));
    Text2.setText(importes::enMoneda(MODULE11::BuscaCampo(mostrado_.suma(), u"Total")));
}

void panDiario::nueva()
{
    const std::optional<qint64> paciente = ports::eligePaciente();
    if (!paciente)
        return;
    if (const std::optional<qint64> consulta = ports::registraConsulta(*paciente))
        releer(*consulta);
}

/// With the visit goes its examination, which nothing else leads to.
void panDiario::borrar()
{
    dao::Recordset &visita = Data1.recordset();
    MODULE11::RegistraEvento(
        u"BORRADO DE CONSULTA"_s,
        u"PAC : %1 // FECHA:%2"_s.arg(visita[u"Nombre del Paciente"].text(), visita[u"Fecha"].text()));
    dao::Batch juntas(MODULE11::BaseDatos);
    MODULE11::BaseDatos.execute(u"Delete * from ExFisico where idConsulta = "_s +
                                visita[u"idConsulta"].text());
    Data1.deleteRow();
    juntas.commit();
}

void panDiario::abrir()
{
    ports::abreFicha(Data1.recordset()[u"Paciente"].integer());
}

void panDiario::buscar()
{
    Data1.change([](dao::Recordset &visitas) {
        if (!MODULE11::BuscaEnLista(visitas, u"Nombre del Paciente"_s))
            msgBox(u"No encontrado!!"_s, Icon::Critical, u"Error"_s);
    });
}

void panDiario::editarPrestacion()
{
    const qint64 idConsulta = Data1.recordset()[u"idConsulta"].integer();
    panEdConPrestacion editor;
    editor.mostrar(Data1.recordset());
    for (;;) {
        editor.showModal();
        if (editor.tag() != u"SI")
            return;
        try {
            editor.escribir(Data1.recordset());
            break;
        } catch (const dao::Error &error) {
            MODULE11::MuestraError(u"Los datos no se guardaron.\n"_s + error.description());
        }
    }
    releer(idConsulta);
}

void panDiario::informarCierre()
{
    informes::muestra(u"cierre.rpt"_s, mostrado_.seleccion(), {{u"periodo"_s, mostrado_.titulo()}});
}

void panDiario::exportar()
{
    informes::exportaHtml(Data1.recordSource(), u"Gestión Consultorio"_s, anchoDelListado,
                          mostrado_.fechas());
}

#include "moc_panDiario.cpp"
