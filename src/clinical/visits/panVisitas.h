#pragma once

#include "clinical/visits/listasDeConsulta.h"
#include "clinical/visits/opcionesDeConsulta.h"
#include "core/records/comando.h"
#include "platform/forms/data.h"
#include "platform/forms/databar.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"

/// "Pantalla de Visitas y Examenes clínicos": the visits of the patient whose number is the tag, to browse,
/// to edit and to add to. With "Activar" in the tag of `Command3` it starts by capturing a visit.
class panVisitas : public forms::Form
{
    Q_OBJECT
public:
    panVisitas();

protected:
    void activate() override;
    bool queryUnload() override;

private:
    void agregarControles();
    void disponer();
    forms::Item visita();
    void conectar();
    bool visitaBorrada();
    void buscarPaciente();
    void armarConsultas();

    void mostrarVisita();
    void habilitar(bool hay);
    void mostrarEnBlanco();
    void sinExamen();
    void mostrarListas();
    void leerExamen();

    QString textoDeFecha();
    void registrarCambio(const QString &cambio, consultas::Grupo grupo, const QString &nombre);
    void guardar();
    void guardarElegido();
    void guardarEscrito();
    void agregados(consultas::Grupo grupo, const QStringList &nombres);
    void quitado(consultas::Grupo grupo, const QString &nombre);
    void nueva();
    void irA(qint64 idConsulta);
    void quitar();
    void abrirHistoria();
    void exportar();

    forms::Data Data1{QStringLiteral("Data1")}; ///< the patient
    forms::Data Data2{QStringLiteral("Data2")}; ///< the visits
    forms::Data Data3{QStringLiteral("Data3")}; ///< the examination of the visit in sight
    forms::DataBar barra{Data2};
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};
    forms::DBGrid DBGrid2{QStringLiteral("DBGrid2")};

    forms::DTPicker mFecha{QStringLiteral("mFecha")};
    forms::MemoBox mDato1{QStringLiteral("mDato(1)")}; ///< the motive, which may have several lines
    forms::ControlArray<forms::TextBox> mDato{QStringLiteral("mDato")};
    forms::ControlArray<forms::TextBox> Text1{QStringLiteral("Text1")};
    forms::ControlArray<forms::TextBox> Text3{QStringLiteral("Text3")};
    consultas::OpcionesDeConsulta opciones;
    consultas::ListasDeConsulta listas;

    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("&Nueva..."),
                                  QStringLiteral("agregar")};
    forms::CommandButton &Command4 = records::comando(
        *this, QStringLiteral("Command4"), QStringLiteral("&Quitar"), QStringLiteral("borrar"),
        [this] { quitar(); },
        {.gate = QStringLiteral("BorrarConsultas"), .question = QStringLiteral("Borra esta consulta")});
    forms::CommandButton Command5{QStringLiteral("Command5"), QStringLiteral("&Guardar"),
                                  QStringLiteral("guardar")};
    forms::CommandButton Command6{QStringLiteral("Command6"), QStringLiteral("&Otorgar Turno..."),
                                  QStringLiteral("turnos")};
    forms::CommandButton Command7{QStringLiteral("Command7"), QStringLiteral("&Informe"),
                                  QStringLiteral("informes")};
    forms::CommandButton Command9{QStringLiteral("Command9"), QStringLiteral("&Consultas"),
                                  QStringLiteral("consultorio")};
    forms::CommandButton Command10{QStringLiteral("Command10"), QStringLiteral("&Salir"),
                                   QStringLiteral("cerrar")};
    forms::CommandButton Command11{QStringLiteral("Command11"),
                                   QStringLiteral("Estudios pedidos al paciente...")};
    forms::CommandButton Command12{QStringLiteral("Command12"),
                                   QStringLiteral("Laboratorios pedidos al paciente...")};
    forms::CommandButton Command14{QStringLiteral("Command14"),
                                   QStringLiteral("Abrir Historia Clínica textual..."),
                                   QStringLiteral("historia")};
};
