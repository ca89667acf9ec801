#include "paediatrics/control/renglonesDelPaciente.h"

#include "core/reports/papel.h"
#include "core/services/paciente.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/dao/sqltext.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace sano
{

RenglonesDelPaciente::RenglonesDelPaciente(Clase clase)
    : ListaDelPaciente(
          clase.ventana, clase.titulo, clase.columnas,
          u"Select *%5 from [%2] where [%3] = %1 order by [%4]"_s.arg(
              u"%1"_s, clase.tabla, clase.columnaDePaciente, clase.columnaDeNombre,
              clase.siONo.isEmpty() ? QString() : u", IIf([%1], 'Sí', 'No') as SiONo"_s.arg(clase.siONo))),
      clase_(std::move(clase)), Combo1(u"Combo1"_s, clase_.sugerencias, true)
{
    const dao::TableDef tabla = MODULE11::BaseDatos.tableDef(clase_.tabla);
    Combo1.lineEdit()->setMaxLength(tabla.field(clase_.columnaDeNombre)->size);
    QFont destacada = lblPaciente.font();
    destacada.setBold(true);
    lblPaciente.setFont(destacada);
}

void RenglonesDelPaciente::disponer(Item campos, std::vector<QWidget *> delRenglon)
{
    delRenglon_ = std::move(delRenglon);
    CommandButton &agregado = command(u"Command1"_s, u"&Agregar"_s, u"agregar"_s, [this] { agregar(); });
    setContents(this,
                Column{lblPaciente, Row{Expanding(Fields{{clase_.rotulo + u" :"_s, Combo1}}), agregado},
                       Expanding(DBGrid1), std::move(campos),
                       Row{deletes(u"Command2"_s, u"&Quitar"_s, {.question = u"Quita el renglón elegido"_s}),
                           command(u"Command3"_s, u"&Imprimir"_s, u"imprimir"_s, [this] { imprimir(); }),
                           Stretch(), closes(u"Command4"_s, u"&Cerrar"_s)}});
    resize(720, 520);
    for (QWidget *campo : delRenglon_)
        campo->setEnabled(false);
}

void RenglonesDelPaciente::activate()
{
    ListaDelPaciente::activate();
    lblPaciente.setCaption(services::nombreDePaciente(tag()));
}

void RenglonesDelPaciente::rowShown()
{
    for (QWidget *campo : delRenglon_)
        campo->setEnabled(Data1.hasRow());
}

/// A name that was typed and not added yet is not lost.
bool RenglonesDelPaciente::queryUnload()
{
    if (const QString nombre = Combo1.value().trimmed(); !nombre.isEmpty() && !estaEnLaLista(nombre))
        agregar();
    return ListaDelPaciente::queryUnload();
}

bool RenglonesDelPaciente::estaEnLaLista(const QString &nombre) const
{
    return !MODULE11::BaseDatos
                .openRecordset(u"Select * from [%1] where [%2] = %3 and [%4] = %5"_s.arg(
                    clase_.tabla, clase_.columnaDePaciente, QString::number(paciente()),
                    clase_.columnaDeNombre, dao::quoted(nombre)))
                .eof();
}

void RenglonesDelPaciente::agregar()
{
    const QString nombre = Combo1.value().trimmed();
    if (nombre.isEmpty() || estaEnLaLista(nombre)) {
        MODULE11::MuestraError(nombre.isEmpty() ? u"Escriba o elija antes qué quiere agregar."_s
                                                : u"Ya está en la lista: %1"_s.arg(nombre));
        Combo1.setFocus();
        return;
    }
    addRow([&](dao::Recordset &fila) {
        fila[clase_.columnaDePaciente] = paciente();
        fila[clase_.columnaDeNombre] = nombre;
        comenzar(fila);
    });
    Combo1.setValue({});
}

void RenglonesDelPaciente::imprimir()
{
    Data1.updateRecord();
    const QString titulo = u"%1 : %2"_s.arg(windowTitle(), lblPaciente.caption());
    const auto impresora = printing::defaultChoice(titulo);
    if (!impresora)
        return;
    informes::Papel papel(*impresora);
    for (dao::Recordset fila =
             MODULE11::BaseDatos.openRecordset(Data1.recordSource(), dao::Recordset::Kind::Snapshot);
         !fila.eof(); fila.moveNext())
        papel.escribir(enPalabras(fila), 10);
    papel.terminar();
}

} // namespace sano

#include "moc_renglonesDelPaciente.cpp"
