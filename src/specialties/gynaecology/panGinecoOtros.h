#pragma once

#include "core/records/tabla.h"
#include "platform/forms/controlarray.h"

/// "Especialidades Ginecológicas": dated notes of the patient whose number is the tag, a page for each of the
/// eight sub-specialties, with the way to their reports with pictures.
class panGinecoOtros : public records::ListaDelPaciente
{
    Q_OBJECT
public:
    panGinecoOtros();

protected:
    void rowShown() override;

private:
    forms::Page hoja(int numero);
    void nuevo();

    forms::SSTab SSTab1{QStringLiteral("SSTab1")};
    forms::ControlArray<forms::MemoBox> Text1{QStringLiteral("Text1")};
    forms::ControlArray<forms::CommandButton> Label2{QStringLiteral("Label2")};
};
