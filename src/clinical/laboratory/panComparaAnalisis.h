#pragma once

#include "clinical/laboratory/listaDeAnalisis.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"

/// "Comparación de laboratorio": the orders of the patient whose number is the tag, with the results of the
/// chosen tests side by side.
class panComparaAnalisis : public forms::Form
{
    Q_OBJECT
public:
    panComparaAnalisis();

protected:
    void load() override;

private:
    void comparar();

    forms::Data Data1{QStringLiteral("Data1")};
    forms::Label Label1{
        QStringLiteral("Label1"),
        QStringLiteral("Seleccione de la lista de abajo los estudios a realizar la comparación.")};
    ListaDeAnalisis List1{QStringLiteral("List1")};
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
};
