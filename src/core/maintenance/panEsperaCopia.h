#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"

#include <QProgressBar>

/// The waiting window of long work on the practice's file: what is done, how far it is and, where it can be
/// stopped, "Detener". It goes when the work ends, not before.
class panEsperaCopia : public forms::Form
{
    Q_OBJECT
public:
    explicit panEsperaCopia(
        const QString &que = QStringLiteral("Espere miestras se actualiza la base de datos..."),
        bool seDetiene = false);

    /// The stage in words, and the bytes done of all; of an unknown total with 0.
    void mostrar(const QString &etapa, qint64 hechos, qint64 total);
    bool detenida() const { return detenida_; }

protected:
    bool queryUnload() override { return false; }
    void escape() override { detener(); }

private:
    void detener();

    forms::Label Label1{QStringLiteral("Label1")};
    forms::Label Label2{QStringLiteral("Label2")};
    QProgressBar ProgressBar1;
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Detener"),
                                  QStringLiteral("cancelar")};
    bool seDetiene_;
    bool detenida_ = false;
};
