#pragma once

#include "clinical/catalogues/arbolCIE10.h"
#include "platform/forms/form.h"

/// "Capturar Diagnóstico según CIE10": the classification of diseases as a tree. Answers the chosen text; the
/// key of the disease stands in the tag of the tree, and is no number when none of the last level was chosen.
/// A number in the window's own tag is the node to open at.
class panCIE10 : public forms::Form
{
    Q_OBJECT
public:
    panCIE10();

    QString idDiagnosticoCIE() const { return forms::tag(&TreeView1); }

protected:
    void activate() override;
    bool queryUnload() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void cargar();
    void irAlComienzo();
    void elegir();
    void aceptar();
    void buscar();
    void expandir();

    forms::TreeView TreeView1{QStringLiteral("TreeView1")};
    ArbolCIE10 arbol_{TreeView1};
    forms::Label Label1{QStringLiteral("Label1"), QStringLiteral("ESPERE...")};
    forms::TextBox Text1{QStringLiteral("Text1")};
    forms::TextBox Text2{QStringLiteral("Text2"), 255};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("Ca&ncelar"),
                                  QStringLiteral("cancelar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Expanidr")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("&Contraer")};
    forms::CommandButton Command5{QStringLiteral("Command5"), QStringLiteral("&Imprimir"),
                                  QStringLiteral("imprimir")};
    forms::CommandButton Command6{QStringLiteral("Command6"), QStringLiteral("&Buscar en Internet")};
    forms::CommandButton Command7{QStringLiteral("Command7"), QStringLiteral("Bu&scar"),
                                  QStringLiteral("buscar")};
};
