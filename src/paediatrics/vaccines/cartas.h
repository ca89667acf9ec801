#pragma once

#include "paediatrics/vaccines/atrasos.h"

namespace vacunas
{

/// What the letters about late doses tell, in the base while they are shown: a letter for each child, a line
/// for each dose. Other stations' letters are not touched.
class Cartas
{
public:
    explicit Cartas(const Atrasos &atrasos); ///< throws dao::Error
    ~Cartas();
    Cartas(const Cartas &) = delete;
    Cartas &operator=(const Cartas &) = delete;

    /// Of these letters, for the report.
    QString seleccion() const;

private:
    QString lote_;
};

} // namespace vacunas
