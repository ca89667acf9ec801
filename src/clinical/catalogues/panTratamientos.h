#pragma once

#include "clinical/catalogues/catalogoClasificado.h"

/// "Tratamientos y medicación": the treatments, the product of each, and the dose for the patient whose
/// number stands in the tag of mDato(2). A name in the window's tag is gone to when it opens.
class panTratamientos : public catalogos::CatalogoClasificado
{
    Q_OBJECT
public:
    panTratamientos();

    void setPaciente(const QString &numero);

protected:
    void activate() override;
    bool queryUnload() override;
    void listar(dao::Recordset &filas) override;
    void mostrar(dao::Recordset *fila) override;
    void nuevo() override;

private:
    forms::Item fichaTratamiento();
    forms::Item fichaProducto();
    void mostrarProducto(dao::Recordset *fila);
    void mostrarImagen(const basic::Value &imagen);
    void teclear(const QString &nombre);

    forms::SSTab SSTab1{QStringLiteral("SSTab1")};
    forms::Label Label4{QStringLiteral("Label4")};
    forms::MemoBox Label5{QStringLiteral("Label5")};
    forms::Label Picture2{QStringLiteral("Picture2")};
    forms::Label SSPanel1{QStringLiteral("SSPanel1")};
    bool tecleado_ = false;
};
