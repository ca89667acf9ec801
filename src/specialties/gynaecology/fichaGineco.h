#pragma once

#include "core/records/campos.h"
#include "platform/forms/form.h"

namespace gineco
{

/// One of the four windows over the patient's row of `Gineco`, each with its own columns: what it shows is
/// written when it is accepted, and the row is made at the first writing.
class FichaGineco : public forms::Form
{
    Q_OBJECT
protected:
    FichaGineco(const QString &ventana, const QString &titulo);

    /// The fields above the row of the buttons; `mas` stand at that row's left.
    void disponer(forms::Item contenido, std::vector<forms::Item> mas = {});
    void activate() override;

    records::Campos campos_{QStringLiteral("Gineco")};

private:
    void guardar();

    bool leida_ = false;
    forms::Label lblPaciente{QStringLiteral("lblPaciente")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
};

} // namespace gineco

/// "Antecedentes": cycles, method, pregnancies, and the way to the three others.
class panAnteGineco : public gineco::FichaGineco
{
    Q_OBJECT
public:
    panAnteGineco();

private:
    forms::DTPicker mDum{QStringLiteral("mDum"), forms::DTPicker::Presence::Optional};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("Genitales &externos...")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("&Vagina y tacto...")};
    forms::CommandButton Command5{QStringLiteral("Command5"), QStringLiteral("&Mamas...")};
};

/// What is seen from outside.
class panGinecoObs1 : public gineco::FichaGineco
{
    Q_OBJECT
public:
    panGinecoObs1();
};

/// The vagina, the neck of the womb, and what is felt.
class panGinecoObs2 : public gineco::FichaGineco
{
    Q_OBJECT
public:
    panGinecoObs2();
};

class panGinecoMamas : public gineco::FichaGineco
{
    Q_OBJECT
public:
    panGinecoMamas();

private:
    forms::MemoBox mObservaciones{QStringLiteral("mObservaciones")};
};
