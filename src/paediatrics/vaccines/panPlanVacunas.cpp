#include "paediatrics/vaccines/panPlanVacunas.h"

#include "core/services/paciente.h"
#include "core/services/services.h"
#include "core/session/screens.h"
#include "core/session/session.h"
#include "paediatrics/vaccines/atrasos.h"
#include "paediatrics/vaccines/certificado.h"
#include "paediatrics/vaccines/panPoneVacuna.h"
#include "platform/basic/environment.h"
#include "platform/dao/database.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"

#include <QScopeGuard>

using namespace Qt::StringLiterals;
using namespace forms;
using vacunas::DosisDelPlan;
using vacunas::Estado;
using vacunas::Registro;

namespace
{

constexpr int errorDeImpresora = 482;
const QString titulo = u"Plan de vacunación y calendario de "_s;

void avisar(const QString &texto)
{
    msgBox(texto, Icon::Information, u"Mensaje"_s);
}

Registro leer(dao::Recordset &fila)
{
    const basic::Value fecha = fila[u"fecha"];
    return {fecha.isNull() ? std::nullopt : std::optional(fecha.date()), fila[u"Vacuna"].text(),
            fila[u"Dosis"].text(), fila[u"observaciones"].text()};
}

void escribir(dao::Recordset &fila, qint64 paciente, const Registro &registro)
{
    fila[u"Paciente"] = paciente;
    fila[u"fecha"] = registro.fecha ? basic::Value(*registro.fecha) : basic::Value(basic::Null{});
    fila[u"Vacuna"] = registro.vacuna;
    fila[u"Dosis"] = registro.dosis;
    fila[u"observaciones"] = registro.observaciones;
}

void agregar(dao::Recordset &filas, qint64 paciente, const Registro &registro)
{
    filas.addNew();
    escribir(filas, paciente, registro);
    filas.update();
}

QString avisoDeFaltantes(const QStringList &faltan)
{
    constexpr qsizetype losQueSeDicen = 8;
    QStringList lineas = faltan.first(qMin(losQueSeDicen, faltan.size()));
    lineas.prepend(
        u"Atención: el certificado dice que el plan está cumplido. Dosis que faltan según el plan: %1"_s.arg(
            faltan.size()));
    if (faltan.size() > losQueSeDicen)
        lineas += u"y %1 más"_s.arg(faltan.size() - losQueSeDicen);
    return lineas.join(u'\n');
}

void yaRegistrada()
{
    msgBox(u"Vacuna y dosis ya registrada"_s, Icon::Critical, u"Error"_s);
}

} // namespace

panPlanVacunas::panPlanVacunas() : Form(u"panPlanVacunas"_s)
{
    setWindowTitle(u"Plan de vacunación"_s);
    agregarMenu();
    disponer();
    connect(&hoja, &Canvas::clicked, this, &panPlanVacunas::abrirMenu);
    connect(&hoja, &Canvas::contextMenu, this, &panPlanVacunas::abrirMenu);
    connect(&Command1, &QPushButton::clicked, this, &panPlanVacunas::imprimir);
    connect(&Command2, &QPushButton::clicked, this, &panPlanVacunas::unload);
    connect(&Command3, &QPushButton::clicked, this, &panPlanVacunas::marcarTodas);
    connect(&Command4, &QPushButton::clicked, this, [] { screens::showModal("panCalVacunas"); });
    connect(&Command5, &QPushButton::clicked, this, [] { screens::showModal("panVacunasAtrasadas"); });
}

void panPlanVacunas::disponer()
{
    for (const int indice : {0, 1}) {
        TextBox &edad = Text1.add(indice);
        edad.setReadOnly(true);
        edad.setFixedWidth(60);
    }
    hoja.setAccessibleName(u"Planilla de vacunas"_s);
    setContents(this, Column{
                          Row{Fields{{u"A&ños"_s, Text1(0)}}, Fields{{u"&Meses"_s, Text1(1)}},
                              Expanding(lblSinLugar)},
                          Expanding(Group(Frame1, Column{Expanding(hoja)})),
                          Row{Command3, Command1, Stretch(), Command4, Command5, Stretch(), Command2},
                      });
}

