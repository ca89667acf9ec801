#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"

#include <functional>
#include <optional>

/// "Seleccione una Práctica": the price list, from which practices are added to a budget one after another.
/// The tag says who asks: "tooth", or "presu" for the window of a new budget.
class PannuePractico : public forms::Form
{
    Q_OBJECT
public:
    /// `agregada` runs after each practice that was added to the budget.
    explicit PannuePractico(std::optional<qint64> presupuesto = {}, std::function<void()> agregada = {});

protected:
    void load() override;

private:
    void buscar(const QString &criterio = {});
    void nueva();
    void cambiarPrecio();
    void quitar();
    void usar();
    bool hayPractica();
    qint64 practica() { return Data1.recordset()[u"idpractico"].integer(); }

    std::optional<qint64> presupuesto_;
    std::function<void()> agregada_;
    forms::Data Data1{QStringLiteral("Data1")};
    forms::SearchBox Text1{QStringLiteral("Text1"), 100};
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};
    forms::Label lblAgregada{QStringLiteral("lblAgregada")};
};
