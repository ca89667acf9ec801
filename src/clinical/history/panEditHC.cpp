#include "clinical/history/panEditHC.h"

#include "clinical/history/historiaComoTexto.h"
#include "clinical/patients/eligePaciente.h"
#include "core/security/eventos.h"
#include "core/services/paciente.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"
#include "platform/forms/colour.h"
#include "platform/forms/layout.h"
#include "platform/printing/printer.h"
#include "platform/settings/settings.h"

#include <QFontDatabase>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

const QString accion = u"EDICION DE HC.TEXTUAL"_s;
const QString ajusteFuente = u"Fuente Editor de HC"_s;
const QString ajusteTamano = u"Tamaño Fuente Editor de HC"_s;
const QString ajusteFondo = u"Color Fondo HC"_s;
const QString ajusteLetra = u"Color Letra HC"_s;

QString ajuste(const QString &clave, const QString &omision = {})
{
    const QString valor = settings::getSetting(u"Configuracion"_s, clave);
    return valor.isEmpty() ? omision : valor;
}

void guardarAjuste(const QString &clave, const QString &valor)
{
    settings::saveSetting(u"Configuracion"_s, clave, valor);
}

QFont fuenteElegida()
{
    return QFont(ajuste(ajusteFuente, u"Arial"_s), ajuste(ajusteTamano, u"10"_s).toInt());
}

} // namespace

panEditHC::panEditHC() : Form(u"panEditHC"_s)
{
    setWindowTitle(u"Edición de la historia clinica de "_s);
    for (int puntos : {8, 9, 10, 11, 12, 14, 16, 18, 20, 24, 28, 36})
        Combo1.addItem(QString::number(puntos));
    Combo2.addItems(QFontDatabase::families());

    setContents(this, Column{
                          Row{Command3, Command1, Command2, Stretch(), Command9},
                          Row{Command4, Command5, Command6, Stretch(), Fields{{u"&Fuente :"_s, Combo2}},
                              Fields{{u"&Tamaño :"_s, Combo1}}, Command7, Command8},
                          Expanding(RT1),
                      });
    resize(900, 560);

    connect(&RT1, &QPlainTextEdit::textChanged, this, [this] { modificado_ = true; });
    connect(&Combo1, &QComboBox::textActivated, this, [this](const QString &puntos) {
        guardarAjuste(ajusteTamano, puntos);
        aplicarAspecto();
    });
    connect(&Combo2, &QComboBox::textActivated, this, [this](const QString &familia) {
        guardarAjuste(ajusteFuente, familia);
        aplicarAspecto();
    });
    connect(&Command1, &QPushButton::clicked, this, &panEditHC::abrirOtra);
    connect(&Command2, &QPushButton::clicked, this, &panEditHC::imprimir);
    connect(&Command3, &QPushButton::clicked, this, &panEditHC::guardar);
    connect(&Command4, &QPushButton::clicked, &RT1, &QPlainTextEdit::cut);
    connect(&Command5, &QPushButton::clicked, &RT1, &QPlainTextEdit::copy);
    connect(&Command6, &QPushButton::clicked, &RT1, &QPlainTextEdit::paste);
    connect(&Command7, &QPushButton::clicked, this, [this] { elegirColor(ajusteFondo, u"Fondo"_s); });
    connect(&Command8, &QPushButton::clicked, this, [this] { elegirColor(ajusteLetra, u"Letra"_s); });
    connect(&Command9, &QPushButton::clicked, this, &panEditHC::agregarInteractiva);
}

void panEditHC::load()
{
    captionAjeno_ = windowTitle() != u"Edición de la historia clinica de ";
    aplicarAspecto();
}

void panEditHC::activate()
{
    if (cargado_ == tag())
        return;
    cargar();
    RT1.setFocus();
}

void panEditHC::cargar()
{
    auto paciente = services::paciente(tag());
    if (!paciente) {
        MODULE11::MuestraError(u"Paciente no encontrado!"_s);
        return;
    }
    if (!captionAjeno_)
        setWindowTitle(u"Edición de la historia clinica de "_s + (*paciente)[u"Apellido y Nombres"].text());
    RT1.setPlainText((*paciente)[u"Historia Clinica"].text());
    cargado_ = tag();
    modificado_ = false;
}

void panEditHC::aplicarAspecto()
{
    const QFont fuente = fuenteElegida();
    if (Combo2.findText(fuente.family()) < 0)
        Combo2.insertItem(0, fuente.family()); // chosen on another machine; the nearest font shows it
    Combo1.setValue(QString::number(fuente.pointSize()));
    Combo2.setValue(fuente.family());
    RT1.setFont(fuente);
    if (const QString fondo = ajuste(ajusteFondo); !fondo.isEmpty())
        setBackColor(RT1, fromColourValue(fondo.toInt()));
    if (const QString letra = ajuste(ajusteLetra); !letra.isEmpty())
        setForeColor(RT1, fromColourValue(letra.toInt()));
}

void panEditHC::elegirColor(const QString &clave, const QString &titulo)
{
    const QString guardado = ajuste(clave);
    const QColor actual = clave == ajusteFondo ? backColor(RT1) : foreColor(RT1);
    const auto elegido =
        colourDialog(titulo, guardado.isEmpty() ? actual : fromColourValue(guardado.toInt()));
    if (!elegido)
        return;
    guardarAjuste(clave, QString::number(toColourValue(*elegido)));
    aplicarAspecto();
}

/// Whether the text may be left: nothing was changed, or the person gives the changes up.
bool panEditHC::dejarLosCambios()
{
    if (!modificado_)
        return true;
    if (!MODULE11::PreguntaSiBorra(u"Está seguro de salir sin guardar los cambios??"_s))
        return false;
    MODULE11::RegistraEvento(accion, u"PACIENTE : %1 // SALE SIN GUARDAR CAMBIOS"_s.arg(cargado_));
    return true;
}

bool panEditHC::queryUnload()
{
    return dejarLosCambios();
}

void panEditHC::abrirOtra()
{
    const std::optional<qint64> numero = EligePaciente();
    if (!numero || !dejarLosCambios())
        return;
    setTag(QString::number(*numero));
    captionAjeno_ = false;
    cargar();
}

void panEditHC::imprimir()
{
    const auto impresora = printing::defaultChoice(windowTitle());
    if (!impresora)
        return;
    printing::Document documento(*impresora, impresora->name);
    documento.setFont(fuenteElegida());
    documento.print(u"Fecha de impresión : "_s + basic::format(basic::today(), u"dd/mm/yyyy"));
    documento.print(u"----------------------------------"_s);
    documento.print(RT1.toPlainText());
    documento.endDoc();
}

void panEditHC::agregarInteractiva()
{
    const auto numero = services::numeroDePaciente(tag());
    const QString historia = numero ? clinical::historiaComoTexto(*numero, true) : QString();
    if (!historia.isEmpty())
        RT1.setPlainText(RT1.toPlainText() + u'\n' + historia);
}

void panEditHC::guardar()
{
    auto paciente = services::paciente(tag());
    if (!paciente) {
        MODULE11::MuestraError(u"No se localizó el paciente para efectuar los cambios!!!"_s);
        return;
    }
    const QString texto = RT1.toPlainText();
    paciente->edit([&] { (*paciente)[u"Historia Clinica"] = texto; });
    modificado_ = false;
    MODULE11::RegistraEvento(
        accion, u"GUARDAR CAMBIOS // PACIENTE : %1 // LARGO TXT : %2"_s.arg(tag()).arg(texto.size()));
}

#include "moc_panEditHC.cpp"