void panPlanVacunas::agregarMenu()
{
    Menu1.setObjectName(u"Menu1"_s);
    const auto conDosis = [this](void (panPlanVacunas::*trabajo)(const DosisDelPlan &)) {
        return [this, trabajo] {
            conLaElegida([this, trabajo](const DosisDelPlan &dosis) { (this->*trabajo)(dosis); });
        };
    };
    agregarAlMenu(u"menuMarcaColocada"_s, u"Marcar como colocada"_s,
                  conDosis(&panPlanVacunas::marcarColocada));
    agregarAlMenu(u"menuIndica"_s, u"Marcar como indicada"_s, conDosis(&panPlanVacunas::marcarIndicada));
    agregarAlMenu(u"menuMarcarSin"_s, u"Marcar como sin colocar"_s,
                  conDosis(&panPlanVacunas::marcarSinColocar));
    agregarAlMenu(u"menuVeRegistro"_s, u"Ver registro de vacunación"_s,
                  conDosis(&panPlanVacunas::verRegistro));
    Menu1.addSeparator();
    agregarAlMenu(u"menuSalir1"_s, u"Salir"_s, [this] { Menu1.close(); });
}

void panPlanVacunas::agregarAlMenu(const QString &nombre, const QString &titulo,
                                   const std::function<void()> &trabajo)
{
    auto *accion = new QAction(titulo, this);
    accion->setObjectName(nombre);
    Menu1.addAction(accion);
    connect(accion, &QAction::triggered, this, trabajo);
}

// --- the sheet ---

void panPlanVacunas::activate()
{
    if (!trabajando_)
        llenar();
}

/// Nothing is kept from before: another station may have noted a dose, or changed the plan.
void panPlanVacunas::llenar()
{
    const std::vector<DosisDelPlan> plan = vacunas::plan();
    planilla_ = plan.empty() ? vacunas::planillaSinPlan() : vacunas::planilla(plan);
    lblSinLugar.setCaption(planilla_.sinLugar == 0
                               ? QString()
                               : u"Dosis del plan que no caben en la planilla: %1"_s.arg(planilla_.sinLugar));
    hoja.mostrar(planilla_, {});
    paciente_.reset();
    if (!plan.empty())
        mostrarPaciente();
    for (CommandButton *comando : {&Command1, &Command3})
        comando->setEnabled(paciente_.has_value());
}

void panPlanVacunas::mostrarPaciente()
{
    auto hallado = services::paciente(tag());
    if (!hallado) {
        msgBox(u"No se encontro el paciente"_s, Icon::Critical, u"Error"_s);
        return;
    }
    dao::Recordset &paciente = *hallado;
    paciente_ = services::numeroDePaciente(tag());
    const QString nombre = paciente[u"Apellido y Nombres"].text();
    const basic::Value nacimiento = paciente[u"Fecha de Nacimiento"];
    nacimiento_.reset();
    edad_.reset();
    if (!nacimiento.isNull()) {
        nacimiento_ = nacimiento.date();
        edad_ = vacunas::edadDelPlan(*nacimiento_, basic::today());
    }
    hoja.mostrarCertificado(
        u"Certifico que %1 cumple con el siguiente plan de vacunación, confecc. el día %2"_s.arg(
            nombre, MODULE11::FechaEnLetras(basic::today())));
    setWindowTitle(titulo + nombre);
    Text1(0).setText(edad_ ? QString::number(edad_->anios) : QString());
    Text1(1).setText(edad_ ? QString::number(edad_->mesesDelAnio) : QString());
    planilla_.ponerEstados(*paciente_, edad_);
    hoja.mostrar(planilla_, edad_);
    if (!edad_)
        msgBox(u"El paciente no tiene la fecha de nacimiento"_s, Icon::Critical, u"Error"_s);
}

void panPlanVacunas::abrirMenu(const QString &item)
{
    const auto numero = hoja.numeroDe(item);
    if (!numero || !paciente_)
        return;
    forms::setTag(&Frame1, QString::number(*numero));
    const QPoint lugar = hoja.reveal(hoja.item(item)->place().bottomRight());
    Menu1.popup(hoja.surface().mapToGlobal(lugar));
}

// --- a dose ---

