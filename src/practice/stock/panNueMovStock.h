#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "practice/stock/stock.h"

#include <QTableWidget>

/// What came in or went out: a list of articles with their quantities, put together before it is noted.
/// Answers "SI" once it is.
class panNueMovStock : public forms::Form
{
    Q_OBJECT
public:
    /// Begins with an article chosen, if one is given.
    panNueMovStock(stock::Sentido sentido, qint64 idProfesional, std::optional<qint64> idArticulo);

protected:
    void load() override;

private:
    void disponer();
    void enlazar();
    void corregirCantidad();
    void agregar();
    void quitar();
    void aceptar();
    std::vector<stock::Renglon> renglones() const;

    const stock::Sentido sentido_;
    const qint64 idProfesional_;
    const std::optional<qint64> idArticulo_;

    forms::DTPicker dtFecha{QStringLiteral("dtFecha")};
    forms::ComboBox cbTipoMov{QStringLiteral("cbTipoMov")};
    forms::TextBox txComprobante{QStringLiteral("txComprobante"), 20};
    forms::ComboBox cbCodigo{QStringLiteral("cbCodigo")};
    forms::ComboBox cbDescripcion{QStringLiteral("cbDescripcion")};
    forms::TextBox txCant{QStringLiteral("txCant"), 12};
    QTableWidget Grid1;
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("A&gregar"),
                                  QStringLiteral("agregar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("&Quitar"),
                                  QStringLiteral("quitar")};
};
