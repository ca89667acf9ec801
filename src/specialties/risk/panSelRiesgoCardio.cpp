#include "specialties/risk/panSelRiesgoCardio.h"

#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

panSelRiesgoCardio::panSelRiesgoCardio(const QString &ventana, const QString &titulo,
                                       std::span<const riesgoCardiaco::Opcion> opciones)
    : Form(ventana)
{
    setWindowTitle(titulo);
    std::vector<Item> columna;
    for (const riesgoCardiaco::Opcion &opcion : opciones) {
        OptionButton &boton = optionProf.add(optionProf.size(), opcion.texto.toString());
        forms::setTag(&boton, QString::number(opcion.valor));
        columna.emplace_back(boton);
    }
    Command1.setDefault(true);
    setContents(this, Column{Grid(2, columna), Row{Stretch(), Command1, Command2}});
    connect(&Command1, &QPushButton::clicked, this, &panSelRiesgoCardio::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer({}); });
}

void panSelRiesgoCardio::aceptar()
{
    for (const auto &[i, boton] : optionProf)
        if (boton->isChecked()) {
            answer(forms::tag(boton.get()));
            return;
        }
    answer({});
}

std::optional<int> panSelRiesgoCardio::valor() const
{
    bool elegido = false;
    const int valor = tag().toInt(&elegido);
    return elegido ? std::optional(valor) : std::nullopt;
}

panSelRiesgoCardio1::panSelRiesgoCardio1()
    : panSelRiesgoCardio(u"panSelRiesgoCardio1"_s, u"Profesión / Actividad"_s, riesgoCardiaco::profesiones())
{
}

panSelRiesgoCardio2::panSelRiesgoCardio2()
    : panSelRiesgoCardio(u"panSelRiesgoCardio2"_s, u"Situación de Estres"_s, riesgoCardiaco::situaciones())
{
}

#include "moc_panSelRiesgoCardio.cpp"
