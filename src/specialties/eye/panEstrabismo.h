#pragma once

#include "core/records/campos.h"
#include "platform/forms/canvas.h"
#include "platform/forms/form.h"

/// "Estrabismo": the cover test in three rows of nine cells, the Bielschowsky test, and a board on which both
/// eyes are dragged to where they look; their deviations in prism dioptres, outwards positive, go with them.
/// Answers "SI" or "NO".
class panEstrabismo : public forms::Form
{
    Q_OBJECT
public:
    panEstrabismo();

    void mostrar(const records::Valores &valores);
    /// Its columns of the visit.
    records::Valores valores() const;

private:
    forms::Item grilla();
    void dibujarTablero();
    void moverOjos();
    void leerOjo(const QString &ojo, double lugar);
    bool revisar(forms::TextBox &desvio);

    QString anterior_; ///< what older files tell in words, kept while the eyes are straight
    records::Campos campos_{QStringLiteral("ConsultaOftalmo")};
    std::map<QString, forms::ControlArray<forms::TextBox>> celdas_; ///< by the name of the array
    forms::ControlArray<forms::TextBox> EstrBielch{QStringLiteral("EstrBielch")};
    forms::MemoBox estrDiag{QStringLiteral("estrDiag")};
    forms::Canvas Picture1;
    forms::TextBox Text1{QStringLiteral("Text1"), 6};
    forms::TextBox Text2{QStringLiteral("Text2"), 6};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("Al ce&ntro"),
                                  QStringLiteral("centro")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
};
