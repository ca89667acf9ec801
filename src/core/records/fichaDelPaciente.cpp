#include "core/records/fichaDelPaciente.h"

#include "core/services/paciente.h"
#include "core/services/services.h"

using namespace Qt::StringLiterals;

namespace records
{

std::optional<qint64> pacienteDe(forms::Form &ventana)
{
    const auto numero = services::numeroDePaciente(ventana.tag());
    if (!numero) {
        MODULE11::Aviso(u"Debe seleccionar un paciente"_s);
        ventana.unload();
    }
    return numero;
}

FichaDelPaciente::FichaDelPaciente(const QString &ventana, const QString &titulo, const QString &tabla,
                                   const QString &columna, const QString &condicion)
    : Form(ventana), tabla_(tabla), columna_(columna), condicion_(condicion)
{
    setWindowTitle(titulo);
    QFont destacada = lblPaciente.font();
    destacada.setBold(true);
    lblPaciente.setFont(destacada);
}

void FichaDelPaciente::activate()
{
    const auto paciente = pacienteDe(*this);
    if (!paciente || Data1.hasRecordset())
        return;
    lblPaciente.setCaption(services::nombreDePaciente(tag()));
    leer(*paciente);
    filaLeida();
}

void FichaDelPaciente::leer(qint64 paciente)
{
    Data1.setRecordSource(u"Select * from [%1] where [%2] = %3 and (%4)"_s.arg(
        tabla_, columna_, QString::number(paciente), condicion_));
    Data1.refresh();
    if (Data1.hasRow())
        return;
    Data1.change([&](dao::Recordset &filas) {
        filas.addNew();
        filas[columna_] = paciente;
        filas.update();
    });
    Data1.refresh();
}

bool FichaDelPaciente::queryUnload()
{
    Data1.updateRecord();
    return true;
}

} // namespace records

#include "moc_fichaDelPaciente.cpp"
