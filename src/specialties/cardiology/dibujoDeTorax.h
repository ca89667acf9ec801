#pragma once

#include "platform/forms/canvas.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/layout.h"
#include "specialties/cardiology/diagramaDeTorax.h"

/// The editor of a chest diagram: arrows and texts of a palette dropped on the picture, moved on it, and
/// taken away with a click.
class DibujoDeTorax : public QObject
{
    Q_OBJECT
public:
    /// `fondo` names the picture: :/corazon/<fondo>.svg
    explicit DibujoDeTorax(const QString &fondo);

    /// The picture above its palette.
    forms::Item disponer();

    void mostrar(const std::vector<torax::Elemento> &elementos);
    std::vector<torax::Elemento> elementos() const;
    /// Changed since it was shown or since `guardado()`.
    bool cambiado() const { return cambiado_; }
    void guardado() { cambiado_ = false; }
    void habilitar(bool habilitado);
    forms::Canvas &lienzo() { return Picture1; }

private:
    void agregarPaleta();
    void usar(const QWidget &origen, QPointF lugar);
    void poner(const torax::Elemento &elemento);
    void ponerTexto(QPointF lugar);
    std::optional<int> indiceLibre(QStringView nombre) const;

    forms::Canvas Picture1;
    forms::ControlArray<forms::CommandButton> Image2{QStringLiteral("Image2")}; ///< arrows, by direction
    forms::CommandButton Label5{QStringLiteral("Label5"), QStringLiteral("&Texto")};
    bool cambiado_ = false;
};
