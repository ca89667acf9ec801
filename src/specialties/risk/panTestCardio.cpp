#include "specialties/risk/panTestCardio.h"

#include "platform/forms/colour.h"
#include "specialties/risk/impresionDeRiesgo.h"
#include "specialties/risk/panSelRiesgoCardio.h"

#include <QLayout>

using namespace Qt::StringLiterals;
using namespace forms;
using riesgoCardiaco::Pregunta;
using riesgoCardiaco::Respuesta;

namespace
{

const QColor contestada(255, 128, 128);
const char16_t *const numeros[] = {u"I", u"II", u"III", u"IV", u"V"};

} // namespace

panTestCardio::panTestCardio() : Form(u"panTestCardio"_s)
{
    setWindowTitle(u"Test de Riesgo Cardíaco"_s);
    panFuma.setObjectName(u"panFuma"_s);
    for (const char16_t *numero : numeros)
        escala_.agregar(Label3.add(Label3.size(), QString::fromUtf16(numero)));
    Label1.setWordWrap(true);
    Label1.setMinimumHeight(Label1.fontMetrics().lineSpacing() * 3);
    QFont grande = Label4.font();
    grande.setPointSizeF(grande.pointSizeF() * 1.6);
    grande.setBold(true);
    Label4.setFont(grande);
    agregarPreguntas();
    connect(&Command1, &QPushButton::clicked, this, [this] { elegirBanda(riesgoCardiaco::profesion); });
    connect(&Command3, &QPushButton::clicked, this, [this] { elegirBanda(riesgoCardiaco::estres); });
    connect(&Command4, &QPushButton::clicked, this, [this] {
        riesgo::imprimir(*this, respuestas(), u"Total: "_s + Label4.caption(), Label1.caption());
    });
    connect(&Command2, &QPushButton::clicked, this, &panTestCardio::unload);
}

void panTestCardio::agregarPreguntas()
{
    std::vector<Item> todas, mujeres;
    for (const Pregunta &una : riesgoCardiaco::preguntas()) {
        const Item contenido = pregunta(una);
        if (una.numero == riesgoCardiaco::fuma) {
            setContents(&panFuma, contenido);
            panFuma.layout()->setContentsMargins({});
            mujeres.emplace_back(panFuma);
        } else if (una.numero == riesgoCardiaco::menopausia ||
                   una.numero == riesgoCardiaco::anticonceptivos) {
            mujeres.push_back(contenido);
        } else {
            todas.push_back(contenido);
        }
    }
    mujeres.push_back(Stretch());
    setContents(
        this, Column{
                  Row{Expanding(Grid(4, todas)), Group(Frame1, Column(mujeres))},
                  Group(u"Resultado"_s, Row{Expanding(escala_, 2), Label4, Space(12), Expanding(Label1, 5)}),
                  Row{Command4, Stretch(), Command2},
              });
    panFuma.hide();
}

Item panTestCardio::pregunta(const Pregunta &pregunta)
{
    const QString titulo = pregunta.titulo.toString().trimmed();
    const QString texto = pregunta.texto.toString();
    Label &rotulo = fcolor.add(pregunta.numero - 1, titulo.isEmpty() ? texto : titulo);
    QFont destacada = rotulo.font();
    destacada.setBold(true);
    rotulo.setFont(destacada);
    auto &grupo = grupos_[pregunta.numero];
    grupo = std::make_unique<QButtonGroup>();
    std::vector<Item> renglones{rotulo};
    if (!titulo.isEmpty() && !texto.isEmpty()) {
        auto *pie = new QLabel(texto);
        pie->setWordWrap(true);
        renglones.emplace_back(pie);
    }
    for (const Respuesta &respuesta : pregunta.respuestas) {
        OptionButton &boton = ChOption.add(respuesta.boton, respuesta.texto.toString());
        forms::setTag(&boton, QString::number(respuesta.puntos));
        boton.setToolTip(QString::number(pregunta.numero));
        boton.setAccessibleName(u"%1: %2"_s.arg(texto.isEmpty() ? titulo : texto, respuesta.texto));
        grupo->addButton(&boton, respuesta.boton);
        connect(&boton, &QRadioButton::clicked, this,
                [this, numero = pregunta.numero] { responder(numero); });
        renglones.emplace_back(boton);
    }
    if (pregunta.numero == riesgoCardiaco::profesion)
        renglones.emplace_back(Row{Command1, Stretch()});
    if (pregunta.numero == riesgoCardiaco::estres)
        renglones.emplace_back(Row{Command3, Stretch()});
    renglones.push_back(Stretch());
    return Column(renglones);
}

void panTestCardio::responder(int numero)
{
    setBackColor(fcolor(numero - 1), contestada);
    preguntarPorElTabaco();
    mostrarResultado();
}

/// Who takes no contraceptives is asked nothing about smoking here, and scores nothing for it.
void panTestCardio::preguntarPorElTabaco()
{
    const bool toma = ChOption(riesgoCardiaco::tomaAnticonceptivos).isChecked();
    if (!toma)
        ChOption(riesgoCardiaco::noFuma).setChecked(true);
    panFuma.setVisible(toma);
}

int panTestCardio::total() const
{
    int suma = 0;
    for (const auto &[i, boton] : ChOption)
        if (boton->isChecked())
            suma += forms::tag(boton.get()).toInt();
    return suma;
}

/// Above the last band the advice of before stays.
void panTestCardio::mostrarResultado()
{
    Label4.setCaption(QString::number(total()));
    const auto banda = riesgoCardiaco::bandaDe(total());
    if (!banda)
        return;
    escala_.senalar(*banda);
    Label1.setCaption(riesgoCardiaco::bandas()[static_cast<std::size_t>(*banda)].consejo.toString());
}

void panTestCardio::elegirBanda(int pregunta)
{
    std::unique_ptr<panSelRiesgoCardio> selector;
    if (pregunta == riesgoCardiaco::profesion)
        selector = std::make_unique<panSelRiesgoCardio1>();
    else
        selector = std::make_unique<panSelRiesgoCardio2>();
    selector->showModal();
    const auto valor = selector->valor();
    const auto respuesta = valor ? riesgoCardiaco::respuestaDe(pregunta, *valor) : std::nullopt;
    if (respuesta)
        ChOption(*respuesta).click();
}

/// The questions answered, each with what it adds.
QStringList panTestCardio::respuestas() const
{
    QStringList lineas;
    for (const auto &[numero, grupo] : grupos_)
        if (const QAbstractButton *boton = grupo->checkedButton();
            boton && (numero != riesgoCardiaco::fuma || panFuma.isVisible()))
            lineas += u"%1. %2 (%3)"_s.arg(numero).arg(boton->accessibleName(), forms::tag(boton));
    return lineas;
}

#include "moc_panTestCardio.cpp"
