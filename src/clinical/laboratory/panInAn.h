#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Ingresa valor del Análisis": asks the result of one test. Answers "SI", "NO" for the test to be left as
/// it is, or "FIN" when no more are to be asked.
class panInAn : public forms::Form
{
    Q_OBJECT
public:
    panInAn();

    /// The test asked for, its result so far and how many characters it may have; where it stands among those
    /// of its order.
    void setEstudio(const QString &estudio, const QString &valor, int largo, const QString &lugar);
    /// What is left blank has no result yet.
    QString valor() const;

private:
    forms::Label Label1{QStringLiteral("Label1")};
    forms::Label Label2{QStringLiteral("Label2")};
    forms::TextBox Text1{QStringLiteral("Text1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Terminar"),
                                  QStringLiteral("cerrar")};
};
