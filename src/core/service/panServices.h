#pragma once

#include "core/maintenance/copiaPrevia.h"
#include "core/service/opciones.h"
#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"

#include <functional>
#include <optional>

/// "Services y complementos del sistema": what is fixed in daily work, for whoever maintains the practice.
/// With the caption of a page as its tag the window is that page alone, for those who come from a patient.
class panServices : public forms::Form
{
    Q_OBJECT
public:
    panServices();

protected:
    void load() override;

private:
    enum Pagina { Tension, Vacunas, Recetario, Analisis, Estudios, DelPrograma, Vaciado };

    forms::Item paginaDeTension();
    forms::Item paginaDeVacunas();
    forms::Item paginaDelRecetario();
    forms::Item paginaDeAnalisis();
    forms::Item paginaDeEstudios();
    forms::Item paginaDeVaciado();
    void disponer();
    void conectar();
    void soloLaPagina(const QString &titulo);
    void paginaElegida();

    void crearRecetario();
    void mostrarRecetario();
    std::optional<QString> pideNombre(const QString &rotulo, int largo,
                                      const std::function<QString(const QString &)> &reparo);
    void agregarAnalisis();
    void quitarAnalisis();
    void cambiarAnalisis(const QString &nombre, const QString &accion);
    void agregarEstudio();
    void quitarVacuna();
    void quitarEstudio();
    void contarRegistros();
    void vaciar();

    forms::SSTab SSTab1{QStringLiteral("SSTab1")};
    forms::Data Data1{QStringLiteral("Data1")}; ///< studies
    forms::Data Data2{QStringLiteral("Data2")}; ///< vaccination plan
    forms::Data Data3{QStringLiteral("Data3")}; ///< normal pressures
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};
    forms::DBGrid DBGrid2{QStringLiteral("DBGrid2")};
    forms::DBGrid DBGrid3{QStringLiteral("DBGrid3")};
    forms::TextBox Text1{QStringLiteral("Text1")};  ///< name of the prescription layout
    forms::Label Label1{QStringLiteral("Label1")};  ///< the layout in use
    forms::ListBox List1{QStringLiteral("List1")};  ///< laboratory tests
    forms::TreeView Tree1{QStringLiteral("Tree1")}; ///< rows of each table that is emptied
    Opciones opciones_;
    CopiaPrevia chkCopia{QStringLiteral("chkCopia")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("Crear recetar&io"),
                                  QStringLiteral("agregar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Agregar..."),
                                  QStringLiteral("agregar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("E&ditar..."),
                                  QStringLiteral("editar")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("&Quitar"),
                                  QStringLiteral("borrar")};
    forms::CommandButton Command5{QStringLiteral("Command5"), QStringLiteral("&Agregar..."),
                                  QStringLiteral("agregar")};
    forms::CommandButton Command6{QStringLiteral("Command6"), QStringLiteral("&Quitar"),
                                  QStringLiteral("borrar")};
    forms::CommandButton Command7{QStringLiteral("Command7"), QStringLiteral("&Agregar..."),
                                  QStringLiteral("agregar")};
    forms::CommandButton Command8{QStringLiteral("Command8"), QStringLiteral("&Quitar"),
                                  QStringLiteral("borrar")};
    forms::CommandButton Command9{QStringLiteral("Command9"), QStringLiteral("Vaciar las ta&blas..."),
                                  QStringLiteral("alerta")};
    forms::CommandButton Command10{QStringLiteral("Command10"), QStringLiteral("&Cerrar"),
                                   QStringLiteral("cerrar")};
    forms::CommandButton Command11{QStringLiteral("Command11"), QStringLiteral("Ca&lendarios nacionales..."),
                                   QStringLiteral("abrir")};
};
