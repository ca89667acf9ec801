#pragma once

#include "core/records/tabla.h"
#include "practice/cashbook/caja.h"

/// "Pantalla de gastos y entradas": the one cashbook of the practice, with what the movements in sight come
/// to.
class panCaja : public records::Tabla
{
    Q_OBJECT
public:
    panCaja();

protected:
    void rowShown() override;

private:
    forms::Item ordenes();
    void sumar();
    void nuevo();
    void modificar();
    void borrar();
    void filtrar();
    void recibo();
    QString filaActual();

    caja::Consulta consulta_;
    forms::Label lblEntradas{QStringLiteral("lblEntradas")};
    forms::Label lblSalidas{QStringLiteral("lblSalidas")};
};
