#pragma once

#include "clinical/family/antecedentes.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Seleccionar": the conditions of one relative, whose name is in the tag of `Command2`, of the patient
/// whose number is the window's tag.
class panSelAnteFliar : public forms::Form
{
    Q_OBJECT
public:
    panSelAnteFliar(qint64 paciente, const QString &pariente);

protected:
    void load() override;
    bool queryUnload() override;

private:
    void mostrar(const familia::Antecedentes &antecedentes);
    familia::Antecedentes elegidos() const;
    void habilitarCausas();
    void agregarEnfermedad();
    void quitarEnfermedad();
    void guardar();

    QString pariente() const { return forms::tag(&Command2); }

    qint64 paciente_;
    familia::Antecedentes guardados_; ///< as the boxes told them when they were last on the disk
    forms::Label Label1{QStringLiteral("Label1")};
    forms::ControlArray<forms::CheckBox> Check1{QStringLiteral("Check1")};
    forms::ControlArray<forms::OptionButton> Option1{QStringLiteral("Option1")};
    forms::ListBox List1{QStringLiteral("List1")};
    forms::CommandButton Command9{QStringLiteral("Command9"), QStringLiteral("&CIE10..."),
                                  QStringLiteral("cie10")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Quitar"),
                                  QStringLiteral("quitar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Guardar Cambios"),
                                  QStringLiteral("guardar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("Ca&ncelar"),
                                  QStringLiteral("cancelar")};
};
