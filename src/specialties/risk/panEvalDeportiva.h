#pragma once

#include "core/records/campos.h"
#include "platform/forms/form.h"

/// "Evaluacion Deportiva": the pre-participation examination of the athlete whose number is the tag, one row
/// of `HC_Deportiva`, a page for each of its headings.
class panEvalDeportiva : public forms::Form
{
    Q_OBJECT
public:
    panEvalDeportiva();

protected:
    void activate() override;

private:
    void disponer();
    void guardar();

    forms::SSTab SSTab1{QStringLiteral("SSTab1")};
    forms::Label lblPaciente{QStringLiteral("lblPaciente")};
    forms::TextBox Text1{QStringLiteral("Text1")}; ///< the patient's number, out of sight
    records::Campos campos_{QStringLiteral("HC_Deportiva")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Guardar"),
                                  QStringLiteral("guardar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
