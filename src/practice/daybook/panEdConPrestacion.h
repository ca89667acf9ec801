#pragma once

#include "platform/dao/recordset.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Editar prestación / consulta": what makes a visit billable: the service, its amount, the insurer's order
/// and its state. Answers "SI" or "NO".
class panEdConPrestacion : public forms::Form
{
    Q_OBJECT
public:
    panEdConPrestacion();

    /// Shows what the visit has; of the coverage, or else what its patient has.
    void mostrar(dao::Recordset &consulta);
    /// Writes it into the visit, and the coverage into its patient's record as well. Throws dao::Error.
    void escribir(dao::Recordset &consulta) const;

protected:
    bool eventFilter(QObject *control, QEvent *evento) override;

private:
    void disponer();
    void prestacionElegida();
    void codigoEscrito(const QString &texto);
    void verificarCodigo();
    QWidget *faltante();
    void aceptar();

    forms::TextBox txCgoPrestacion{QStringLiteral("txCgoPrestacion"), 10};
    forms::ComboBox cbPrestacion{QStringLiteral("cbPrestacion")};
    forms::ComboBox cbOSocial{QStringLiteral("cbOSocial")};
    forms::TextBox txNroAfiliado{QStringLiteral("txNroAfiliado"), 30};
    forms::TextBox txNroOrden{QStringLiteral("txNroOrden"), 50};
    forms::TextBox txMonto{QStringLiteral("txMonto"), 20};
    forms::ComboBox cbStatus{QStringLiteral("cbStatus"),
                             {QStringLiteral("EFECTUADO"), QStringLiteral("PENDIENTE"),
                              QStringLiteral("INGRESADO"), QStringLiteral("FACTURADO"),
                              QStringLiteral("COBRADO"), QStringLiteral("DENEGADO!")}};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
