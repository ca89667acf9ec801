#pragma once

#include "clinical/laboratory/fechaDeEstudio.h"
#include "core/records/tabla.h"

/// The special studies of the patient whose number is the tag.
class panEstudios : public records::ListaDelPaciente
{
    Q_OBJECT
public:
    panEstudios();

protected:
    void activate() override;
    bool queryUnload() override;
    void rowShown() override;

private:
    forms::Item estudio();
    void nuevo();
    void guardar();
    void guardarFecha();
    void abrirInforme();

    FechaDeEstudio mFecha{QStringLiteral("mFecha")};
    forms::TextBox mTipo{QStringLiteral("mTipo")};
    forms::TextBox mEspecialista{QStringLiteral("mEspecialista")};
    forms::MemoBox mResultados{QStringLiteral("mResultados")};
    forms::MemoBox mObservaciones{QStringLiteral("mObservaciones")};
    QString fechaMostrada_;
};
