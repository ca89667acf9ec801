#pragma once

#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/layout.h"
#include "specialties/risk/escala.h"
#include "specialties/risk/riesgoCardiaco.h"

#include <QButtonGroup>

#include <map>
#include <memory>

/// "Test de Riesgo Cardíaco": fourteen questions whose answers add up to an advice. Nothing of it is kept; it
/// can be printed, for the patient whose number is the tag if there is one.
class panTestCardio : public forms::Form
{
    Q_OBJECT
public:
    panTestCardio();

private:
    void agregarPreguntas();
    forms::Item pregunta(const riesgoCardiaco::Pregunta &pregunta);
    void responder(int numero);
    void preguntarPorElTabaco();
    int total() const;
    void mostrarResultado();
    void elegirBanda(int pregunta);
    QStringList respuestas() const;

    // What others stand in ends after them.
    QWidget panFuma;
    riesgo::Escala escala_{QStringLiteral("BotMarcador"), riesgo::Escala::Lugar::AlBorde};
    forms::Frame Frame1{QStringLiteral("Frame1"), QStringLiteral("Mujeres")};
    forms::ControlArray<forms::OptionButton> ChOption{QStringLiteral("ChOption")};
    forms::ControlArray<forms::Label> fcolor{QStringLiteral("fcolor")};
    forms::ControlArray<forms::Label> Label3{QStringLiteral("Label3")};
    forms::Label Label1{QStringLiteral("Label1")};
    forms::Label Label4{QStringLiteral("Label4"), QStringLiteral("0")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("Seleccion...")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("Seleccion...")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("&Imprimir"),
                                  QStringLiteral("imprimir")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
    std::map<int, std::unique_ptr<QButtonGroup>> grupos_; ///< by question
};
