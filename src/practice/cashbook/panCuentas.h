#pragma once

#include "core/records/catalogo.h"

/// "Plan de cuentas": the accounts of the cashbook, kept and chosen from. Answers the name that was accepted.
class panCuentas : public records::Catalogo
{
    Q_OBJECT
public:
    panCuentas();

protected:
    void listar(dao::Recordset &filas) override;
    void nuevo() override;
    void guardar() override;
    void trasBorrar() override;

private:
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
