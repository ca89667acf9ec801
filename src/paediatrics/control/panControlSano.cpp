#include "paediatrics/control/panControlSano.h"

#include "core/records/fichaDelPaciente.h"
#include "core/services/antecedentesPersonales.h"
#include "core/services/hallazgosPerinatales.h"
#include "core/services/paciente.h"
#include "core/services/services.h"
#include "core/session/ports.h"
#include "core/session/session.h"
#include "paediatrics/anthropometry/edadCorregida.h"
#include "paediatrics/anthropometry/ultimasMedidas.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

/// The commands that an age has no use for.
struct Oculto {
    int comando;
    sano::Franja desde;
};
constexpr Oculto ocultos[] = {
    {23, sano::Franja::PreYEscolar},
    {32, sano::Franja::PreYEscolar},
    {13, sano::Franja::PreYEscolar},
    {34, sano::Franja::Adolescente},
};

std::vector<ports::Renglon> renglones(const ListBox &lista)
{
    std::vector<ports::Renglon> todos;
    for (int i = 0; i < lista.count(); ++i)
        todos.push_back({lista.item(i)->text(), lista.item(i)->data(Qt::UserRole).toLongLong()});
    return todos;
}

void llenar(ListBox &lista, const QStringList &lineas)
{
    lista.clear();
    lista.addItems(lineas);
}

} // namespace

void panControlSano::activate()
{
    const auto numero = records::pacienteDe(*this);
    if (!numero)
        return;
    if (*numero != paciente_) {
        paciente_ = *numero;
        leerPaciente();
        if (paciente_ == 0)
            return;
        leerLoPropio();
    }
    mostrarLoAjeno();
}

void panControlSano::leerPaciente()
{
    auto paciente = services::paciente(paciente_);
    if (!paciente) {
        MODULE11::MuestraError(u"Paciente no encontrado"_s);
        paciente_ = 0;
        unload();
        return;
    }
    nombre_ = (*paciente)[u"Apellido y Nombres"].text();
    sexo_ = (*paciente)[u"Sexo"].text();
    nacimiento_.reset();
    if (const basic::Value dia = (*paciente)[u"Fecha de Nacimiento"]; !dia.isNull())
        nacimiento_ = dia.date();
    lblPaciente.setCaption(nombre_);
    mostrarFranja();
    mostrarEdadEnHitos();
}

void panControlSano::mostrarFranja()
{
    franja_.reset();
    if (nacimiento_)
        franja_ = sano::franjaDe(basic::today().wholeDays() - nacimiento_->wholeDays());
    Label1.setCaption(franja_ ? sano::rotulo(*franja_) : u"Falta la fecha de nacimiento"_s);
    for (const Oculto &oculto : ocultos)
        comandos_.at(oculto.comando)->setVisible(!franja_ || *franja_ < oculto.desde);
}

void panControlSano::mostrarEdadEnHitos()
{
    if (!nacimiento_)
        return;
    const auto dias = static_cast<double>(basic::today().wholeDays() - nacimiento_->wholeDays());
    const double corregida = paediatrics::edadCorregida(dias, paediatrics::diasDePrematuro(paciente_));
    hitos_.mostrarEdad(dias, corregida < dias ? std::optional(corregida) : std::nullopt);
}

/// What is written here and must not be lost when another window has been in front.
void panControlSano::leerLoPropio()
{
    binomioLeido_ = sano::binomio(paciente_);
    for (std::size_t i = 0; i < preguntas_.size(); ++i)
        preguntas_[i].mostrar(binomioLeido_[i]);
    mostrarScreening();
    maduracionLeida_ = sano::maduracionSexual(paciente_);
    for (QAbstractButton *opcion : maduracion_.buttons())
        opcion->setChecked(opcion->text() == maduracionLeida_);
    llenar(List3, sano::datosPositivos(paciente_));
    mostrarProblemas(sano::problemas(paciente_));
    leido_ = escrito();
}

void panControlSano::mostrarScreening()
{
    screeningLeido_ = sano::screening(paciente_);
    screening_.mostrar(screeningLeido_);
}

/// What other windows keep, and those that the sections open may have changed.
void panControlSano::mostrarLoAjeno()
{
    const sano::Problemas ahora = sano::problemas(paciente_);
    mostrarProblemas(sano::conciliar(leido_.problemas, problemasEscritos(), ahora));
    leido_.problemas = ahora;
    llenar(List8, services::antecedentesPersonales(paciente_));
    llenar(List1, sano::antecedentesFamiliares(paciente_));
    llenar(List6, sano::problemasNeurologicos(paciente_));
    llenar(List2, services::hallazgosPerinatales(paciente_));
    llenar(List9, sano::alimentos(paciente_));
    llenar(List10, sano::escolaridad(paciente_));
    const auto nombreEn = [this](QStringView campo) {
        return MODULE11::BuscaCampo(u"Select * from Pediatria where numero = %1"_s.arg(paciente_), campo)
            .text();
    };
    lblPadres.setCaption(
        u"Padre : %1\nMadre : %2"_s.arg(nombreEn(u"Nombre del padre"), nombreEn(u"Nombre de la madre")));
    if (!nacimiento_)
        return;
    llenar(List7, sano::vacunasQueFaltan(paciente_, *nacimiento_));
    const auto medidas = paediatrics::ultimasMedidas(paciente_, sexo_, *nacimiento_);
    for (auto &[i, etiqueta] : lblMedida) {
        const ports::MedidaEnPalabras &medida = medidas[static_cast<std::size_t>(i)];
        etiqueta->setCaption(
            medida.valor.isEmpty()
                ? u"no se tomó"_s
                : u"%1   %2   %3"_s.arg(medida.valor, basic::dateText(medida.fecha), medida.lugar));
    }
    const QStringList tension = sano::ultimaTension(paciente_, sexo_, *nacimiento_);
    lblTension.setCaption(tension.isEmpty() ? u"no se tomó"_s : tension.join(u'\n'));
}

