#include "clinical/patients/buscaPaciente.h"

using namespace Qt::StringLiterals;

buscaPaciente::buscaPaciente()
    : DialogoBuscar(u"buscaPaciente"_s, u"Buscar Paciente"_s, u"Check3d1"_s,
                    {u"Iniciales a &buscar :"_s, u"Buscar en cualquier &parte del nombre"_s,
                     u"Desde el &inicio"_s, u"Desde el &final"_s, u"&De aquí en adelante"_s,
                     u"Por &apellido"_s, u"Por &número"_s})
{
    connect(&Command1, &QPushButton::clicked, this, [this] { answer(u"PORAP"_s); });
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"PORHI"_s); });
}

#include "moc_buscaPaciente.cpp"
