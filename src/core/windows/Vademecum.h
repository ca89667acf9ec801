#pragma once

#include "core/windows/franja.h"
#include "core/windows/menu.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/toolbarbutton.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QStatusBar>
#include <QToolButton>

#include <thread>

/// The main window: the menu, the toolbar, the list "Pacientes para Hoy" and the area of the child windows.
/// The current patient is the one of the active child.
class Vademecum : public QMainWindow
{
    Q_OBJECT
public:
    Vademecum();
    ~Vademecum() override;

    /// "Sanirell! <version> - <doctor>".
    void ponerCaption();

    /// Fills "Pacientes para Hoy" with the day's patients of the doctor who works here.
    void actualizarPacientesDeHoy();

    /// Compacts the practice's file in its place, or offers to go back to BASE.BAK when it is missing; the
    /// base is closed by it. Nothing calls it: it is there for who mends a practice.
    void VerificaBase();

protected:
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    QWidget *construirBarra();
    QWidget *construirPanel();
    void primeraActivacion();
    void mostrarPantallaInicial();
    void refrescarPacientesDeHoy();
    void plegarPanel();
    void mostrarEstado();
    void avisarDeLaBase();
    void recordarElRespaldo();
    void respaldarDesdeLaFranja();

    QWidget panel_; // before the controls in it, which must go first
    forms::ControlArray<forms::ToolbarButton> Command1{QStringLiteral("Command1")};
    QToolButton Command2;
    forms::ControlArray<forms::Label> lblPac{QStringLiteral("lblPac")};
    forms::Timer Timer1{QStringLiteral("Timer1"), 65534};
    QStatusBar StatusBar1;
    Franja franja_;
    QMdiArea area_;
    QWidget *listaPacientes_ = nullptr;
    bool MostrarAsistente = false; // nothing sets these two: neither window opens by itself
    bool MostrarInicial = false;
    bool activada_ = false;
    std::jthread mirada_; ///< at the folders of the copies; the last member, so that it ends first
};
