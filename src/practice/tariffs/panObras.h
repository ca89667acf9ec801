#pragma once

#include "core/records/catalogo.h"

/// "Listado de Coberturas médicas": the health-cover organisations with the price of a plain consultation.
/// Patients, visits and appointments hold them by name.
class panObras : public records::Catalogo
{
    Q_OBJECT
public:
    panObras();

protected:
    void listar(dao::Recordset &filas) override;
    void mostrar(dao::Recordset *fila) override;
    void escribir(dao::Recordset &fila) override;
    void nuevo() override;
    void guardar() override;

private:
    QWidget *faltante();

    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Salir"),
                                  QStringLiteral("cerrar")};
};
