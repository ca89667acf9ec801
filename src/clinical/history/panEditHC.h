#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// The editor of a patient's textual history, the column `Historia Clinica`. The patient's number comes in
/// the tag.
class panEditHC : public forms::Form
{
    Q_OBJECT
public:
    panEditHC();

protected:
    void load() override;
    void activate() override;
    bool queryUnload() override;

private:
    void cargar();
    void aplicarAspecto();
    void elegirColor(const QString &ajuste, const QString &titulo);
    bool dejarLosCambios();
    void abrirOtra();
    void imprimir();
    void agregarInteractiva();
    void guardar();

    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Abrir otra Historia Clínica"),
                                  QStringLiteral("abrir")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Imprimir"),
                                  QStringLiteral("imprimir")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Guardar Cambios"),
                                  QStringLiteral("guardar")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("C&ortar"),
                                  QStringLiteral("cortar")};
    forms::CommandButton Command5{QStringLiteral("Command5"), QStringLiteral("&Copiar"),
                                  QStringLiteral("copiar")};
    forms::CommandButton Command6{QStringLiteral("Command6"), QStringLiteral("&Pegar"),
                                  QStringLiteral("pegar")};
    forms::CommandButton Command7{QStringLiteral("Command7"), QStringLiteral("Fon&do"),
                                  QStringLiteral("color")};
    forms::CommandButton Command8{QStringLiteral("Command8"), QStringLiteral("&Letra"),
                                  QStringLiteral("fuente")};
    forms::CommandButton Command9{QStringLiteral("Command9"),
                                  QStringLiteral("Convertir a te&xto la HC Interactiva"),
                                  QStringLiteral("historia")};
    forms::ComboBox Combo1{QStringLiteral("Combo1")}; ///< size
    forms::ComboBox Combo2{QStringLiteral("Combo2")}; ///< font
    forms::MemoBox RT1{QStringLiteral("RT1")};

    QString cargado_;           ///< number of the patient whose text is shown
    bool captionAjeno_ = false; ///< the opener gave the window a caption of its own
    bool modificado_ = false;
};
