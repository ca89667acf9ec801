#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "practice/affiliates/proceso.h"

#include <QProgressBar>

/// "Proceso de actualización de afiliados": merges the roll of a coverage plan into the register of patients.
/// With the tag "AUTO" it does so at once, with what was chosen last, and answers "SI" or "NO"; what keeps it
/// from its work is left in the table of events.
class panImportAfiliados : public forms::Form
{
    Q_OBJECT
public:
    panImportAfiliados();

protected:
    void load() override;
    void activate() override;
    bool queryUnload() override { return !enMarcha_; }

private:
    bool desatendido() const { return desatendido_; }
    void elegirArchivo();
    void configurar();
    void guardarOpciones() const;
    void ejecutar();
    void probar();
    bool procesar();
    /// The map, once plan, file and map allow the run; nothing, once told, when they do not.
    std::optional<afiliados::Mapa> preparado();
    void rehusar(const QString &motivo, QWidget *campo = nullptr);
    afiliados::Resumen correr(const afiliados::Mapa &mapa, bool ensayo);
    void habilitar(bool si);

    bool enMarcha_ = false;
    bool desatendido_ = false;

    forms::Label Label1{QStringLiteral("Label1")};
    forms::ComboBox cbObraSocial{QStringLiteral("cbObraSocial")};
    forms::TextBox txArchImport{QStringLiteral("txArchImport")};
    QProgressBar pb1;
    forms::Label lblnumreg{QStringLiteral("lblnumreg"), QStringLiteral("0 registros")};
    forms::MemoBox txResumen{QStringLiteral("txResumen")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Buscar..."),
                                  QStringLiteral("abrir")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Ejecutar proceso..."),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("C&onfigurar campos..."),
                                  QStringLiteral("configurar")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("&Salir"),
                                  QStringLiteral("cerrar")};
    forms::CommandButton Command5{QStringLiteral("Command5"), QStringLiteral("&Probar sin grabar..."),
                                  QStringLiteral("ver")};
};
