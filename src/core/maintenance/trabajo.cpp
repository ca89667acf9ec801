#include "core/maintenance/trabajo.h"

#include "core/maintenance/panEsperaCopia.h"
#include "core/services/services.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMutex>

#include <algorithm>
#include <chrono>
#include <future>
#include <thread>

namespace mantenimiento
{

namespace
{

using namespace std::chrono_literals;

constexpr auto bajoElReloj = 700ms; // what a person waits without asking
constexpr int cadaCuanto = 60;      // milliseconds between two looks at the work

int obrasEnCurso = 0; // of the window's thread alone

/// What the thread tells and what it is told.
class Estado
{
public:
    bool decir(const QString &etapa, qint64 hechos, qint64 total)
    {
        const QMutexLocker llave(&mutex_);
        etapa_ = etapa;
        hechos_ = hechos;
        total_ = total;
        return !detenido_;
    }
    void mostrar(panEsperaCopia &espera)
    {
        const QMutexLocker llave(&mutex_);
        espera.mostrar(etapa_, hechos_, total_);
        detenido_ = espera.detenida();
    }

private:
    QMutex mutex_;
    QString etapa_;
    qint64 hechos_ = 0, total_ = 0;
    bool detenido_ = false;
};

bool listo(const std::future<bool> &resultado, std::chrono::milliseconds espera = 0ms)
{
    return resultado.wait_for(espera) == std::future_status::ready;
}

} // namespace

bool trabajar(const QString &que, Detencion detencion, const std::function<bool(const Avance &)> &obra)
{
    const EnCurso enCurso;
    Estado estado;
    std::packaged_task<bool()> tarea([&] {
        return obra([&estado](const QString &etapa, qint64 hechos, qint64 total) {
            return estado.decir(etapa, hechos, total);
        });
    });
    std::future<bool> resultado = tarea.get_future();
    const std::jthread hilo(std::move(tarea));
    MODULE11::RelojEspera();
    const bool corta = listo(resultado, bajoElReloj);
    MODULE11::RelojNormal();
    if (!corta) {
        panEsperaCopia espera(que, detencion == Detencion::Posible);
        forms::Timer mirada(QStringLiteral("Timer1"), cadaCuanto);
        QObject::connect(&mirada, &QTimer::timeout, &espera, [&] {
            if (listo(resultado))
                espera.answer(QStringLiteral("SI"));
            else
                estado.mostrar(espera);
        });
        mirada.start();
        espera.showModal();
    }
    return resultado.get();
}

bool cerrarFichas()
{
    if (!forms::childArea())
        return true;
    for (QMdiSubWindow *ficha : forms::childArea()->subWindowList())
        ficha->close();
    return std::ranges::none_of(forms::childArea()->subWindowList(), &QMdiSubWindow::isVisible);
}

EnCurso::EnCurso()
{
    ++obrasEnCurso;
}

EnCurso::~EnCurso()
{
    --obrasEnCurso;
}

bool EnCurso::hay()
{
    return obrasEnCurso > 0;
}

} // namespace mantenimiento
