#include "paediatrics/sight/panNueVisual.h"

#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

panNueVisual::panNueVisual() : Form(u"panNueVisual"_s)
{
    setWindowTitle(u"Medición de la agudeza visual"_s);
    for (int i = 0; i < agudeza::columnas().size(); ++i)
        Combo1.add(i, agudeza::valores());
    Command1.setDefault(true);
    const auto ojo = [this](const QString &cual, int primero) {
        return Group(cual, Fields{{u"Cerca :"_s, Combo1(primero)}, {u"Lejos :"_s, Combo1(primero + 1)}});
    };
    setContents(this, Column{
                          Fields{{u"&Fecha de Medición :"_s, mFecha}},
                          Row{Expanding(ojo(u"Ojo DERECHO"_s, 0)), Expanding(ojo(u"Ojo IZQUIERDO"_s, 2))},
                          Expanding(Above(u"&Observaciones :"_s, mObservaciones)),
                          Row{Stretch(), Command1, Command2},
                      });
    resize(460, 330);
    connect(&Command1, &QPushButton::clicked, this, [this] { answer(u"SI"_s); });
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

agudeza::Medicion panNueVisual::medicion() const
{
    return {mFecha.value(),
            {Combo1(0).value(), Combo1(1).value(), Combo1(2).value(), Combo1(3).value()},
            mObservaciones.toPlainText()};
}

#include "moc_panNueVisual.cpp"
