#pragma once

#include "core/windows/menu.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/toolbarbutton.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QStatusBar>
#include <QToolButton>

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

    QWidget panel_; // before the controls in it, which must go first
    forms::ControlArray<forms::ToolbarButton> Command1{QStringLiteral("Command1")};
    QToolButton Command2;
    forms::ControlArray<forms::Label> lblPac{QStringLiteral("lblPac")};
    forms::Timer Timer1{QStringLiteral("Timer1"), 65534};
    QStatusBar StatusBar1;
    QMdiArea area_;
    QWidget *listaPacientes_ = nullptr;
    bool MostrarAsistente = false; // nothing sets these two: neither window opens by itself
    bool MostrarInicial = false;
    bool activada_ = false;
};
