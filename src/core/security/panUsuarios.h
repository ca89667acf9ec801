#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"
#include "platform/forms/layout.h"

/// "Usuarios del sistema": the accounts, and what each of them did. The account "supervisor" keeps its name,
/// level and type.
class panUsuarios : public forms::Form
{
    Q_OBJECT
public:
    panUsuarios();

protected:
    void load() override;
    bool queryUnload() override;

private:
    forms::Item fichaUsuarios();
    forms::Item fichaEventos();
    void conectar();

    void mostrarFila();
    void bloquear(bool supervisor);
    void mostrarNivel();
    void mostrarEventos(const QString &condicion = {});
    void escribir(const QString &campo, const basic::Value &valor);
    void command1Click();
    void command2Click();
    void command4Click();
    void command5Click();

    forms::SSTab SSTab1{QStringLiteral("SSTab1")};
    forms::Data Data1{QStringLiteral("Data1")};
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};
    forms::TextBox Text1{QStringLiteral("Text1"), 50};
    forms::TextBox Text2{QStringLiteral("Text2"), 4};
    forms::TextBox Text3{QStringLiteral("Text3")};
    forms::ComboBox Combo1{QStringLiteral("Combo1")};
    forms::ComboBox Combo2{QStringLiteral("Combo2")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Nuevo..."),
                                  QStringLiteral("nuevo")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Eliminar"),
                                  QStringLiteral("borrar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
    forms::CommandButton Command4{QStringLiteral("Command4"), {}, QStringLiteral("candado")};

    forms::Data Data2{QStringLiteral("Data2")};
    forms::DBGrid DBGrid2{QStringLiteral("DBGrid2")};
    forms::Label Label1{QStringLiteral("Label1")};
    forms::DTPicker dt1{QStringLiteral("dt1")};
    forms::DTPicker dt2{QStringLiteral("dt2")};
    forms::CommandButton Command5{QStringLiteral("Command5"), QStringLiteral("&Filtrar"),
                                  QStringLiteral("buscar")};
    forms::CheckBox Check1{QStringLiteral("Check1"), QStringLiteral("&Todos los usuarios")};
    forms::CommandButton Command7{QStringLiteral("Command7"), QStringLiteral("&Imprimir..."),
                                  QStringLiteral("imprimir")};
};
