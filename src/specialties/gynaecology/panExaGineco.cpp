#include "specialties/gynaecology/panExaGineco.h"

#include "core/reports/papel.h"
#include "core/services/paciente.h"
#include "platform/forms/drag.h"
#include "platform/forms/twips.h"

using namespace Qt::StringLiterals;
using namespace forms;
using gineco::Marca;

namespace
{

constexpr double lado = 360; ///< of a mark, in twips
constexpr int ladoDelIcono = 22, iconosPorRenglon = 12;
const QString dePaleta = u"GRAPHCOL"_s;

enum { detalle, resultados, observaciones };

QString dibujo(QStringView nombre)
{
    return u":/gineco/%1.svg"_s.arg(nombre);
}

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

ExamenDibujado::ExamenDibujado(const QString &ventana, const QString &titulo, const Diagrama &diagrama)
    : panExaGineco(ventana, titulo), diagrama_(diagrama),
      Picture1(u"Picture1"_s, Picture(dibujo(diagrama.fondo)).sizeTwips())
{
    Picture1.loadBackground(dibujo(diagrama.fondo));
    agregarPaleta();
    std::vector<Item> iconos;
    for (auto &[i, icono] : icon_col)
        iconos.emplace_back(*icono);
    disponer(Column{Expanding(Picture1), Group(diagrama.titulo.toString(), Grid(iconosPorRenglon, iconos)),
                    Row{Command3, Stretch()}});
    connect(&Picture1, &Canvas::dropped, this,
            [this](const QWidget *origen, QPointF lugar) { soltar(*origen, lugar); });
    connect(&Picture1, &Canvas::clicked, this, [this](const QString &marca) { Picture1.remove(marca); });
    connect(&Command3, &QPushButton::clicked, this, &ExamenDibujado::imprimir);
}

/// With the keyboard a symbol goes to the middle of the diagram; from there it is moved like any other.
void ExamenDibujado::agregarPaleta()
{
    int indice = 0;
    for (const Simbolo &simbolo : diagrama_.paleta) {
        CommandButton &icono = icon_col.add(indice, QString());
        icono.setIcon(QIcon(dibujo(simbolo.dibujo)));
        icono.setIconSize({ladoDelIcono, ladoDelIcono});
        icono.setToolTip(simbolo.termino.toString());
        icono.setAccessibleName(simbolo.termino.toString());
        icono.setAutoDefault(false);
        forms::setTag(&icono, dePaleta);
        makeDraggable(icono);
        connect(&icono, &QPushButton::clicked, this, [this, indice] {
            const QSizeF papel = Picture1.sizeTwips();
            poner({indice, QPointF(papel.width() - lado, papel.height() - lado) / 2});
        });
        ++indice;
    }
}

/// The next free number: those of marks that were taken away are used again.
void ExamenDibujado::poner(const Marca &marca)
{
    if (marca.indice < 0 || marca.indice >= static_cast<int>(diagrama_.paleta.size()))
        return; // a symbol of another version
    int numero = 0;
    while (Picture1.item(u"icono_col_posteado(%1)"_s.arg(numero)))
        ++numero;
    const Simbolo &simbolo = diagrama_.paleta[static_cast<std::size_t>(marca.indice)];
    CanvasItem &item = Picture1.add(u"icono_col_posteado(%1)"_s.arg(numero), marca.lugar,
                                    PictureLook{Picture(dibujo(simbolo.dibujo)), QSizeF(lado, lado)});
    forms::setTag(&item, QString::number(marca.indice));
    item.setToolTip(simbolo.termino.toString());
    item.setMovable(true);
}

/// Only the palette's symbols are taken.
void ExamenDibujado::soltar(const QWidget &origen, QPointF lugar)
{
    if (forms::tag(&origen) != dePaleta)
        return;
    for (const auto &[indice, icono] : icon_col)
        if (icono.get() == &origen)
            poner({indice, lugar - QPointF(lado, lado) / 2});
}

int ExamenDibujado::indiceDe(const CanvasItem &marca)
{
    return forms::tag(&marca).toInt();
}

void ExamenDibujado::mostrarMarcas(const std::vector<Marca> &marcas)
{
    Picture1.clear();
    for (const Marca &marca : marcas)
        poner(marca);
}

std::optional<std::vector<Marca>> ExamenDibujado::marcas() const
{
    std::vector<Marca> todas;
    for (const CanvasItem *item : Picture1.all())
        todas.push_back({indiceDe(*item), item->pos()});
    return todas;
}

/// The diagram with what each symbol on it means, and the texts.
void ExamenDibujado::imprimir()
{
    printing::Choice impresora;
    impresora.name = windowTitle();
    if (!printing::chooserDialog(impresora, u"Imprimir"_s))
        return;
    informes::Papel papel(impresora, impresora.name);
    papel.escribir(windowTitle(), 14, true);
    papel.escribir(services::nombreDePaciente(tag()), 11, true);
    papel.dibujar(Picture1);
    QStringList terminos;
    for (const CanvasItem *item : Picture1.all())
        terminos += item->toolTip();
    terminos.removeDuplicates();
    papel.escribir(terminos.join(u'\n'), 9);
    for (const QString &texto : {examen().detalle, examen().resultados, examen().observaciones})
        if (!texto.isEmpty())
            papel.escribir(texto, 10);
    papel.terminar();
}

} // namespace gineco

panExaColpo::panExaColpo() : ExamenDibujado(u"panExaColpo"_s, u"Examen colposcopico"_s, gineco::cuello())
{
}

panExaMamas::panExaMamas() : ExamenDibujado(u"panExaMamas"_s, u"Examen de Mamas"_s, gineco::mamas())
{
}

#include "moc_panExaGineco.cpp"
