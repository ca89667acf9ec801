#pragma once

#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/updown.h"
#include "practice/professionals/diasDeTrabajo.h"

#include <QScrollArea>

namespace practice
{

/// The working days of a professional in a year: twelve months side by side with those days in bold, and the
/// hours of the day clicked.
class CalendarioAnual : public QWidget
{
    Q_OBJECT
public:
    CalendarioAnual();

    void setProfesional(qint64 idProfesional); ///< 0 for none
    void irA(QDate dia);                       ///< reads the schedule again, with this month in sight

private:
    void armarTira();
    void redibujar();
    void mostrarMes(int mes);
    void mostrarDia(int mes, QDate dia);

    forms::TextBox txtAno{QStringLiteral("txtAno"), 4};
    forms::UpDown UpDown1{QStringLiteral("UpDown1")};
    QScrollArea picFonCals; ///< its scroll bar is HScroll1
    forms::ControlArray<forms::Label> lblMes{QStringLiteral("lblMes")};
    forms::ControlArray<forms::MonthView> mv1{QStringLiteral("mv1")};
    forms::Label lblHorarios{QStringLiteral("lblHorarios")};

    qint64 idProfesional_ = 0;
    int ano_ = 0;
    std::map<QDate, Atencion> dias_;
};

} // namespace practice
