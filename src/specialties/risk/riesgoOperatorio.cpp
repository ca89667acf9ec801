#include "specialties/risk/riesgoOperatorio.h"

#include <algorithm>

namespace riesgoOperatorio
{

namespace
{

// clang-format off
constexpr Celda todas[] = {
    {0, 0, u"operacion planeada"},
    {0, 1, u"operacion urgente relativa"},
    {0, 2, u"operación urgente"},
    {0, 4, u"operación inmediata"},
    {1, 0, u"cirugía superficial"},
    {1, 1, u"cirugia de miembros u ORL"},
    {1, 2, u"cirug. cavidad abdominal"},
    {1, 4, u"cirugía de cráneo o torax"},
    {1, 8, u"cirugía de dos cavidades"},
    {1, 16, u"politrauma shock"},
    {2, 0, u"edad 1 a 39 años"},
    {2, 1, u"0 a 1 año / 40 a 69 años"},
    {2, 2, u"70 a 79 años"},
    {2, 4, u"80 años o mas"},
    {3, 0, u"duración menor a 60'"},
    {3, 1, u"60 a 120 '"},
    {3, 2, u"120 a 180 '"},
    {3, 4, u"mas de 180 '"},
    {4, 0, u"peso normal + - 10%"},
    {4, 1, u"disminuido 10 - 15 %"},
    {4, 2, u"disminuido 15/25% sobrepeso 10/30%"},
    {4, 4, u"sobrepeso mayor al 30 %"},
    {5, 0, u"normotension > 160 / 95"},
    {5, 1, u"HTA tratada y controlada"},
    {5, 2, u"HTA no tratada"},
    {5, 4, u"HTA tratada no controlada"},
    {6, 0, u"rendimiento card. normal"},
    {6, 1, u"insuf. cardiaca compensada"},
    {6, 16, u"insuficiencia cardíaca descompensada"},
    {7, 0, u"E.C.G. normal"},
    {7, 1, u"discreta modificación"},
    {7, 2, u"E.C.G. anormal"},
    {7, 4, u"sin ritmo sinusal o mas de 5 EV X'"},
    {8, 0, u"sin infarto de miocardio"},
    {8, 1, u"IAM de mas de 2 años"},
    {8, 2, u"IAM de mas de 1 año"},
    {8, 4, u"IAM mas de 6 meses"},
    {8, 8, u"IAM de menos de 6 meses"},
    {8, 16, u"IAM de menos de 3 meses"},
    {9, 0, u"respiración normal"},
    {9, 1, u"obstrucción tratada"},
    {9, 2, u"obstrucción no tratada"},
    {9, 4, u"infección respiratoria"},
    {9, 8, u"restricción"},
    {9, 16, u"insuficiencia respiratoria manif."},
    {10, 0, u"bioquimica hepatica normal"},
    {10, 1, u"discreta modificación"},
    {10, 2, u"muy modificada"},
    {11, 0, u"bioquimica renal normal"},
    {11, 1, u"discreta modificación"},
    {11, 2, u"muy modificada"},
    {12, 0, u"electrolisis ac/b normales"},
    {12, 1, u"discreta modificación"},
    {12, 2, u"muy modificada"},
    {13, 0, u"hemoglobina > 12,5 g %"},
    {13, 1, u"hemoglobina 12.5 - 10 g %"},
    {13, 2, u"hemoglobina < 10 g %"},
};

constexpr Clase escala[] = {
    {u"I", 0, qRgb(255, 255, 255)}, {u"II", 3, qRgb(255, 224, 192)}, {u"III", 6, qRgb(255, 192, 128)},
    {u"IV", 11, qRgb(255, 128, 0)}, {u"V", 20, qRgb(192, 0, 0)},
};
// clang-format on

} // namespace

std::span<const Celda> celdas()
{
    return todas;
}

std::span<const Clase> clases()
{
    return escala;
}

int claseDe(int total)
{
    const auto despues = std::ranges::upper_bound(escala, total, {}, &Clase::desde);
    return static_cast<int>(despues - std::begin(escala)) - 1;
}

} // namespace riesgoOperatorio
