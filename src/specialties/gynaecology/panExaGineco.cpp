#include "specialties/gynaecology/panExaGineco.h"

#include "core/services/paciente.h"
#include "specialties/drawing/hoja.h"

using namespace Qt::StringLiterals;
using namespace forms;
using gineco::Marca;

namespace
{

constexpr int iconosPorRenglon = 12;

enum { detalle, resultados, observaciones };

} // namespace

panExaGineco::panExaGineco() : panExaGineco(u"panExaGineco"_s, u"Examen Ginecologico"_s)
{
    disponer(std::nullopt);
}

panExaGineco::panExaGineco(const QString &ventana, const QString &titulo) : Form(ventana)
{
    setWindowTitle(titulo);
    for (const int i : {detalle, resultados, observaciones})
        Text1.add(i);
    connect(&Command1, &QPushButton::clicked, this, [this] { answer(u"SI"_s); });
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

Item panExaGineco::textos()
{
    return Column{Expanding(Above(u"&Detalle :"_s, Text1(detalle))),
                  Expanding(Above(u"&Resultados :"_s, Text1(resultados))),
                  Expanding(Above(u"&Observaciones :"_s, Text1(observaciones)))};
}

void panExaGineco::disponer(std::optional<Item> dibujo)
{
    const Item botones = Row{Stretch(), Command1, Command2};
    if (dibujo)
        setContents(this, Column{Expanding(Row{Expanding(*dibujo, 3), Expanding(textos(), 2)}), botones});
    else
        setContents(this, Column{Expanding(textos()), botones});
    resize(dibujo ? QSize(1080, 600) : QSize(560, 460));
}

void panExaGineco::mostrar(const gineco::Examen &examen)
{
    Text1(detalle).setPlainText(examen.detalle);
    Text1(resultados).setPlainText(examen.resultados);
    Text1(observaciones).setPlainText(examen.observaciones);
}

gineco::Examen panExaGineco::examen() const
{
    return {Text1(detalle).toPlainText(), Text1(resultados).toPlainText(),
            Text1(observaciones).toPlainText()};
}

namespace gineco
{

ExamenDibujado::ExamenDibujado(const QString &ventana, const QString &titulo, const dibujo::Plano &plano)
    : panExaGineco(ventana, titulo), Picture1(u"Picture1"_s, plano)
{
    disponer(Column{Expanding(Picture1), Picture1.paleta(iconosPorRenglon), Row{Command3, Stretch()}});
    connect(&Picture1, &Canvas::clicked, this, [this](const QString &marca) { Picture1.remove(marca); });
    connect(&Command3, &QPushButton::clicked, this, &ExamenDibujado::imprimir);
}

void ExamenDibujado::mostrarMarcas(const std::vector<Marca> &marcas)
{
    Picture1.clear();
    for (const Marca &marca : marcas)
        Picture1.poner(marca.indice, marca.lugar);
}

std::optional<std::vector<Marca>> ExamenDibujado::marcas() const
{
    std::vector<Marca> todas;
    for (const CanvasItem *item : Picture1.all())
        todas.push_back({forms::tag(item).toInt(), item->pos()});
    return todas;
}

void ExamenDibujado::imprimir()
{
    dibujo::imprimir(Picture1, windowTitle(), services::nombreDePaciente(tag()),
                     {examen().detalle, examen().resultados, examen().observaciones});
}

} // namespace gineco

panExaColpo::panExaColpo() : ExamenDibujado(u"panExaColpo"_s, u"Examen colposcopico"_s, gineco::cuello())
{
}

panExaMamas::panExaMamas() : ExamenDibujado(u"panExaMamas"_s, u"Examen de Mamas"_s, gineco::mamas())
{
}

#include "moc_panExaGineco.cpp"
