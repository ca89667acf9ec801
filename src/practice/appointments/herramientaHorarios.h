#pragma once

#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "practice/appointments/horarios.h"

#include <QProgressBar>
#include <QWidget>

namespace practice
{

/// The working-hours tool of one professional: writes the hours and the free places of chosen weekdays over a
/// period, and takes them away. Asks and tells in boxes of its own.
class HerramientaHorarios : public QWidget
{
    Q_OBJECT
public:
    /// `intervalo` holds the minutes between places, as the host's field shows them; it must outlive the
    /// tool.
    explicit HerramientaHorarios(forms::TextBox &intervalo);

    /// Whose hours are written from here on; 0 for nobody.
    void setProfesional(qint64 idProfesional, const QString &nombre);

signals:
    void cambiado(QDate desde); ///< working hours or places were written or removed, from this day on

private:
    void disponer();
    void alternarDia(int dia);
    void diasEnVerde();
    horarios::Esquema esquema() const;
    bool hayProfesional() const;
    void trabajar(const std::function<void(const horarios::Avance &)> &trabajo);
    void aplicar();
    void quitar();

    forms::TextBox &intervalo_;
    qint64 idProfesional_ = 0;
    QString nombre_;
    forms::DTPicker dt1{QStringLiteral("dt1")};
    forms::DTPicker dt2{QStringLiteral("dt2")};
    forms::ControlArray<forms::CommandButton> Command6{QStringLiteral("Command6")}; // 1 is Sunday
    forms::ControlArray<forms::TimePicker> tomarhora{QStringLiteral("tomarhora")};
    forms::CommandButton Command7{QStringLiteral("Command7"),
                                  QStringLiteral("&Aplica turnos para los dias especificados"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command8{QStringLiteral("Command8"),
                                  QStringLiteral("&Quita los turnos en los dias especificados"),
                                  QStringLiteral("quitar")};
    QProgressBar ProgressBar1;
};

} // namespace practice
