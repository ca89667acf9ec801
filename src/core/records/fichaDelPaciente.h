#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/form.h"

#include <optional>

namespace records
{

/// The patient whose number is the window's tag. Without one it is told and the window closes.
std::optional<qint64> pacienteDe(forms::Form &ventana);

/// The one row that a patient has in a table, made when there is none: a window of this kind binds its fields
/// to `Data1` and declares its layout. `lblPaciente` says whose it is. What was changed is written when the
/// window closes.
class FichaDelPaciente : public forms::Form
{
    Q_OBJECT
protected:
    /// `columna` of `tabla` holds the patient's number. Where the table has rows of another kind beside the
    /// record, `condicion` tells the record's.
    FichaDelPaciente(const QString &ventana, const QString &titulo, const QString &tabla,
                     const QString &columna, const QString &condicion = QStringLiteral("True"));

    /// Once, after the row has been read.
    virtual void filaLeida() {}

    void activate() override;
    bool queryUnload() override;

    forms::Data Data1{QStringLiteral("Data1")};
    forms::Label lblPaciente{QStringLiteral("lblPaciente")};

private:
    void leer(qint64 paciente);
    QString tabla_, columna_, condicion_;
};

} // namespace records
