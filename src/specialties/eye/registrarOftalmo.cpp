#include "specialties/eye/registrarOftalmo.h"

#include "core/services/paciente.h"
#include "core/services/services.h"
#include "platform/basic/runtime.h"
#include "platform/dao/error.h"
#include "platform/forms/boxes.h"
#include "specialties/eye/winModConsulta.h"

using namespace Qt::StringLiterals;

bool registrarOftalmo(qint64 numero, qint64 idConsulta)
{
    const QString nombre = services::nombreDePaciente(QString::number(numero));
    winModConsulta captura;
    if (idConsulta == 0) {
        captura.mostrar(u"NUEVO"_s, u"Nueva Consulta a "_s + nombre, oftalmo::visitaNueva(numero));
    } else {
        const auto visita = oftalmo::leerVisita(idConsulta);
        if (!visita) {
            forms::msgBox(u"Consulta no encontrada !"_s, forms::Icon::Critical, u"Error"_s);
            return false;
        }
        captura.mostrar(
            u"CAMBIOS"_s,
            u"Edición de Consulta a %1 %2"_s.arg(nombre, records::valor(*visita, u"Fecha"_s).text()),
            *visita);
    }
    for (;;) {
        captura.setTag({});
        captura.showModal();
        if (captura.tag() != u"GRABAR")
            return false;
        try {
            oftalmo::guardarVisita(numero, idConsulta, captura.visita());
            return true;
        } catch (const basic::Error &error) {
            MODULE11::MuestraError(u"La consulta no se guardó.\n"_s + error.description());
        }
    }
}
