#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"

/// "Recetario": the prescriptions of the session's professional.
class pan_Recetario : public forms::Form
{
    Q_OBJECT
public:
    pan_Recetario();

protected:
    void load() override;

private:
    bool hayReceta();
    qint64 idReceta();
    void irA(qint64 idReceta);
    void mostrar();
    void nueva();
    void quitar();
    void abrir();
    void buscar();
    void imprimir();
    void enviar();

    forms::Label Label1{
        QStringLiteral("Label1"),
        QStringLiteral(
            "Utilize este recetario para emitir recetas manuales a sus pacientes y registrarlas en un fichero.")};
    forms::Data Data1{QStringLiteral("Data1")};
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};
    forms::MemoBox Text1{QStringLiteral("Text1")}; ///< the whole of the current one
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Nuevo..."),
                                  QStringLiteral("agregar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Quitar"),
                                  QStringLiteral("borrar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Abrir..."),
                                  QStringLiteral("abrir")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("&Salir"),
                                  QStringLiteral("cerrar")};
    forms::CommandButton Command5{QStringLiteral("Command5"), QStringLiteral("&Configurar..."),
                                  QStringLiteral("configurar")};
    forms::CommandButton Command6{QStringLiteral("Command6"), QStringLiteral("&Buscar..."),
                                  QStringLiteral("buscar")};
    forms::CommandButton Command7{QStringLiteral("Command7"), QStringLiteral("&Imprimir"),
                                  QStringLiteral("imprimir")};
    forms::CommandButton Command8{QStringLiteral("Command8"), QStringLiteral("Enviar por corr&eo..."),
                                  QStringLiteral("correo")};
};
