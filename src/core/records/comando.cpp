#include "core/records/comando.h"

#include "core/security/niveles.h"
#include "core/services/services.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace records
{

forms::CommandButton &comando(forms::Form &window, const QString &name, const QString &caption,
                              const QString &icon, std::function<void()> work, Before before)
{
    auto *button = new forms::CommandButton(name, caption, icon);
    button->setParent(&window);
    const auto ask = [before = std::move(before), work = std::move(work)] {
        if (!before.gate.isEmpty() && !MODULE11::VerificaNivel(before.gate))
            return;
        if (before.question.isEmpty() || MODULE11::PreguntaSiBorra(before.question))
            work();
    };
    QObject::connect(button, &QPushButton::clicked, &window, ask);
    return *button;
}

} // namespace records
