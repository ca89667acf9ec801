#pragma once

#include "core/records/comando.h"
#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"
#include "platform/forms/layout.h"
#include "platform/forms/updown.h"
#include "practice/billing/facturacion.h"

/// "Facturación de prestaciones": of a professional and a health cover, the visits to be billed, the bills
/// that wait to be paid, and the paid ones. The marks of what goes on the next bill are the practice's, not
/// the window's.
class panFacturacion : public forms::Form
{
    Q_OBJECT
public:
    panFacturacion();

protected:
    void load() override;
    bool eventFilter(QObject *control, QEvent *evento) override;

private:
    forms::Item pendientes();
    forms::Item emitidas();
    forms::Item historico();
    void elegirPrestador();
    void conectar();

    facturacion::Partes partes() const;
    void refrescar();
    void refrescarPendientes();
    void refrescarHistorico();
    void mostrarDetalle();

    bool sigueSinFacturar();
    void marcar();
    void facturar();
    void imprimirEmitida(qint64 idFacturacion);
    void cambiarImporte();
    void cobrar();
    void verDetalle();
    void imprimir();
    void verDeuda();

    forms::ComboBox cbPrestador{QStringLiteral("cbPrestador")};
    forms::ComboBox cbObrasoc{QStringLiteral("cbObrasoc")};
    forms::DTPicker dt1{QStringLiteral("dt1")};
    forms::DTPicker dt2{QStringLiteral("dt2")};
    forms::SSTab SSTab1{QStringLiteral("SSTab1")};

    forms::Data Data1{QStringLiteral("Data1")}; ///< the visits to be billed
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};
    forms::TextBox Text1{QStringLiteral("Text1")};
    forms::CommandButton &Command1 =
        records::comando(*this, QStringLiteral("Command1"), QStringLiteral("&Facturar lote..."),
                         QStringLiteral("agregar"), [this] { facturar(); });
    forms::CommandButton &Command2 =
        records::comando(*this, QStringLiteral("Command2"), QStringLiteral("Ca&mbiar Importe"),
                         QStringLiteral("editar"), [this] { cambiarImporte(); });

    forms::Data Data2{QStringLiteral("Data2")}; ///< the bills that wait to be paid
    forms::DBGrid DBGrid2{QStringLiteral("DBGrid2")};
    forms::Data Data3{QStringLiteral("Data3")}; ///< the lines of the current one
    forms::DBGrid DBGrid3{QStringLiteral("DBGrid3")};
    forms::TextBox Text2{QStringLiteral("Text2")};
    forms::CheckBox Check1{QStringLiteral("Check1"), QStringLiteral("Asentar en ca&ja personal")};
    forms::CommandButton &Command3 =
        records::comando(*this, QStringLiteral("Command3"), QStringLiteral("Marcar como &cobrada"),
                         QStringLiteral("aceptar"), [this] { cobrar(); });
    forms::CommandButton &Command7 =
        records::comando(*this, QStringLiteral("Command7"), QStringLiteral("&Deuda por antigüedad"),
                         QStringLiteral("informes"), [this] { verDeuda(); });

    forms::TextBox txAno{QStringLiteral("txAno"), 4};
    forms::UpDown UpDown1{QStringLiteral("UpDown1")};
    forms::Data Data4{QStringLiteral("Data4")}; ///< the paid bills of the year
    forms::DBGrid DBGrid4{QStringLiteral("DBGrid4")};
    forms::TextBox Text3{QStringLiteral("Text3")};
    forms::CheckBox Check2{QStringLiteral("Check2"), QStringLiteral("S&olo seleccionada")};
    forms::CommandButton &Command4 =
        records::comando(*this, QStringLiteral("Command4"), QStringLiteral("&Ver detalle"),
                         QStringLiteral("ver"), [this] { verDetalle(); });
    forms::CommandButton &Command5 =
        records::comando(*this, QStringLiteral("Command5"), QStringLiteral("&Imprimir"),
                         QStringLiteral("imprimir"), [this] { imprimir(); });

    forms::CommandButton &Command6 =
        records::comando(*this, QStringLiteral("Command6"), QStringLiteral("&Salir"),
                         QStringLiteral("cerrar"), [this] { unload(); });
};
