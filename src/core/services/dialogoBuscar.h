#pragma once

#include "platform/dao/recordset.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace services
{

/// What the search dialogues share: a text, whether it may stand anywhere, and where the search starts.
class DialogoBuscar : public forms::Form
{
    Q_OBJECT
public:
    QString texto() const { return Text1.text(); }
    /// Moves to the first row whose field begins with the text (or holds it), to the last one, or to the next
    /// one, as was chosen; false when there is none.
    bool mover(dao::Recordset &recordset, const QString &campo) const;

protected:
    struct Textos {
        QString texto, enCualquierParte, principio, final, aqui, aceptar, segundo;
    };
    /// `casilla` is the check box's name; Command1 is the default button.
    DialogoBuscar(const QString &name, const QString &titulo, const QString &casilla, const Textos &textos);
    void activate() override;

    forms::CommandButton Command1;
    forms::CommandButton Command2;

private:
    forms::TextBox Text1{QStringLiteral("Text1")};
    forms::CheckBox check3d1;
    forms::ControlArray<forms::OptionButton> option3d1{QStringLiteral("option3d1")};
};

} // namespace services