void panPlanVacunas::conLaElegida(const std::function<void(const DosisDelPlan &)> &trabajo)
{
    bool elegida = false;
    const auto numero = forms::tag(&Frame1).toULongLong(&elegida);
    if (!elegida || numero >= planilla_.marcas.size() || !paciente_)
        return;
    const DosisDelPlan dosis = planilla_.marcas[numero].dosis;
    {
        const QScopeGuard hecho([this] { trabajando_ = false; });
        trabajando_ = true;
        trabajo(dosis);
    }
    llenar();
}

/// A dose that was prescribed becomes the one given.
void panPlanVacunas::marcarColocada(const DosisDelPlan &dosis)
{
    panPoneVacuna entrada({basic::today(), dosis.vacuna, dosis.dosis, {}}, nacimiento_);
    entrada.showModal();
    if (entrada.tag() != u"SI")
        return;
    const Registro registro = entrada.registro();
    vacunas::Registros registros;
    dao::Recordset &fila = registros.fila();
    if (!registros.buscar(*paciente_, registro.vacuna, registro.dosis))
        agregar(fila, *paciente_, registro);
    else if (registros.esIndicada())
        fila.edit([&] { escribir(fila, *paciente_, registro); });
    else
        yaRegistrada();
}

void panPlanVacunas::marcarIndicada(const DosisDelPlan &dosis)
{
    panPoneVacuna entrada({basic::today(), dosis.vacuna, dosis.dosis, vacunas::indicada.toString()},
                          nacimiento_);
    entrada.showModal();
    if (entrada.tag() != u"SI")
        return;
    const Registro registro = entrada.registro();
    vacunas::Registros registros;
    if (registros.buscar(*paciente_, registro.vacuna, registro.dosis))
        yaRegistrada();
    else
        agregar(registros.fila(), *paciente_, registro);
}

void panPlanVacunas::marcarSinColocar(const DosisDelPlan &dosis)
{
    if (!MODULE11::PreguntaSiBorra(u"Atencion! : Marca esta dosis de vacunación como incompleta?"_s))
        return;
    vacunas::Registros registros;
    if (registros.buscar(*paciente_, dosis.vacuna, dosis.dosis))
        registros.fila().deleteRow();
    else
        avisar(u"Dosis no registrada, no hace falta marcar como incompleta"_s);
}

void panPlanVacunas::verRegistro(const DosisDelPlan &dosis)
{
    vacunas::Registros registros;
    if (!registros.buscar(*paciente_, dosis.vacuna, dosis.dosis)) {
        avisar(u"Dosis no registrada"_s);
        return;
    }
    panPoneVacuna(leer(registros.fila()), nacimiento_, panPoneVacuna::Uso::Ver).showModal();
}

// --- the whole sheet ---

/// Only what is overdue: neither what was prescribed nor what is yet to come. The states are read again
/// first, so that a dose noted meanwhile on another station is not noted twice.
void panPlanVacunas::marcarTodas()
{
    if (!MODULE11::Pregunta(u"Asienta todas las dosis en falta como colocadas??"_s))
        return;
    planilla_.ponerEstados(*paciente_, edad_);
    dao::Batch juntas(MODULE11::BaseDatos);
    dao::Recordset filas = MODULE11::BaseDatos.openRecordset(u"Vacunas"_s);
    for (const vacunas::Marca &marca : planilla_.marcas)
        if (marca.estado == Estado::Falta)
            agregar(filas, *paciente_,
                    {basic::today(), marca.dosis.vacuna, marca.dosis.dosis, u"Registro Automático"_s});
    juntas.commit();
    llenar();
}

/// The certificate says that the plan is kept: whoever signs it is told what is missing.
void panPlanVacunas::imprimir()
{
    if (const QStringList faltan = vacunas::dosisQueFaltan(planilla_, *paciente_); !faltan.isEmpty())
        MODULE11::Aviso(avisoDeFaltantes(faltan));
    const auto impresora = printing::chooserDialog(windowTitle());
    if (!impresora)
        return;
    basic::ignoring({errorDeImpresora},
                    [&] { vacunas::imprimirCertificado(hoja, windowTitle(), *impresora); });
}

#include "moc_panPlanVacunas.cpp"
