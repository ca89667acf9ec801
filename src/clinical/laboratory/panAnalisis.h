#pragma once

#include "clinical/laboratory/analisis.h"
#include "core/records/tabla.h"
#include "platform/forms/controlarray.h"

/// The laboratory orders of the patient whose number is the tag, and the results of the order in hand.
class panAnalisis : public records::ListaDelPaciente
{
    Q_OBJECT
public:
    panAnalisis();

protected:
    void activate() override;
    void rowShown() override;

private:
    forms::Item orden();
    void nuevo();
    void comparar();
    void mostrarTendencia();
    void ingresarTodos();
    void ingresarUno();
    /// Asks the result of each, until the person has had enough.
    void ingresar(const std::vector<laboratorio::Resultado> &pedidos);

    forms::DTPicker mFecha{QStringLiteral("mFecha"), forms::DTPicker::Presence::Optional};
    forms::ControlArray<forms::TextBox> mDato{QStringLiteral("mDato")};
    /// A copy: `tmpAnalisis` is filled by every station, and what is in sight stays the order in hand.
    forms::Data Data2{QStringLiteral("Data2"), dao::Recordset::Kind::Snapshot};
    forms::DBGrid DBGrid2{QStringLiteral("DBGrid2")};
};
