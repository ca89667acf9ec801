#pragma once

#include <QStringView>

#include <optional>
#include <span>

/// The heart test: fourteen questions, what each answer adds, and what is advised for a total.
namespace riesgoCardiaco
{

struct Respuesta {
    QStringView texto;
    int boton; ///< its place in the array of options
    int puntos;
};

struct Pregunta {
    int numero;
    QStringView titulo, texto;
    std::span<const Respuesta> respuestas;
};
std::span<const Pregunta> preguntas();

/// The questions whose answer another window helps to find.
inline constexpr int profesion = 2, estres = 5;
/// The question on smoking is asked of who takes contraceptives; to others the "No" is given.
inline constexpr int fuma = 14, tomaAnticonceptivos = 41, noFuma = 42;
/// Those of the frame "Mujeres".
inline constexpr int menopausia = 12, anticonceptivos = 13;

/// The answer of a question of four bands to a value from 0 to 100: its option; nothing beyond.
std::optional<int> respuestaDe(int pregunta, int valor);

struct Banda {
    int hasta; ///< the highest total that is in it
    QStringView consejo;
};
std::span<const Banda> bandas();
/// The band of a total; nothing above the last.
std::optional<int> bandaDe(int total);

/// What a person picks from to find a value: a profession, or an event of the last year.
struct Opcion {
    QStringView texto;
    int valor;
};
std::span<const Opcion> profesiones();
std::span<const Opcion> situaciones();

} // namespace riesgoCardiaco
