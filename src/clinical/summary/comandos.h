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

/// A command of the page that opens a window of the patient; one whose window is not there is disabled. The
/// alarm is the icon beside it that a person colours; two commands of one alarm show the same mark.
struct Comando {
    const char *control, *caption;
    Lugar lugar;
    const char *ventana;
    const char *nivel = "";
    const char *titulo = ""; ///< before the patient's name; the window's own caption without
    bool hija = false;       ///< a child window; the others are modal
    const char *alarma = "", *tema = "";
    const char *examen = ""; ///< which of the complementary examinations, of the window of them all
    const char *pagina = ""; ///< the page of a window that is not the patient's, which it has for its tag
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
