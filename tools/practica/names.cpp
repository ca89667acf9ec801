#include "names.h"

using namespace Qt::StringLiterals;

namespace practica
{

namespace
{

const QStringList surnames = {
    u"Acosta"_s,    u"Aguirre"_s,   u"Álvarez"_s,   u"Arias"_s,    u"Ávila"_s,     u"Benítez"_s,
    u"Blanco"_s,    u"Bravo"_s,     u"Cabrera"_s,   u"Cáceres"_s,  u"Castillo"_s,  u"Castro"_s,
    u"Córdoba"_s,   u"Coronel"_s,   u"Correa"_s,    u"Díaz"_s,     u"Domínguez"_s, u"Duarte"_s,
    u"Escobar"_s,   u"Fernández"_s, u"Figueroa"_s,  u"Flores"_s,   u"Franco"_s,    u"García"_s,
    u"Giménez"_s,   u"Godoy"_s,     u"Gómez"_s,     u"González"_s, u"Gutiérrez"_s, u"Hernández"_s,
    u"Herrera"_s,   u"Ibáñez"_s,    u"Juárez"_s,    u"Ledesma"_s,  u"López"_s,     u"Luna"_s,
    u"Maldonado"_s, u"Martínez"_s,  u"Medina"_s,    u"Méndez"_s,   u"Molina"_s,    u"Morales"_s,
    u"Moreno"_s,    u"Muñoz"_s,     u"Núñez"_s,     u"Ojeda"_s,    u"Ortiz"_s,     u"Páez"_s,
    u"Peralta"_s,   u"Pereyra"_s,   u"Pérez"_s,     u"Ponce"_s,    u"Quiroga"_s,   u"Ramírez"_s,
    u"Ríos"_s,      u"Rivero"_s,    u"Rodríguez"_s, u"Rojas"_s,    u"Romero"_s,    u"Ruiz"_s,
    u"Sánchez"_s,   u"Silva"_s,     u"Soria"_s,     u"Sosa"_s,     u"Suárez"_s,    u"Toledo"_s,
    u"Torres"_s,    u"Valdez"_s,    u"Vargas"_s,    u"Vázquez"_s,  u"Vega"_s,      u"Vera"_s,
    u"Villalba"_s,  u"Zapata"_s,    u"Ñanco"_s};

const QStringList boys = {
    u"Agustín"_s,  u"Bautista"_s, u"Benjamín"_s, u"Bruno"_s,     u"Ciro"_s,    u"Dante"_s,  u"Diego"_s,
    u"Emiliano"_s, u"Facundo"_s,  u"Felipe"_s,   u"Francisco"_s, u"Franco"_s,  u"Gael"_s,   u"Ignacio"_s,
    u"Ian"_s,      u"Joaquín"_s,  u"Juan"_s,     u"Julián"_s,    u"Lautaro"_s, u"León"_s,   u"Lorenzo"_s,
    u"Lucas"_s,    u"Luciano"_s,  u"Manuel"_s,   u"Mateo"_s,     u"Matías"_s,  u"Máximo"_s, u"Nicolás"_s,
    u"Pedro"_s,    u"Ramiro"_s,   u"Salvador"_s, u"Santiago"_s,  u"Santino"_s, u"Simón"_s,  u"Thiago"_s,
    u"Tomás"_s,    u"Valentín"_s, u"Vicente"_s};

const QStringList girls = {u"Abril"_s,     u"Agustina"_s,  u"Alma"_s,     u"Amparo"_s,     u"Ana"_s,
                           u"Antonella"_s, u"Bianca"_s,    u"Camila"_s,   u"Candelaria"_s, u"Catalina"_s,
                           u"Clara"_s,     u"Delfina"_s,   u"Emilia"_s,   u"Emma"_s,       u"Florencia"_s,
                           u"Francesca"_s, u"Guadalupe"_s, u"Helena"_s,   u"Isabella"_s,   u"Jazmín"_s,
                           u"Josefina"_s,  u"Juana"_s,     u"Julieta"_s,  u"Lara"_s,       u"Lola"_s,
                           u"Lucía"_s,     u"Luz"_s,       u"Malena"_s,   u"Martina"_s,    u"Mía"_s,
                           u"Morena"_s,    u"Olivia"_s,    u"Paula"_s,    u"Pilar"_s,      u"Renata"_s,
                           u"Sofía"_s,     u"Valentina"_s, u"Victoria"_s, u"Zoe"_s};

const QStringList streets = {u"Belgrano"_s,   u"San Martín"_s, u"Rivadavia"_s, u"Mitre"_s,
                             u"Sarmiento"_s,  u"Moreno"_s,     u"Alsina"_s,    u"25 de Mayo"_s,
                             u"9 de Julio"_s, u"Alberdi"_s,    u"Las Heras"_s, u"Pellegrini"_s,
                             u"Yrigoyen"_s,   u"Güemes"_s};

struct Town {
    const char *name, *quarter, *postcode;
};
constexpr Town towns[] = {{"La Plata", "Tolosa", "1900"}, {"Quilmes", "Bernal", "1876"},
                          {"Morón", "Castelar", "1712"},  {"San Isidro", "Béccar", "1643"},
                          {"Lanús", "Remedios", "1824"},  {"Avellaneda", "Gerli", "1870"},
                          {"Tandil", "Centro", "7000"},   {"Luján", "Centro", "6700"}};

} // namespace

int between(Dice &dice, int lowest, int highest)
{
    return std::uniform_int_distribution<int>(lowest, highest)(dice);
}

bool chance(Dice &dice, double probability)
{
    return std::bernoulli_distribution(probability)(dice);
}

QString oneOf(Dice &dice, const QStringList &texts)
{
    return texts[between(dice, 0, static_cast<int>(texts.size()) - 1)];
}

QString surname(Dice &dice)
{
    return oneOf(dice, surnames);
}

QString firstName(Dice &dice, bool boy)
{
    return oneOf(dice, boy ? boys : girls);
}

Person person(Dice &dice)
{
    const bool boy = chance(dice, 0.51);
    QString family = surname(dice);
    if (chance(dice, 0.25))
        family += u' ' + surname(dice);
    QString names = firstName(dice, boy);
    if (chance(dice, 0.6))
        names += u' ' + firstName(dice, boy);
    return {family, names, boy};
}

Address address(Dice &dice)
{
    const Town &town = towns[between(dice, 0, static_cast<int>(std::size(towns)) - 1)];
    return {u"%1 %2"_s.arg(oneOf(dice, streets)).arg(between(dice, 12, 4900)),
            QString::fromUtf8(town.quarter), QString::fromUtf8(town.name), QString::fromUtf8(town.postcode)};
}

const QStringList &coverages()
{
    static const QStringList all = {u"Mutual del Docente"_s,      u"Obra Social Ferroviaria"_s,
                                    u"Salud Integral Plan 210"_s, u"Salud Integral Plan 310"_s,
                                    u"Mutual Metalúrgica"_s,      u"Obra Social Provincial"_s,
                                    u"Previsión Médica"_s,        u"Unión Comercio"_s};
    return all;
}

} // namespace practica
