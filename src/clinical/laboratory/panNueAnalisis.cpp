#include "clinical/laboratory/panNueAnalisis.h"

#include "clinical/laboratory/perfiles.h"
#include "core/services/paciente.h"
#include "core/services/services.h"
#include "platform/basic/environment.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr int largoDelTexto = 100; // of Bioquimico and Descripcion

/// What is usual, and what the patient's earlier orders have.
void ofrecer(ComboBox &combo, const QString &campo, const QString &usual, qint64 paciente)
{
    MODULE11::LlenaLista(combo,
                         u"Select distinct [%1] from Analisis where paciente = %2 and [%1] <> %3"_s.arg(
                             campo, QString::number(paciente), dao::quoted(usual)),
                         campo);
    combo.insertItem(0, usual);
    combo.setValue(usual);
    combo.lineEdit()->setMaxLength(largoDelTexto);
}

} // namespace

panNueAnalisis::panNueAnalisis() : Form(u"panNueAnalisis"_s)
{
    setWindowTitle(u"Nuevo Analisis / Pedido de laboratorio"_s);
    Label1.setWordWrap(true);
    List1.ponerEnColumnas();
    setContents(this, Column{
                          Label1,
                          Row{Fields{{u"&Fecha :"_s, mFecha}}, Fields{{u"&Hora :"_s, mHora}},
                              Expanding(Fields{{u"T&ipo de análisis :"_s, comboTipoAnalisis}}),
                              Expanding(Fields{{u"&Bioquímico :"_s, comboBio}})},
                          Row{Expanding(Fields{{u"&Perfil :"_s, comboPerfil}}), Command3, Command4},
                          Expanding(Above(u"&Tildar los estudios pedidos :"_s, List1)),
                          Row{Stretch(), Command1, Command2},
                      });
    resize(1060, 510);
    comboPerfil.setToolTip(u"Tilda los estudios del perfil, además de los que ya están tildados"_s);
    Command3.setToolTip(u"Guarda los estudios tildados con un nombre, para pedirlos juntos otra vez"_s);
    connect(&comboPerfil, &QComboBox::textActivated, this,
            [this](const QString &perfil) { List1.tildar(laboratorio::estudiosDelPerfil(perfil)); });
    connect(&Command3, &QPushButton::clicked, this, &panNueAnalisis::guardarPerfil);
    connect(&Command4, &QPushButton::clicked, this, &panNueAnalisis::quitarPerfil);
    connect(&Command1, &QPushButton::clicked, this, &panNueAnalisis::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void panNueAnalisis::load()
{
    mFecha.setValue(basic::today());
    const QTime ahora = basic::now().time();
    mHora.setTime(QTime(ahora.hour(), ahora.minute())); // what is in sight is what is stored
    const qint64 paciente = services::numeroDePaciente(tag()).value_or(0);
    ofrecer(comboTipoAnalisis, u"Descripcion"_s, u"<Varios>"_s, paciente);
    ofrecer(comboBio, u"Bioquimico"_s, u"<No Aplicable>"_s, paciente);
    List1.llenar();
    llenarPerfiles();
    List1.setFocus();
}

void panNueAnalisis::llenarPerfiles()
{
    const QStringList perfiles = laboratorio::perfiles();
    comboPerfil.clear();
    comboPerfil.addItems(perfiles);
    comboPerfil.setCurrentIndex(-1);
    comboPerfil.setEnabled(!perfiles.isEmpty());
    Command4.setEnabled(!perfiles.isEmpty());
}

void panNueAnalisis::guardarPerfil()
{
    const QStringList tildados = List1.tildados();
    if (tildados.isEmpty()) {
        MODULE11::MuestraError(u"Tilde antes los estudios del perfil."_s);
        return;
    }
    const auto nombre = inputBox(u"Nombre del perfil :"_s, u"Guardar perfil"_s, comboPerfil.value(),
                                 laboratorio::largoDelPerfil);
    if (!nombre || nombre->trimmed().isEmpty())
        return;
    const QString perfil = nombre->trimmed();
    if (laboratorio::perfiles().contains(perfil, Qt::CaseInsensitive) &&
        !MODULE11::PreguntaSiBorra(u"El perfil «%1» ya existe. ¿Lo reemplaza?"_s.arg(perfil)))
        return;
    laboratorio::guardarPerfil(perfil, tildados);
    llenarPerfiles();
    comboPerfil.setValue(perfil);
}

void panNueAnalisis::quitarPerfil()
{
    const QString perfil = comboPerfil.value();
    if (perfil.isEmpty())
        MODULE11::MuestraError(u"Elija antes el perfil."_s);
    else if (MODULE11::PreguntaSiBorra(u"Borra el perfil «%1»"_s.arg(perfil))) {
        laboratorio::borrarPerfil(perfil);
        llenarPerfiles();
    }
}

void panNueAnalisis::aceptar()
{
    if (mFecha.readable()) {
        answer(u"SI"_s);
        return;
    }
    MODULE11::MuestraError(u"Datos mal ingresados."_s);
    markWrong(mFecha, u"Una fecha"_s);
}

laboratorio::Pedido panNueAnalisis::pedido() const
{
    return {mFecha.value(), basic::Date(mHora.time()), comboBio.value(), comboTipoAnalisis.value(),
            List1.tildados()};
}

#include "moc_panNueAnalisis.cpp"
