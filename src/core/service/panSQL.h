#pragma once

#include "platform/dao/schema.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

/// "Edición del registro SQL": the selection of a listing, put together from the columns of its table or
/// written by hand, and kept in files. Answers "SI" or "NO".
class panSQL : public forms::Form
{
    Q_OBJECT
public:
    panSQL(dao::TableDef tabla, const QString &sql);

    QString sql() const { return Text1.toPlainText().trimmed(); }

private:
    void disponer();
    void conectar();
    void ponerColumnas();
    void ponerOrden();
    void ponerFiltro();
    void abrir();
    void guardar();

    dao::TableDef tabla_;
    forms::MemoBox Text1{QStringLiteral("Text1")};
    forms::SSTab SSTab1{QStringLiteral("SSTab1")};
    forms::ListBox List1{QStringLiteral("List1")};    ///< columns to see
    forms::ListBox List2{QStringLiteral("List2")};    ///< columns of the order
    forms::ComboBox Combo1{QStringLiteral("Combo1")}; ///< column of the filter
    forms::ComboBox Combo2{QStringLiteral("Combo2")}; ///< comparison
    forms::TextBox Text2{QStringLiteral("Text2")};    ///< value
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Aceptar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Utilizar >>")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("&Utilizar >>")};
    forms::CommandButton Command5{QStringLiteral("Command5"), QStringLiteral("&Utilizar >>")};
    forms::CommandButton Command6{QStringLiteral("Command6"), QStringLiteral("A&brir..."),
                                  QStringLiteral("abrir")};
    forms::CommandButton Command7{QStringLiteral("Command7"), QStringLiteral("&Guardar..."),
                                  QStringLiteral("guardar")};
};
