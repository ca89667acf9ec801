#include "core/services/buscaDato.h"

using namespace Qt::StringLiterals;

buscaDato::buscaDato()
    : services::DialogoBuscar(u"buscaDato"_s, u"Buscar"_s, u"check3d1"_s,
                              {u"&Texto a buscar :"_s, u"Buscar en &cualquier parte"_s,
                               u"desde el &principio"_s, u"desde el &final"_s, u"de a&quí en adelante"_s,
                               u"&Aceptar"_s, u"Cance&lar"_s})
{
    connect(&Command1, &QPushButton::clicked, this, [this] { answer(u"SI"_s); });
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

#include "moc_buscaDato.cpp"
