#pragma once

#include "clinical/visits/examen.h"
#include "clinical/visits/listasDeConsulta.h"
#include "clinical/visits/opcionesDeConsulta.h"
#include "platform/forms/form.h"

/// "Nueva visita o consulta": captures a visit, with the patient's number in its tag. It writes nothing: it
/// answers "SI" or "NO", and its caller records what visita() gives. Filled in with the keyboard alone: Enter
/// goes to the next field and from one page of the examination to the next.
class panNueConsulta : public forms::Form
{
    Q_OBJECT
public:
    panNueConsulta();

    /// The speciality that the visit is of, for the person to change; the doctor's own otherwise.
    void proponerEspecialidad(const QString &especialidad) { comboEspecialidad.setValue(especialidad); }

    consultas::Visita visita() const;

protected:
    void load() override;
    bool queryUnload() override;
    void escape() override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *evento) override;

private:
    void disponer();
    forms::Item datosDeLaVisita();
    forms::Item signos();
    forms::Page ficha(int numero);
    forms::Item marco(examen::Marco marco);
    bool enBlanco() const;
    void irAlCampoSiguiente();
    void anotarNormal();
    void aceptar();

    forms::Label lblPaciente{QStringLiteral("lblPaciente")};
    forms::DTPicker mFecha{QStringLiteral("mFecha")};
    forms::ControlArray<forms::TextBox> mDato{QStringLiteral("mDato")};
    consultas::OpcionesDeConsulta opciones;
    forms::ComboBox comboEspecialidad;
    forms::MemoBox text9{QStringLiteral("text9")};
    forms::ControlArray<forms::TextBox> Text3{QStringLiteral("Text3")}; ///< signs, then the examination
    forms::TextBox Text1{QStringLiteral("Text1"), 255};
    forms::TextBox Text2{QStringLiteral("Text2"), 255};
    consultas::ListasDeConsulta listas;
    forms::SSTab SStab1{QStringLiteral("SStab1")};
    forms::Label lblTeclas{QStringLiteral("lblTeclas"),
                           QStringLiteral("Entrar: campo siguiente    F2: anota «Normal»    "
                                          "F3: agrega a la lista    Ctrl+Entrar: Aceptar")};
    forms::CommandButton Command7{QStringLiteral("Command7"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command8{QStringLiteral("Command8"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};

    std::array<std::vector<forms::TextBox *>, examen::fichas> campos_; ///< of each page, as they are typed
};
