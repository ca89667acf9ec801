#include "specialties/eye/panEvolOftalmo.h"

#include "core/services/paciente.h"
#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/forms/layout.h"
#include "specialties/eye/refraccion.h"

#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace forms;
using oftalmo::Medida;

namespace
{

constexpr double izquierda = 44, derecha = 16, arriba = 12, abajo = 26, radio = 3.5;
constexpr int anchoDeFecha = 74;
const QColor grilla(0xdd, 0xe3, 0xe9), letras(0x5a, 0x67, 0x75), alto(0xfd, 0xec, 0xea);

struct Serie {
    const char *ojo;
    std::optional<double> Medida::*valor;
    QColor color;
    bool redondo;
};
const Serie series[] = {
    {"O.D.", &Medida::derecho, QColor(0xb0, 0x3a, 0x2e), true},
    {"O.I.", &Medida::izquierdo, QColor(0x1f, 0x4e, 0x9f), false},
};

struct Agudeza {
    QString titulo, derecho, izquierdo; ///< columns
};
const Agudeza agudezas[] = {
    {u"CC"_s, u"aguVisOdCCC"_s, u"aguVisOiCCC"_s},
    {u"SC"_s, u"aguVisOdSC"_s, u"aguVisOiSC"_s},
    {u"CSC"_s, u"aguVisOdCSC"_s, u"aguVisOiCSC"_s},
    {u"CE"_s, u"aguVisOdCE"_s, u"aguVisOiCE"_s},
};

} // namespace

namespace oftalmo
{

GraficoDeOjos::GraficoDeOjos(const QString &nombre, double hasta, double paso, std::optional<double> limite)
    : hasta_(hasta), paso_(paso), limite_(limite)
{
    setObjectName(nombre);
    setMinimumSize(360, 140);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
}

void GraficoDeOjos::mostrar(std::vector<Medida> medidas)
{
    medidas_ = std::move(medidas);
    update();
}

std::vector<ChartValue> GraficoDeOjos::chartValues() const
{
    std::vector<ChartValue> valores;
    for (const Serie &serie : series)
        for (const Medida &medida : medidas_)
            if (const auto valor = medida.*serie.valor)
                valores.push_back(
                    {QString::fromLatin1(serie.ojo) + u' ' + medida.fecha.toString(u"dd/MM/yyyy"_s), *valor});
    return valores;
}

QPointF GraficoDeOjos::donde(const QRectF &cuadro, QDate fecha, double valor) const
{
    const qint64 dias = medidas_.front().fecha.daysTo(medidas_.back().fecha);
    const double parte =
        dias == 0 ? 0.5
                  : static_cast<double>(medidas_.front().fecha.daysTo(fecha)) / static_cast<double>(dias);
    return {cuadro.left() + parte * cuadro.width(),
            cuadro.bottom() - std::min(valor, hasta_) / hasta_ * cuadro.height()};
}

void GraficoDeOjos::pintarEscala(QPainter &pintor, const QRectF &cuadro) const
{
    const auto alturaDe = [&](double valor) { return cuadro.bottom() - valor / hasta_ * cuadro.height(); };
    if (limite_)
        pintor.fillRect(QRectF(cuadro.topLeft(), QPointF(cuadro.right(), alturaDe(*limite_))), alto);
    const int rayas = qRound(hasta_ / paso_);
    for (int raya = 0; raya <= rayas; ++raya) {
        const double y = alturaDe(raya * paso_);
        pintor.setPen(grilla);
        pintor.drawLine(QPointF(cuadro.left(), y), QPointF(cuadro.right(), y));
        pintor.setPen(letras);
        pintor.drawText(QRectF(0, y - 8, izquierda - 6, 16), Qt::AlignRight | Qt::AlignVCenter,
                        basic::Value(raya * paso_).text());
    }
    double libre = 0; // a date stands where the one before it leaves room
    for (const Medida &medida : medidas_) {
        const double x = donde(cuadro, medida.fecha, 0).x();
        const double desde = std::clamp(x - anchoDeFecha / 2.0, 0.0, width() - double(anchoDeFecha));
        if (desde < libre)
            continue;
        pintor.drawText(QRectF(desde, cuadro.bottom() + 4, anchoDeFecha, 18), Qt::AlignCenter,
                        medida.fecha.toString(u"dd/MM/yyyy"_s));
        libre = desde + anchoDeFecha + 4;
    }
}

void GraficoDeOjos::paintEvent(QPaintEvent *)
{
    QPainter pintor(this);
    if (medidas_.empty()) {
        pintor.setPen(letras);
        pintor.drawText(rect(), Qt::AlignCenter, u"Sin datos"_s);
        return;
    }
    pintor.setRenderHint(QPainter::Antialiasing);
    const QRectF cuadro = QRectF(rect()).adjusted(izquierda, arriba, -derecha - anchoDeFecha / 2, -abajo);
    pintarEscala(pintor, cuadro);
    for (const Serie &serie : series) {
        QPolygonF linea;
        for (const Medida &medida : medidas_)
            if (const auto valor = medida.*serie.valor)
                linea += donde(cuadro, medida.fecha, *valor);
        pintor.setPen(QPen(serie.color, 1.6));
        pintor.setBrush(Qt::NoBrush);
        pintor.drawPolyline(linea);
        pintor.setBrush(serie.color);
        for (const QPointF &punto : linea) {
            const QRectF marca(punto - QPointF(radio, radio), QSizeF(2 * radio, 2 * radio));
            serie.redondo ? pintor.drawEllipse(marca) : pintor.drawRect(marca);
        }
        if (!linea.isEmpty())
            pintor.drawText(linea.back() + QPointF(8, serie.redondo ? -4 : 4),
                            QString::fromLatin1(serie.ojo));
    }
}

} // namespace oftalmo

