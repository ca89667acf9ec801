#pragma once

#include "platform/dao/recordset.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

#include <optional>

/// An article of the stock: a new one of a professional, or the data of one. The stock itself is typed for a
/// new one only; later it changes by its movements. Answers "SI" once it is written.
class panNueArticulo : public forms::Form
{
    Q_OBJECT
public:
    panNueArticulo(qint64 idProfesional, std::optional<qint64> idArticulo);

    qint64 idArticulo() const { return *idArticulo_; } ///< once written

protected:
    void load() override;

private:
    dao::Recordset abrir() const;
    void mostrar();
    bool completo();
    void aceptar();
    void escribir(dao::Recordset &fila);

    const qint64 idProfesional_;
    std::optional<qint64> idArticulo_;

    forms::ControlArray<forms::TextBox> Text1{QStringLiteral("Text1")};
    forms::ComboBox cbRubro{QStringLiteral("cbRubro")};
    forms::ComboBox cbUnidad{QStringLiteral("cbUnidad")};
    forms::ComboBox cbProveedor{QStringLiteral("cbProveedor")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
