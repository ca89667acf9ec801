#pragma once

#include "platform/basic/value.h"
#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"
#include "practice/appointments/turnos.h"

/// "Nuevo Turno a un paciente": chooses the patient of a place and what is noted with it. Answers "SI" or
/// "NO"; the caller writes the booking.
class panNueTurno : public forms::Form
{
    Q_OBJECT
public:
    panNueTurno();

    /// The coverage and the professional to start with; a text that is in no list selects nothing.
    void proponer(const QString &cobertura, const QString &profesional);
    /// The patient to start with, by number, whom the person has in sight already and may see; empty for the
    /// first of the list.
    void setPaciente(const QString &numero) { numero_ = numero; }
    void setFecha(basic::Date fecha) { mFecha.setValue(fecha); }
    /// The place is settled: day and hour are shown but cannot be moved.
    void fijarLugar(basic::Date fecha, const QString &hora);
    /// Edits the place with this key: a taken one keeps its patient and professional.
    void setTurno(qint64 idTurno) { idTurno_ = idTurno; }

    basic::Date fecha() const { return mFecha.value(); }
    QString hora() const { return mHora.text(); }
    turnos::Reserva reserva();

protected:
    void load() override;
    void activate() override;
    bool eventFilter(QObject *receptor, QEvent *evento) override;

private:
    void disponer();
    void armarLista();
    bool irAlPaciente();
    void mostrarPaciente();
    void mostrarEdad(const basic::Value &nacimiento);
    void mostrarTurno();
    void mostrarTurnoDado(dao::Recordset &turno);
    void elegirCobertura(const QString &cobertura);
    void buscar(const QString &texto);
    void escribirNombre(const QString &nombre);
    void olvidarPaciente();
    void paso(int filas);
    std::optional<qint64> profesionalElegido();
    bool atiendeEseDia(qint64 idProfesional);
    void aceptar();
    void verElDia();
    void buscarPorNombre();

    forms::Label Label1{
        QStringLiteral("Label1"),
        QStringLiteral("Pantalla de carga de turno a un paciente, complete la información solicitada:")};
    forms::SearchBox txtBusca{QStringLiteral("txtBusca")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("&Buscar..."),
                                  QStringLiteral("buscar")};
    forms::Data Data1{QStringLiteral("Data1")};
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};
    forms::CheckBox checkBajas{QStringLiteral("checkBajas"),
                               QStringLiteral("&Ocultar pacientes con fecha de baja")};

    forms::ComboBox Combo2{QStringLiteral("Combo2")};
    forms::DTPicker mFecha{QStringLiteral("mFecha")};
    forms::TextBox mHora{QStringLiteral("mHora"), 5};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Ver el día..."),
                                  QStringLiteral("calendario")};
    forms::TextBox Text1{QStringLiteral("Text1"), 50};
    forms::Label Label7{QStringLiteral("Label7"), QStringLiteral("Edad :")};
    forms::Label lblAnios{QStringLiteral("lblAnios")};
    forms::Label lblMeses{QStringLiteral("lblMeses")};
    forms::Label lblDias{QStringLiteral("lblDias")};
    forms::ComboBox Combo1{QStringLiteral("Combo1")};
    forms::TextBox Text2{QStringLiteral("Text2"), 30}; // member number
    forms::TextBox Text3{QStringLiteral("Text3"), 30}; // telephone
    forms::TextBox Text4{QStringLiteral("Text4"), 30}; // e-mail
    forms::CheckBox Check1{QStringLiteral("Check1"), QStringLiteral("Contro&l sano")};
    forms::TextBox mMotivo{QStringLiteral("mMotivo"), 60};
    forms::TextBox mCoseguro{QStringLiteral("mCoseguro"), 60};
    forms::MemoBox mObservaciones{QStringLiteral("mObservaciones")};

    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};

    QString numero_; ///< of the patient to start with
    std::optional<qint64> idTurno_;
    qint64 idPaciente_ = 0; ///< of the patients' current row, or of the taken place
    turnos::Edad edad_;
    QString permiso_ = QStringLiteral(" true ");
};
