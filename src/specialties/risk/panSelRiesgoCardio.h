#pragma once

#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "specialties/risk/riesgoCardiaco.h"

#include <optional>

/// A list of which one is picked for the value it has: the profession, or the event of the last year. Answers
/// the value, or nothing when it was left.
class panSelRiesgoCardio : public forms::Form
{
    Q_OBJECT
public:
    panSelRiesgoCardio(const QString &ventana, const QString &titulo,
                       std::span<const riesgoCardiaco::Opcion> opciones);

    /// The value picked; nothing when the window was cancelled or nothing was chosen.
    std::optional<int> valor() const;

private:
    void aceptar();

    forms::ControlArray<forms::OptionButton> optionProf{QStringLiteral("optionProf")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};

class panSelRiesgoCardio1 : public panSelRiesgoCardio
{
public:
    panSelRiesgoCardio1();
};

class panSelRiesgoCardio2 : public panSelRiesgoCardio
{
public:
    panSelRiesgoCardio2();
};
