#include "specialties/drawing/diagrama.h"

#include "platform/forms/tag.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace dibujo
{

namespace
{

constexpr int ladoDelIcono = 22, puntosDelRotulo = 10;
const QColor tinta(0x22, 0x33, 0x44);

} // namespace

TextLook letras(const QString &texto)
{
    QFont letra;
    letra.setPointSize(puntosDelRotulo);
    return {texto, letra, 0, tinta};
}

const Picture &figura(const QString &archivo)
{
    static std::map<QString, Picture> leidas;
    auto hallada = leidas.find(archivo);
    if (hallada == leidas.end())
        hallada = leidas.emplace(archivo, Picture(archivo)).first;
    return hallada->second;
}

Diagrama::Diagrama(const QString &nombre, const Plano &plano)
    : Canvas(nombre, figura(u":/%1/%2.svg"_s.arg(plano.carpeta, plano.fondo)).sizeTwips()), plano_(plano),
      iconos_(plano.icono.toString())
{
    loadBackground(archivo(plano.fondo));
    connect(this, &Canvas::dropped, this,
            [this](const QWidget *origen, QPointF lugar) { soltar(*origen, lugar); });
}

QString Diagrama::archivo(QStringView dibujo) const
{
    return u":/%1/%2.svg"_s.arg(plano_.carpeta, dibujo);
}

Item Diagrama::paleta(int porRenglon)
{
    int indice = 0;
    for (const Simbolo &simbolo : plano_.paleta) {
        agregarIcono(simbolo.dibujo.toString(), simbolo.termino.toString(),
                     [this, indice](QPointF lugar) { ponedor_(indice, lugar); });
        ++indice;
    }
    std::vector<Item> iconos;
    for (auto &[i, icono] : iconos_)
        iconos.emplace_back(*icono);
    return Group(plano_.titulo.toString(), Grid(porRenglon, iconos));
}

void Diagrama::agregarIcono(const QString &icono, const QString &termino, std::function<void(QPointF)> usar)
{
    CommandButton &boton = iconos_.add(iconos_.size(), QString());
    boton.setIcon(QIcon(archivo(icono)));
    boton.setIconSize({ladoDelIcono, ladoDelIcono});
    boton.setToolTip(plano_.ayuda.isEmpty() ? termino : plano_.ayuda.toString());
    boton.setAccessibleName(termino);
    forms::setTag(&boton, plano_.etiqueta.toString());
    agregarHerramienta(boton, std::move(usar));
}

/// With the keyboard a symbol goes to the middle of the diagram; from there it is moved like any other.
void Diagrama::agregarHerramienta(CommandButton &boton, std::function<void(QPointF)> usar)
{
    boton.setAutoDefault(false);
    makeDraggable(boton);
    const auto &uso = usos_[&boton] = std::move(usar);
    connect(&boton, &QPushButton::clicked, this, [this, &uso] {
        uso(QPointF(sizeTwips().width() - plano_.lado, sizeTwips().height() - plano_.lado) / 2);
    });
}

/// Only the palette's symbols are taken.
void Diagrama::soltar(const QWidget &origen, QPointF lugar)
{
    if (const auto uso = usos_.find(&origen); uso != usos_.end())
        uso->second(lugar - QPointF(plano_.lado, plano_.lado) / 2);
}

QString Diagrama::nombreDeMarca(int numero) const
{
    return u"%1(%2)"_s.arg(plano_.marca).arg(numero);
}

int Diagrama::numeroLibre(QStringView nombre) const
{
    int numero = 0;
    while (item(u"%1(%2)"_s.arg(nombre).arg(numero)))
        ++numero;
    return numero;
}

CanvasItem *Diagrama::poner(int simbolo, QPointF lugar, std::optional<int> numero)
{
    if (simbolo < 0 || simbolo >= static_cast<int>(plano_.paleta.size()))
        return nullptr; // a symbol of another version
    const QString nombre = nombreDeMarca(numero.value_or(numeroLibre(plano_.marca)));
    if (item(nombre))
        return nullptr;
    const Simbolo &puesto = plano_.paleta[static_cast<std::size_t>(simbolo)];
    CanvasItem &marca =
        add(nombre, lugar, PictureLook{figura(archivo(puesto.dibujo)), QSizeF(plano_.lado, plano_.lado)});
    forms::setTag(&marca, puesto.codigo.isEmpty() ? QString::number(simbolo) : puesto.codigo.toString());
    marca.setToolTip(puesto.termino.toString());
    marca.setMovable(editable(), !plano_.fija);
    return &marca;
}

CanvasItem *Diagrama::rotular(const QString &texto, QPointF lugar, std::optional<int> numero)
{
    const QString nombre = u"%1(%2)"_s.arg(plano_.rotulo).arg(numero.value_or(numeroLibre(plano_.rotulo)));
    if (item(nombre))
        return nullptr;
    CanvasItem &rotulo = add(nombre, lugar, letras(texto));
    rotulo.setMovable(editable());
    return &rotulo;
}

int Diagrama::numeroDe(const CanvasItem &marca)
{
    const QString nombre = marca.name();
    return nombre.sliced(nombre.indexOf(u'(') + 1).chopped(1).toInt();
}

} // namespace dibujo

#include "moc_diagrama.cpp"
