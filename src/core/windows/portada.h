#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// The splash: closes by itself after five seconds, on Esc or on a click on the picture.
class portada : public forms::Form
{
    Q_OBJECT
public:
    portada();

private:
    forms::Label Image1{QStringLiteral("Image1")};
    forms::Label Label2{QStringLiteral("Label2")};
    forms::Timer Timer1{QStringLiteral("Timer1"), 5000};
};
