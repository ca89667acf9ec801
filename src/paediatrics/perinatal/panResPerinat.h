#pragma once

#include "paediatrics/perinatal/campos.h"
#include "paediatrics/perinatal/listaDePatologias.h"
#include "platform/forms/form.h"

/// "Ficha resumen perinatal": the birth record of the patient whose number is the tag on one page, with what
/// the whole record has to say in sentences. Here the Apgar totals are typed. The tag is "SI" once it is
/// accepted.
class panResPerinat : public forms::Form
{
    Q_OBJECT
public:
    panResPerinat();

protected:
    void activate() override;
    bool queryUnload() override;

private:
    forms::Item madre();
    forms::Item recienNacido();
    void leer();
    void mostrar();
    perinatal::Ficha escrita() const;
    void guardar();
    void abrirFicha();
    void imprimir();

    qint64 paciente_ = 0;
    perinatal::Ficha mostrada_; ///< as it was when the person began
    perinatal::Campos campos_{QStringLiteral("Perinatal")};
    perinatal::ListaDePatologias patologias_{QStringLiteral("List1"), QStringLiteral("Command7"),
                                             QStringLiteral("Command8"),
                                             QStringLiteral("Antecedentes Perinatales")};
    perinatal::ListaDePatologias diagnosticos_{QStringLiteral("List2"), QStringLiteral("Command10"),
                                               QStringLiteral("Command9"),
                                               QStringLiteral("Enfermedades del RN")};
    forms::ListBox List3{QStringLiteral("List3")}; ///< the sentences
    forms::ComboBox Combo1;                        ///< the mother's blood group
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Ficha completa..."),
                                  QStringLiteral("abrir")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("&Imprimir"),
                                  QStringLiteral("imprimir")};
};
