#pragma once

#include "core/records/comando.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"
#include "platform/forms/layout.h"
#include "practice/daybook/libroDiario.h"

/// "Gestión Consultorio": the visits of a day, a month or a year with their count and money, and the data by
/// which they are billed.
class panDiario : public forms::Form
{
    Q_OBJECT
public:
    panDiario();

protected:
    void load() override;

private:
    void disponer();
    forms::Item meses();
    forms::Item filtros();
    void llenarFiltros();
    void llenarAnios();
    void conectar();

    void elegirMes(int mes);
    void elegirFicha(int ficha);
    void ver(diario::Periodo periodo);
    diario::Pedido pedido() const;
    void refrescar();
    void releer(qint64 idConsulta);
    void mostrarTotales();

    void nueva();
    void borrar();
    void abrir();
    void buscar();
    void editarPrestacion();
    void informarCierre();
    void exportar();

    forms::SSTab SSTab1{QStringLiteral("SSTab1")};
    forms::MonthView calendar1{QStringLiteral("calendar1")};
    forms::ComboBox Combo1{QStringLiteral("Combo1")}; ///< the year of the months
    forms::ControlArray<forms::Label> sspanel1{QStringLiteral("sspanel1")};
    forms::CommandButton Command6{QStringLiteral("Command6"), QStringLiteral("&Ver..."),
                                  QStringLiteral("ver")};
    forms::ComboBox Combo2{QStringLiteral("Combo2")}; ///< the year
    forms::CommandButton Command8{QStringLiteral("Command8"), QStringLiteral("&Ver..."),
                                  QStringLiteral("ver")};
    forms::ComboBox Combo3{QStringLiteral("Combo3"), {diario::todas}};
    forms::ComboBox Combo4{QStringLiteral("Combo4"), {diario::todos}};
    forms::ControlArray<forms::OptionButton> Option1{QStringLiteral("Option1")};
    forms::Label panelFecha{QStringLiteral("panelFecha")};
    forms::Data Data1{QStringLiteral("Data1")};
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};
    forms::TextBox Text1{QStringLiteral("Text1")};
    forms::TextBox Text2{QStringLiteral("Text2")};
    forms::CommandButton &Command3 = records::comando(
        *this, QStringLiteral("Command3"), QStringLiteral("&Nueva"), QStringLiteral("agregar"),
        [this] { nueva(); }, {.gate = QStringLiteral("AgregarConsultas")});
    forms::CommandButton &Command4 =
        records::comando(*this, QStringLiteral("Command4"), QStringLiteral("&Borrar"),
                         QStringLiteral("borrar"), [this] { borrar(); },
                         {.gate = QStringLiteral("BorrarConsultas"),
                          .question = QStringLiteral("Borra esta consulta o atención?")});
    forms::CommandButton &Command5 =
        records::comando(*this, QStringLiteral("Command5"), QStringLiteral("&Abrir"), QStringLiteral("abrir"),
                         [this] { abrir(); }, {.gate = QStringLiteral("IngresarAConsultas")});
    forms::CommandButton &Command2 =
        records::comando(*this, QStringLiteral("Command2"), QStringLiteral("B&uscar"),
                         QStringLiteral("buscar"), [this] { buscar(); });
    forms::CommandButton &Command9 =
        records::comando(*this, QStringLiteral("Command9"), QStringLiteral("&Prestación"),
                         QStringLiteral("editar"), [this] { editarPrestacion(); });
    forms::CommandButton &Command11;
    forms::CommandButton &Command7;
    forms::CommandButton &Command12 =
        records::comando(*this, QStringLiteral("Command12"), QStringLiteral("&Cierre"),
                         QStringLiteral("informes"), [this] { informarCierre(); });
    forms::CommandButton &Command1 =
        records::comando(*this, QStringLiteral("Command1"), QStringLiteral("&exportar HTML"),
                         QStringLiteral("guardar"), [this] { exportar(); });
    forms::CommandButton &Command10 =
        records::comando(*this, QStringLiteral("Command10"), QStringLiteral("&Salir"),
                         QStringLiteral("cerrar"), [this] { unload(); });
    int mes_ = 0; ///< the month painted; 0 before one is chosen
    diario::Periodo periodo_ = diario::Periodo::Dia;
    diario::Pedido mostrado_; ///< what the list shows
};
