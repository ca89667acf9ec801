#include "specialties/odontology/PannuePractico.h"

#include "core/records/comando.h"
#include "core/services/services.h"
#include "platform/basic/runtime.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"
#include "specialties/odontology/presupuestos.h"

using namespace Qt::StringLiterals;
using namespace forms;
using records::comando;

namespace
{

constexpr int largoDelDetalle = 100, largoDelPrecio = 20;
constexpr double mayorPrecio = 1e12;

/// Asks until an amount is typed; nothing when the person cancels.
std::optional<basic::Currency> pidePrecio(const QString &inicial = {})
{
    QString escrito = inicial;
    for (;;) {
        const auto texto =
            inputBox(u"Escriba el Precio de la practica"_s, u"Practicas"_s, escrito, largoDelPrecio);
        if (!texto)
            return std::nullopt;
        const auto precio = basic::isNumeric(*texto) ? basic::toNumber(*texto) : std::nullopt;
        if (precio && *precio >= 0 && *precio <= mayorPrecio)
            return basic::Currency::fromDouble(*precio);
        MODULE11::MuestraError(u"El precio debe ser un importe, por ejemplo 1500,50"_s);
        escrito = *texto;
    }
}

} // namespace

PannuePractico::PannuePractico(std::optional<qint64> presupuesto, std::function<void()> agregada)
    : Form(u"PannuePractico"_s), presupuesto_(presupuesto), agregada_(std::move(agregada))
{
    setWindowTitle(u"Seleccione una Práctica"_s);
    DBGrid1.setSource(
        Data1, {{.heading = u"Práctica"_s, .field = u"detalle"_s, .width = 360},
                {.heading = u"Precio"_s, .field = u"precio"_s, .pattern = u"currency"_s, .width = 120}});
    CommandButton &usarla = comando(*this, u"Command1"_s, u"&USAR>>"_s, u"aceptar"_s, [this] { usar(); });
    usarla.setDefault(true);
    setContents(
        this,
        Column{
            Fields{{u"&Buscar :"_s, Text1}},
            Expanding(DBGrid1),
            lblAgregada,
            Row{comando(*this, u"Command3"_s, u"&Nuevo..."_s, u"agregar"_s, [this] { nueva(); }),
                comando(*this, u"Command5"_s, u"&Precio..."_s, u"editar"_s, [this] { cambiarPrecio(); }),
                comando(*this, u"Command4"_s, u"&Quitar"_s, u"quitar"_s, [this] { quitar(); }), Stretch(),
                usarla, comando(*this, u"Command2"_s, u"&Cerrar"_s, u"cerrar"_s, [this] { unload(); })},
        });
    resize(620, 480);
    connect(&Text1, &QLineEdit::textChanged, this, [this] { buscar(); });
    connect(&DBGrid1, &DBGrid::accepted, this, &PannuePractico::usar);
}

void PannuePractico::load()
{
    buscar();
    Text1.setFocus();
}

void PannuePractico::buscar(const QString &criterio)
{
    const QString escrito = Text1.text().trimmed();
    Data1.setRecordSource(escrito.isEmpty()
                              ? u"Select * from practicos order by detalle"_s
                              : u"Select * from practicos where detalle LIKE %1 order by detalle"_s.arg(
                                    dao::quoted(dao::typedPattern(escrito, dao::Match::Beginning))));
    Data1.refresh(criterio);
    Text1.setFound(escrito.isEmpty() || Data1.hasRow());
}

bool PannuePractico::hayPractica()
{
    if (Data1.hasRow())
        return true;
    MODULE11::MuestraError(u"Seleccione una Practica"_s);
    return false;
}

void PannuePractico::nueva()
{
    const auto detalle = inputBox(u"Escriba el Nombre de la practica"_s, u"Practicas"_s, {}, largoDelDetalle);
    if (!detalle || detalle->trimmed().isEmpty())
        return;
    const auto precio = pidePrecio();
    if (!precio)
        return;
    const qint64 id = presupuestos::nuevaPractica(detalle->trimmed(), *precio);
    Text1.clear();
    buscar(u"idpractico = %1"_s.arg(id));
}

void PannuePractico::cambiarPrecio()
{
    if (!hayPractica())
        return;
    if (const auto precio = pidePrecio(Data1.recordset()[u"precio"].text()))
        Data1.set(u"precio"_s, *precio);
}

void PannuePractico::quitar()
{
    if (hayPractica() && MODULE11::PreguntaSiBorra(u"Esta seguro que quiere borrar la práctica "_s +
                                                   Data1.recordset()[u"detalle"].text() + u"?"_s))
        Data1.deleteRow();
}

void PannuePractico::usar()
{
    if (!presupuesto_ || !presupuestos::existe(*presupuesto_)) {
        MODULE11::MuestraError(tag() == u"presu" ? u"Ingrese un Presupuesto Correcto"_s
                                                 : u"Seleccione un Presupuesto"_s);
        return;
    }
    if (!hayPractica())
        return;
    presupuestos::agregar(*presupuesto_, practica());
    lblAgregada.setCaption(u"Agregada: "_s + Data1.recordset()[u"detalle"].text());
    if (agregada_)
        agregada_();
}

#include "moc_PannuePractico.cpp"
