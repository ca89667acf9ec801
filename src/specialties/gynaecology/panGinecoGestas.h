#pragma once

#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/databar.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"
#include "platform/forms/layout.h"
#include "specialties/gynaecology/graficoDeControles.h"

/// "Gestaciones": the pregnancies of the patient whose number is the tag, each with its control visits. Weeks
/// and the day of birth by the calendar are shown beside what was written, and never kept.
class panGinecoGestas : public forms::Form
{
    Q_OBJECT
public:
    panGinecoGestas();

protected:
    void activate() override;
    bool queryUnload() override;

private:
    forms::Item gestacion();
    forms::Item parto(const QString &fin, forms::DTPicker &fecha);
    void enlazar(QWidget &control, const QString &columna);
    void conectar();

    void mostrarGestacion();
    void mostrarControles();
    void mostrarCurvas();
    void calcular();
    void nuevaGestacion();
    void borrarGestacion();
    void nuevoControl();

    forms::Data Data2{QStringLiteral("Data2")};
    forms::Data Data1{QStringLiteral("Data1")};
    forms::DataBar barra_{Data2};
    forms::DBGrid DBGrid2{QStringLiteral("DBGrid2")};
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};
    forms::Label Label19{QStringLiteral("Label19")};
    forms::Label lblFum{QStringLiteral("lblFum")}, lblEco{QStringLiteral("lblEco")};
    forms::Frame Frame1{QStringLiteral("Frame1"), QStringLiteral("Gestación")};
    forms::SSTab SSTab1{QStringLiteral("SSTab1")};
    forms::ControlArray<forms::TextBox> mDato{QStringLiteral("mDato")};
    forms::MemoBox mDetalles{QStringLiteral("mDetalles")};
    forms::DTPicker mDum{QStringLiteral("mDum"), forms::DTPicker::Presence::Optional};
    forms::DTPicker mDPPEco{QStringLiteral("mDPPEco"), forms::DTPicker::Presence::Optional};
    forms::DTPicker mFechaEco{QStringLiteral("mFechaEco"), forms::DTPicker::Presence::Optional};
    forms::DTPicker mFechaParto{QStringLiteral("mFechaParto"), forms::DTPicker::Presence::Optional};
    forms::DTPicker mFechaParto2{QStringLiteral("mFechaParto2"), forms::DTPicker::Presence::Optional};
    GraficoDeControles Graph1{QStringLiteral("Graph1")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("&Nueva Gestación"),
                                  QStringLiteral("agregar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Borrar"),
                                  QStringLiteral("borrar")};
    forms::CommandButton Command8{QStringLiteral("Command8"), QStringLiteral("Nuevo &examen..."),
                                  QStringLiteral("agregar")};
    forms::CommandButton Command5{QStringLiteral("Command5"),
                                  QStringLiteral("Calculadora de &Riesgo Gestacional...")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
