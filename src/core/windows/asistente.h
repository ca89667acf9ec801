#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Asistente": guides in numbered pictures, asist_<topic>_<step>.GIF in the folder "asistente".
class asistente : public forms::Form
{
    Q_OBJECT
public:
    asistente();

protected:
    void load() override;

private:
    void mostrar(int paso);
    QString archivo(int paso) const;

    int paso_ = 1;
    forms::Label Label1{QStringLiteral("Label1"), QStringLiteral("&Tema :")};
    forms::ComboBox Combo1{QStringLiteral("Combo1")};
    forms::Label Image1{QStringLiteral("Image1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Anterior"),
                                  QStringLiteral("anterior")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Siguiente"),
                                  QStringLiteral("siguiente")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Volver al principio"),
                                  QStringLiteral("inicio")};
};
