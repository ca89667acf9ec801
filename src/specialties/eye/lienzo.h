#pragma once

#include "specialties/eye/archivo.h"
#include "specialties/eye/sellos.h"

namespace oftalmo
{

/// One drawing of an eye visit, as large as its room: the stamps are `Image(n)`, the texts `Label(n)`.
class Lienzo : public dibujo::Diagrama
{
    Q_OBJECT
public:
    Lienzo(const QString &nombre, Clase clase);

    void mostrar(const Dibujo &dibujo);
    /// What is drawn; the observations are the window's.
    Dibujo dibujo() const;
    /// With a text under that number or the next free one.
    void rotular(const QString &texto, QPointF lugar, std::optional<int> numero = {});
    /// Whether the file has room for another stamp, or text.
    bool hayLugarPara(QStringView nombre) const { return numeroLibre(nombre) <= mayorIndice; }

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void sellar(const Sello &sello);
};

} // namespace oftalmo
