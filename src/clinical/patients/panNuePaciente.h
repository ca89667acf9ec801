#pragma once

#include "clinical/patients/panComFliar.h"
#include "core/services/paciente.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Nuevo Paciente": captures a patient's identity. Answers "SI" or "NO"; the caller writes the row.
class panNuePaciente : public forms::Form
{
    Q_OBJECT
public:
    panNuePaciente();

    /// Edits a patient who is there: shows what the row holds. The number stays as it is.
    void mostrar(dao::Recordset &paciente, dao::Recordset *pediatria, const QStringList &patologias);

    /// As it was read; nothing while the field holds "<No>" or no number.
    std::optional<qint64> numero() const { return services::numeroDePaciente(Text1(cNumero).text()); }
    QString nombre() const { return Text1(cNombre).text(); }
    basic::Date nacimiento() const { return DTPicker1.value(); }
    QString documento() const { return Text1(cDocumento).text(); }
    QString sexo() const { return mSexo.value(); }
    QString grupoSanguineo() const { return Combo2.value(); }
    QString obraSocial() const { return Check1.isChecked() ? Combo1.value() : QString(); }
    QString numeroDeAfiliado() const { return Check1.isChecked() ? Text1(cAfiliado).text() : QString(); }
    QString situacionConyugal() const { return Combo4.value(); }
    QString domicilio() const { return Text1(cDomicilio).text(); }
    QString localidad() const { return Text1(cLocalidad).text(); }
    QString telefono() const { return Text1(cTelefono).text(); }
    QString provincia() const { return Text1(cProvincia).text(); }
    QString pais() const { return Text1(cPais).text(); }
    bool esTurista() const { return Check2.isChecked(); }
    QString profesional() const { return Combo3.value(); }
    QString email() const { return Text1(cEmail).text(); }
    QString barrio() const { return Text1(cBarrio).text(); }
    QString codigoPostal() const { return Text1(cCodigoPostal).text(); }
    bool editaBaja() const { return edita_; } ///< the day of discharge is shown only of who is there
    basic::Value fechaDeBaja() const { return dtBaja.fieldValue(); }
    /// The family's condition, or null when it was not accepted.
    const panComFliar *condicionFamiliar() const;

protected:
    void load() override;
    void activate() override;

private:
    enum Campo {
        cNumero,
        cNombre,
        cDocumento,
        cDomicilio,
        cBarrio,
        cLocalidad,
        cCodigoPostal,
        cProvincia,
        cPais,
        cTelefono,
        cEmail,
        cAfiliado
    };

    void llenarListas();
    void ofrecerNumero();
    bool numeroAceptado();
    void aceptar();
    void imprimir();

    forms::ControlArray<forms::TextBox> Text1{QStringLiteral("Text1")};
    forms::DTPicker DTPicker1{QStringLiteral("DTPicker1")};
    forms::ComboBox mSexo{QStringLiteral("mSexo")};
    forms::ComboBox Combo1{QStringLiteral("Combo1")}; ///< coverage
    forms::ComboBox Combo2{QStringLiteral("Combo2")}; ///< blood group
    forms::ComboBox Combo3{QStringLiteral("Combo3")}; ///< professional
    forms::ComboBox Combo4{QStringLiteral("Combo4")}; ///< marital state
    forms::CheckBox Check1{QStringLiteral("Check1"), QStringLiteral("&Posee cobertura médica ?")};
    forms::CheckBox Check2{QStringLiteral("Check2"), QStringLiteral("&Turista / Esporádico")};
    forms::Label Label1{QStringLiteral("Label1"), QStringLiteral("Obra &Social :")};
    forms::Label Label2{QStringLiteral("Label2"), QStringLiteral("Nº de A&filiado :")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("Condición Fa&miliar"),
                                  QStringLiteral("familia")};
    forms::CommandButton Command5{QStringLiteral("Command5"), QStringLiteral("&Imprimir"),
                                  QStringLiteral("imprimir")};
    forms::DTPicker dtBaja{QStringLiteral("dtBaja"), forms::DTPicker::Presence::Optional};
    forms::Label lblBaja{QStringLiteral("lblBaja"), QStringLiteral("Fecha de &baja :")};
    panComFliar familia_;
    bool edita_ = false;
};
