#include "specialties/gynaecology/riesgoGestacional.h"

#include <QColor>
#include <QString>

#include <algorithm>

namespace riesgoGestacional
{

namespace
{

// clang-format off
constexpr Casilla grupoA[] = {
    {0, u"Menor de 18 años"},
    {1, u"Mayor de 35 años"},
    {2, u"Peso mayor a 90 Kg."},
    {3, u"Altura menor a 1,57 m."},
    {4, u"Altura Menor a 1,52 m."},
    {5, u"Fuma durante gestación"},
    {6, u"Diabete contr. c/dieta"},
    {7, u"Diabete c/dieta macrob."},
    {8, u"Insulina"},
    {9, u"Retinopatia"},
    {10, u"Cardiopatia asintomatica"},
    {11, u"Cardiopatia sintomatica."},
    {12, u"> 140-90 mm Hg."},
    {13, u"Drogas"},
    {14, u"Def. Renal crónica"},
    {15, u"Otras enfermedades"},
};
constexpr Casilla grupoB[] = {
    {16, u"Muerte Neonatal"},
    {17, u"Muerte Natal"},
    {18, u"Aborto"},
    {20, u"Aborto habitual"},
    {21, u"PMT 33-36 s"},
    {22, u"PMT 20-32 s"},
    {24, u"Cesárea Previa"},
    {25, u"Antecedente CIR"},
    {26, u"Antecedente Macrosom."},
    {28, u"RH inmunizado"},
    {29, u"Anomalía congenita"},
};
constexpr Casilla grupoC[] = {
    {19, u"GIG"},
    {23, u"CIR"},
    {27, u"Polidramnio"},
    {30, u"Gemelar"},
    {31, u"HA Presente"},
    {32, u"Prom < 37 s"},
    {33, u"Hemorragia < 20 s"},
    {34, u"Hemorragia > 20 s"},
    {35, u"Toxemia"},
    {36, u"Proteína > 1+"},
    {37, u"Diabete Gestacional"},
    {38, u"Cooms Inidirecto +"},
    {39, u"Anemia"},
    {40, u"IG > 42 s"},
    {41, u"< G Ponderal"},
};

constexpr Grupo todos[] = {{u"Grupo A", grupoA}, {u"Grupo B", grupoB}, {u"Grupo C", grupoC}};

constexpr Campo campos[] = {
    {u"Bajo", 1125, 2985, qRgb(255, 255, 128)},
    {u"Medio", 2970, 3600, qRgb(255, 192, 128)},
    {u"Alto", 3585, 6675, qRgb(255, 0, 0)},
};
// clang-format on

constexpr double pesoDeCadaUna = 2.38, largoDeLaBarra = 5460, comienzo = 1110;

} // namespace

std::span<const Grupo> grupos()
{
    return todos;
}

double puntaje(int marcadas)
{
    return pesoDeCadaUna * marcadas;
}

std::span<const Campo> barra()
{
    return campos;
}

double lugarDelMarcador(double puntaje)
{
    return puntaje * largoDeLaBarra / 100 + comienzo;
}

QString enTexto(const std::vector<bool> &marcadas)
{
    QString valor;
    for (const bool marcada : marcadas)
        valor += marcada ? u'X' : u'_';
    return valor;
}

std::vector<bool> deTexto(const QString &valor)
{
    std::vector<bool> marcadas(casillas, false);
    const auto hasta = std::min<std::size_t>(casillas, static_cast<std::size_t>(valor.size()));
    for (std::size_t i = 0; i < hasta; ++i)
        marcadas[i] = valor[static_cast<qsizetype>(i)] == u'X';
    return marcadas;
}

} // namespace riesgoGestacional
