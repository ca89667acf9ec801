#pragma once

#include "paediatrics/vaccines/edades.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace vacunas
{

/// A dose of a patient, as it is noted.
struct Registro {
    std::optional<basic::Date> fecha; ///< some rows of old have none
    QString vacuna, dosis, observaciones;
};

} // namespace vacunas

/// "Colocación de Vacunas": the entry of a dose. Answers "SI" or "NO". A day on which the dose may not count
/// is told below the fields, and is the doctor's to decide.
class panPoneVacuna : public forms::Form
{
    Q_OBJECT
public:
    enum class Uso { Registrar, Ver };
    panPoneVacuna(const vacunas::Registro &registro, const std::optional<basic::Date> &nacimiento,
                  Uso uso = Uso::Registrar);

    /// As it stands in the fields; without a remark it has "-".
    vacunas::Registro registro() const;

private:
    void soloVer();
    void aceptar();
    void mostrarInformacion();
    void mostrarReparo();

    const std::optional<basic::Date> nacimiento_;
    const vacunas::Edades edades_;
    forms::DTPicker mFecha{QStringLiteral("mFecha"), forms::DTPicker::Presence::Optional};
    forms::ControlArray<forms::TextBox> Text1{QStringLiteral("Text1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Información relacionada..."),
                                  QStringLiteral("ver")};
    forms::Label lblReparo{QStringLiteral("lblReparo")};
};
