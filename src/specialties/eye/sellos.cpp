#include "specialties/eye/sellos.h"

namespace oftalmo
{

namespace
{

// clang-format off
constexpr dibujo::Simbolo deBiomicroscopia[] = {
    {u"bio_cicatriz", u"Cicatriz o leucoma corneal", u"CI"},
    {u"bio_infiltrado", u"Infiltrado corneal", u"IN"},
    {u"bio_ulcera", u"Úlcera o defecto epitelial, tiñe con fluoresceína", u"UL"},
    {u"bio_punteada", u"Queratitis punteada superficial", u"QP"},
    {u"bio_edema", u"Edema corneal", u"ED"},
    {u"bio_descemet", u"Pliegues de Descemet", u"PD"},
    {u"bio_depositos", u"Depósitos retroqueráticos", u"DR"},
    {u"bio_neovasos", u"Neovascularización corneal", u"NV"},
    {u"bio_pterigion", u"Pterigión", u"PT"},
    {u"bio_pinguecula", u"Pinguécula", u"PG"},
    {u"bio_hemorragia", u"Hemorragia subconjuntival", u"HS"},
    {u"bio_ciliar", u"Inyección ciliar", u"IC"},
    {u"bio_cuerpo", u"Cuerpo extraño", u"CE"},
    {u"bio_tyndall", u"Células y turbidez en cámara anterior (Tyndall)", u"TY"},
    {u"bio_hipopion", u"Hipopion", u"HP"},
    {u"bio_hifema", u"Hifema", u"HF"},
    {u"bio_sinequia", u"Sinequias posteriores", u"SP"},
    {u"bio_iridotomia", u"Iridotomía o iridectomía", u"IR"},
    {u"bio_atrofia", u"Atrofia del iris", u"AI"},
    {u"bio_nuclear", u"Catarata nuclear", u"CN"},
    {u"bio_cortical", u"Catarata cortical", u"CC"},
    {u"bio_subcapsular", u"Catarata subcapsular posterior", u"CS"},
    {u"bio_lente", u"Lente intraocular", u"LI"},
    {u"bio_sutura", u"Sutura", u"SU"},
};

constexpr dibujo::Simbolo deFondo[] = {
    {u"fon_llama", u"Hemorragia en llama", u"HL"},
    {u"fon_mancha", u"Hemorragias en mancha", u"HM"},
    {u"fon_prerretiniana", u"Hemorragia prerretiniana", u"HP"},
    {u"fon_microaneurismas", u"Microaneurismas", u"MA"},
    {u"fon_duros", u"Exudados duros", u"EX"},
    {u"fon_algodonosos", u"Exudados algodonosos", u"EA"},
    {u"fon_drusas", u"Drusas", u"DR"},
    {u"fon_neovasos", u"Neovasos", u"NV"},
    {u"fon_cruce", u"Cruce arteriovenoso patológico", u"CA"},
    {u"fon_trombosis", u"Trombosis venosa", u"TV"},
    {u"fon_desgarro", u"Desgarro en herradura", u"DH"},
    {u"fon_agujero", u"Agujero retinal", u"AG"},
    {u"fon_desprendimiento", u"Desprendimiento de retina", u"DS"},
    {u"fon_empalizada", u"Degeneración en empalizada", u"DE"},
    {u"fon_pigmento", u"Pigmentación", u"PI"},
    {u"fon_cicatriz", u"Cicatriz coriorretinal", u"CI"},
    {u"fon_laser", u"Impactos de láser", u"LA"},
    {u"fon_nevo", u"Nevo coroideo", u"NE"},
    {u"fon_edema", u"Edema macular", u"EM"},
    {u"fon_macular", u"Agujero macular", u"AM"},
    {u"fon_excavacion", u"Excavación papilar aumentada", u"EP"},
    {u"fon_palidez", u"Palidez papilar", u"PP"},
    {u"fon_papiledema", u"Edema de papila", u"PE"},
    {u"fon_vitrea", u"Opacidad o hemorragia vítrea", u"OV"},
    {u"fon_atrofia", u"Atrofia coriorretinal", u"AC"},
};
// clang-format on

constexpr dibujo::Plano planos[] = {
    {u"ojos", u"biomicroscopia", u"Hallazgos", deBiomicroscopia, u"paleta", u"Image", u"Label"},
    {u"ojos", u"fondo", u"Hallazgos", deFondo, u"paleta", u"Image", u"Label"},
};

} // namespace

const dibujo::Plano &plano(Clase clase)
{
    return planos[static_cast<int>(clase)];
}

} // namespace oftalmo
