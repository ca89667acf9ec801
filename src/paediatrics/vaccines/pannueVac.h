#pragma once

#include "paediatrics/vaccines/edades.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

namespace vacunas
{

/// A row of the plan as it is edited.
struct FilaDelPlan {
    QString descripcion, detalle, dosis, vacuna, temas;
    qint64 orden = 0;
    std::optional<EdadDeDosis> edad; ///< nothing: that of the row of the sheet
};

} // namespace vacunas

/// "Nueva vacuna": the entry of a dose of the plan. Answers "SI" or "NO".
class pannueVac : public forms::Form
{
    Q_OBJECT
public:
    pannueVac();
    explicit pannueVac(const vacunas::FilaDelPlan &fila); ///< to change it

    vacunas::FilaDelPlan fila() const;

private:
    void aceptar();
    QWidget *primeraMala();

    QString grupo_; ///< whom the dose is for stays as the calendar told it
    forms::TextBox mNombre{QStringLiteral("mNombre"), 50};
    forms::TextBox mDetalles{QStringLiteral("mDetalles"), 100};
    forms::ComboBox Combo1{QStringLiteral("Combo1"), {}, true};
    forms::TextBox mCodigo{QStringLiteral("mCodigo"), 20};
    forms::TextBox mOrden{QStringLiteral("mOrden"), 9};
    forms::MemoBox mInformacion{QStringLiteral("mInformacion")};
    forms::TextBox mRecomendada{QStringLiteral("mRecomendada"), 5};
    forms::TextBox mMinima{QStringLiteral("mMinima"), 5};
    forms::TextBox mMaxima{QStringLiteral("mMaxima"), 5};
    forms::TextBox mIntervalo{QStringLiteral("mIntervalo"), 5};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};
