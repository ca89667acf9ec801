#pragma once

#include "core/records/tabla.h"
#include "platform/forms/controlarray.h"

/// "Mantenimiento de la tabla de prestaciones": the tariffs of the practice's services, one price for all
/// coverages.
class panPrestaciones : public records::Tabla
{
    Q_OBJECT
public:
    panPrestaciones();

private:
    void disponer();
    void agregar();
    void ordenarPor(int columna);
    void buscar();
    void buscarAlEscribir(const QString &texto);
    bool irA(const QString &criterio);
    void aumentar();
    void importar();

    forms::SearchBox txtBusca{QStringLiteral("txtBusca"), 50};
    forms::ControlArray<forms::TextBox> Text1{QStringLiteral("Text1")};
};
