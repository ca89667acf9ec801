#pragma once

#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"

#include <QButtonGroup>

/// Where a visit took place and whether it was the first, as two pairs of options.
class OpcionesDeConsulta : public QObject
{
    Q_OBJECT
public:
    OpcionesDeConsulta();

    bool consultorio() const { return option3d1(0).isChecked(); }
    bool primera() const { return option3d2(0).isChecked(); }
    /// By the stored texts, blanks around them aside; another text leaves the option as it is.
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
