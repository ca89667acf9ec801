#pragma once

#include "core/services/especialidades.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Nuevo Profesional": the data of a professional to be added. Answers "SI" or "NO".
class panNueProfesional : public forms::Form
{
    Q_OBJECT
public:
    panNueProfesional();

    QString nombre() const { return Text1(cNombre).text(); }
    QString especialidad() const { return Combo1.value(); }
    QString domicilio() const { return Text1(cDomicilio).text(); }
    QString localidad() const { return Text1(cLocalidad).text(); }
    QString telefonos() const { return Text1(cTelefonos).text(); }
    QString observaciones() const { return Text2.toPlainText(); }
    basic::Value idUsuario() const; ///< Null when no account of a doctor exists

protected:
    void load() override;
    void activate() override;

private:
    enum Campo { cNombre, cDomicilio, cLocalidad, cTelefonos, cantidad };

    QWidget *faltante();
    void aceptar();

    forms::ControlArray<forms::TextBox> Text1{QStringLiteral("Text1")};
    forms::ComboBox Combo1{QStringLiteral("Combo1"), MODULE11::especialidades, true};
    forms::MemoBox Text2{QStringLiteral("Text2")};
    forms::ComboBox Combo2{QStringLiteral("Combo2")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
