#include "specialties/odontology/esquema.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace odonto
{

namespace
{

constexpr QChar entreItems = u';', entreCampos = u'|';
constexpr int camposDeMarca = 5, camposDeCara = 3;
const QString leyendaVacia = u"100"_s;

constexpr ClaseDeMarca clases[] = {
    {Puente, 3, u"menuPuente", u"Puente", u"puente"},
    {Corona, 9, u"menuCorona", u"Corona", u"corona"},
    {Ausente, 4, u"menuAusente", u"Ausente", u"prótesis"},
    {Conducto, 10, u"menuConducto", u"Conducto", u"conducto"},
    {Extraccion, 11, u"menuExtraccion", u"Extracción", u"extracción"},
    {Implante, 12, u"menuImplante", u"Implante", u"implante"},
    {Fractura, 13, u"menuFractura", u"Fractura", u"reconstrucción"},
};

std::optional<int> numero(const QString &campo)
{
    bool entero = false;
    const int valor = campo.trimmed().toInt(&entero);
    return entero ? std::optional(valor) : std::nullopt;
}

/// What is unread goes with what was read.
QString juntar(QStringList items, const QStringList &sinLeer)
{
    items += sinLeer;
    return items.join(entreItems);
}

QStringList carasPintadas(const Esquema &esquema, int pieza)
{
    QStringList nombres;
    for (int cara = caraDe(pieza, Arriba); cara <= caraDe(pieza, Centro); ++cara)
        if (esquema.color(cara) != blanco)
            nombres += nombreDeCara(cara);
    return nombres;
}

bool iguales(const Esquema &uno, const Esquema &otro, int pieza)
{
    bool lasCaras = true;
    for (int cara = caraDe(pieza, Arriba); cara <= caraDe(pieza, Centro); ++cara)
        lasCaras = lasCaras && uno.color(cara) == otro.color(cara);
    return lasCaras && uno.marca(pieza) == otro.marca(pieza);
}

} // namespace

std::span<const ClaseDeMarca> clasesDeMarca()
{
    return clases;
}

const ClaseDeMarca *claseDeMarca(int tipo)
{
    const auto hallada = std::ranges::find(clases, tipo, &ClaseDeMarca::tipo);
    return hallada == std::end(clases) ? nullptr : &*hallada;
}

QString leyendaLimpia(const QString &leyenda)
{
    QString limpia = leyenda.simplified();
    return limpia.replace(entreItems, u':').replace(entreCampos, u':');
}

bool sePuedeGuardar(const QString &leyenda)
{
    return leyendaLimpia(leyenda) != leyendaVacia;
}

Esquema Esquema::deTexto(const QString &string1, const QString &string2)
{
    Esquema esquema;
    for (const QString &item : string1.split(entreItems, Qt::SkipEmptyParts))
        if (!esquema.leerMarca(item))
            esquema.marcasSinLeer_ += item;
    for (const QString &item : string2.split(entreItems, Qt::SkipEmptyParts))
        if (!esquema.leerCara(item))
            esquema.carasSinLeer_ += item;
    return esquema;
}

/// Of two items of one tooth the later counts; what only the earlier has, its mark or its legend, stays.
bool Esquema::leerMarca(const QString &item)
{
    const QStringList campos = item.split(entreCampos);
    if (campos.size() != camposDeMarca)
        return false;
    const auto pieza = numero(campos[0]), tipo = numero(campos[1]), color = numero(campos[2]),
               segundo = numero(campos[4]);
    if (!pieza || !esPieza(*pieza) || !tipo || (*tipo != sinMarca && !claseDeMarca(*tipo)) || !color ||
        !segundo)
        return false;
    Marca &marca = marcas_[static_cast<std::size_t>(*pieza)];
    if (*tipo != sinMarca) {
        marca.tipo = *tipo;
        marca.color = *color;
        marca.colorDeLeyenda = *segundo; // kept as it was, legend or none
    }
    if (!campos[3].isEmpty() && campos[3] != leyendaVacia) {
        marca.leyenda = campos[3];
        marca.colorDeLeyenda = *segundo;
    }
    return true;
}

bool Esquema::leerCara(const QString &item)
{
    const QStringList campos = item.split(entreCampos);
    if (campos.size() != camposDeCara)
        return false;
    const auto cara = numero(campos[0]), frente = numero(campos[1]), fondo = numero(campos[2]);
    if (!cara || *cara < 1 || *cara > ultimaCara || !frente || !fondo)
        return false;
    caras_[static_cast<std::size_t>(*cara)] = {*frente, *fondo};
    return true;
}

QString Esquema::string1() const
{
    QStringList items;
    for (int pieza = 1; pieza <= piezas; ++pieza)
        if (const Marca &m = marca(pieza); !m.vacia())
            items += QStringList{QString::number(pieza), QString::number(m.tipo), QString::number(m.color),
                                 m.leyenda, QString::number(m.colorDeLeyenda)}
                         .join(entreCampos);
    return juntar(items, marcasSinLeer_);
}

QString Esquema::string2() const
{
    QStringList items;
    for (int cara = 1; cara <= ultimaCara; ++cara)
        items += u"%1|%2|%3"_s.arg(cara).arg(pintura(cara).frente).arg(pintura(cara).fondo);
    return entreItems + juntar(items, carasSinLeer_);
}

/// A number that is no colour was left by something else than a person painting.
int Esquema::color(int cara) const
{
    const Pintura &dos = pintura(cara);
    const int visto = cara % carasPorPieza == Centro ? dos.fondo : dos.frente;
    return visto >= 0 && visto <= blanco ? visto : blanco;
}

void Esquema::pintar(int cara, int color)
{
    Pintura &dos = caras_[static_cast<std::size_t>(cara)];
    (cara % carasPorPieza == Centro ? dos.fondo : dos.frente) = color;
}

void Esquema::alternarPieza(int pieza, int color)
{
    bool toda = true;
    for (int cara = caraDe(pieza, Arriba); cara <= caraDe(pieza, Centro); ++cara)
        toda = toda && this->color(cara) == color;
    for (int cara = caraDe(pieza, Arriba); cara <= caraDe(pieza, Centro); ++cara)
        pintar(cara, toda ? blanco : color);
}

void Esquema::alternarMarca(int pieza, int tipo, int color)
{
    Marca &marca = marcas_[static_cast<std::size_t>(pieza)];
    const bool puesta = marca.tipo == tipo;
    marca.tipo = puesta ? sinMarca : tipo;
    marca.color = puesta ? 0 : color;
}

void Esquema::ponerLeyenda(int pieza, const QString &leyenda, int color)
{
    Marca &marca = marcas_[static_cast<std::size_t>(pieza)];
    marca.leyenda = leyendaLimpia(leyenda);
    marca.colorDeLeyenda = marca.leyenda.isEmpty() ? 0 : color;
}

void Esquema::limpiar(int pieza)
{
    marcas_[static_cast<std::size_t>(pieza)] = {};
    for (int cara = caraDe(pieza, Arriba); cara <= caraDe(pieza, Centro); ++cara)
        caras_[static_cast<std::size_t>(cara)] = {};
}

QString enPalabras(const Esquema &esquema, int pieza)
{
    QStringList partes;
    if (const ClaseDeMarca *clase = claseDeMarca(esquema.marca(pieza).tipo))
        partes += clase->nombre.toString();
    if (const QStringList caras = carasPintadas(esquema, pieza); caras.size() == carasPorPieza)
        partes += u"pintada toda"_s;
    else if (!caras.isEmpty())
        partes += u"pintada "_s + caras.join(u", "_s);
    if (const QString &leyenda = esquema.marca(pieza).leyenda; !leyenda.isEmpty())
        partes += u"\"%1\""_s.arg(leyenda);
    return partes.join(u"; "_s);
}

std::vector<Diferencia> diferencias(const Esquema &uno, const Esquema &otro)
{
    const auto dicho = [](const Esquema &esquema, int pieza) {
        const QString texto = enPalabras(esquema, pieza);
        return texto.isEmpty() ? u"nada"_s : texto;
    };
    std::vector<Diferencia> todas;
    for (int pieza = 1; pieza <= piezas; ++pieza) {
        if (iguales(uno, otro, pieza))
            continue;
        const QString antes = dicho(uno, pieza), despues = dicho(otro, pieza);
        todas.push_back(
            {pieza, u"%1: "_s.arg(numeroFdi(pieza)) +
                        (antes == despues ? antes + u" (otro color)"_s : antes + u" → "_s + despues)});
    }
    return todas;
}

} // namespace odonto
