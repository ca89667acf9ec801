#pragma once

#include <QPointF>
#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <span>

/// The layout of a prescription sheet: what stands where, kept as the rows of a table of the practice's file.
namespace recetario
{

inline constexpr int lugares = 32; ///< elements of a sheet, numbered from 0
inline constexpr int largoDelValor = 100;

/// A text of the sheet, or a field of the patient's.
struct Elemento {
    QString valor;       ///< the text, or the label of a field
    QPointF lugar;       ///< twips from the sheet's top left corner
    QString fuente = {}; ///< by its name, whether or not this machine has it; empty for the program's own
    int cuerpo = 10;     ///< points
    bool negrita = false;
    bool italica = false;
    bool subrayado = false; ///< is read, and never written
    bool operator==(const Elemento &) const = default;
};

struct Imagen {
    QString archivo; ///< empty where only its place is known
    QPointF lugar;
    bool operator==(const Imagen &) const = default;
};

struct Diseno {
    std::map<int, Elemento> elementos;
    std::optional<Imagen> imagen;
    bool operator==(const Diseno &) const = default;
};

/// Rows that number no place of the sheet are passed over. Throws dao::Error.
Diseno leer(const QString &tabla);
/// Replaces the table's rows. Throws dao::Error, and basic::Error for a text that does not fit its column;
/// then nothing was changed.
void guardar(const QString &tabla, const Diseno &diseno);
/// The tables of the practice's file that hold a layout.
QStringList tablas();

/// What an element may show instead of a text of its own.
struct Campo {
    QString etiqueta; ///< the value that stands for it: "<FECHA>"
    QString titulo;
    QString muestra;
};
/// In the order of the options of the properties.
std::span<const Campo> campos();
bool esCampo(const QString &valor);

/// What the sheet of a patient shows for an element.
struct Rotulo {
    QString texto;
    QString tratamiento = {}; ///< the name in the catalogue, where the text comes from it
};
/// A field whose datum is not found shows its label. Throws dao::Error.
Rotulo rotulo(const QString &valor, qint64 paciente);

} // namespace recetario