/// Each line carries the table that it is written back to.
void panControlSano::mostrarProblemas(const sano::Problemas &problemas)
{
    List5.clear();
    for (const sano::Problema &problema : problemas) {
        auto *linea = new QListWidgetItem(problema.nombre, &List5);
        linea->setData(Qt::UserRole, static_cast<int>(problema.tabla));
    }
}

sano::Problemas panControlSano::problemasEscritos() const
{
    sano::Problemas todos;
    for (int i = 0; i < List5.count(); ++i)
        todos.push_back(
            {List5.item(i)->text(), static_cast<sano::Tabla>(List5.item(i)->data(Qt::UserRole).toInt())});
    return todos;
}

panControlSano::Escrito panControlSano::escrito() const
{
    return {problemasEscritos(), List3.lines(), List4.lines()};
}

/// A problem of a newborn is one of its diagnoses; a later one stands with the family's.
void panControlSano::agregarProblema()
{
    const auto elegido = ports::eligeDiagnostico();
    if (!elegido || elegido->nombre.isEmpty())
        return;
    const sano::Tabla tabla = franja_ == sano::Franja::RecienNacido ? sano::Tabla::DiagnosticoRN
                                                                    : sano::Tabla::PatologiasFamiliares;
    sano::Problemas todos = problemasEscritos();
    todos.push_back({elegido->nombre, tabla});
    mostrarProblemas(todos);
}

void panControlSano::agregarDato()
{
    if (const QString dato = Text1.text().trimmed(); !dato.isEmpty())
        List3.addLine(dato);
    Text1.clear();
}

/// Keeps the catalogue's key, by which the visit copies the dose.
void panControlSano::agregarIndicacion(const ports::Renglon &indicacion)
{
    if (indicacion.nombre.isEmpty())
        return;
    auto *linea = new QListWidgetItem(indicacion.nombre, &List4);
    linea->setData(Qt::UserRole, indicacion.id);
}

void panControlSano::elegirIndicacion()
{
    agregarIndicacion(ports::eligeTratamiento(QString::number(paciente_)));
}

void panControlSano::agregarAntecedente()
{
    const auto elegido = ports::eligePatologia(u"Antecedentes Personales"_s, 0);
    if (!elegido || elegido->nombre.isEmpty())
        return;
    List8.addLine(elegido->nombre);
    guardarAntecedentes();
}

void panControlSano::guardarAntecedentes()
{
    services::guardaAntecedentesPersonales(paciente_, List8.lines());
}

void panControlSano::quitarDe(ListBox &lista)
{
    qDeleteAll(lista.selectedItems()); // the focus alone chooses nothing
}

/// Mother and child, screening and maturation are not part of the visit. What nobody has changed is not
/// written: it may be another station's by now.
void panControlSano::guardarLoPropio()
{
    sano::Binomio respuestas;
    for (std::size_t i = 0; i < respuestas.size(); ++i)
        respuestas[i] = preguntas_[i].respuesta();
    if (respuestas != binomioLeido_)
        sano::guardar(paciente_, respuestas);
    binomioLeido_ = respuestas;
    if (const sano::Screening pruebas = screening_.pruebas(); pruebas != screeningLeido_) {
        sano::guardar(paciente_, pruebas);
        screeningLeido_ = pruebas;
    }
    const QAbstractButton *elegida = maduracion_.checkedButton();
    if (elegida && elegida->text() != maduracionLeida_) {
        sano::guardarMaduracionSexual(paciente_, mFecha.value(), elegida->text());
        maduracionLeida_ = elegida->text();
    }
}

/// What was typed and not added yet belongs to the control.
void panControlSano::guardar()
{
    agregarDato();
    agregarIndicacion({Text2.text().trimmed()});
    Text2.clear();
    guardarLoPropio();
    const Escrito control = escrito();
    sano::guardarListas(paciente_, control.problemas, control.datosPositivos);
    const sano::Medidas medidas = sano::ultimaMedicion(paciente_);
    std::vector<ports::Renglon> diagnosticos;
    for (const sano::Problema &problema : control.problemas)
        diagnosticos.push_back({problema.nombre});
    ports::registraControlDeSalud({.paciente = paciente_,
                                   .fecha = mFecha.value(),
                                   .peso = medidas.peso.text(),
                                   .talla = medidas.talla.text(),
                                   .perimetroCefalico = medidas.perimetroCefalico.text(),
                                   .diagnosticos = diagnosticos,
                                   .tratamientos = renglones(List4)});
    answer(u"SI"_s);
}

bool panControlSano::queryUnload()
{
    if (paciente_ == 0)
        return true;
    const bool pendiente = escrito() != leido_ || !Text1.text().isEmpty() || !Text2.text().isEmpty();
    if (pendiente && !MODULE11::PreguntaSiBorra(u"Cierra sin registrar el control de salud"_s))
        return false;
    guardarLoPropio();
    return true;
}

#include "moc_panControlSano.cpp"
