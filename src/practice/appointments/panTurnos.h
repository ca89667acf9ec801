#pragma once

#include "core/records/comando.h"
#include "core/session/screens.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"

class panNueTurno;

/// "Pantalla de Turnos o Citas": the places of a day, free and taken, to give, change and free them. Rows are
/// read as they come into sight, so what other stations give shows without being asked for.
class panTurnos : public forms::Form
{
    Q_OBJECT
public:
    panTurnos();

protected:
    void load() override;

private:
    void disponer();
    void elegirInicio();
    void refrescar();
    void mostrarHorarios();
    void mostrarCuentas();
    void volverA(qint64 idTurno);
    bool enLugar() const;
    qint64 turnoActual();
    void prepararDialogo(panNueTurno &dialogo);
    void otorgar();
    void editar();
    void borrar();
    void cambiarEstado();
    void exportar();

    forms::MonthView calendar1{QStringLiteral("calendar1")};
    forms::ComboBox Combo1{QStringLiteral("Combo1"), {QStringLiteral("<Todas>")}};
    forms::ComboBox Combo2{QStringLiteral("Combo2"), {QStringLiteral("<Todos>")}};
    forms::ComboBox Combo3{QStringLiteral("Combo3"), {QStringLiteral("<Todos>")}};
    forms::ControlArray<forms::Label> Label3{QStringLiteral("Label3")};
    forms::ControlArray<forms::TextBox> Text1{QStringLiteral("Text1")};
    forms::CheckBox Check1{QStringLiteral("Check1"),
                           QStringLiteral("Pedir fecha y profesional al &ingresar")};
    forms::Label panelFecha{QStringLiteral("panelFecha")};
    forms::Data Data1{QStringLiteral("Data1")};
    forms::DBGrid DBGrid2{QStringLiteral("DBGrid2")};
    forms::CommandButton &Command2 = records::comando(
        *this, QStringLiteral("Command2"), QStringLiteral("&Otorgar turno..."), QStringLiteral("agregar"),
        [this] { otorgar(); }, {.gate = QStringLiteral("AgregarTurnos")});
    forms::CommandButton &Command3 = records::comando(
        *this, QStringLiteral("Command3"), QStringLiteral("&Borrar turno"), QStringLiteral("borrar"),
        [this] { borrar(); },
        {.gate = QStringLiteral("BorrarTurnos"), .question = QStringLiteral("Borra el turno Seleccionado")});
    forms::CommandButton &Command6 =
        records::comando(*this, QStringLiteral("Command6"), QStringLiteral("Cambiar &estado..."),
                         QStringLiteral("editar"), [this] { cambiarEstado(); });
    forms::CommandButton &Command5 =
        records::comando(*this, QStringLiteral("Command5"), QStringLiteral("Imprimi&r"),
                         QStringLiteral("imprimir"), [this] { exportar(); });
    forms::CommandButton &Command1 = records::comando(
        *this, QStringLiteral("Command1"), QStringLiteral("I&nforme..."), QStringLiteral("informes"),
        [] { screens::showModal("panInfTurnos"); }, {.gate = QStringLiteral("IngresarAInformes")});
    forms::CommandButton &Command4 =
        records::comando(*this, QStringLiteral("Command4"), QStringLiteral("&Cerrar"),
                         QStringLiteral("cerrar"), [this] { unload(); });
};
