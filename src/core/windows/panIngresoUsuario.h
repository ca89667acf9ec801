#pragma once

#include "platform/basic/value.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// The login window. Answers "SI" or "NO". In the appointment book's mode "Por Usuario" it also asks for a
/// date and a professional.
class panIngresoUsuario : public forms::Form
{
    Q_OBJECT
public:
    panIngresoUsuario();

    QString usuario() const { return Text1.text(); }
    QString clave() const { return Text2.text(); }
    basic::Date fechaDeTurnos() const { return dt1.value(); }
    QString profesionalDeTurnos() const { return Combo2.value(); }

    /// The next time it is shown the focus is on the password.
    void pedirClave();

protected:
    void load() override;
    void activate() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    forms::TextBox Text1{QStringLiteral("Text1"), 50};
    forms::TextBox Text2{QStringLiteral("Text2"), 60};
    forms::Label Label3{
        QStringLiteral("Label3"),
        QStringLiteral("Instalación nueva: el usuario es \"supervisor\" y la clave \"supervisor\".")};
    forms::Frame Frame1{QStringLiteral("Frame1"), QStringLiteral("Turnos")};
    forms::DTPicker dt1{QStringLiteral("dt1")};
    forms::ComboBox Combo2{QStringLiteral("Combo2")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("Ca&ncelar"),
                                  QStringLiteral("cancelar")};
    bool pideClave_ = false;
};
