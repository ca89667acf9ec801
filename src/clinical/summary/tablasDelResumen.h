#pragma once

#include "clinical/summary/estados.h"

#include <QSize>

#include <span>

/// What the patient's page shows, as tables: for the two files that implement it and for no other.
namespace resumen
{

inline constexpr int verde = 65280, rojo = 255; // as the rules give a colour
inline constexpr QSize ladoDeLaFoto(84, 84);
inline constexpr int casillasDeVacunas = 16, medidas = 4;
inline constexpr int anchoDeLaPersona = 348; // a measure with its words on one line
inline constexpr int aireDeLosBotones = 9;   // around a caption: the page has many

/// A box of personal data and what it shows of the register.
struct Dato {
    const char *control, *rotulo;
    const char16_t *campo;
    bool enFila = true; ///< has a line of its own
};
inline constexpr Dato datosDelRegistro[] = {
    {"Text12", "Sexo :", u"Sexo", false},
    {"Text13", "Grupo y Factor :", u"grupo sanguineo", false},
    {"Text20", "Obra Social :", u"Obra social"},
    {"Text27", "Nº de Afiliado :", u"Numero de Afiliado"},
};

/// A panel that is green or red, the command it stands beside, and who says which.
struct Semaforo {
    const char *control, *comando;
    clinical::Estado (*estado)(const clinical::Persona &);
};
std::span<const Semaforo> semaforos();

} // namespace resumen
