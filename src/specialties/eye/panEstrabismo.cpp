#include "specialties/eye/panEstrabismo.h"

#include "core/services/services.h"
#include "platform/basic/runtime.h"
#include "platform/forms/wrong.h"
#include "specialties/eye/visita.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr double mayorDesvio = 60;            // prism dioptres
constexpr double porDioptria = 30, ojo = 720; // twips
constexpr QSizeF tablero{10800, 2700};
constexpr double altura = (tablero.height() - ojo) / 2;
constexpr double centroD = 2700, centroI = 8100; // where each eye looks straight on
constexpr int anchoDeCelda = 44;
const QString derecho = u"ImageD"_s, izquierdo = u"ImageI"_s;
const QColor linea(0xc9, 0xd3, 0xda), tinta(0x4a, 0x55, 0x60), iris(0x3c, 0x6e, 0x8f);

/// Outwards is to the left of the board for the right eye, as the examiner sees it.
double lugarDe(const QString &ojoDe, double desvio)
{
    return (ojoDe == derecho ? centroD - desvio * porDioptria : centroI + desvio * porDioptria) - ojo / 2;
}

double desvioDe(const QString &ojoDe, double lugar)
{
    const double medio = lugar + ojo / 2;
    return std::round((ojoDe == derecho ? centroD - medio : medio - centroI) / porDioptria);
}

QString enTexto(double desvio)
{
    return basic::Value(desvio).text();
}

} // namespace

panEstrabismo::panEstrabismo() : Form(u"panEstrabismo"_s), Picture1(u"Picture1"_s, tablero)
{
    setWindowTitle(u"Estrabismo"_s);
    dibujarTablero();
    const Item cuadro = grilla();
    for (const int i : {0, 1})
        campos_.ligar(u"Bielch%1"_s.arg(i + 1), EstrBielch.add(i));
    campos_.ligar(u"Estra_Diag"_s, estrDiag);
    Text1.setFixedWidth(70);
    Text2.setFixedWidth(70);
    setContents(this, Column{Group(u"Cover test"_s, cuadro),
                             Group(u"Desviación (dioptrías prismáticas, hacia afuera positiva)"_s,
                                   Column{Expanding(Picture1),
                                          Row{Fields{{u"Ojo &derecho :"_s, Text1}}, Stretch(), Command1,
                                              Stretch(), Fields{{u"Ojo &izquierdo :"_s, Text2}}}}),
                             Row{Expanding(Group(u"Bielschowsky"_s, Fields{{u"O.D. :"_s, EstrBielch(0)},
                                                                           {u"O.I. :"_s, EstrBielch(1)}})),
                                 Expanding(Group(u"Diagnóstico"_s, estrDiag))},
                             Row{Stretch(), Command3, Command2}});
    estrDiag.setMaximumHeight(70);
    resize(820, 640);
    connect(&Picture1, &Canvas::moved, this,
            [this](const QString &cual, QPointF lugar) { leerOjo(cual, lugar.x()); });
    for (TextBox *desvio : {&Text1, &Text2})
        connect(desvio, &QLineEdit::editingFinished, this, [this, desvio] {
            revisar(*desvio);
            moverOjos();
        });
    connect(&Command1, &QPushButton::clicked, this, [this] {
        Text1.setText(u"0"_s);
        Text2.setText(u"0"_s);
        moverOjos();
    });
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
    connect(&Command3, &QPushButton::clicked, this, [this] {
        if (revisar(Text1) && revisar(Text2))
            answer(u"SI"_s);
    });
}

Item panEstrabismo::grilla()
{
    std::vector<Item> cuadro;
    for (const QString &titulo :
         {QString(), u"D"_s, QString(), u"DL"_s, QString(), u"Med"_s, u"IL"_s, QString(), u"I"_s, QString()})
        cuadro.emplace_back(new QLabel(titulo));
    int n = 0;
    constexpr int porFila = 9;
    for (const oftalmo::Celda &celda : oftalmo::celdasDeEstrabismo()) {
        if (n++ % porFila == 0)
            cuadro.emplace_back(new QLabel(u"Fila %1 :"_s.arg(n / porFila + 1)));
        auto &arreglo = celdas_.try_emplace(celda.control.toString(), celda.control.toString()).first->second;
        TextBox &campo = arreglo.add(celda.indice);
        campo.setMinimumWidth(anchoDeCelda);
        campo.setAccessibleName(u"%1, fila %2"_s.arg(celda.control).arg((n - 1) / porFila + 1));
        campos_.ligar(celda.columna, campo);
        cuadro.emplace_back(campo);
    }
    return Grid(porFila + 1, cuadro);
}

