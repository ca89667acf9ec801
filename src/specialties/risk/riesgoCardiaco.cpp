#include "specialties/risk/riesgoCardiaco.h"

#include <algorithm>

namespace riesgoCardiaco
{

namespace
{

// clang-format off
constexpr Respuesta r1[] = {{u"Mas de 30 años", 0, 1}, {u"Mas de 40 años", 1, 3}, {u"Mas de 40 años", 2, 5}, {u"Mas de 50 años", 3, 6}};
constexpr Respuesta r2[] = {{u"Entre 0 y 10", 7, 1}, {u"Entre 10 y 40", 6, 3}, {u"Entre 40 y 80", 5, 8}, {u"Entre 80 y 100", 4, 10}};
constexpr Respuesta r3[] = {{u"Entre 150 y 180 mg.", 8, 0}, {u"Entre 180 y 200 mg.", 9, 3}, {u"Entre 200 y 250 mg.", 10, 6}, {u"Mas de 250 mg.", 11, 10}};
constexpr Respuesta r4[] = {{u"Sí", 14, 10}, {u"No", 15, 0}};
constexpr Respuesta r5[] = {{u"Entre 0 y 10", 12, 1}, {u"Entre 10 y 40", 13, 3}, {u"Entre 40 y 80", 16, 8}, {u"Entre 80 y 100", 17, 10}};
constexpr Respuesta r6[] = {{u"Sí", 18, 10}, {u"No", 19, 0}};
constexpr Respuesta r7[] = {{u"Ninguno", 20, 0}, {u"Entre 3 y 10", 21, 3}, {u"Entre 10 y 20", 22, 8}, {u"Más de 20", 23, 10}};
constexpr Respuesta r8[] = {{u"Nada", 24, 0}, {u"2 Copas", 25, 3}, {u"4 Copas", 26, 8}, {u"6 o mas Copas", 27, 10}};
constexpr Respuesta r9[] = {{u"Nunca", 28, 10}, {u"Una vez x semana", 29, 5}, {u"3 veces x semana", 30, 2}, {u"4 veces x semana", 31, 1}};
constexpr Respuesta r10[] = {{u"Sí", 32, 10}, {u"No", 33, 0}};
constexpr Respuesta r11[] = {{u"Peso ideal", 34, 0}, {u"Entre 2 y 5 Kg.", 35, 3}, {u"Entre 5 y 10 Kg.", 36, 8}, {u"Entre 10 y 20 Kg.", 37, 10}};
constexpr Respuesta r12[] = {{u"Sí", 38, 5}, {u"No", 39, 0}};
constexpr Respuesta r13[] = {{u"Sí", 41, 5}, {u"No", 40, 0}};
constexpr Respuesta r14[] = {{u"Sí", 43, 10}, {u"No", 42, 0}};

constexpr Pregunta todas[] = {
    {1, u"  Edad", u"", r1},
    {2, u"  Profesión", u"", r2},
    {3, u"  Dosaje de Colesterol", u"", r3},
    {4, u"  Diabetes", u"Es diabético ?", r4},
    {5, u"  Estrés", u"", r5},
    {6, u"  Antecedentes", u"Posee antecedentes de enfermedades cardíacas el la flia.", r6},
    {7, u"  Fumador", u"Cuantos cigarrillos fuma a diario?", r7},
    {8, u"  Alcohol", u"Cuanto alcohol consume a diario?", r8},
    {9, u"  Deportes", u"Practica deportes, ejercicios?", r9},
    {10, u"   Presión", u"Tiena Alta Presión?", r10},
    {11, u"   Peso", u"En cuantos Kg. está excedido?", r11},
    {12, u"", u"Es menopáusica?", r12},
    {13, u"", u"Toma Anticonceptivos?", r13},
    {14, u"", u"Fuma ?", r14},
};

constexpr Banda escala[] = {
    {15, u"Riesgo cardíaco mínimo. Indicar : Si tiene mas de 30 años : chequeo una vez al año. Si tiene 40 o mas, recomendar electrocardiograma y un holter cada seis meses."},
    {30, u"Puntaje aceptable. Recomendar aumento en la cantidad de ejercicio semanal. Prescribir examen de corazón ante presencia de antecedentes cardíacos en la familia. Recomendar control anual, máxime en caso de diabetes."},
    {60, u"Señal de Alerta. Límite de Riesgo Cardíaco medio. Prescribir dieta variada, a base de pescados, frutas y cereales. Evitar niveles de colesterol alto."},
    {80, u"Riesgo Cardíaco medio/alto. Recomendar cambio de hábitos. Salud en peligro. Revisar cuidadosamente alimentación, exceso de peso, cigarrillo. Recomendar estricta atención médica."},
    {100, u"Riesgo Cardíaco Alto. Recomendar ninguna situación de estres. Abandono de hábitos completamente. Recomendar replanteo completo de actividades. Recomendar ejercicios de caminata diariamente, sin interrupciones. Derivar a profesional cardiólogo."},
};

constexpr Opcion listaDeProfesiones[] = {
    {u"Funcionario Público", 3},
    {u"Artesano", 5},
    {u"Agricultor", 7},
    {u"Oficinista", 10},
    {u"Comerciante", 15},
    {u"Empleado Administrativo", 20},
    {u"Profesional (Abogado/Medico)", 25},
    {u"Artista, Vedette", 30},
    {u"Trabajador línea monteje lenta", 35},
    {u"Trabajador línea montaje rápida", 40},
    {u"Trabajo Fijo (5 a 13 horas)", 45},
    {u"Conductor de transporte público", 50},
    {u"Piloto de líneas aereas", 55},
    {u"Minero de Profundidad", 60},
    {u"Fundidor de acería", 65},
    {u"Desocupado", 70},
    {u"Función Ministerial", 75},
    {u"Operador de Bolsa", 80},
    {u"Periodista", 83},
    {u"Presidente de una empresa", 85},
    {u"Piloto de pruebas", 90},
    {u"Piloto de combate", 95},
    {u"Controlador aéreo", 100},
};

constexpr Opcion listaDeSituaciones[] = {
    {u"Navidad", 10},
    {u"Multas de tránsito", 11},
    {u"Cambio de hábitos alimentarios", 12},
    {u"Alteración de las costumbres familiares", 15},
    {u"Cambio de Religión", 18},
    {u"Hipoteca o deuda de dinero <Baja>", 17},
    {u"Cambio de Colegio", 19},
    {u"Mudanza", 20},
    {u"Cambio de horario o condiciones laborales", 22},
    {u"Dificultad con el empleador", 23},
    {u"Modificación de habitos personales", 24},
    {u"Cambio de las condiciones de vida", 25},
    {u"Inicio o finalización del ciclo escolar", 26},
    {u"Esposa/o que comienza o deja un trabajo", 26},
    {u"Logro personal", 28},
    {u"Discusión familiar", 29},
    {u"Mayor responsabilidad en el trabajo", 29},
    {u"Enbargo de hipoteca, vencimiento de prestamos", 30},
    {u"Hipoteca o deuda de dinero <Alta>", 33},
    {u"Peleas matrimoniales constantes", 35},
    {u"Muerte de un amigo", 37},
    {u"Perder dinero", 38},
    {u"Problemas sexuales, nacimiento de un hijo", 39},
    {u"Muerte de un familiar", 63},
    {u"Accidente", 53},
    {u"Casamiento", 50},
    {u"Despido", 47},
    {u"Jubilación, reconciliacion con conyuge", 45},
    {u"Enfermedad de un miembro de la familia", 44},
    {u"Embarazo", 40},
    {u"Muerte del cónyuge", 100},
    {u"Divorcio", 73},
    {u"Separacion matrimonial", 65},
    {u"Encarcelamiento", 64},
};

// clang-format on

/// Up to which value each of the four bands of a question goes.
constexpr int topes[] = {10, 40, 80, 100};

} // namespace

std::span<const Pregunta> preguntas()
{
    return todas;
}

std::optional<int> respuestaDe(int pregunta, int valor)
{
    const auto tope = std::ranges::find_if(topes, [&](int hasta) { return valor <= hasta; });
    if (tope == std::end(topes))
        return std::nullopt;
    return todas[pregunta - 1].respuestas[static_cast<std::size_t>(tope - std::begin(topes))].boton;
}

std::span<const Banda> bandas()
{
    return escala;
}

std::optional<int> bandaDe(int total)
{
    const auto banda = std::ranges::find_if(escala, [&](const Banda &una) { return total <= una.hasta; });
    if (banda == std::end(escala))
        return std::nullopt;
    return static_cast<int>(banda - std::begin(escala));
}

std::span<const Opcion> profesiones()
{
    return listaDeProfesiones;
}

std::span<const Opcion> situaciones()
{
    return listaDeSituaciones;
}

} // namespace riesgoCardiaco
