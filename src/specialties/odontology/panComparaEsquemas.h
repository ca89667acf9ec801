#pragma once

#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/layout.h"
#include "specialties/odontology/odontograma.h"

/// Two schemes of the patient whose number is the tag side by side, with the teeth in which they differ
/// framed and told in words. Opens with the oldest and the newest.
class panComparaEsquemas : public forms::Form
{
    Q_OBJECT
public:
    panComparaEsquemas();

protected:
    void load() override;

private:
    forms::Item lado(int indice, const QString &rotulo);
    void comparar();

    forms::Label Label4{QStringLiteral("Label4")};
    forms::ControlArray<forms::ComboBox> Combo1{QStringLiteral("Combo1")};
    forms::ControlArray<odonto::Odontograma> Picture1{QStringLiteral("Picture1")};
    forms::ListBox List1{QStringLiteral("List1")};
    forms::Label lblDiferencias{QStringLiteral("lblDiferencias")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
