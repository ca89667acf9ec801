#pragma once

#include "clinical/family/arbolFamiliar.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Arbol genealogico - Antecedentes": the family tree of the patient whose number is the window's tag. Mouse
/// and arrow keys tell a relative's conditions; a click on the relative changes them.
class panArbol : public forms::Form
{
    Q_OBJECT
public:
    panArbol();

protected:
    void activate() override;

private:
    void redibujar(qint64 paciente);
    void informar(const QString &caja);
    void editar(const QString &caja);
    void resumir();
    void imprimir();

    std::map<QString, familia::Antecedentes> familia_;
    familia::ArbolFamiliar arbol;
    forms::Label Label1{
        QStringLiteral("Label1"),
        QStringLiteral(
            "Al pasar el puntero del mouse sobre el cuadro de cada pariente, se muestra en el panel "
            "información, las patologías, para agregar o modificar, haga \"click\" con el mouse sobre el cuadro "
            "en cuestion, luego presione el botón \"Guardar Cambios\" para almacenar la información.")};
    forms::Frame Frame1{QStringLiteral("Frame1"), QStringLiteral("Información")};
    forms::Label Label2{QStringLiteral("Label2")};
    forms::ListBox List1{QStringLiteral("List1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Resumen..."),
                                  QStringLiteral("ver")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Imprimir"),
                                  QStringLiteral("imprimir")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
