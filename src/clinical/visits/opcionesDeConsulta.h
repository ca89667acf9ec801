#pragma once

#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"

#include <QButtonGroup>

namespace consultas
{

/// Where a visit took place and whether it was the first, as two pairs of options.
class OpcionesDeConsulta : public QObject
{
    Q_OBJECT
public:
    OpcionesDeConsulta();

    /// The stored texts; empty while none is chosen.
    QString lugar() const;
    QString tipo() const;
    /// By the stored texts, blanks around them aside; another text chooses none.
    void setLugar(const QString &texto);
    void setTipo(const QString &texto);
    void setEnabled(bool enabled);

    forms::ControlArray<forms::OptionButton> option3d1{QStringLiteral("option3d1")}; ///< place
    forms::ControlArray<forms::OptionButton> option3d2{QStringLiteral("option3d2")}; ///< first visit or later

signals:
    void elegida(); ///< by the person

private:
    QButtonGroup lugar_, tipo_;
};

} // namespace consultas
