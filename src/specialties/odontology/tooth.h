#pragma once

#include "platform/forms/form.h"
#include "specialties/odontology/esquemas.h"
#include "specialties/odontology/herramientas.h"
#include "specialties/odontology/odontograma.h"
#include "specialties/odontology/paginaDePresupuestos.h"

#include <QButtonGroup>
#include <QMenu>

/// "Odontología": the dentist's record of the patient whose number is the window's tag. The tooth chart is
/// kept in named schemes; what is painted and marked is written when it is saved, or on leaving the scheme
/// with a question. A window whose `Combo1` has the tag "PRE" opens on the budgets.
class tooth : public forms::Form
{
    Q_OBJECT
public:
    tooth();
    ~tooth() override;

    static void abrirPresupuestos(qint64 paciente);

protected:
    void load() override;
    void activate() override;
    bool queryUnload() override;

private:
    forms::Item paginaDelOdontograma();
    void conectar();
    void armarMenu();
    QAction &agregarAlMenu(QMenu &menu, const QString &nombre, const QString &rotulo,
                           std::function<void()> trabajo);
    void mostrarPagina(int pagina);

    // The schemes.
    void leerPaciente();
    void llenarCombo(const QString &elegido);
    void nuevo();
    void cambiarEsquema();
    void abrirEsquema(const QString &nombre);
    void borrar();
    bool guardar(); ///< false when the person would not write over what another station wrote
    bool dejarCambios(const QString &pregunta);
    void comparar();
    void imprimir();
    void abrirAyuda();
    QString esquema() const { return forms::tag(&Combo1); } ///< its name; empty while none is open

    // The chart.
    bool hayDondeTrabajar();
    void elegirCara(int cara);
    void usarHerramienta(int panel);
    void marcar(int tipo);
    void pintarTodo();
    void pintarCara(int cara);
    void pedirLeyenda();
    void limpiarPieza();
    void alterar(const std::function<void(int pieza)> &cambio);
    void mostrarEleccion();

    std::optional<qint64> paciente_;
    odonto::Esquema esquema_;
    esquemas::Guardado leido_;
    bool pendiente_ = false;
    bool abierta_ = false;
    int color_ = odonto::rojo;
    int cara_ = 0; ///< the one pressed last; 0 for none

    forms::Label Label4{QStringLiteral("Label4"), QStringLiteral("Ningún paciente seleccionado aún...")};
    forms::ControlArray<forms::CommandButton> sMenu{QStringLiteral("sMenu")};
    QButtonGroup paginas_;
    forms::SSTab SSTab1{QStringLiteral("SSTab1")};
    forms::ComboBox Combo1{QStringLiteral("Combo1")};
    forms::Label Label19{QStringLiteral("Label19")};
    forms::Label Label3{QStringLiteral("Label3")};
    forms::Label lblPieza{QStringLiteral("lblPieza")};
    forms::Label lblSinLeer{QStringLiteral("lblSinLeer")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("Guardar Cambios"),
                                  QStringLiteral("guardar")};
    odonto::Odontograma Picture1{QStringLiteral("Picture1")};
    odonto::Herramientas herramientas_;
    odonto::Colores colores_;
    odonto::Mesa mesa_{Picture1};
    presupuestos::Pagina presupuestos_{*this, [this] { return esquema_; }};
    QMenu menuPop;
};
