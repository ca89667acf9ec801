#pragma once

#include "core/records/tabla.h"

namespace sano
{

/// A patient's rows of one kind, each known by its name (a food, a sign, an aspect) and there once. A name is
/// typed or chosen in `Combo1` and added; its fields stand below the list.
class RenglonesDelPaciente : public records::ListaDelPaciente
{
    Q_OBJECT
protected:
    struct Clase {
        QString ventana, titulo;
        QString tabla, columnaDePaciente, columnaDeNombre;
        QString siONo = {};      ///< a yes/no column, which the list reads as `SiONo`; empty for none
        QString rotulo;          ///< of the name: "Alimento"
        QStringList sugerencias; ///< names that are often asked
        std::vector<forms::GridColumn> columnas;
    };

    explicit RenglonesDelPaciente(Clase clase);

    /// The fields of the current row, bound to Data1.
    void disponer(forms::Item campos, std::vector<QWidget *> delRenglon);
    /// What a new row says besides its name.
    virtual void comenzar(dao::Recordset &fila) { Q_UNUSED(fila); }
    /// A row on paper.
    virtual QString enPalabras(dao::Recordset &fila) const = 0;

    void activate() override;
    void rowShown() override;
    bool queryUnload() override;

private:
    void agregar();
    bool estaEnLaLista(const QString &nombre) const;
    void imprimir();

    const Clase clase_;
    std::vector<QWidget *> delRenglon_;
    forms::Label lblPaciente{QStringLiteral("lblPaciente")};
    forms::ComboBox Combo1;
};

} // namespace sano
