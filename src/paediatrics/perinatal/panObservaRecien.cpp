#include "paediatrics/perinatal/panObservaRecien.h"

using namespace Qt::StringLiterals;
using namespace forms;

panObservaRecien::panObservaRecien()
    : Complemento(u"panObservaRecien"_s, u"Observaciones del recien Nacido"_s)
{
    campos_.ligar(u"Observaciones del recien Nacido"_s, mObservaciones);
    disponer(Above(u"&Observaciones del recien Nacido :"_s, mObservaciones));
    resize(620, 320);
}

#include "moc_panObservaRecien.cpp"
