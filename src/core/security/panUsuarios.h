#pragma once

#include "core/records/tabla.h"

/// "Usuarios del sistema": the accounts, and what each of them did. The account "supervisor" keeps its name,
/// level and type.
class panUsuarios : public records::Tabla
{
    Q_OBJECT
public:
    panUsuarios();

protected:
    void load() override;
    void rowShown() override;

private:
    forms::Item fichaUsuarios();
    forms::Item fichaEventos();
    void conectar();

    void bloquear(bool supervisor);
    void mostrarNivel();
    QString usuarioEnVista();
    void mostrarEventos(const QString &condicion = {});
    void escribir(const QString &campo, const basic::Value &valor);
    void agregar();
    void suspender();
    void filtrar();
    void imprimir();

    forms::SSTab SSTab1{QStringLiteral("SSTab1")};
    forms::TextBox Text1{QStringLiteral("Text1"), 50};
    forms::TextBox Text2{QStringLiteral("Text2"), 4};
    forms::TextBox Text3{QStringLiteral("Text3")};
    forms::ComboBox Combo1{QStringLiteral("Combo1")};
    forms::ComboBox Combo2{QStringLiteral("Combo2")};
    forms::CommandButton &Command4 =
        rowCommand(QStringLiteral("Command4"), {}, QStringLiteral("candado"), [this] { suspender(); });

    forms::Data Data2{QStringLiteral("Data2")};
    forms::DBGrid DBGrid2{QStringLiteral("DBGrid2")};
    forms::Label Label1{QStringLiteral("Label1")};
    forms::DTPicker dt1{QStringLiteral("dt1")};
    forms::DTPicker dt2{QStringLiteral("dt2")};
    forms::CheckBox Check1{QStringLiteral("Check1"), QStringLiteral("&Todos los usuarios")};
};
