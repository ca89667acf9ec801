#pragma once

#include "platform/forms/controls.h"

#include <QWidget>

#include <vector>

namespace riesgo
{

/// The classes of a scale side by side, and under them the marker that shows where a total stands. The marker
/// is out of sight until then.
class Escala : public QWidget
{
public:
    enum class Lugar { AlBorde, AlMedio }; ///< of the marker under its class

    Escala(const QString &marcador, Lugar lugar);

    /// The next class, in rising order. It belongs to whoever made it.
    void agregar(QWidget &clase);
    void senalar(int clase);

protected:
    void resizeEvent(QResizeEvent *evento) override;

private:
    void ubicar();

    Lugar lugar_;
    forms::CommandButton marcador_;
    std::vector<QWidget *> clases_;
    int senalada_ = -1;
};

} // namespace riesgo
