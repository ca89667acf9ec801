#pragma once

#include "clinical/visits/consulta.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/layout.h"

namespace consultas
{

/// The symptoms, diagnoses and treatments of a visit as three lists with their commands, which the capture of
/// a visit and the browser of visits share: `Command1(n)` adds from the catalogue, `Command2(n)` removes, n
/// being the group.
class ListasDeConsulta : public QObject
{
    Q_OBJECT
public:
    ListasDeConsulta();

    enum class Botones { AlLado, Debajo };
    /// The lists one below the other, in the order of a consultation.
    forms::Item disposicion(Botones botones);
    /// The patient for whom doses are worked out.
    void setPaciente(const QString &numero) { paciente_ = numero; }
    void setEnabled(bool enabled);

    void vaciar();
    void agregarRenglon(Grupo grupo, const Renglon &renglon);
    std::vector<Renglon> renglones(Grupo grupo) const;

    /// Adds to the list with this index from its catalogue, as its command does; another index is refused
    /// with a message.
    void agregar(int indice);
    /// The list that has the focus, itself or one of its commands; -1 for none.
    int conFoco() const;
    bool comandoConFoco() const;

signals:
    void agregados(int grupo, const QStringList &nombres);
    void quitado(int grupo, const QString &nombre);

private:
    std::vector<Renglon> elegidos(Grupo grupo) const;
    void quitar(Grupo grupo);
    bool eventFilter(QObject *receptor, QEvent *evento) override;

    forms::ListBox mSintomas{QStringLiteral("mSintomas")};
    forms::ListBox mTratamientos{QStringLiteral("mTratamientos")};
    forms::ListBox mDiagnosticos{QStringLiteral("mDiagnosticos")};
    forms::ControlArray<forms::CommandButton> Command1{QStringLiteral("Command1")};
    forms::ControlArray<forms::CommandButton> Command2{QStringLiteral("Command2")};

    std::array<forms::ListBox *, grupos.size()> listas_ = {&mSintomas, &mTratamientos,
                                                           &mDiagnosticos}; ///< by Grupo
    QString paciente_;
};

} // namespace consultas
