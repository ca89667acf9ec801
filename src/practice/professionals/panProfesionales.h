#pragma once

#include "core/records/tabla.h"
#include "core/services/especialidades.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/layout.h"
#include "platform/forms/updown.h"
#include "practice/appointments/herramientaHorarios.h"
#include "practice/professionals/calendarioAnual.h"

/// "Tabla de Profesionales / Usuarios": the professionals of the practice, the account each one works under,
/// the patients each one may see, and the days on which each one attends.
class panProfesionales : public records::Tabla
{
    Q_OBJECT
public:
    panProfesionales();

protected:
    void load() override;
    bool mayDelete() override;
    void deleteRow() override;
    void rowShown() override;

private:
    forms::Item fichaDatos();
    forms::Item fichaPermisos();
    forms::Item fichaHorarios();
    void conectar();

    void mostrarPermiso(const QString &permiso);
    void escribir(const QString &campo, const basic::Value &valor);
    void pasoDeInterturnos(int paso);
    void agregar();
    void buscar();
    void imprimir();

    forms::SSTab SSTab1{QStringLiteral("SSTab1")};

    forms::ControlArray<forms::TextBox> Text1{QStringLiteral("Text1")};
    forms::ComboBox Combo1{QStringLiteral("Combo1"), MODULE11::especialidades, true};
    forms::MemoBox Text3{QStringLiteral("Text3")};

    forms::Label Label8{QStringLiteral("Label8")};
    forms::ComboBox Combo2{QStringLiteral("Combo2")};
    forms::Frame Frame1{QStringLiteral("Frame1"), QStringLiteral("Pacientes que puede ver")};
    forms::OptionButton Option1{QStringLiteral("Option1"),
                                QStringLiteral("Solo puede ver y  gestionar sus propios pacientes.")};
    forms::OptionButton Option2{
        QStringLiteral("Option2"),
        QStringLiteral(
            "Puede ver todos los pacientes pero solo ingresar a las consultas de su especialidad y su creación.")};
    forms::OptionButton Option3{QStringLiteral("Option3"),
                                QStringLiteral("Puede ver y gestionar todos los registros.")};

    forms::TextBox Text2{QStringLiteral("Text2"), 3};
    forms::UpDown UpDown2{QStringLiteral("UpDown2")};
    forms::Label Label9{QStringLiteral("Label9"),
                        QStringLiteral("Utilize el formato HH:mm:ss en su configuracion de Windows")};
    practice::HerramientaHorarios herramienta{Text2};
    practice::CalendarioAnual calendario;
};
