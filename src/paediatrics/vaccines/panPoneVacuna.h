#pragma once

#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace vacunas
{

/// A dose of a patient, as it is noted.
struct Registro {
    basic::Date fecha;
    QString vacuna, dosis, observaciones;
};

} // namespace vacunas

/// "Colocación de Vacunas": the entry of a dose. Answers "SI" or "NO".
class panPoneVacuna : public forms::Form
{
    Q_OBJECT
public:
    enum class Uso { Registrar, Ver };
    explicit panPoneVacuna(const vacunas::Registro &registro, Uso uso = Uso::Registrar);

    /// As it stands in the fields; without a remark it has "-".
    vacunas::Registro registro() const;

private:
    void soloVer();
    void aceptar();
    void mostrarInformacion();

    forms::DTPicker mFecha{QStringLiteral("mFecha")};
    forms::ControlArray<forms::TextBox> Text1{QStringLiteral("Text1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Información relacionada..."),
                                  QStringLiteral("ver")};
};
