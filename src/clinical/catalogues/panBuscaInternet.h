#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Buscar en internet": hands a text to a search on the web, which opens in the system's browser.
class panBuscaInternet : public forms::Form
{
    Q_OBJECT
public:
    explicit panBuscaInternet(const QString &texto);

protected:
    void load() override;

private:
    void buscar();

    forms::TextBox Text1{QStringLiteral("Text1")};
    forms::TextBox Text2{QStringLiteral("Text2")};
    forms::Label Label1{
        QStringLiteral("Label1"),
        QStringLiteral(
            "La búsqueda se abre en el navegador de este equipo y sale a Internet: no escriba datos de "
            "sus pacientes.")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Buscar"),
                                  QStringLiteral("buscar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
