#pragma once

#include "platform/basic/value.h"

#include <QPointF>
#include <QString>

#include <vector>

/// The drawn findings of a chest and the plain text file that keeps them, one a record.
namespace torax
{

constexpr int flechas = 8;            ///< the symbols, by direction: 1 up, then clockwise
constexpr int mayorIndice = 99;       ///< two digits
constexpr double mayorLugar = 99'999; ///< five digits, in twips

/// An arrow or a text placed on the diagram, by its top left corner in twips.
struct Elemento {
    int indice = 0; ///< among those of its kind
    QPointF lugar;
    int simbolo = 0; ///< of an arrow; 0 for a text
    QString texto = {};
    bool operator==(const Elemento &) const = default;
};

/// The file of a record: of its chest diagram ".DAT", of its X-ray diagram ".RXD". Records of one patient and
/// day share it.
QString archivo(qint64 paciente, basic::Date fecha, QStringView extension);

/// The number of the patient that a file of a record bears.
qint64 pacienteDe(const QString &archivo);

QString enTexto(const std::vector<Elemento> &elementos);
/// Lines that are no element of this version are passed over.
std::vector<Elemento> deTexto(const QString &texto);

/// Nothing when the file is missing. Throws basic::Error when it cannot be read.
std::vector<Elemento> leer(const QString &archivo);
/// In the place of the file that was there. Throws basic::Error; then the old one is still there.
void guardar(const QString &archivo, const std::vector<Elemento> &elementos);

} // namespace torax
