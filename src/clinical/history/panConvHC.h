#pragma once

#include "clinical/history/historiaComoTexto.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// What goes into a history told as text. Answers "SI" or "NO".
class panConvHC : public forms::Form
{
    Q_OBJECT
public:
    panConvHC();

    clinical::ContenidoDeHistoria contenido() const;

protected:
    void load() override;

private:
    void habilitarLoFechado();
    void aceptar();

    forms::DTPicker dt1{QStringLiteral("dt1")};
    forms::DTPicker dt2{QStringLiteral("dt2")};
    forms::ControlArray<forms::CheckBox> Check1{QStringLiteral("Check1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
