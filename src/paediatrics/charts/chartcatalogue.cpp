#include "paediatrics/charts/chartcatalogue.h"

#include <algorithm>

namespace charts
{

std::span<const ClassicalChart> classicalCharts()
{
    static const std::vector<ClassicalChart> all{
        // clang-format off
        {u"panPercenPeso", u"niñospeso19.jpg", Sex::Boys, {75, 120, 7365, 7770},
         {{Measure::Peso, {{585, 240, 6375, 6990}, 6935, 85000}}},
         40, u"Evolucion peso hasta 19 años de ", u"Evolucion peso hasta 19 años de Todos los pacientes registrados", false, true, true},
        {u"panPerPesoNenas", u"niñaspeso19.jpg", Sex::Girls, {90, 120, 7770, 7515},
         {{Measure::Peso, {{660, 195, 6600, 6795}, 6935, 80000}}},
         40, u"Evolucion peso hasta 19 años de ", u"Evolucion peso hasta 19 años de todos los pacientes", false, true, true},
        {u"panPerTallaNinos", u"niñosestat19.jpg", Sex::Boys, {120, 120, 7965, 7245},
         {{Measure::Talla, {{735, 255, 6645, 8010}, 6935, 190}}},
         40, u"Evolucion Talla hasta 19 años de ", u"Evolucion Talla hasta 19 años de todos los pacientes", false, true, true},
        {u"panPerTallaNenas", u"niñasestat19.jpg", Sex::Girls, {105, 120, 8070, 7635},
         {{Measure::Talla, {{585, 315, 7110, 8265}, 6935, 180}}},
         40, u"Evolucion talla hasta 19 años de ", u"Evolucion talla hasta 19 años de todos los pacientes", true, true, true},
        {u"panPerPesoninos6", u"niñospeso6.jpg", Sex::Boys, {45, 75, 7830, 7785},
         {{Measure::Peso, {{615, 330, 6735, 6975}, 2190, 30000}}},
         40, u"Evolucion peso hasta 6 años de ", u"Evolucion peso hasta 6 años de Todos los pacientes registrados", true, true, true},
        {u"panPerPesoNenas6", u"niñaspeso6.jpg", Sex::Girls, {75, 90, 6990, 7200},
         {{Measure::Peso, {{570, 495, 5895, 6105}, 2190, 30000}}},
         40, u"Evolucion peso hasta 6 años de ", u"Evolucion peso hasta 6 años de Todos los pacientes registrados", true, true, true},
        {u"panPerTallaNinos6", u"niñosestat6.jpg", Sex::Boys, {75, 75, 6210, 8160},
         {{Measure::Talla, {{645, 255, 4980, 11730}, 2190, 130}}},
         40, u"Evolucion talla hasta 6 años de ", u"Evolucion talla hasta 6 años de todos los pacientes", true, true, true},
        {u"panPerTallaNenas6", u"niñasestat6.jpg", Sex::Girls, {90, 180, 6210, 8160},
         {{Measure::Talla, {{600, 180, 5040, 11730}, 2190, 130}}},
         40, u"Evolucion talla hasta 19 años de ", u"Evolucion talla hasta 19 años de todos los pacientes", true, true, true},
        {u"panperPCNinos", u"niñosPC.jpg", Sex::Boys, {135, 135, 8010, 6690},
         {{Measure::Pc, {{705, 330, 4080, 10770}, 730, 64}, 730},
          {Measure::Pc, {{4410, 330, 3120, 10770}, 6570, 64}}},
         35, u"Evolucion P.Cefálico hasta 19 años de ", u"Evolucion P.Cefálico hasta 19 años de Todos los pacientes registrados", true, true, true},
        {u"panPerPcNenas", u"niñasPC.jpg", Sex::Girls, {150, 120, 7800, 6525},
         {{Measure::Pc, {{585, 270, 4080, 10800}, 730, 64}, 730},
          {Measure::Pc, {{4305, 285, 3090, 10800}, 6570, 64}}},
         35, u"Evolucion P.Cefálico hasta 19 años de ", u"Evolucion P.Cefálico hasta 19 años de Todos los pacientes registrados", true, true, true},
        {u"panPerTodoNenes", u"niñostodo.gif", Sex::Boys, {120, 105, 7725, 7980},
         {{Measure::Peso, {{3150, 765, 4095, 4365}, 365, 13000}},
          {Measure::Talla, {{3150, 2490, 4095, 6600}, 365, 84}, {}, qRgb(0, 0, 0)},
          {Measure::Pc, {{3150, 2490, 4095, 6600}, 365, 84}, 365, qRgb(0, 0, 255)}},
         35, u"Evolucion peso, talla y pc del recien nacido ", u"Evolucion peso, talla, pc del recien nacido de Todos los pacientes registrados", true, false, false},
        {u"panPerTodoNenas", u"niñastodo.gif", Sex::Girls, {90, 90, 7725, 8010},
         {{Measure::Peso, {{3000, 735, 4095, 4365}, 365, 13000}},
          {Measure::Talla, {{3000, 2460, 4095, 6600}, 365, 84}, {}, qRgb(0, 0, 0)},
          {Measure::Pc, {{3000, 2460, 4095, 6600}, 365, 84}, 365, qRgb(0, 0, 255)}},
         40, u"Evolucion peso, talla y pc del recien nacido ", u"Evolucion peso, talla, pc del recien nacido de Todos los pacientes registrados", true, false, true},
        // clang-format on
    };
    return all;
}

std::span<const WhoChart> whoCharts()
{
    static const std::vector<WhoChart> all{
        // clang-format off
        {u"Estatura niñas hasta 6 meses", u"EST_NINAS_HASTA_6_MESES", Sex::Girls, Measure::Talla, {{1065, 360, 11910, 18889}, 182, 73}, u" Cm. "},
        {u"Estatura niñas hasta 2 años", u"EST_NINAS_HASTA_2_ANOS", Sex::Girls, Measure::Talla, {{1065, 360, 11910, 13789}, 730, 95}, u" Cm. "},
        {u"Estatura niñas hasta 5 años", u"EST_NINAS_HASTA_5_ANOS", Sex::Girls, Measure::Talla, {{1065, 360, 11910, 11250}, 1825, 122}, u" Cm. "},
        {u"Estatura niñas de 6 a 24 meses", u"EST_NINAS_6_A_24_MESES", Sex::Girls, Measure::Talla, {{-2745, 360, 15720, 20030}, 730, 94}, u" Cm. "},
        {u"Estatura niñas de 2 a 5 años", u"EST_NINAS_2_A_5_ANOS", Sex::Girls, Measure::Talla, {{-6900, 360, 19845, 20265}, 1825, 120}, u" Cm. "},
        {u"Estatura niños hasta 6 meses", u"EST_NINOS_HASTA_6_MESES", Sex::Boys, Measure::Talla, {{1065, 360, 11910, 18889}, 182, 73}, u" Cm. "},
        {u"Estatura niños hasta 2 años", u"EST_NINOS_HASTA_2_ANOS", Sex::Boys, Measure::Talla, {{1065, 360, 11910, 13789}, 730, 95}, u" Cm. "},
        {u"Estatura niños hasta 5 años", u"EST_NINOS_HASTA_5_ANOS", Sex::Boys, Measure::Talla, {{1065, 360, 11910, 11250}, 1825, 122}, u" Cm. "},
        {u"Estatura niños de 6 a 24 meses", u"EST_NINOS_6_A_24_MESES", Sex::Boys, Measure::Talla, {{-2745, 360, 15720, 20030}, 730, 94}, u" Cm. "},
        {u"Estatura niños de 2 a 5 años", u"EST_NINOS_2_A_5_ANOS", Sex::Boys, Measure::Talla, {{-6900, 360, 19845, 20265}, 1825, 120}, u" Cm. "},
        {u"Peso niñas hasta 6 meses", u"PES_NINAS_HASTA_6_MESES", Sex::Girls, Measure::Peso, {{1065, 360, 11895, 8475}, 182, 10500}, u" Gs. "},
        {u"Peso niñas hasta 2 años", u"PES_NINAS_HASTA_2_ANOS", Sex::Girls, Measure::Peso, {{1065, 360, 11895, 7900}, 730, 15600}, u" Gs. "},
        {u"Peso niñas hasta 5 años", u"PES_NINAS_HASTA_5_ANOS", Sex::Girls, Measure::Peso, {{1065, 360, 11895, 7580}, 1825, 25000}, u" Gs. "},
        {u"Peso niñas de 6 a 24 meses", u"PES_NINAS_6_A_24_MESES", Sex::Girls, Measure::Peso, {{-2745, 360, 15720, 10672}, 730, 15500}, u" Gs. "},
        {u"Peso niñas de 2 a 5 años", u"PES_NINAS_2_A_5_ANOS", Sex::Girls, Measure::Peso, {{-6900, 360, 19845, 10800}, 1825, 25600}, u" Gs. "},
        {u"Peso niños hasta 6 meses", u"PES_NINOS_HASTA_6_MESES", Sex::Boys, Measure::Peso, {{1065, 360, 11895, 8475}, 182, 10500}, u" Gs. "},
        {u"Peso niños hasta 2 años", u"PES_NINOS_HASTA_2_ANOS", Sex::Boys, Measure::Peso, {{1065, 360, 11895, 7900}, 730, 16600}, u" Gs. "},
        {u"Peso niños hasta 5 años", u"PES_NINOS_HASTA_5_ANOS", Sex::Boys, Measure::Peso, {{1065, 360, 11895, 7580}, 1825, 25000}, u" Gs. "},
        {u"Peso niños de 6 a 24 meses", u"PES_NINOS_6_A_24_MESES", Sex::Boys, Measure::Peso, {{-2745, 360, 15720, 11072}, 730, 16400}, u" Gs. "},
        {u"Peso niños de 2 a 5 años", u"PES_NINOS_2_A_5_ANOS", Sex::Boys, Measure::Peso, {{-6900, 360, 19845, 11000}, 1825, 24600}, u" Gs. "},
        {u"IMC niñas hasta 2 años", u"IMC_NINAS_HASTA_2_ANOS", Sex::Girls, Measure::Imc, {{1065, 360, 11895, 13121}, 730, 21.4}, u" Imc. "},
        {u"IMC niñas hasta 5 años", u"IMC_NINAS_HASTA_5_ANOS", Sex::Girls, Measure::Imc, {{1065, 360, 11895, 13121}, 1825, 21.4}, u" Imc. "},
        {u"IMC niñas de 2 a 5 años", u"IMC_NINAS_2_A_5_ANOS", Sex::Girls, Measure::Imc, {{-6900, 360, 19845, 19360}, 1825, 19.2}, u" Imc. "},
        {u"IMC niños hasta 2 años", u"IMC_NINOS_HASTA_2_ANOS", Sex::Boys, Measure::Imc, {{1065, 360, 11895, 13121}, 730, 21.4}, u" Imc. "},
        {u"IMC niños hasta 5 años", u"IMC_NINOS_HASTA_5_ANOS", Sex::Boys, Measure::Imc, {{1065, 360, 11895, 13121}, 1825, 21.4}, u" Imc. "},
        {u"IMC niños de 2 a 5 años", u"IMC_NINOS_2_A_5_ANOS", Sex::Boys, Measure::Imc, {{-6900, 360, 19845, 21760}, 1825, 19.2}, u" Imc. "},
        {u"Relación Peso/Estatura niñas hasta 2 años", u"PyE_NINAS_HASTA_2_ANOS", Sex::Girls, Measure::PesoParaTalla, {{-7155, 360, 20130, 7573}, 110, 23000}, u" PyE ", 0, 730},
        {u"Relación Peso/Estatura niñas de 2 a 5 años", u"PyE_NINAS_2_A_5_ANOS", Sex::Girls, Measure::PesoParaTalla, {{-12945, 360, 25920, 8757}, 120, 29000}, u" PyE ", 730, 1825},
        {u"Relación Peso/Estatura niños hasta 2 años", u"PyE_NINOS_HASTA_2_ANOS", Sex::Boys, Measure::PesoParaTalla, {{-7155, 360, 20130, 7573}, 110, 23000}, u" PyE ", 0, 730},
        {u"Relación Peso/Estatura niños de 2 a 5 años", u"PyE_NINOS_2_A_5_ANOS", Sex::Boys, Measure::PesoParaTalla, {{-12945, 360, 25920, 8757}, 120, 28000}, u" PyE ", 730, 1825},
        // clang-format on
    };
    return all;
}

const ClassicalChart *classicalChart(QStringView form)
{
    const auto all = classicalCharts();
    const auto found = std::ranges::find(all, form, &ClassicalChart::form);
    return found == all.end() ? nullptr : &*found;
}

const Panel *panelFor(const ClassicalChart &chart, Measure measure, double days)
{
    const auto fits = [&](const Panel &panel) {
        return panel.measure == measure && (!panel.lastDays || days <= *panel.lastDays);
    };
    const auto found = std::ranges::find_if(chart.panels, fits);
    return found == chart.panels.end() ? nullptr : &*found;
}

} // namespace charts
