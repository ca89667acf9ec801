#pragma once

#include "platform/dao/schema.h"
#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"

#include <optional>

/// "Estadística detallada sobre registros": criteria over any table of the practice, put together by a
/// person.
class panEstDeta : public forms::Form
{
    Q_OBJECT
public:
    panEstDeta();

protected:
    void load() override;

private:
    void disponer();
    void elegirTabla();
    void elegirCampo();
    void agregarCriterio();
    void agregarConector(const QString &conector);
    void ejecutar();
    void mostrarEstado();
    const dao::FieldDef *campoElegido() const;

    forms::Data Data1{QStringLiteral("Data1"), dao::Recordset::Kind::Snapshot};
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};
    forms::Label Label1{QStringLiteral("Label1")};
    forms::Label Label2{QStringLiteral("Label2")};
    forms::Label Label3{QStringLiteral("Label3")};
    forms::ComboBox Combo4{QStringLiteral("Combo4")};
    forms::ComboBox Combo1{QStringLiteral("Combo1")};
    forms::ComboBox Combo2{QStringLiteral("Combo2")};
    forms::ComboBox Combo3{QStringLiteral("Combo3")};
    forms::ListBox List1{QStringLiteral("List1")};
    forms::CommandButton Command1{QStringLiteral("Command1"),
                                  QStringLiteral("A&gregar criterio de filtro >>")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&y")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&o")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("pero &no")};
    forms::CommandButton Command5{QStringLiteral("Command5"), QStringLiteral("&Ejecutar consulta ..."),
                                  QStringLiteral("buscar")};
    forms::CommandButton Command6{QStringLiteral("Command6"), QStringLiteral("E&limina criterio de filtro"),
                                  QStringLiteral("quitar")};
    forms::CommandButton Command8{QStringLiteral("Command8"), QStringLiteral("Ultimo criterio de filtro")};
    forms::CommandButton Command7{QStringLiteral("Command7"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
    dao::TableDef tabla_;
    qint64 total_ = 0;
};
