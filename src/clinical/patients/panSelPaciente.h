#pragma once

#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"

/// "Seleccionar Paciente": the register, by letter or by quick search. Answers the number of the patient
/// chosen; empty when none was.
class panSelPaciente : public forms::Form
{
    Q_OBJECT
public:
    panSelPaciente();

protected:
    void load() override;
    void activate() override;
    bool eventFilter(QObject *receptor, QEvent *evento) override;

private:
    void armarLista();
    void irALetra();
    void buscar(forms::SearchBox &casilla, const QString &criterio);
    void buscarNumero(const QString &texto);
    void buscarNombre(const QString &texto);
    void mostrarElegido();
    void buscarConDialogo();
    void aceptar();

    forms::SSTab SSTab1{QStringLiteral("SSTab1")};
    forms::Data Data1{QStringLiteral("Data1")};
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};
    forms::SearchBox Text1{QStringLiteral("Text1"), 9};
    forms::SearchBox Text2{QStringLiteral("Text2"), 100};
    forms::CheckBox checkBajas{QStringLiteral("checkBajas"),
                               QStringLiteral("&Ocultar pacientes con fecha de baja")};
    forms::Label Label5{QStringLiteral("Label5"), QStringLiteral("Cant. Pacientes :")};
    forms::ControlArray<forms::Label> lblDato{QStringLiteral("lblDato")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Buscar..."),
                                  QStringLiteral("buscar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};

    QString filtro_ = QStringLiteral(" true "); ///< which professionals' patients are seen
    QString numero_;                            ///< of the current row
    QString letraDeLaLista_;                    ///< the tab that the list was built with
};
