#include "clinical/family/panArbol.h"

#include "clinical/family/impresion.h"
#include "clinical/family/panResFliares.h"
#include "clinical/family/panSelAnteFliar.h"
#include "core/records/fichaDelPaciente.h"
#include "core/services/paciente.h"
#include "core/services/services.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr int anchoDelPanel = 270;

} // namespace

panArbol::panArbol() : Form(u"panArbol"_s)
{
    setWindowTitle(u"Arbol genealogico - Antecedentes"_s);
    Label1.setWordWrap(true);
    Label2.setWordWrap(true);
    QFont destacada = Label2.font();
    destacada.setBold(true);
    Label2.setFont(destacada);
    List1.setWordWrap(true);
    List1.setToolTip(u"Patologías del pariente"_s);
    Label1.setFixedWidth(anchoDelPanel);
    Frame1.setFixedWidth(anchoDelPanel);
    arbol.setAccessibleName(u"Arbol genealogico"_s);
    setContents(this, Column{
                          Row{Expanding(arbol),
                              Column{Label1, Expanding(Group(Frame1, Column{Label2, Expanding(List1)}))}},
                          Row{Command1, Command2, Stretch(), Command3},
                      });
    connect(&arbol, &Canvas::pointedAt, this, &panArbol::informar);
    connect(&arbol, &Canvas::clicked, this, &panArbol::editar);
    connect(&Command1, &QPushButton::clicked, this, &panArbol::resumir);
    connect(&Command2, &QPushButton::clicked, this, &panArbol::imprimir);
    connect(&Command3, &QPushButton::clicked, this, &panArbol::unload);
}

void panArbol::activate()
{
    const auto numero = records::pacienteDe(*this);
    if (!numero)
        return;
    auto paciente = services::paciente(*numero);
    if (!paciente) {
        MODULE11::MuestraError(u"No se localizó el paciente."_s);
        unload();
        return;
    }
    arbol.mostrarPaciente((*paciente)[u"Apellido y Nombres"].text(), (*paciente)[u"Sexo"].text());
    redibujar(*numero);
}

void panArbol::redibujar(qint64 paciente)
{
    familia_ = familia::leer(paciente);
    int numero = 0;
    for (const familia::Pariente &pariente : familia::parientes())
        arbol.mostrar(numero++, familia_[pariente.nombre]);
    informar(arbol.focused() ? arbol.focused()->name() : QString());
}

void panArbol::informar(const QString &caja)
{
    Label2.setCaption({});
    List1.clear();
    const auto numero = arbol.numeroDe(caja);
    if (!numero)
        return;
    const QString &nombre = familia::parientes()[static_cast<std::size_t>(*numero)].nombre;
    Label2.setCaption(nombre);
    List1.addItems(familia::enPalabras(familia_[nombre]));
}

void panArbol::editar(const QString &caja)
{
    if (const auto numero = arbol.numeroDe(caja)) {
        panSelAnteFliar antecedentes(tag().toLongLong(),
                                     familia::parientes()[static_cast<std::size_t>(*numero)].nombre);
        antecedentes.showModal();
    }
}

void panArbol::resumir()
{
    panResFliares(familia::resumen(familia_)).showModal();
}

void panArbol::imprimir()
{
    const QString nombre = services::nombreDePaciente(tag());
    familia::imprimir(arbol, u"Arbol genealogico de "_s + nombre, familia::resumen(familia_));
}

#include "moc_panArbol.cpp"
