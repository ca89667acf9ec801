#pragma once

#include "platform/dao/recordset.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

#include <optional>

/// A supplier: a new one, or the data of one. Answers "SI" once it is written.
class panNueProveedor : public forms::Form
{
    Q_OBJECT
public:
    explicit panNueProveedor(std::optional<qint64> idProveedor);

    qint64 idProveedor() const { return *idProveedor_; } ///< once written

protected:
    void load() override;

private:
    dao::Recordset abrir() const;
    void aceptar();
    void escribir(dao::Recordset &fila);

    std::optional<qint64> idProveedor_;

    forms::ControlArray<forms::TextBox> Text1{QStringLiteral("Text1")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
