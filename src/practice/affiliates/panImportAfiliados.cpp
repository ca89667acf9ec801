#include "practice/affiliates/panImportAfiliados.h"

#include "core/security/eventos.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"
#include "platform/forms/progress.h"
#include "platform/forms/wrong.h"
#include "platform/settings/settings.h"
#include "practice/affiliates/panConfCamposImport.h"
#include "practice/affiliates/panPruebaImport.h"

#include <QFileInfo>
#include <QScopeGuard>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

const QString miscelaneas = u"Miscelaneas"_s;
const QString ultimaObraSocial = u"OBRASOCIAL"_s;
const QString ultimoArchivo = u"RutaArchivoTXTImportar"_s;
constexpr int lineasDeMuestra = 20;
constexpr int pasos = 1000; // of the bar

} // namespace

panImportAfiliados::panImportAfiliados() : Form(u"panImportAfiliados"_s)
{
    setWindowTitle(u"Proceso de actualización de afiliados"_s);
    Label1.setCaption(
        u"Este proceso actualiza el padrón de afiliados / pacientes en la base de datos según la información proporcionada por un archivo de texto plano. Por favor, remítase ante nada a configurar los campos de dicho archivo para que la operación sea exitosa."_s);
    Label1.setWordWrap(true);
    pb1.setObjectName(u"pb1"_s);
    pb1.setRange(0, pasos);
    pb1.setValue(0);
    txResumen.setReadOnly(true);
    setContents(this, Column{
                          Label1,
                          Fields{{u"Obra so&cial :"_s, cbObraSocial},
                                 {u"&Archivo :"_s, Row{Expanding(txArchImport), Command1}}},
                          Row{Expanding(pb1), lblnumreg},
                          Expanding(Above(u"&Resultado :"_s, txResumen)),
                          Row{Command2, Command5, Command3, Stretch(), Command4},
                      });
    resize(720, 520);
    connect(&Command1, &QPushButton::clicked, this, &panImportAfiliados::elegirArchivo);
    connect(&Command2, &QPushButton::clicked, this, &panImportAfiliados::ejecutar);
    connect(&Command3, &QPushButton::clicked, this, &panImportAfiliados::configurar);
    connect(&Command4, &QPushButton::clicked, this, &panImportAfiliados::unload);
    connect(&Command5, &QPushButton::clicked, this, &panImportAfiliados::probar);
}

void panImportAfiliados::load()
{
    desatendido_ = tag() == u"AUTO";
    txArchImport.setText(settings::getSetting(miscelaneas, ultimoArchivo));
    if (!MODULE11::BaseDatos.isOpen())
        return;
    MODULE11::LlenaLista(cbObraSocial, u"Select Descripcion from [Obra Social] order by Descripcion"_s,
                         u"Descripcion");
    cbObraSocial.setValue(settings::getSetting(miscelaneas, ultimaObraSocial));
}

void panImportAfiliados::activate()
{
    if (!desatendido() || enMarcha_)
        return;
    bool hecho = false;
    try {
        hecho = procesar();
    } catch (const basic::Error &error) {
        rehusar(error.description());
    }
    answer(hecho ? u"SI"_s : u"NO"_s);
}

void panImportAfiliados::elegirArchivo()
{
    const QString elegido =
        openFileDialog(u"Archivo de afiliados"_s, QFileInfo(txArchImport.text()).absolutePath(),
                       u"Archivos de texto (*.txt *.TXT *.dat *.DAT *.prn *.csv);;Todos los archivos (*)"_s);
    if (!elegido.isEmpty())
        txArchImport.setText(elegido);
}

void panImportAfiliados::configurar()
{
    panConfCamposImport campos;
    campos.showModal();
}

void panImportAfiliados::guardarOpciones() const
{
    settings::saveSetting(miscelaneas, ultimaObraSocial, cbObraSocial.value());
    settings::saveSetting(miscelaneas, ultimoArchivo, txArchImport.text());
}

void panImportAfiliados::rehusar(const QString &motivo, QWidget *campo)
{
    if (desatendido()) {
        MODULE11::RegistraEvento(u"ImportarAfiliados"_s, motivo);
        return;
    }
    msgBox(motivo, Icon::Critical, u"Error"_s);
    if (campo)
        campo->setFocus();
}

std::optional<afiliados::Mapa> panImportAfiliados::preparado()
{
    guardarOpciones();
    txResumen.clear();
    clearWrong(txArchImport);
    if (cbObraSocial.value().isEmpty()) {
        rehusar(u"Ingrese la mutual u Obra Social correspondiente!"_s, &cbObraSocial);
        return std::nullopt;
    }
    if (!QFileInfo(txArchImport.text()).isFile()) {
        const QString motivo = u"No se encuentra el archivo %1."_s.arg(txArchImport.text());
        if (desatendido())
            rehusar(motivo);
        txResumen.setPlainText(motivo);
        markWrong(txArchImport, motivo);
        return std::nullopt;
    }
    const afiliados::Mapa mapa = afiliados::leerMapa();
    if (mapa.vacio) {
        rehusar(u"Error, la tabla de esquemas no está configurada !"_s);
        return std::nullopt;
    }
    if (!mapa.claveDefinida()) {
        rehusar(u"Error, no está bien definido el campo de búsqueda o índice!!"_s);
        return std::nullopt;
    }
    return mapa;
}

void panImportAfiliados::habilitar(bool si)
{
    for (CommandButton *orden : {&Command1, &Command2, &Command3, &Command4, &Command5})
        orden->setEnabled(si);
    enMarcha_ = !si;
}

/// Whatever stops it, the commands are there again.
afiliados::Resumen panImportAfiliados::correr(const afiliados::Mapa &mapa, bool ensayo)
{
    habilitar(false);
    const auto despues = qScopeGuard([this] { habilitar(true); });
    Progress avance(ensayo ? u"Probando el archivo de afiliados..."_s : u"Actualizando los afiliados..."_s);
    const auto mostrar = [&](qint64 hechas, qint64 total) {
        lblnumreg.setCaption(basic::format(hechas, u"###,###,##0") + u" registros."_s);
        pb1.setValue(total > 0 ? static_cast<int>(hechas * pasos / total) : pasos);
        return avance.tell(hechas, total);
    };
    const afiliados::Resumen resumen =
        afiliados::actualizar({cbObraSocial.value(), txArchImport.text(), ensayo}, mapa, mostrar);
    txResumen.setPlainText(resumen.texto(ensayo));
    return resumen;
}

bool panImportAfiliados::procesar()
{
    const auto mapa = preparado();
    if (!mapa)
        return false;
    const afiliados::Resumen resumen = correr(*mapa, false);
    if (desatendido())
        MODULE11::RegistraEvento(u"ImportarAfiliados"_s,
                                 u"%1 nuevos, %2 modificados, %3 salteadas"_s.arg(resumen.nuevos)
                                     .arg(resumen.modificados)
                                     .arg(resumen.cantidadDeSalteadas()));
    else if (!resumen.detenido)
        msgBox(u"Proceso terminado."_s, Icon::Information, u"Listo"_s);
    return !resumen.detenido;
}

void panImportAfiliados::ejecutar()
{
    procesar();
}

void panImportAfiliados::probar()
{
    const auto mapa = preparado();
    if (!mapa)
        return;
    const auto lineas = afiliados::primerasLineas(txArchImport.text(), *mapa, lineasDeMuestra);
    panPruebaImport prueba(*mapa, lineas, correr(*mapa, true).texto(true));
    prueba.showModal();
}

#include "moc_panImportAfiliados.cpp"
