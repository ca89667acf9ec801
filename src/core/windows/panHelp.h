#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Ayudante del entorno": a narrow borderless note in the top right corner of the screen.
class panHelp : public forms::Form
{
    Q_OBJECT
public:
    panHelp();

    forms::Label Label1{QStringLiteral("Label1")};

protected:
    void load() override;
};
