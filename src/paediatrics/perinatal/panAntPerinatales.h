#pragma once

#include "paediatrics/perinatal/apgar.h"
#include "paediatrics/perinatal/listaDePatologias.h"
#include "paediatrics/perinatal/medidasAlNacer.h"
#include "platform/forms/form.h"

namespace perinatal
{
class Complemento;
}

/// "Antecedentes perinatales": everything that is known of the birth of the patient whose number is the tag,
/// on four pages. Nothing is written before it is accepted, the companion dialogues' data included; then the
/// tag is "SI".
class panAntPerinatales : public forms::Form
{
    Q_OBJECT
public:
    panAntPerinatales();

    /// What was typed elsewhere and not stored yet: it is shown over what is kept.
    void comenzarCon(perinatal::Ficha escrita) { comienzo_ = std::move(escrita); }

protected:
    void activate() override;
    bool queryUnload() override;

private:
    forms::Item datosMaternos();
    forms::Item parto();
    forms::Item drogas();
    std::vector<forms::FieldRow> terminacion();
    forms::Item recienNacido();
    forms::Item examen();
    void conectar();

    void leer(qint64 paciente);
    void mostrar(const perinatal::Ficha &ficha);
    void mostrarNoColumnas();
    void elegirTerminacion();
    perinatal::Ficha escrita() const;
    /// Opens a companion over what is kept and what was accepted in it before.
    void completar(perinatal::Complemento &&dialogo);
    void guardar();

    qint64 paciente_ = 0;
    std::optional<perinatal::Ficha> comienzo_;
    perinatal::Ficha mostrada_;    ///< as it was when the person began
    perinatal::Valores pediatria_; ///< as it is kept
    perinatal::Valores aceptados_; ///< in the companions, not stored yet

    forms::SSTab SSTab1{QStringLiteral("SSTab1")};
    perinatal::Campos campos_{QStringLiteral("Perinatal")};
    perinatal::Apgar apgar_{campos_};
    perinatal::MedidasAlNacer medidas_{campos_};
    perinatal::ListaDePatologias patologias_{QStringLiteral("List1"), QStringLiteral("Command7"),
                                             QStringLiteral("Command8"),
                                             QStringLiteral("Antecedentes Perinatales")};
    perinatal::ListaDePatologias diagnosticos_{QStringLiteral("List2"), QStringLiteral("Command10"),
                                               QStringLiteral("Command9"),
                                               QStringLiteral("Enfermedades del RN")};
    forms::ComboBox Combo1, Combo2; ///< blood groups of mother and cord
    forms::ComboBox Combo4;         ///< why the birth ended in a caesarean section
    forms::ControlArray<forms::OptionButton> Option1{
        QStringLiteral("Option1")}; ///< how it ended, by usual words
    forms::ControlArray<forms::OptionButton> Option11{QStringLiteral("Option11")}; ///< drugs: yes, no
    QButtonGroup terminaciones_, conDrogas_;
    forms::ControlArray<forms::TextBox> Text3{QStringLiteral("Text3")}; ///< the drugs, and how long before
    forms::TextBox Text2{QStringLiteral("Text2")};                      ///< how it ended, in free words
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
    forms::CommandButton Command4{QStringLiteral("Command4"),
                                  QStringLiteral("&Otros datos del recien nacido..."),
                                  QStringLiteral("editar")};
    forms::CommandButton Command5{QStringLiteral("Command5"), QStringLiteral("&Evolución del embarazo..."),
                                  QStringLiteral("editar")};
    forms::CommandButton Command6{QStringLiteral("Command6"), QStringLiteral("&Observaciones..."),
                                  QStringLiteral("editar")};
};