void panEstrabismo::dibujarTablero()
{
    Picture1.setMinimumHeight(Picture1.sizeHint().height());
    QPainterPath rayas;
    for (const double centro : {centroD, centroI}) {
        rayas.moveTo(centro, 200);
        rayas.lineTo(centro, tablero.height() - 200);
        for (double desvio = -mayorDesvio; desvio <= mayorDesvio; desvio += 10) {
            rayas.moveTo(centro + desvio * porDioptria, tablero.height() / 2 - 80);
            rayas.lineTo(centro + desvio * porDioptria, tablero.height() / 2 + 80);
        }
        rayas.moveTo(centro - mayorDesvio * porDioptria, tablero.height() / 2);
        rayas.lineTo(centro + mayorDesvio * porDioptria, tablero.height() / 2);
    }
    Picture1.add(u"escala"_s, {}, ShapeLook{rayas, Qt::transparent, linea, 15}).setInert();
    QFont letra;
    letra.setPointSize(9);
    for (const auto &[nombre, texto, centro] :
         {std::tuple{u"rotuloD"_s, u"O.D."_s, centroD}, {u"rotuloI"_s, u"O.I."_s, centroI}})
        Picture1.add(nombre, {centro - ojo, 60}, TextLook{texto, letra, 2 * ojo, tinta, Qt::AlignHCenter})
            .setInert();
    for (const auto &[nombre, dice] :
         {std::pair{derecho, u"Ojo derecho: se arrastra"_s}, {izquierdo, u"Ojo izquierdo: se arrastra"_s}}) {
        CanvasItem &dibujado =
            Picture1.add(nombre, {lugarDe(nombre, 0), altura}, ellipse({ojo, ojo}, iris, tinta));
        dibujado.setToolTip(dice);
        dibujado.setMovable(true);
    }
}

void panEstrabismo::mostrar(const records::Valores &valores)
{
    campos_.mostrar(valores);
    static const QRegularExpression forma(u"^OD (-?[\\d,]+) OI (-?[\\d,]+)$"_s);
    anterior_ = records::valor(valores, u"Estra_m"_s).text();
    const auto desvios = forma.match(anterior_);
    if (desvios.hasMatch())
        anterior_.clear();
    Text1.setText(desvios.hasMatch() ? desvios.captured(1) : u"0"_s);
    Text2.setText(desvios.hasMatch() ? desvios.captured(2) : u"0"_s);
    moverOjos();
}

records::Valores panEstrabismo::valores() const
{
    records::Valores valores = campos_.valores();
    const QString desvios = u"OD %1 OI %2"_s.arg(Text1.text().trimmed(), Text2.text().trimmed());
    valores[u"Estra_m"_s] = desvios == u"OD 0 OI 0" ? anterior_ : desvios;
    return valores;
}

void panEstrabismo::moverOjos()
{
    for (const auto &[nombre, texto] : {std::pair{derecho, &Text1}, {izquierdo, &Text2}})
        if (const auto desvio = basic::toNumber(texto->text().trimmed()))
            Picture1.item(nombre)->setPos(lugarDe(nombre, *desvio), altura);
}

/// An eye moves along its line, as far as the scale goes.
void panEstrabismo::leerOjo(const QString &cual, double lugar)
{
    const double desvio = std::clamp(desvioDe(cual, lugar), -mayorDesvio, mayorDesvio);
    (cual == derecho ? Text1 : Text2).setText(enTexto(desvio));
    moverOjos();
}

bool panEstrabismo::revisar(TextBox &desvio)
{
    const auto valor = basic::toNumber(desvio.text().trimmed());
    if (valor && std::abs(*valor) <= mayorDesvio) {
        clearWrong(desvio);
        return true;
    }
    markWrong(desvio, u"Un número entre -60 y 60"_s);
    return false;
}

#include "moc_panEstrabismo.cpp"
