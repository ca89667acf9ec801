#pragma once

#include "paediatrics/anthropometry/referencia.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Antropometría": the entry of one measuring. Each box has a unit button whose tag is what the typed
/// number is multiplied by to reach the stored unit (grams, centimetres). Answers "SI" or "NO".
class panMedidas : public forms::Form
{
    Q_OBJECT
public:
    panMedidas();

    /// Whose measures they are: each one then says beside it where it stands for the age.
    void medirA(const QString &sexo, const basic::Date &nacimiento);

    basic::Date fecha() const { return TextF.value(); }
    double peso() const { return enUnidad(1, Command3); }
    double talla() const { return enUnidad(2, Command4); }
    double pc() const { return enUnidad(3, Command5); }

protected:
    void load() override;
    void activate() override;

private:
    struct Medida {
        int indice; ///< of its entry box
        forms::CommandButton *unidad;
        QString clave;         ///< of its setting
        QString chica, grande; ///< captions of the two units
        int factor;            ///< of the large one
        paediatrics::Medida clase;
    };

    double enUnidad(int indice, const forms::CommandButton &unidad) const;
    void mostrarUnidad(const Medida &medida, const QString &tag);
    void cambiarUnidad(const Medida &medida);
    void mostrarLugar(const Medida &medida);
    void aceptar();

    forms::DTPicker TextF{QStringLiteral("TextF")};
    forms::ControlArray<forms::TextBox> Text1{QStringLiteral("Text1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("Gr.")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("Cm.")};
    forms::CommandButton Command5{QStringLiteral("Command5"), QStringLiteral("Cm.")};
    forms::ControlArray<forms::Label> lblLugar{QStringLiteral("lblLugar")};
    std::vector<Medida> medidas_;
    QString sexo_;
    basic::Date nacimiento_;
};
