#pragma once

#include "core/records/catalogo.h"

namespace catalogos
{

/// A catalogue whose rows have a classification, by which the list can be narrowed. The classifications are a
/// table of their own that grows from the filter's text.
class CatalogoClasificado : public records::Catalogo
{
    Q_OBJECT
protected:
    CatalogoClasificado(const QString &ventana, Tabla tabla, const QString &clasificaciones);

    void preparar() override;
    void mostrar(dao::Recordset *fila) override;
    void escribir(dao::Recordset &fila) override;
    void nuevo() override;

    bool pasaElFiltro(dao::Recordset &fila) const;
    /// The classification that the list is narrowed to; empty for all rows.
    QString filtro() const;
    void ponerFiltro(const QString &clasificacion); ///< for the next filling of the list
    forms::Item filtroYLista();

    forms::ComboBox Combo1{QStringLiteral("Combo1"), {}, true};
    forms::ComboBox Combo2{QStringLiteral("Combo2"), {}, true};
    forms::CommandButton Command5{QStringLiteral("Command5"), QStringLiteral("Agregar"),
                                  QStringLiteral("agregar")};

private:
    void agregarClasificacion();

    QString clasificaciones_; ///< their table
    QString filtro_;
};

} // namespace catalogos
