#pragma once

#include <QPointF>
#include <QString>

#include <vector>

/// The drawings of an eye visit as files: one line of fixed width a stamp and a text, one for the
/// observations.
namespace oftalmo
{

/// What was put on a drawing, by its top left corner in twips.
struct Sello {
    int indice;
    QPointF lugar;
    QString codigo; ///< of two letters
    bool operator==(const Sello &) const = default;
};
struct Rotulo {
    int indice;
    QPointF lugar;
    QString texto;
    bool operator==(const Rotulo &) const = default;
};

/// An index of the file has two digits.
inline constexpr int mayorIndice = 99;

struct Dibujo {
    std::vector<Sello> sellos;
    std::vector<Rotulo> rotulos;
    QString observaciones;
    bool operator==(const Dibujo &) const = default;
};

QString enTexto(const Dibujo &dibujo);
/// Lines that are none of a drawing, and what is not visible, are passed over.
Dibujo deTexto(const QString &texto);

/// A drawing without a file starts empty. Throws basic::Error when there is one that cannot be read.
Dibujo leerDibujo(const QString &base);
/// In the place of the whole file that was there. Throws basic::Error.
void guardarDibujo(const QString &base, const Dibujo &dibujo);
/// A base that no drawing has: the moment, and a number behind it when another drawing was quicker. Its file
/// is there, empty, so that no other station takes it. Throws basic::Error.
QString nuevaBase();
void borrarDibujo(const QString &base);

} // namespace oftalmo
