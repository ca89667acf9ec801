#include "core/maintenance/panBackup.h"

#include "core/services/services.h"
#include "core/session/ending.h"
#include "core/session/session.h"
#include "core/session/startup.h"
#include "platform/basic/environment.h"
#include "platform/basic/errors.h"
#include "platform/forms/boxes.h"
#include "platform/forms/wrong.h"

#include <QDir>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr int masCopias = 999, masDias = 365;

void vestir(QSpinBox &numero, const QString &nombre, int hasta, const QString &sufijo, const QString &cero)
{
    numero.setObjectName(nombre);
    numero.setRange(0, hasta);
    numero.setSuffix(sufijo);
    numero.setSpecialValueText(cero);
    numero.setFixedWidth(130);
}

} // namespace

panBackup::panBackup() : Form(u"panBackup"_s)
{
    setWindowTitle(u"Seleccione destino del backup"_s);
    vestir(Conservar, u"Conservar"_s, masCopias, u" copias"_s, u"todas"_s);
    vestir(Dias, u"Dias"_s, masDias, u" días"_s, u"nunca"_s);
    Command1.setDefault(true);
    lblFalla.setWordWrap(true);
    lblFalla.setStyleSheet(u"color: #9c1c1c"_s);
    lblFalla.hide();
    setContents(this, Column{opciones(), lblFalla, Row{Stretch(), Command1, Command2}});
    setMinimumWidth(600);
    connect(&Command1, &QPushButton::clicked, this, &panBackup::copiar);
    connect(&Command2, &QPushButton::clicked, this, &panBackup::unload);
    connect(&Command3, &QPushButton::clicked, this, [this] { elegirCarpeta(Text1); });
    connect(&Command4, &QPushButton::clicked, this, [this] { elegirCarpeta(Text2); });
}

Item panBackup::opciones()
{
    return Fields{
        {Label1, Row{Expanding(Text1), Command3}},
        {u"&Segunda carpeta, en otro disco :"_s, Row{Expanding(Text2), Command4}},
        {u"Conservar en ca&da carpeta :"_s, Row{Conservar, Stretch()}},
        {u"A&visar cuando no hubo copia en :"_s, Row{Dias, Stretch()}},
    };
}

void panBackup::load()
{
    msgBox(
        u"Proceso de Backup: \nEste proceso requiere que ningún otro programa esté accediendo a la base de datos de Sanirell!, de ser así, por favor, cierre la o las aplicaciones antes de continuar con este proceso.\nLuego de terminar el backup, el sistema se cerrará."_s,
        Icon::Information, u"Backup"_s);
    const respaldo::Destino destino = respaldo::destino();
    Text1.setText(destino.carpeta);
    Text2.setText(destino.segunda);
    Conservar.setValue(destino.conservar);
    Dias.setValue(destino.diasDeAviso);
}

void panBackup::elegirCarpeta(TextBox &campo)
{
    const QString elegida =
        folderDialog(windowTitle(), campo.text().isEmpty() ? QDir::rootPath() : campo.text());
    if (!elegida.isEmpty())
        campo.setText(elegida);
}

respaldo::Destino panBackup::escrito() const
{
    return {Text1.text(), Text2.text().trimmed(), Conservar.value(), Dias.value()};
}

void panBackup::copiar()
{
    clearWrong(Text1);
    lblFalla.hide();
    if (Text1.text().trimmed().isEmpty()) {
        markWrong(Text1, u"Elija la carpeta"_s);
        return;
    }
    if (!mantenimiento::cerrarFichas())
        return;
    MODULE11::BaseDatos.close();
    try {
        if (hacer(escrito()))
            MODULE11::terminar();
    } catch (const basic::Error &error) {
        markWrong(Text1, error.description());
        lblFalla.setCaption(u"La copia no se hizo. "_s + error.description());
        lblFalla.show();
    }
}

bool panBackup::hacer(const respaldo::Destino &destino)
{
    std::optional<respaldo::Hecha> hecha;
    mantenimiento::trabajar(
        u"Se hace una copia de seguridad"_s, mantenimiento::Detencion::Posible, [&](const auto &avance) {
            hecha = respaldo::respaldar(destino, basic::programFile(u"BASE.MDB"_s),
                                        MODULE11::conexionDeLaBase(), basic::now(), avance);
            return hecha.has_value();
        });
    if (!hecha)
        return false;
    respaldo::recordar(destino);
    if (!hecha->fallaDeLaSegunda.isEmpty())
        MODULE11::Aviso(respaldo::avisoDeLaSegunda(*hecha));
    return true;
}

#include "moc_panBackup.cpp"
