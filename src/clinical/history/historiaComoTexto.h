#pragma once

#include "platform/basic/value.h"

#include <QString>

#include <bitset>

namespace clinical
{

/// What goes into a history told as text: the boxes of the dialogue that asks for it, by their index.
class ContenidoDeHistoria
{
public:
    enum Casilla {
        Vacunas = 0,
        Laboratorio = 1,
        Consultas = 2, ///< and with it all that has a date
        AntecedentesFamiliares = 3,
        Perinatal = 4,
        AntecedentesPersonales = 5,
        Medidas = 6,
        Personales = 7,
        CondicionFamiliar = 8,
        Estudios = 9,
        Cardiologia = 10,
        Ginecologia = 11,
        Oftalmologia = 13,
    };
    bool tiene(Casilla casilla) const { return casillas_[static_cast<std::size_t>(casilla)]; }
    void poner(Casilla casilla, bool incluida) { casillas_[static_cast<std::size_t>(casilla)] = incluida; }

    /// All of it, from one day to another.
    static ContenidoDeHistoria todo(basic::Date desde, basic::Date hasta);

    basic::Date desde, hasta; ///< of what has a date, both included

private:
    std::bitset<14> casillas_;
};

/// A patient's interactive history as plain text: what is known of the person, section by section, and then
/// what happened, by date. A source that cannot be read is told in a box and the text goes on with the next.
/// The dated events are left in `TablaTempHC`, under the professional in session.
QString textoDeHistoria(qint64 numero, const ContenidoDeHistoria &contenido);

/// The same as the practice asks for it. With `interactivo` the person chooses what goes in, of the whole
/// life of the patient, and an empty text is a cancelled choice; without, it is all of the last 365 days.
QString historiaComoTexto(qint64 numero, bool interactivo);

} // namespace clinical
