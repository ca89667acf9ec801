#pragma once

#include "core/maintenance/restauracion.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"

#include <QTableWidget>

#include <thread>

/// "Restaurar una copia de seguridad": the copies that are known, with their date, size and patients; the
/// chosen one takes the place of the practice's file, which stays aside, and the program ends.
class panRestaurar : public forms::Form
{
    Q_OBJECT
public:
    panRestaurar();

protected:
    void load() override;

private:
    void listar();
    void agregar(const restauracion::Copia &copia);
    void contar();
    void mostrarPacientes(int fila, const QString &texto);
    void buscarOtra();
    void restaurar();
    void poner(const restauracion::Copia &copia);
    void reabrir();

    forms::Label Label1{QStringLiteral("Label1"), QStringLiteral("&Copias de seguridad :")};
    QTableWidget Grid1;
    forms::Label Label2{QStringLiteral("Label2")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Buscar otra..."),
                                  QStringLiteral("abrir")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Restaurar"),
                                  QStringLiteral("aceptar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("C&ancelar"),
                                  QStringLiteral("cancelar")};
    mantenimiento::EnCurso enCurso_; ///< the base may be missing while the way back to one is looked for
    std::vector<restauracion::Copia> copias_;
    std::jthread cuenta_; ///< opens one copy after the other; the last member, so that it ends first
};
