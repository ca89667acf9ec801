#include "core/session/ending.h"

#include "core/services/services.h"
#include "core/session/session.h"

#include <QCoreApplication>

namespace MODULE11
{

namespace
{

bool ended = false;
std::function<void()> leaveLoop = [] { QCoreApplication::exit(0); };

} // namespace

void terminar()
{
    if (ended)
        return;
    ended = true;
    BaseDatos.close();
    DescargaVentanas();
    leaveLoop();
}

bool terminado()
{
    return ended;
}

void setAlTerminar(std::function<void()> leave)
{
    leaveLoop = std::move(leave);
}

} // namespace MODULE11
