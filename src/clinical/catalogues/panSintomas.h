#pragma once

#include "core/records/catalogo.h"

/// "Pantalla de Síntomas": the symptoms that the visits take their names from; several can be chosen at once.
class panSintomas : public records::Catalogo
{
    Q_OBJECT
public:
    panSintomas();

protected:
    QString respuestaAlCerrar() const override;
    void listar(dao::Recordset &filas) override;
    void nuevo() override;
    void trasBorrar() override;

private:
    forms::Label Label1{QStringLiteral("Label1"),
                        QStringLiteral("Para elegir varios síntomas mantenga presionada la tecla Ctrl.")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
