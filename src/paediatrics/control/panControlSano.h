#pragma once

#include "core/session/eleccion.h"
#include "paediatrics/control/pregunta.h"
#include "paediatrics/control/ventanasMotoras.h"
#include "platform/forms/form.h"

#include <QStackedWidget>

#include <deque>

/// "Control Sano del Paciente": the check-up of the child whose number is the tag, by sections that the
/// commands at the left bring to the front. Accepting it records the visit and what was found; what is kept
/// by itself (mother and child, screening, maturation, personal history) is saved in any case. The tag is
/// "SI" once it was accepted.
class panControlSano : public forms::Form
{
    Q_OBJECT
public:
    panControlSano();

protected:
    void activate() override;
    bool queryUnload() override;
    bool eventFilter(QObject *control, QEvent *event) override;

private:
    /// What the person writes in this window and no other does.
    struct Escrito {
        sano::Problemas problemas;
        QStringList datosPositivos, indicaciones;
        bool operator==(const Escrito &) const = default;
    };

    // The sections.
    forms::Item secciones();
    void seccion(int comando, const QString &caption, forms::Item contenido);
    forms::CommandButton &boton(int numero, const QString &caption, const QString &icono,
                                std::function<void()> trabajo);
    forms::Item problemas();
    forms::Item antropometria();
    forms::Item examenFisico();
    forms::Item binomio();
    forms::Item indicaciones();
    forms::Item maduracionNeurologica();
    forms::Item maduracionSexual();
    forms::Item condicionFamiliar();
    forms::Item personales();

    void leerPaciente();
    void leerLoPropio();
    void mostrarLoAjeno();
    void mostrarFranja();
    void mostrarEdadEnHitos();
    void mostrarProblemas(const sano::Problemas &problemas);
    void mostrarScreening();

    Escrito escrito() const;
    sano::Problemas problemasEscritos() const;
    void guardarLoPropio();
    void guardar();
    void imprimir();

    void agregarProblema();
    void agregarDato();
    void agregarIndicacion(const ports::Renglon &indicacion);
    void elegirIndicacion();
    void agregarAntecedente();
    void guardarAntecedentes();
    void quitarDe(forms::ListBox &lista);

    qint64 paciente_ = 0;
    QString nombre_, sexo_;
    std::optional<basic::Date> nacimiento_;
    std::optional<sano::Franja> franja_;
    Escrito leido_;
    sano::Binomio binomioLeido_;
    sano::Screening screeningLeido_;
    QString maduracionLeida_;

    QStackedWidget paginas_;
    std::map<int, forms::CommandButton *> comandos_; ///< of the sections, by number
    QButtonGroup seccionActual_, maduracion_;
    forms::ControlArray<forms::OptionButton> Option1{QStringLiteral("OpcionBinomio")};
    forms::ControlArray<forms::OptionButton> Option2{QStringLiteral("Option2")};
    std::deque<sano::Pregunta> preguntas_;
    sano::PanelDeScreening screening_;
    sano::VentanasMotoras hitos_{QStringLiteral("hitos")};

    forms::Label lblPaciente{QStringLiteral("lblPaciente")};
    forms::Label Label1{QStringLiteral("Label1")}; ///< the age's band
    forms::DTPicker mFecha{QStringLiteral("mFecha")};
    forms::ControlArray<forms::Label> lblMedida{QStringLiteral("lblMedida")};
    forms::Label lblTension{QStringLiteral("lblTension")};
    forms::Label lblPadres{QStringLiteral("lblPadres")};
    forms::ListBox List1{QStringLiteral("List1")};   ///< family history
    forms::ListBox List2{QStringLiteral("List2")};   ///< what the birth record says
    forms::ListBox List3{QStringLiteral("List3")};   ///< positive findings
    forms::ListBox List4{QStringLiteral("List4")};   ///< indications
    forms::ListBox List5{QStringLiteral("List5")};   ///< problems
    forms::ListBox List6{QStringLiteral("List6")};   ///< neurological maturation
    forms::ListBox List7{QStringLiteral("List7")};   ///< overdue vaccines
    forms::ListBox List8{QStringLiteral("List8")};   ///< personal history
    forms::ListBox List9{QStringLiteral("List9")};   ///< foods
    forms::ListBox List10{QStringLiteral("List10")}; ///< school
    forms::TextBox Text1{QStringLiteral("Text1"), 255};
    forms::TextBox Text2{QStringLiteral("Text2"), 255};
    forms::CommandButton Command8{QStringLiteral("Command8"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command9{QStringLiteral("Command9"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
    forms::CommandButton Command10{QStringLiteral("Command10"), QStringLiteral("&Imprimir"),
                                   QStringLiteral("imprimir")};
};
