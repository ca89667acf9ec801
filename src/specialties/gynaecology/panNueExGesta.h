#pragma once

#include "platform/dao/recordset.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Nuevo examen de gestación": a control visit of a pregnancy. Answers "SI" or "NO".
class panNueExGesta : public forms::Form
{
    Q_OBJECT
public:
    panNueExGesta();

    /// The date and the nine texts, into the row.
    void escribir(dao::Recordset &fila) const;

protected:
    void escape() override { answer(QStringLiteral("NO")); }

private:
    forms::DTPicker dt1{QStringLiteral("dt1")};
    forms::MemoBox mDetalles{QStringLiteral("Text1(0)")}; ///< the first of the nine, in lines
    forms::ControlArray<forms::TextBox> Text1{QStringLiteral("Text1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
