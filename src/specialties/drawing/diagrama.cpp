#include "specialties/drawing/diagrama.h"

#include "platform/forms/tag.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace dibujo
{

namespace
{

constexpr int ladoDelIcono = 22;

} // namespace

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

/// With the keyboard a symbol goes to the middle of the diagram; from there it is moved like any other.
void Diagrama::agregarIcono(const QString &icono, const QString &termino, std::function<void(QPointF)> usar)
{
    CommandButton &boton = iconos_.add(iconos_.size(), QString());
    boton.setIcon(QIcon(archivo(icono)));
    boton.setIconSize({ladoDelIcono, ladoDelIcono});
    boton.setToolTip(termino);
    boton.setAccessibleName(termino);
    boton.setAutoDefault(false);
    makeDraggable(boton);
    const auto &uso = usos_[&boton] = std::move(usar);
    connect(&boton, &QPushButton::clicked, this,
            [this, &uso] { uso(QPointF(sizeTwips().width() - lado, sizeTwips().height() - lado) / 2); });
}

/// Only the palette's symbols are taken.
void Diagrama::soltar(const QWidget &origen, QPointF lugar)
{
    if (const auto uso = usos_.find(&origen); uso != usos_.end())
        uso->second(lugar - QPointF(lado, lado) / 2);
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
    const Simbolo &puesto = plano_.paleta[static_cast<std::size_t>(simbolo)];
    CanvasItem &marca = add(nombreDeMarca(numero.value_or(numeroLibre(plano_.marca))), lugar,
                            PictureLook{figura(archivo(puesto.dibujo)), QSizeF(lado, lado)});
    forms::setTag(&marca, puesto.codigo.isEmpty() ? QString::number(simbolo) : puesto.codigo.toString());
    marca.setToolTip(puesto.termino.toString());
    marca.setMovable(iconos_.size() > 0);
    return &marca;
}

} // namespace dibujo

#include "moc_diagrama.cpp"
