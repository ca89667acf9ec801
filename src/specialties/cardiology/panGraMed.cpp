#include "specialties/cardiology/panGraMed.h"

#include "core/records/fichaDelPaciente.h"
#include "core/services/paciente.h"
#include "core/services/services.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"
#include "platform/printing/printer.h"
#include "specialties/cardiology/panListaPeso.h"

#include <QFile>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr QSize medidaImpresa(1400, 900);
constexpr double anchoImpreso = 9500; // twips

} // namespace

panGraMed::panGraMed() : Form(u"panGraMed"_s)
{
    setWindowTitle(u"Registro y evolución del peso"_s);
    for (DTPicker *dia : {&dt1, &dt2})
        dia->setFixedWidth(130);
    setContents(this, Column{Row{Above(u"&Desde :"_s, dt1), Above(u"&Hasta :"_s, dt2),
                                 Column{Stretch(), Command1}, Stretch()},
                             Expanding(gr1), Row{Command3, Command4, Stretch(), Command2}});
    resize(820, 520);
    connect(&Command1, &QPushButton::clicked, this, &panGraMed::graficar);
    connect(&Command2, &QPushButton::clicked, this, &panGraMed::unload);
    connect(&Command3, &QPushButton::clicked, this, &panGraMed::lista);
    connect(&Command4, &QPushButton::clicked, this, &panGraMed::imprimir);
}

void panGraMed::activate()
{
    const auto paciente = records::pacienteDe(*this);
    if (!paciente || *paciente == paciente_)
        return;
    paciente_ = *paciente;
    setWindowTitle(u"Registro y evolución del peso de : "_s + services::nombreDePaciente(tag()));
    dt1.setValue(pesos::primerDia(paciente_));
    dt2.setValue(basic::today());
    dibujar();
}

void panGraMed::graficar()
{
    if (!pesos::hayMedidas(paciente_, dt1.value(), dt2.value()))
        msgBox(u"No hay datos a mostrar en período marcado !"_s, Icon::Exclamation, u"Atención"_s);
    dibujar();
}

void panGraMed::dibujar()
{
    auto puntos = pesos::entre(paciente_, dt1.value(), dt2.value());
    Command4.setEnabled(!puntos.empty());
    gr1.mostrar(std::move(puntos), dt1.value(), dt2.value());
}

void panGraMed::lista()
{
    panListaPeso ventana;
    ventana.setTag(tag());
    ventana.showModal();
    dibujar();
}

void panGraMed::imprimir()
{
    const QString titulo = u"Evolución de peso del paciente "_s + services::nombreDePaciente(tag());
    const auto impresora = printing::chooserDialog(titulo);
    if (!impresora)
        return;
    const QString archivo = basic::programFile(u"imagenPeso.bmp"_s);
    QFile::remove(basic::programFile(u"imagenpeso.bmp"_s));
    if (!gr1.imagen(medidaImpresa).save(archivo)) {
        MODULE11::MuestraError(u"No se pudo escribir el archivo "_s + archivo);
        return;
    }
    printing::Document hoja(*impresora, titulo);
    QFont letra;
    letra.setPointSize(14);
    hoja.setFont(letra);
    hoja.print(titulo);
    letra.setPointSize(11);
    hoja.setFont(letra);
    hoja.print(u"Desde la fecha %1 a la fecha %2"_s.arg(basic::format(dt1.value(), u"dd/mm/yyyy"),
                                                        basic::format(dt2.value(), u"dd/mm/yyyy")));
    hoja.paintPicture(QImage(archivo), anchoImpreso,
                      anchoImpreso * medidaImpresa.height() / medidaImpresa.width());
    hoja.endDoc();
}

#include "moc_panGraMed.cpp"
