#pragma once

#include "platform/dao/recordset.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Nueva Prestación": a service to be added to the tariffs, all of it filled in. Answers "SI" or "NO".
class panNuePrestacion : public forms::Form
{
    Q_OBJECT
public:
    panNuePrestacion();

    void escribir(dao::Recordset &fila) const;

private:
    QWidget *faltante();
    void aceptar();

    forms::ControlArray<forms::TextBox> Text1{QStringLiteral("Text1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Nueva"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
