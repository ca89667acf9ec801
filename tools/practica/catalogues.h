#pragma once

#include "clinical/visits/consulta.h"

#include <map>

/// The symptoms, treatments and diagnoses of the open database.
namespace practica
{

class Catalogues
{
public:
    Catalogues();

    ports::Renglon entry(consultas::Grupo group, const QString &name) const; ///< throws std::runtime_error
    bool has(consultas::Grupo group, const QString &name) const { return keys_[group].contains(name); }

private:
    std::array<std::map<QString, qint64>, consultas::grupos.size()> keys_;
};

/// The age in months from which on each treatment is given.
using FirstAges = std::map<QString, double>;

/// Fills in the doses of the catalogue's treatments, which it is delivered without. Throws when one is not in
/// it.
FirstAges fillDoses();

} // namespace practica
