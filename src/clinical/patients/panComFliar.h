#pragma once

#include "platform/basic/value.h"
#include "platform/dao/recordset.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Condición familiar del paciente": the parents and the family's pathologies. Answers "SI" or "NO"; what
/// was typed stays for the next time it is opened.
class panComFliar : public forms::Form
{
    Q_OBJECT
public:
    panComFliar();

    /// Shows what a family's row holds; without one, the pathologies alone.
    void mostrar(dao::Recordset *pediatria, const QStringList &patologias);

    QString nombreDelPadre() const { return Text1(padre).text(); }
    QString nombreDeLaMadre() const { return Text1(madre).text(); }
    basic::Value nacimientoDelPadre() const { return nacimiento(mFPa); }
    basic::Value nacimientoDeLaMadre() const { return nacimiento(mFMa); }
    QString ocupacionDelPadre() const { return Combo1(padre).value(); }
    QString ocupacionDeLaMadre() const { return Combo1(madre).value(); }
    QString horasDelPadre() const { return Text2(padre).text(); }
    QString horasDeLaMadre() const { return Text2(madre).text(); }
    QStringList patologias() const { return List1.lines(); }

private:
    enum Progenitor { padre, madre };

    basic::Value nacimiento(const forms::DTPicker &fecha) const; ///< Null while it stands at 01/01/1900
    void agregarPatologias();
    void quitarPatologia();

    forms::ControlArray<forms::TextBox> Text1{QStringLiteral("Text1")};
    forms::DTPicker mFPa{QStringLiteral("mFPa")};
    forms::DTPicker mFMa{QStringLiteral("mFMa")};
    forms::ControlArray<forms::ComboBox> Combo1{QStringLiteral("Combo1")};
    forms::ControlArray<forms::TextBox> Text2{QStringLiteral("Text2")};
    forms::ListBox List1{QStringLiteral("List1")};
    forms::CommandButton Command7{QStringLiteral("Command7"), QStringLiteral("A&gregar..."),
                                  QStringLiteral("agregar")};
    forms::CommandButton Command8{QStringLiteral("Command8"), QStringLiteral("&Quitar"),
                                  QStringLiteral("quitar")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
