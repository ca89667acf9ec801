#pragma once

#include "documents/prescriptions/hoja.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Receta": the sheet of a patient, with the prescription to write on it. Answers "GUARDAR" or "CERRAR"; it
/// keeps nothing itself, but what it prints is recorded first.
class winReceta : public forms::Form
{
    Q_OBJECT
public:
    winReceta(qint64 paciente, const QString &texto);

    QString texto() const { return textReceta.toPlainText(); }

protected:
    void activate() override;
    bool queryUnload() override;

private:
    void dibujar();
    void dibujarElementos(const recetario::Diseno &diseno);
    void abrirTratamiento(const QString &item);
    void imprimir();
    void repetir();

    qint64 paciente_;
    QString alAbrir_;
    bool dibujada_ = false;
    recetario::Hoja Picture2;
    forms::MemoBox textReceta{QStringLiteral("textReceta")}; ///< stands on the sheet, which outlives it
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Imprimir"),
                                  QStringLiteral("imprimir")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Guardar"),
                                  QStringLiteral("guardar")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("&Repetir la última receta"),
                                  QStringLiteral("copiar")};
};

/// The sheet as an errand: the text to keep, nothing when it was closed.
std::optional<QString> EmiteReceta(qint64 paciente, const QString &textoInicial);
