#include "clinical/visits/examen.h"

#include <cstddef>

namespace examen
{

namespace
{

using enum Marco;

constexpr const char *titulos[] = {
    "Postural",
    "Columna",
    "Miembros - Tronco",
    "Examen Torax",
    "Examen Abdomen",
    "Valoración Neurológica",
    "Exámen Oftalmológico",
    "Exámen Cardiovascular",
    "Electrocardiograma Reposo (optativo según exámen )",
};

constexpr Item todos[] = {
    {Postural, 11, "Parado :", "Postural Parado"},
    {Postural, 12, "Sentado :", "Postural Sentado"},
    {Postural, 13, "Caminando :", "Postural Caminando"},
    {Columna, 5, "Cervical :", "Columna Cervical"},
    {Columna, 9, "Dorsal :", "Columna Dorsal"},
    {Columna, 10, "Lumbosacra :", "Columna Lumbosacra"},
    {MiembrosTronco, 7, "Cabeza y cuello :", "Miembros - Tronco - Cabeza y Cuello"},
    {MiembrosTronco, 6, "Tórax :", "Miembros - Tronco - Torax"},
    {MiembrosTronco, 8, "Miembros :", "Miembros Tronco - Miembros"},
    {Torax, 25, "Murmullo vesicular :", "Examen Torax - Murmullo Vesicular"},
    {Torax, 24, "Ruidos agregados :", "Examen Torax - Ruidos Agregados"},
    {Abdomen, 14, "Hígado :", "Examen Abdomen - Higado"},
    {Abdomen, 15, "Bazo :", "Examen Abdomen - Bazo"},
    {Abdomen, 21, "Riñones :", "Examen Abdomen - Riñones"},
    {Abdomen, 22, "Hernias :", "Examen Abdomen -  Hernias"},
    {Abdomen, 23, "Otros :", "Examen Abdomen - Otros"},
    {Neurologica, 16, "Taxia :", "Valoracion Neurologica - Taxia"},
    {Neurologica, 17, "Praxia :", "Valoracion Neurologica - Praxia"},
    {Neurologica, 18, "R.O.T. :", "Valoracion Neurologica - R.o.t."},
    {Neurologica, 19, "Marcha :", "Valoracion Neurologica - Marcha"},
    {Neurologica, 20, "Trofismo :", "Valoracion Neurologica - Trofismo"},
    {Oftalmologico, 39, "A.V.O.D. :", "Examen Oftalmologico - A.V.O.D"},
    {Oftalmologico, 38, "A.V.O.I. :", "Examen Oftalmologico - A.V.O.I"},
    {Oftalmologico, 37, "Estrabismo :", "Examen Oftalmologico - Estrabismo"},
    {Oftalmologico, 36, "Otros :", "Examen Oftalmologico - Otros"},
    {Cardiovascular, 30, "R1 :", "Examen Cardiovascular R1"},
    {Cardiovascular, 29, "R2 :", "Examen Cardiovascular R2"},
    {Cardiovascular, 28, "Ruidos agregados :", "Examen Cardiovascular - Ruidos Agregados"},
    {Cardiovascular, 27, "F.C. :", "Examen Cardiovascular F.C."},
    {Cardiovascular, 26, "T.A. 1 :", "Examen Cardiovascular TA 1"},
    {Cardiovascular, 35, "T.A. 2 :", "Examen Cardiovascular TA2"},
    {Electrocardiograma, 34, "Ritmo :", "Electrocardiograma reposo - Ritmo"},
    {Electrocardiograma, 33, "F.C. :", "Electrocardiograma reposo - FC"},
    {Electrocardiograma, 32, "AQRS :", "Electrocardiograma reposo - AQRS"},
    {Electrocardiograma, 31, "Otros :", "Electrocardiograma reposo - OTROS"},
};

} // namespace

const char *titulo(Marco marco)
{
    return titulos[static_cast<std::size_t>(marco)];
}

std::span<const Item> items()
{
    return todos;
}

} // namespace examen
