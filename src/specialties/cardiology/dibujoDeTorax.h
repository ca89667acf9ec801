#pragma once

#include "specialties/cardiology/diagramaDeTorax.h"
#include "specialties/drawing/diagrama.h"

/// The editor of a chest diagram: arrows and texts of a palette dropped on the picture, moved on it, and
/// taken away with a click.
class DibujoDeTorax : public dibujo::Diagrama
{
    Q_OBJECT
public:
    enum class Fondo { Torax, Radiografia };
    explicit DibujoDeTorax(Fondo fondo);

    /// The picture above its palette.
    forms::Item disponer();

    void mostrar(const std::vector<torax::Elemento> &elementos);
    std::vector<torax::Elemento> elementos() const;
    /// Changed since it was shown or since `guardado()`.
    bool cambiado() const { return cambiado_; }
    void guardado() { cambiado_ = false; }

private:
    void ponerFlecha(int simbolo, QPointF lugar);
    void ponerTexto(QPointF lugar);
    bool hayLugarPara(QStringView nombre, const QString &aviso) const;

    forms::CommandButton Label5{QStringLiteral("Label5"), QStringLiteral("&Texto")};
    bool cambiado_ = false;
};
