#pragma once

#include "platform/forms/form.h"
#include "specialties/odontology/esquema.h"
#include "specialties/odontology/renglones.h"

#include <functional>

namespace presupuestos
{

/// The tab "Presupuesto" of the dentist's record: the budgets, of one patient or of all, and the lines of the
/// current one.
class Pagina : public QWidget
{
    Q_OBJECT
public:
    /// `ventana` owns the commands. `esquema` gives the marks from which lines are proposed.
    Pagina(forms::Form &ventana, std::function<odonto::Esquema()> esquema);

    /// The patient of the window, or nobody; reads the budgets.
    void mostrar(std::optional<qint64> paciente);

private:
    forms::Item filtros();
    forms::Item cabezas();
    forms::Item lineas();
    void listar(const QString &condicion, std::optional<qint64> elegido = {});
    void listarDelPaciente(std::optional<qint64> elegido = {});
    void mostrarRenglones();
    std::optional<qint64> elegido(); ///< tells when there is none
    void nuevo();
    void borrar();
    void imprimir();
    void proponer();

    forms::Form &ventana_;
    std::function<odonto::Esquema()> esquema_;
    std::optional<qint64> paciente_;
    forms::MonthView MonthView1{QStringLiteral("MonthView1")};
    forms::Data Data4{QStringLiteral("Data4")};
    forms::DBGrid DBGrid4{QStringLiteral("DBGrid4")};
    Renglones renglones_;
};

} // namespace presupuestos
