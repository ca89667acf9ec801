#pragma once

#include <QString>

#include <functional>

/// Long work on the practice's file as a whole. It is the only work that has a thread, with connections of
/// its own, so that the window keeps alive meanwhile; the base of the session is not touched by it.
namespace mantenimiento
{

/// Told how far the work is: its stage in words, and the bytes done of all, of an unknown total with 0. False
/// stops the work. It is called from the thread of the work.
using Avance = std::function<bool(const QString &etapa, qint64 hechos, qint64 total)>;

enum class Detencion { Posible, Imposible };

/// Does the work and waits for it: under the hourglass at first, then behind `panEsperaCopia`. False when it
/// was stopped. What the work throws comes out here.
bool trabajar(const QString &que, Detencion detencion, const std::function<bool(const Avance &)> &obra);

/// Closes the windows of the records, so that what is being written goes to the base before it is closed.
/// False when one keeps its text: then the work waits.
bool cerrarFichas();

/// While one lives the base may be closed, and nobody is to miss it.
class EnCurso
{
public:
    EnCurso();
    ~EnCurso();
    EnCurso(const EnCurso &) = delete;
    EnCurso &operator=(const EnCurso &) = delete;

    static bool hay();
};

} // namespace mantenimiento
