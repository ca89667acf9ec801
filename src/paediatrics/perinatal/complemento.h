#pragma once

#include "paediatrics/perinatal/campos.h"
#include "platform/forms/form.h"

namespace perinatal
{

/// A companion dialogue of the birth record, over columns of the patient's paediatric data: it holds what is
/// typed until its caller stores it. Answers "SI" or "NO".
class Complemento : public forms::Form
{
    Q_OBJECT
public:
    void mostrar(const Valores &valores) { campos_.mostrar(valores); }
    Valores valores() const { return campos_.valores(); }

protected:
    Complemento(const QString &ventana, const QString &titulo);
    void disponer(forms::Item contenido);

    Campos campos_{QStringLiteral("Pediatria")};

private:
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};

} // namespace perinatal
