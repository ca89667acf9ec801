#pragma once

#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <span>

/// What a patient's relatives suffer from, as the table `Antecedentes` has it.
namespace familia
{

/// A relative of the tree. Each branch has relatives of its own, so that one death marks one person.
struct Pariente {
    QString nombre; ///< in `Antecedentes.Pariente`
    QString titulo; ///< within its branch
    QString figura; ///< of the pictures in :/familia
};
/// In the order of the tree's boxes.
std::span<const Pariente> parientes();

/// The conditions of one relative.
struct Antecedentes {
    QStringList grupos;            ///< general groups, under their captions
    QStringList enfermedades;      ///< of the classification of diseases
    std::optional<QString> muerte; ///< its cause; nothing when none was told, and then there is no mark

    bool operator==(const Antecedentes &) const = default;
};

/// The group that says that a relative has died.
extern const QString fallecido;

/// They throw dao::Error.
Antecedentes leer(qint64 paciente, const QString &pariente);
/// Of all relatives that have any, by their names.
std::map<QString, Antecedentes> leer(qint64 paciente);
/// In place of all that the relative had.
void guardar(qint64 paciente, const QString &pariente, const Antecedentes &antecedentes);

/// As a person reads them, a line each; the death first.
QStringList enPalabras(const Antecedentes &antecedentes);
/// The whole family's, in the order of the tree; relatives that the tree does not show come last.
QStringList resumen(const std::map<QString, Antecedentes> &familia);

} // namespace familia
