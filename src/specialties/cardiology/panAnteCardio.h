#pragma once

#include "core/records/campos.h"
#include "platform/forms/form.h"

/// "Antecedentes cardiológicos": what the patient whose number is the tag brings along, one row of
/// `AntecedentesCardiologicos`.
class panAnteCardio : public forms::Form
{
    Q_OBJECT
public:
    panAnteCardio();

protected:
    void activate() override;

private:
    void guardar();

    bool leida_ = false;
    records::Campos campos_{QStringLiteral("AntecedentesCardiologicos")};
    forms::Label lblPaciente{QStringLiteral("lblPaciente")};
    forms::MemoBox Text1{QStringLiteral("Text1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Guardar"),
                                  QStringLiteral("guardar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
