#include "specialties/gynaecology/panNueExamenGineco.h"

#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

panNueExamenGineco::panNueExamenGineco() : Form(u"panNueExamenGineco"_s)
{
    setWindowTitle(u"Nuevo Examen Ginecológico"_s);
    std::vector<Item> clases;
    for (const QString &clase :
         {u"Examen de Mamas"_s, u"Colposcopía"_s, u"Embarazo"_s, u"Dopplerfluxometría"_s}) {
        OptionButton &opcion = Option1.add(Option1.size(), clase);
        connect(&opcion, &QRadioButton::toggled, this, [this, clase](bool elegida) {
            if (elegida)
                clase_ = clase;
        });
        clases.emplace_back(opcion);
    }
    Option1(0).setChecked(true);
    Command1.setDefault(true);
    setContents(this, Column{Fields{{u"&Fecha :"_s, Row{dt1, Stretch()}}}, Group(u"Examen"_s, Column(clases)),
                             Row{Stretch(), Command1, Command2}});
    connect(&Command1, &QPushButton::clicked, this, [this] { answer(clase_); });
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

#include "moc_panNueExamenGineco.cpp"
