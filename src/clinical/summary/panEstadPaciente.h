#pragma once

#include "clinical/history/lectorDeHistoria.h"
#include "clinical/summary/comandos.h"
#include "clinical/summary/panelGineco.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/databar.h"
#include "platform/forms/dbgrid.h"
#include "platform/forms/form.h"
#include "platform/forms/layout.h"
#include "platform/forms/toolbarbutton.h"

#include <QStackedWidget>

/// "Ficha Resumen Global del paciente": the patient whose number is the tag, whole on one page. Everything
/// shown is read afresh whenever the page is woken, so that what a window opened from here has changed is
/// seen on return.
class panEstadPaciente : public forms::Form
{
    Q_OBJECT
public:
    panEstadPaciente();

protected:
    void load() override;
    void activate() override;
    bool queryUnload() override;
    bool eventFilter(QObject *control, QEvent *evento) override;

private:
    using Estado = clinical::Estado;

    // what stands where
    void agregarIdentidad();
    void agregarComandos();
    void agregarSemaforos();
    void agregarEspecialidades();
    void disponer();
    void conectar();
    forms::Item identidad();
    forms::Item medidas();
    forms::Item registroDeConsultas();
    forms::Item antecedentes();
    forms::Item especialidades();
    forms::Item panel(int indice);
    std::vector<forms::Item> comandosDe(clinical::Lugar lugar);
    forms::Item seguimiento();
    forms::Item barra();

    // what is read
    void llenar();
    void paso(const std::function<void()> &lectura);
    void mostrarFoto();
    void mostrarConsultas(const QString &sql);
    void mostrarPaciente();
    void mostrarMadreOConyuge(dao::Recordset &paciente);
    void habilitarPorEdad();
    void asegurarPerinatal();
    void mostrarMedidas(const basic::Date &nacimiento);
    void mostrarAntecedentes();
    void mostrarSemaforos();
    void mostrarVacunas();
    void mostrarOftalmologia();
    void abrirUltimaLectura();
    void abrirVisitaOftalmologica(qint64 idConsulta);
    void mostrarOdontologia();
    void pintarAlarmas();

    // what a person does
    void elegirEspecialidad(const clinical::Especialidad &especialidad);
    void traerAlFrente(const clinical::Especialidad &especialidad);
    void ofrecerInformes();
    void abrirComando(const clinical::Comando &comando);
    void abrirVentana(const clinical::Comando &comando, const QString &etiqueta);
    QString tituloDe(const clinical::Comando &comando) const;
    void marcarAlarma(const clinical::Comando &comando);
    void nuevaConsulta();
    void abrirConsultas();
    void filtrarConsultas();
    void agregarAntecedente();
    void quitarAntecedente();
    void guardarAntecedentes();
    void guardarNota();
    void elegirAntitetanica();
    void recetar();
    void editarPaciente();

    qint64 numero() const { return persona_.numero; }
    forms::CommandButton &boton(const char *control) { return *comandos_.at(control); }

    QStackedWidget paneles_; ///< first, so that it ends after the controls that stand in it
    forms::Data Data1{QStringLiteral("Data1")};
    forms::DataBar barra_{Data1};
    forms::DBGrid DBGrid1{QStringLiteral("DBGrid1")};
    forms::Frame Frame1{QStringLiteral("Frame1"), QStringLiteral("HC - Datos Personales")};
    forms::Label imgFoto{QStringLiteral("imgFoto")};
    forms::Label Image4{QStringLiteral("Image4")};
    forms::Label Label63{QStringLiteral("Label63"), QStringLiteral("click p/obtener")};
    forms::Label Label7{QStringLiteral("Label7"), QStringLiteral("Edad :")};
    forms::Label Label12{QStringLiteral("Label12"), QStringLiteral("Madre del paciente:")};
    forms::Label Label61{QStringLiteral("Label61"), QStringLiteral("<Click>")};
    forms::Label lblEspec{QStringLiteral("lblEspec")};
    std::map<std::string, std::unique_ptr<forms::Label>> datos_; ///< the boxes of personal data, by name
    forms::TextBox Text1{QStringLiteral("Text1")};
    forms::TextBox Text21{QStringLiteral("Text21")};
    forms::MemoBox Text14{QStringLiteral("Text14")};
    forms::MemoBox mConRP{QStringLiteral("mConRP")};
    forms::CheckBox Check2{QStringLiteral("Check2"),
                           QStringLiteral("Mostrar solo registros de la &especialidad")};
    forms::ControlArray<forms::CheckBox> Check1{QStringLiteral("Check1")};
    forms::ControlArray<forms::Label> Labelff{QStringLiteral("Labelff")};
    forms::ControlArray<forms::Label> lblMedida{QStringLiteral("lblMedida")};
    forms::Label lblLectura{QStringLiteral("lblLectura")};
    LectorDeHistoria lector_;
    forms::ListBox List2{QStringLiteral("List2")}, List3{QStringLiteral("List3")},
        List7{QStringLiteral("List7")}, List8{QStringLiteral("List8")};
    forms::ControlArray<forms::ToolbarButton> icoesp{QStringLiteral("icoesp")};
    forms::CommandButton label6{QStringLiteral("label6"), QStringLiteral("&Nueva..."),
                                QStringLiteral("nuevo")};
    forms::CommandButton label15{QStringLiteral("label15"), QStringLiteral("&Abrir..."),
                                 QStringLiteral("abrir")};
    forms::CommandButton Command3{QStringLiteral("Command3"), QStringLiteral("Abrir..."),
                                  QStringLiteral("familia")};
    forms::CommandButton Command7{QStringLiteral("Command7"), QStringLiteral("Abrir..."),
                                  QStringLiteral("abrir")};
    forms::CommandButton Command_525{QStringLiteral("Command_525"), QStringLiteral("Abrir..."),
                                     QStringLiteral("editar")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("N&uevo..."),
                                  QStringLiteral("agregar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Quitar"),
                                  QStringLiteral("quitar")};
    forms::CommandButton Command14{QStringLiteral("Command14"), QStringLiteral("&Recetario"),
                                   QStringLiteral("imprimir")};
    forms::CommandButton cmdSalir{QStringLiteral("cmdSalir"), QStringLiteral("&Salir"),
                                  QStringLiteral("cerrar")};
    std::map<std::string, std::unique_ptr<forms::CommandButton>> comandos_;    ///< by name
    std::map<std::string, std::unique_ptr<forms::Label>> alarmas_, semaforos_; ///< by name
    clinical::PanelGineco gineco_;
    std::map<int, QWidget *> panelDe_;

    clinical::Persona persona_;
    bool llenando_ = false;
    QString notaGuardada_;
};
