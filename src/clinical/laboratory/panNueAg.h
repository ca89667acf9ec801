#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Nuevo estudio para agregar a su tabla": asks the name of a study for the catalogue. Answers "SI" or "NO".
class panNueAg : public forms::Form
{
    Q_OBJECT
public:
    panNueAg();

    QString nombre() const { return Text1.text().trimmed(); }

private:
    void aceptar();

    forms::Label Label1{QStringLiteral("Label1"),
                        QStringLiteral("Escriba el nombre o denominación que asignará al nuevo estudio.")};
    forms::TextBox Text1{QStringLiteral("Text1"), 100};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
