#pragma once

#include "platform/forms/form.h"
#include "specialties/odontology/renglones.h"

/// "Nuevo Presupuesto" of the patient whose number is set. Lines go to a head that is saved, so adding the
/// first one saves it; cancelling deletes both. Answers "SI" or "NO".
class panNuePresu : public forms::Form
{
    Q_OBJECT
public:
    explicit panNuePresu(qint64 paciente = 0);

    qint64 presupuesto() const { return Text3.text().toLongLong(); } ///< 0 while the head is not saved

protected:
    void load() override;
    bool queryUnload() override;
    void escape() override { cancelar(); }

private:
    bool guardarCabeza();
    void agregar();
    void aceptar();
    void cancelar();
    bool desistir(); ///< true when the person agreed and nothing is left of the budget

    forms::TextBox Text2{QStringLiteral("Text2")}; ///< the patient's number
    forms::TextBox Text3{QStringLiteral("Text3")}; ///< the budget's key
    forms::Label lblPaciente{QStringLiteral("lblPaciente")};
    forms::DTPicker DTPicker1{QStringLiteral("DTPicker1")};
    forms::TextBox Text1{QStringLiteral("Text1"), 255};
    presupuestos::Renglones renglones_;
};
