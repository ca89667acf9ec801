#include "clinical/patients/buscaPaciente.h"

#include "core/services/paciente.h"

#include <QApplication>

using namespace Qt::StringLiterals;

buscaPaciente::buscaPaciente()
    : services::DialogoBuscar(u"buscaPaciente"_s, u"Buscar Paciente"_s, u"Check3d1"_s,
                              {u"Iniciales a &buscar :"_s, u"Buscar en cualquier &parte del nombre"_s,
                               u"Desde el &inicio"_s, u"Desde el &final"_s, u"&De aquí en adelante"_s,
                               u"Por &apellido"_s, u"Por &número"_s})
{
    connect(&Command1, &QPushButton::clicked, this, [this] { answer(u"PORAP"_s); });
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"PORHI"_s); });
}

std::optional<QString> BuscaEnPacientes(dao::Recordset &filas, const QString &nombre, const QString &numero)
{
    buscaPaciente dialogo;
    dialogo.showModal();
    QApplication::processEvents(); // the closing dialogue's place is painted before a long search
    bool hallado = true;
    if (dialogo.tag() == u"PORAP") {
        hallado = dialogo.mover(filas, nombre);
    } else if (dialogo.tag() == u"PORHI") {
        const auto pedido = services::numeroDePaciente(dialogo.texto());
        if (pedido)
            filas.findFirst(u"[%1] = %2"_s.arg(numero).arg(*pedido));
        hallado = pedido && !filas.noMatch();
    }
    return hallado ? std::nullopt : std::optional(dialogo.texto());
}

#include "moc_buscaPaciente.cpp"
