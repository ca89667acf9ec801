#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"

#include <optional>

/// "Gestión de Archivos": the rows of any table of the practice, filtered and ordered, to be looked at,
/// changed and deleted one by one.
class panGArchivos : public forms::Form
{
    Q_OBJECT
public:
    panGArchivos();

protected:
    void load() override;
    void activate() override;

private:
    void disponer();
    void conectar();
    void elegirTabla();
    void ver();
    void verTodo();
    void editarSql();
    void mostrar(const QString &sql);
    void volverA(const QString &sql, qint64 fila);
    void mostrarColumnas();
    void mostrarPosicion();
    void habilitar();
    void borrar();
    std::optional<QString> tablaDeLasFilas() const;
    QString tabla() const { return Combo1.value(); }

    forms::Data Data1{QStringLiteral("Data1")};
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};
    forms::ComboBox Combo1{QStringLiteral("Combo1")}; ///< table
    forms::ComboBox Combo2{QStringLiteral("Combo2")}; ///< order
    forms::ComboBox Combo4{QStringLiteral("Combo4")}; ///< column of the filter
    forms::ComboBox Combo3{QStringLiteral("Combo3")}; ///< comparison
    forms::TextBox Text1{QStringLiteral("Text1")};    ///< value
    forms::CheckBox Check1{QStringLiteral("Check1"), QStringLiteral("&Cambios")};
    forms::CheckBox Check2{QStringLiteral("Check2"), QStringLiteral("&Borrar")};
    forms::Label Label1{QStringLiteral("Label1")}; ///< position
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Ver"),
                                  QStringLiteral("buscar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("Borrar &Filtro"),
                                  QStringLiteral("cancelar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Eliminar registro"),
                                  QStringLiteral("borrar")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("&SQL..."),
                                  QStringLiteral("editar")};
    forms::CommandButton Command5{QStringLiteral("Command5"), QStringLiteral("Ce&rrar"),
                                  QStringLiteral("cerrar")};
};
