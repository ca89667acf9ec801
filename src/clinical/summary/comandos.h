#pragma once

#include "clinical/summary/estados.h"
#include "core/session/screennames.h"

#include <span>

namespace clinical
{

/// Where a command of the patient's page stands: on the panel of a speciality, among what follows the patient
/// in all of them, or on the bar.
enum class Lugar {
    Pediatria,
    Alergia,
    Oftalmologia,
    Cardiologia,
    Odontologia,
    Ginecologia,
    Seguimiento,
    Barra
};

/// What a command opens, once the patient and the level allow it.
enum class Abre {
    Ventana, ///< modal, with the patient's number as its tag
    Hija,
    Pagina, ///< of a window that is not the patient's, which has it for its tag
    Examen, ///< one of the complementary examinations, of the window of them all
    UltimaLectura,
    Presupuestos,
    EvaluacionDeportiva,
};

/// A command of the page that opens a window of the patient; one whose window is not there is disabled. The
/// alarm is the icon beside it that a person colours; two commands of one alarm show the same mark.
struct Comando {
    const char *control, *caption;
    Lugar lugar;
    const char *ventana;
    Abre abre = Abre::Ventana;
    const char *dato = ""; ///< which page, which examination
    const char *nivel = "";
    const char *titulo = ""; ///< before the patient's name; the window's own caption without
    const char *alarma = "", *tema = "";
};

std::span<const Comando> comandos();

/// A speciality, with the icon that leads to it and the panel that it shows.
struct Especialidad {
    const char *nombre;
    int icono, panel;
    const char *dibujo;
    const char *menu = ""; ///< of the main window, that its special reports open; empty for none
};
std::span<const Especialidad> especialidadesDelResumen();

/// What the text names; paediatrics for an unknown one.
const Especialidad &especialidadDe(const QString &nombre);

} // namespace clinical
