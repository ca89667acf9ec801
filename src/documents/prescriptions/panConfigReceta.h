#pragma once

#include "documents/prescriptions/hoja.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

#include <QMenu>

/// "Configurar recetario": the sheet of the prescriptions, to put texts, fields and a picture on.
class panConfigReceta : public forms::Form
{
    Q_OBJECT
public:
    panConfigReceta();

protected:
    void load() override;
    bool queryUnload() override;

private:
    void disponer();
    void agregarMenu();
    void marcarArea();
    void conectar();

    void elegirPapel();
    void mostrar(const recetario::Diseno &diseno);
    void mostrarElemento(int numero, const recetario::Elemento &elemento);
    void mostrarImagen(const recetario::Imagen &imagen);
    /// What is on the sheet, as it stands there.
    recetario::Diseno diseno();

    void agregar(QPointF lugar);
    void mover(const QString &item, QPointF lugar);
    void abrirMenu(const QString &item, QPoint pantalla);
    void propiedades();
    void eliminar();
    void elegirImagen();
    void ofrecerDisenos();
    void copiarDe(const QString &tabla);
    void imprimirPrueba();
    void guardar();

    recetario::Hoja Picture2;
    recetario::Diseno diseno_;   ///< of what can be seen, but for its places
    recetario::Diseno guardado_; ///< as the table has it
    forms::CanvasItem *area_ = nullptr;
    forms::CanvasItem *rotuloDelArea_ = nullptr;
    QMenu menuEd1;
    QMenu disenos_;
    QAction menuAgregarObjeto{QStringLiteral("Agregar Objeto")};
    QAction menuPropiedades{QStringLiteral("Propiedades del objeto...")};
    QAction menuEliminar{QStringLiteral("Eliminar")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Objeto nuevo"),
                                  QStringLiteral("mano")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Imprimir prueba"),
                                  QStringLiteral("imprimir")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Guardar"),
                                  QStringLiteral("guardar")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("&Salir"),
                                  QStringLiteral("cerrar")};
    forms::CommandButton Command5{QStringLiteral("Command5"), QStringLiteral("Co&piar de"),
                                  QStringLiteral("copiar")};
    forms::ComboBox Combo1{QStringLiteral("Combo1")}; ///< paper
    forms::CheckBox Check1{QStringLiteral("Check1"), QStringLiteral("Alinear a la &cuadrícula")};
};
