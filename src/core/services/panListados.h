#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"
#include "platform/reports/totals.h"

#include <map>

/// Any query as a list: ordered by a click on a heading, searched in all its columns, with the totals of its
/// amounts, a formula over one of its columns, and files of it for other programs.
class panListados : public forms::Form
{
    Q_OBJECT
public:
    /// Throws dao::Error when the query does not run.
    panListados(const QString &sql, const QString &titulo);

protected:
    void activate() override;

private:
    void mostrarColumnas();
    void disponer();
    void conectar();
    void ordenar(int columna);
    void buscar();
    bool contiene(qint64 fila, const QString &buscado);
    void totalizar();
    void mostrarTotales(bool completos);
    void calcular();

    const QString consulta_;
    std::map<int, reports::Figures> totales_; ///< of the columns that are amounts, by their place
    qint64 sumadas_ = 0;                      ///< rows that are in them

    forms::Data Data1{QStringLiteral("Data1")};
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};
    forms::SearchBox Text1{QStringLiteral("Text1"), 100};
    forms::Label Label2{QStringLiteral("Label2")};    ///< totals
    forms::ComboBox Combo1{QStringLiteral("Combo1")}; ///< formula
    forms::ComboBox Combo2{QStringLiteral("Combo2")}; ///< column
    forms::Label Label1{QStringLiteral("Label1")};    ///< result
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("Ca&lcular")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("Guardar C&SV..."),
                                  QStringLiteral("guardar")};
    forms::CommandButton Command4{QStringLiteral("Command4"), QStringLiteral("&Planilla..."),
                                  QStringLiteral("guardar")};
    forms::CommandButton Command5{QStringLiteral("Command5"), QStringLiteral("Buscar si&guiente"),
                                  QStringLiteral("buscar")};
    forms::Timer Timer1{QStringLiteral("Timer1")}; ///< the totals are added while nobody does anything
};