panEvolOftalmo::panEvolOftalmo() : Form(u"panEvolOftalmo"_s)
{
    setWindowTitle(u"Evolución oftalmológica"_s);
    QFont destacada = lblPaciente.font();
    destacada.setBold(true);
    lblPaciente.setFont(destacada);
    for (const Agudeza &agudeza : agudezas)
        comboAgudeza.addItem(agudeza.titulo);
    comboAgudeza.setCurrentIndex(0);
    setContents(this, Column{lblPaciente,
                             Expanding(Group(u"Agudeza visual"_s,
                                             Column{Row{Fields{{u"&Medida :"_s, comboAgudeza}}, Stretch()},
                                                    Expanding(Graph1)})),
                             Expanding(Group(u"P.I.O. (mmHg, en rojo más de 21)"_s, Expanding(Graph2))),
                             Row{Stretch(), Command1}});
    resize(760, 560);
    connect(&comboAgudeza, &QComboBox::activated, this, &panEvolOftalmo::mostrarAgudeza);
    connect(&Command1, &QPushButton::clicked, this, &panEvolOftalmo::unload);
}

void panEvolOftalmo::load()
{
    lblPaciente.setCaption(services::nombreDePaciente(tag()));
    mostrarAgudeza();
    Graph2.mostrar(medidas(u"tensionocuod"_s, u"tensionocuoi"_s, oftalmo::presionDe));
}

void panEvolOftalmo::mostrarAgudeza()
{
    const Agudeza &elegida = agudezas[comboAgudeza.currentIndex()];
    Graph1.mostrar(medidas(elegida.derecho, elegida.izquierdo, oftalmo::agudezaDe));
}

std::vector<Medida> panEvolOftalmo::medidas(const QString &derecho, const QString &izquierdo,
                                            std::optional<double> (*leer)(const QString &)) const
{
    std::vector<Medida> todas;
    for (
        dao::Recordset visita = MODULE11::BaseDatos.openRecordset(
            u"Select Fecha, %1, %2 from consultaOftalmo where paciente = %3 and Fecha is not null order by Fecha, idConsulta"_s
                .arg(derecho, izquierdo)
                .arg(services::numeroDePaciente(tag()).value_or(0)));
        !visita.eof(); visita.moveNext()) {
        const Medida medida{visita[0].date().date(), leer(visita[1].text()), leer(visita[2].text())};
        if (medida.derecho || medida.izquierdo)
            todas.push_back(medida);
    }
    return todas;
}

#include "moc_panEvolOftalmo.cpp"
