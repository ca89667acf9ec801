#include "core/session/ending.h"

#include "core/services/services.h"
#include "core/session/session.h"

#include <QCoreApplication>

namespace MODULE11
{

namespace
{

bool ended = false;
int status = 0;
std::function<void()> leaveLoop = [] { QCoreApplication::exit(status); };

} // namespace

void terminar(int estado)
{
    if (ended)
        return;
    ended = true;
    status = estado;
    BaseDatos.close();
    DescargaVentanas();
    leaveLoop();
}

bool terminado()
{
    return ended;
}

int estadoFinal()
{
    return status;
}

void setAlTerminar(std::function<void()> leave)
{
    leaveLoop = std::move(leave);
}

} // namespace MODULE11
