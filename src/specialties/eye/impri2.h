#pragma once

#include "core/records/campos.h"
#include "platform/forms/form.h"

namespace oftalmo
{

/// Far, near and intermediate correction of each eye, those that the visit has, and its text: lines of a
/// prescription.
QStringList lineasDeAnteojos(const records::Valores &visita);

} // namespace oftalmo

/// The glasses prescription of an eye visit: printed, and kept among the prescriptions when the paper came
/// out well.
class impri2 : public forms::Form
{
    Q_OBJECT
public:
    impri2(qint64 paciente, qint64 idConsulta);

private:
    void imprimir();
    void guardar();

    qint64 paciente_;
    QStringList lineas_;
    forms::Label Label1{QStringLiteral("Label1")}; ///< the patient
    forms::Label Label2{QStringLiteral("Label2")}; ///< the professional
    forms::MemoBox Text1{QStringLiteral("Text1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Imprime la receta"),
                                  QStringLiteral("imprimir")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
