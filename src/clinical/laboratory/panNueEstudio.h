#pragma once

#include "clinical/laboratory/estudios.h"
#include "clinical/laboratory/fechaDeEstudio.h"
#include "platform/forms/form.h"

/// "Nuevo Estudio": the entry of a study, whose name comes from the catalogue. Answers "SI" or "NO".
class panNueEstudio : public forms::Form
{
    Q_OBJECT
public:
    panNueEstudio();

    estudios::Estudio estudio();

protected:
    void load() override;

private:
    void llenar();
    void agregar();
    void aceptar();

    FechaDeEstudio mFecha{QStringLiteral("mFecha")};
    forms::TextBox mEspecialista{QStringLiteral("mEspecialista"), 100};
    forms::ListBox List1{QStringLiteral("List1")};
    forms::MemoBox mResultados{QStringLiteral("mResultados")};
    forms::MemoBox mObservaciones{QStringLiteral("mObservaciones")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("Agregar a la &tabla..."),
                                  QStringLiteral("agregar")};
};
