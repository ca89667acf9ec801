#pragma once

#include "specialties/odontology/piezas.h"

#include <QString>
#include <QStringList>

#include <array>
#include <span>
#include <vector>

/// A scheme of the tooth chart: what is marked, painted and written on the teeth, and the two texts that keep
/// it.
namespace odonto
{

/// Colours are numbers with red in the low byte.
constexpr int blanco = 0xffffff, rojo = 0x0000ff, azul = 0xff0000;

constexpr int sinMarca = 100;
/// The kinds of mark. A tooth has one at most.
enum Tipo {
    Puente = 0,
    Corona = 3,
    Ausente = 5,
    Conducto = 10,
    Extraccion = 11,
    Implante = 12,
    Fractura = 13
};

struct ClaseDeMarca {
    int tipo;
    int herramienta; ///< index of its tool
    QStringView menu, nombre;
    QStringView practica; ///< word by which a price list has what it takes
};
std::span<const ClaseDeMarca> clasesDeMarca();
/// Null for what is no kind of mark.
const ClaseDeMarca *claseDeMarca(int tipo);

/// What stands on a tooth besides its faces.
struct Marca {
    int tipo = sinMarca;
    int color = 0;
    QString leyenda = {};
    int colorDeLeyenda = 0;

    bool vacia() const { return tipo == sinMarca && leyenda.isEmpty(); }
    bool operator==(const Marca &) const = default;
};

/// The two colours of a face. The centre shows the one behind, the others the one in front.
struct Pintura {
    int frente = blanco, fondo = blanco;
    bool operator==(const Pintura &) const = default;
};

/// As it can be stored: without the signs that part the items of a text.
QString leyendaLimpia(const QString &leyenda);
/// One that would be read as none cannot be kept.
bool sePuedeGuardar(const QString &leyenda);

class Esquema
{
public:
    /// Items that cannot be read are passed over one by one; they are kept, and written back as they stand.
    static Esquema deTexto(const QString &string1, const QString &string2);
    /// The marks: "pieza|tipo|color|leyenda|color" parted by ";".
    QString string1() const;
    /// The faces: ";cara|frente|fondo" from 1 to the last.
    QString string2() const;
    int sinLeer() const { return static_cast<int>(marcasSinLeer_.size() + carasSinLeer_.size()); }

    const Marca &marca(int pieza) const { return marcas_[static_cast<std::size_t>(pieza)]; }
    const Pintura &pintura(int cara) const { return caras_[static_cast<std::size_t>(cara)]; }
    int color(int cara) const; ///< the one that is seen

    void pintar(int cara, int color);
    /// Paints all faces of a tooth, or clears them when they have the colour.
    void alternarPieza(int pieza, int color);
    /// Puts the mark in the place of another, or takes it off. The legend stays.
    void alternarMarca(int pieza, int tipo, int color);
    void ponerLeyenda(int pieza, const QString &leyenda, int color);
    void limpiar(int pieza); ///< as an untouched tooth

    bool operator==(const Esquema &) const = default;

private:
    bool leerMarca(const QString &item);
    bool leerCara(const QString &item);

    std::array<Marca, piezas + 1> marcas_;
    std::array<Pintura, ultimaCara + 1> caras_;
    QStringList marcasSinLeer_, carasSinLeer_;
};

/// What is written of a tooth, for paper and for who cannot see the chart; empty for an untouched one.
QString enPalabras(const Esquema &esquema, int pieza);
struct Diferencia {
    int pieza;
    QString texto; ///< "16: Corona → Ausente"
};
/// The teeth in which two schemes are not seen alike.
std::vector<Diferencia> diferencias(const Esquema &uno, const Esquema &otro);

} // namespace odonto
