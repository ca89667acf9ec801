#pragma once

#include "documents/prescriptions/recetario.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Propiedades del elemento": what an element of the sheet shows, and in which letters. Answers "SI" or
/// "NO".
class panCarElem : public forms::Form
{
    Q_OBJECT
public:
    explicit panCarElem(const recetario::Elemento &elemento);

    /// The element with what was chosen; its place is the one it had.
    recetario::Elemento elemento() const;

protected:
    void load() override;

private:
    void disponer();
    void ofrecerLetras();
    /// The field chosen; null for a text of its own.
    const recetario::Campo *campo() const;
    void elegirOpcion();
    void elegirClase();
    void mostrarLetra();
    void aceptar();

    recetario::Elemento elemento_;
    QString propio_; ///< the text of its own, while a field is chosen too
    std::vector<std::unique_ptr<forms::OptionButton>> opciones_; ///< Option1 to Option7, one a field
    forms::OptionButton Option8{QStringLiteral("Option8"), QStringLiteral("&Solo texto")};
    forms::TextBox Text1{QStringLiteral("Text1"), recetario::largoDelValor};
    forms::ComboBox Combo1{QStringLiteral("Combo1")}; ///< font
    forms::ComboBox Combo2{QStringLiteral("Combo2")}; ///< size
    forms::CheckBox Check2{QStringLiteral("Check2"), QStringLiteral("&Negrita")};
    forms::CheckBox Check3{QStringLiteral("Check3"), QStringLiteral("&Italica")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
