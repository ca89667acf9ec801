#include "specialties/gynaecology/marcas.h"

#include "core/session/session.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace gineco
{

namespace
{

// clang-format off
constexpr dibujo::Simbolo deColposcopia[] = {
    {u"epitelio_maduro", u"Epitelio escamoso original maduro"},
    {u"epitelio_atrofico", u"Epitelio escamoso original atrófico"},
    {u"ectopia", u"Epitelio columnar, ectopía"},
    {u"metaplasia", u"Epitelio escamoso metaplásico"},
    {u"naboth", u"Quistes de Naboth"},
    {u"orificios", u"Orificios glandulares abiertos"},
    {u"deciduosis", u"Deciduosis del embarazo"},
    {u"acetoblanco_fino", u"Grado 1: epitelio acetoblanco delgado"},
    {u"borde_geografico", u"Grado 1: borde irregular o geográfico"},
    {u"mosaico_fino", u"Grado 1: mosaico fino"},
    {u"punteado_fino", u"Grado 1: punteado fino"},
    {u"acetoblanco_denso", u"Grado 2: epitelio acetoblanco denso"},
    {u"mosaico_grueso", u"Grado 2: mosaico grueso"},
    {u"punteado_grueso", u"Grado 2: punteado grueso"},
    {u"borde_delimitado", u"Grado 2: borde delimitado"},
    {u"borde_interno", u"Grado 2: signo del límite del borde interno"},
    {u"cresta", u"Grado 2: signo de cresta o sobreelevado"},
    {u"glandulas_gruesas", u"Grado 2: orificios glandulares con bordes engrosados"},
    {u"leucoplasia", u"No específico: leucoplasia"},
    {u"erosion", u"No específico: erosión"},
    {u"yodo_negativo", u"No específico: captación de la solución de Lugol, no teñido"},
    {u"vasos_atipicos", u"Sospecha de invasión: vasos atípicos"},
    {u"invasion", u"Sospecha de invasión: necrosis, ulceración o lesión exofítica"},
    {u"condiloma", u"Hallazgos varios: condiloma"},
};

constexpr dibujo::Simbolo deMamas[] = {
    {u"mama_nodulo", u"Nódulo sólido"},
    {u"mama_quiste", u"Quiste"},
    {u"mama_microcalcificaciones", u"Microcalcificaciones"},
    {u"mama_macrocalcificacion", u"Macrocalcificaciones"},
    {u"mama_retraccion_piel", u"Retracción de la piel"},
    {u"mama_retraccion_pezon", u"Retracción del pezón"},
    {u"mama_piel_naranja", u"Piel de naranja"},
    {u"mama_ulceracion", u"Ulceración"},
    {u"mama_eritema", u"Eritema"},
    {u"mama_secrecion", u"Secreción por el pezón"},
    {u"mama_adenopatia", u"Adenopatía"},
    {u"mama_cicatriz", u"Cicatriz"},
    {u"mama_protesis", u"Prótesis"},
    {u"mama_dolor", u"Dolor"},
    {u"mama_asimetria", u"Asimetría"},
    {u"mama_biopsia", u"Lugar de biopsia"},
};
// clang-format on

constexpr dibujo::Plano plano(QStringView fondo, QStringView titulo, std::span<const dibujo::Simbolo> paleta)
{
    return {.carpeta = u"gineco",
            .fondo = fondo,
            .titulo = titulo,
            .paleta = paleta,
            .icono = u"icon_col",
            .marca = u"icono_col_posteado",
            .etiqueta = u"GRAPHCOL",
            .fija = true};
}
constexpr dibujo::Plano delCuello = plano(u"cuello", u"Codificación Palmer rev. Nedalpif", deColposcopia);
constexpr dibujo::Plano deLasMamas = plano(u"mamas", u"Hallazgos", deMamas);

} // namespace

const dibujo::Plano &cuello()
{
    return delCuello;
}

const dibujo::Plano &mamas()
{
    return deLasMamas;
}

std::vector<Marca> marcasDe(qint64 examen)
{
    std::vector<Marca> marcas;
    for (dao::Recordset fila = MODULE11::BaseDatos.openRecordset(
             u"Select * from DetExamenGinecoGraf where idExamen = %1"_s.arg(examen));
         !fila.eof(); fila.moveNext())
        marcas.push_back(
            {static_cast<int>(fila[u"indice"].integer()), QPointF(fila[u"X"].number(), fila[u"Y"].number())});
    return marcas;
}

void guardarMarcas(qint64 examen, const std::vector<Marca> &marcas)
{
    dao::Batch juntas(MODULE11::BaseDatos);
    MODULE11::BaseDatos.execute(u"Delete * from DetExamenGinecoGraf where idExamen = %1"_s.arg(examen));
    dao::Recordset filas = MODULE11::BaseDatos.openRecordset(u"DetExamenGinecoGraf"_s);
    for (const Marca &marca : marcas) {
        filas.addNew();
        filas[u"idExamen"] = examen;
        filas[u"indice"] = marca.indice;
        filas[u"X"] = static_cast<qint64>(std::lround(marca.lugar.x()));
        filas[u"Y"] = static_cast<qint64>(std::lround(marca.lugar.y()));
        filas.update();
    }
    juntas.commit();
}

} // namespace gineco
