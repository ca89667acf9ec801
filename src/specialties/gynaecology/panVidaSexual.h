#pragma once

#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/layout.h"

#include <QButtonGroup>

#include <memory>

/// "Cuestionario Vida Sexual" of the patient whose number is the tag: what was marked is kept, a row each, as
/// the caption and its place.
class panVidaSexual : public forms::Form
{
    Q_OBJECT
public:
    panVidaSexual();

protected:
    void activate() override;

private:
    forms::Item pregunta(int numero);
    std::vector<QAbstractButton *> respuestas() const;
    void guardar();

    forms::ControlArray<forms::CheckBox> Check1{QStringLiteral("Check1")};
    forms::ControlArray<forms::OptionButton> Option1{QStringLiteral("Option1")};
    std::vector<std::unique_ptr<QButtonGroup>> grupos_;
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Guardar"),
                                  QStringLiteral("guardar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
    bool leida_ = false;
};
