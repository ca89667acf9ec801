// What is done on the pages of panServices.
#include "core/service/panServices.h"

#include "core/database/actualiza.h"
#include "core/maintenance/trabajo.h"
#include "core/security/eventos.h"
#include "core/service/nombres.h"
#include "core/service/vaciado.h"
#include "core/services/panIdato.h"
#include "core/services/services.h"
#include "core/services/tiposDeAnalisis.h"
#include "core/session/recetario.h"
#include "core/session/session.h"
#include "core/session/startup.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/boxes.h"
#include "platform/forms/wrong.h"

using namespace Qt::StringLiterals;
using namespace forms;
using MODULE11::BaseDatos;

namespace
{

constexpr int largoDelResultado = 50, largoDelEstudio = 100;

} // namespace

void panServices::mostrarRecetario()
{
    const QString elegido = MODULE11::recetarioElegido();
    Label1.setCaption(
        elegido.isEmpty() ? QString() : u"Recetario de esta estación desde su próximo inicio: "_s + elegido);
}

/// A table of the practice that is no layout must never be taken for one: saving a layout empties its table.
void panServices::crearRecetario()
{
    const QString nombre = Text1.text().trimmed();
    clearWrong(Text1);
    QString error =
        nombre.isEmpty() ? u"Error, defina un nombre de recetario!"_s : service::reparoDelNombre(nombre);
    const bool esta = error.isEmpty() && MODULE11::esRecetario(nombre);
    try {
        if (error.isEmpty() && !esta)
            MODULE11::crearRecetario(nombre);
    } catch (const dao::Error &falla) {
        error = falla.description();
    }
    if (!error.isEmpty()) {
        MODULE11::MuestraError(error);
        markWrong(Text1, error);
        return;
    }
    MODULE11::elegirRecetario(nombre);
    mostrarRecetario();
}

std::optional<QString> panServices::pideNombre(const QString &rotulo, int largo,
                                               const std::function<QString(const QString &)> &reparo)
{
    panIdato entrada;
    entrada.Label1.setCaption(rotulo);
    entrada.Label2.hide();
    entrada.Combo1.hide();
    entrada.Text1.setMaxLength(largo);
    entrada.Text1.setMinimumWidth(320);
    for (;;) {
        entrada.setTag({});
        entrada.showModal();
        if (entrada.tag() != u"SI")
            return std::nullopt;
        const QString nombre = entrada.Text1.text().trimmed();
        const QString error = reparo(nombre);
        if (error.isEmpty())
            return nombre;
        MODULE11::MuestraError(error);
        markWrong(entrada.Text1, error);
    }
}

void panServices::agregarAnalisis()
{
    if (const auto nombre =
            pideNombre(u"&Nombre del análisis :"_s, service::largoDeNombre, service::reparoDelNombre))
        cambiarAnalisis(*nombre, u"APPEND"_s);
}

void panServices::quitarAnalisis()
{
    const QString nombre = List1.currentItem()->text();
    if (MODULE11::PreguntaSiBorra(
            u"Elimina el análisis %1 de la lista, con sus resultados de todos los pacientes?"_s.arg(nombre)))
        cambiarAnalisis(nombre, u"DELETE"_s);
}

/// A test that another station has taken off meanwhile is off.
void panServices::cambiarAnalisis(const QString &nombre, const QString &accion)
{
    basic::ignoring({dao::Error::FieldNotFound, dao::Error::FieldExists}, [&] {
        MODULE11::ModificaCampo(u"Analisis"_s, nombre, dao::FieldType::Text, largoDelResultado, accion);
    });
    List1.clear();
    List1.addItems(laboratorio::estudios());
    if (const auto hallados = List1.findItems(nombre, Qt::MatchFixedString); !hallados.isEmpty())
        List1.setCurrentItem(hallados.first());
}

void panServices::agregarEstudio()
{
    const auto reparo = [](const QString &nombre) {
        return nombre.isEmpty() ? u"Escriba el nombre del estudio."_s : QString();
    };
    const auto nombre = pideNombre(u"&Nombre del estudio :"_s, largoDelEstudio, reparo);
    if (!nombre)
        return;
    const QString valor = dao::quoted(*nombre), es = u"Estudio = "_s + valor;
    if (BaseDatos.openRecordset(u"Select * from tablaEstudios where "_s + es).eof())
        BaseDatos.execute(u"INSERT INTO tablaEstudios (Estudio) VALUES (%1)"_s.arg(valor));
    else
        MODULE11::Aviso(u"El estudio ya está en la lista."_s);
    Data1.refresh(es);
}

void panServices::quitarEstudio()
{
    if (askBox(u"Elimina este estudio de la lista?"_s, u"Borrar"_s, Answer::No))
        Data1.deleteRow();
}

void panServices::quitarVacuna()
{
    if (askBox(u"Elimina este registro de la lista ??"_s, u"Atencion !!"_s, Answer::No))
        Data2.deleteRow();
}

void panServices::contarRegistros()
{
    MODULE11::RelojEspera();
    Tree1.clear();
    for (const vaciado::Cuenta &cuenta : vaciado::cuentas()) {
        if (!cuenta.registros)
            continue;
        auto *renglon =
            new QTreeWidgetItem(&Tree1, {cuenta.tabla, basic::format(*cuenta.registros, u"###,###,##0")});
        renglon->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    }
    MODULE11::RelojNormal();
}

void panServices::vaciar()
{
    if (!askBox(
            u"Atención, está a punto de vaciar las tablas de información referente a consultas, registros de todo tipo, desea continuar ??"_s,
            u"Atención"_s, Answer::No, Icon::Exclamation) ||
        !chkCopia.hacer())
        return;
    vaciado::Resultado resultado;
    mantenimiento::trabajar(
        u"Se vacían las tablas"_s, mantenimiento::Detencion::Posible, [&](const auto &avance) {
            dao::Database propia;
            propia.open(MODULE11::BaseDatos.path(), false, false, MODULE11::conexionDeLaBase());
            resultado = vaciado::vaciar(
                propia, [&](const QString &tabla) { return avance(u"Tabla "_s + tabla, 0, 0); });
            return true;
        });
    MODULE11::RegistraEvento(u"VACIADO DE TABLAS"_s, u"TABLAS : %1"_s.arg(resultado.vaciadas));
    contarRegistros();
    if (resultado.detenido)
        resultado.fallas += u"Se detuvo antes de terminar: las demás tablas quedan como estaban."_s;
    if (resultado.fallas.isEmpty())
        msgBox(u"Proceso terminado!"_s, Icon::Information, u"OK"_s);
    else
        MODULE11::MuestraError(u"No se vaciaron todas las tablas.\n"_s + resultado.fallas.join(u'\n'));
}
