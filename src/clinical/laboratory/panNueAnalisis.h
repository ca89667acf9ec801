#pragma once

#include "clinical/laboratory/analisis.h"
#include "clinical/laboratory/listaDeAnalisis.h"
#include "platform/forms/form.h"

/// "Nuevo Analisis / Pedido de laboratorio": the entry of an order for the patient in the
/// tag. Answers "SI" or "NO".
class panNueAnalisis : public forms::Form
{
    Q_OBJECT
public:
    panNueAnalisis();

    laboratorio::Pedido pedido() const;

protected:
    void load() override;

private:
    void aceptar();
    void llenarPerfiles();
    void guardarPerfil();
    void quitarPerfil();

    forms::Label Label1{
        QStringLiteral("Label1"),
        QStringLiteral(
            "Ingrese los datos correspondientes a fin de registrar el pedido de laboratorio efectuado al "
            "paciente. Seleccione los estudios de la lista que aparece abajo.")};
    forms::DTPicker mFecha{QStringLiteral("mFecha")};
    forms::TimePicker mHora{QStringLiteral("mHora")};
    forms::ComboBox comboTipoAnalisis{QStringLiteral("comboTipoAnalisis"), {}, true};
    forms::ComboBox comboBio{QStringLiteral("comboBio"), {}, true};
    forms::ComboBox comboPerfil{QStringLiteral("comboPerfil")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Guardar perfil..."),
                                  QStringLiteral("guardar")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("&Quitar perfil"),
                                  QStringLiteral("quitar")};
    ListaDeAnalisis List1{QStringLiteral("List1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
