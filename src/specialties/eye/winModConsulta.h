#pragma once

#include "platform/forms/form.h"
#include "specialties/eye/visita.h"

/// The eye visit being written, a new one ("NUEVO") or one that is on record ("CAMBIOS"). Answers "GRABAR" or
/// "NO". Drawings and strabismus are written with the visit and not before.
class winModConsulta : public forms::Form
{
    Q_OBJECT
public:
    winModConsulta();

    void mostrar(const QString &modo, const QString &titulo, const records::Valores &valores);
    oftalmo::Visita visita() const;

protected:
    bool queryUnload() override;

private:
    forms::Item consulta();
    forms::Item refraccion();
    forms::Item receta();
    forms::Item agudezas();
    forms::Item hallazgos();
    forms::Item anteojos();
    forms::Item correccion();
    /// A catalogue of the practice's own texts over the memo that takes them.
    forms::Item textosPropios(oftalmo::Textos clase, forms::ComboBox &lista, forms::MemoBox &memo,
                              const QString &agregar, const QString &quitar);
    forms::Item deColumna(const QString &columna) { return campos_.texto(columna); }
    void conectar();
    void revisarFecha();
    void contarRefraccion();
    void dibujar(oftalmo::Clase clase);
    void estrabismo();
    basic::Value lectura() const;
    records::Valores escrito() const;

    QString modo_;
    records::Valores valores_; ///< what was read, and what its other windows have changed
    records::Valores antes_;
    std::map<oftalmo::Clase, oftalmo::Dibujo> dibujos_;
    records::Campos campos_{QStringLiteral("ConsultaOftalmo")};

    forms::SSTab SSTab1{QStringLiteral("SSTab1")};
    forms::Label lblModo{QStringLiteral("lblModo")};
    forms::TextBox mConFecha{QStringLiteral("mConFecha"), 10};
    forms::ComboBox comboMotivo{QStringLiteral("comboMotivo"), {}, true};
    forms::MemoBox mmodMotivo{QStringLiteral("mmodMotivo")};
    forms::MemoBox mmodAntecede{QStringLiteral("mmodAntecede")};
    forms::MemoBox mmodDiagnostico{QStringLiteral("mmodDiagnostico")};
    forms::ControlArray<forms::ComboBox> mAgudeza{QStringLiteral("mAgudeza")}; ///< right eye, then left
    forms::MemoBox mPeriferia{QStringLiteral("mPeriferia")};
    forms::MemoBox mBiomicroscopia{QStringLiteral("mBiomicroscopia")};
    forms::MemoBox mFondo{QStringLiteral("mFondo")};
    forms::TextBox mRefraccionOD{QStringLiteral("mRefraccionOD")};
    forms::TextBox mRefraccionOI{QStringLiteral("mRefraccionOI")};
    forms::MemoBox mRefraccionM{QStringLiteral("mRefraccionM")};
    forms::Label lblCuentaOD{QStringLiteral("lblCuentaOD")};
    forms::Label lblCuentaOI{QStringLiteral("lblCuentaOI")};
    forms::ComboBox Combo1{QStringLiteral("Combo1"), {}, true};
    forms::ComboBox Combo2{QStringLiteral("Combo2"), {}, true};
    forms::Label lblTestAmsler{QStringLiteral("lblTestAmsler"), QStringLiteral(" -")};
    forms::ControlArray<forms::OptionButton> Option1{QStringLiteral("Option1")};
    forms::ComboBox comboReceta{QStringLiteral("comboReceta"), {}, true};
    forms::MemoBox mConRP{QStringLiteral("mConRP")};
    forms::ControlArray<forms::CommandButton> comTextos{QStringLiteral("comTextos")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Amsler"),
                                  QStringLiteral("editar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Nueva receta"),
                                  QStringLiteral("nuevo")};
    forms::CommandButton Command5{QStringLiteral("Command5"), QStringLiteral("&Grabar"),
                                  QStringLiteral("guardar")};
    forms::CommandButton Command6{QStringLiteral("Command6"), QStringLiteral("&Cancelar"),
                                  QStringLiteral("cancelar")};
    forms::CommandButton Command7{QStringLiteral("Command7"), QStringLiteral("&Biomicroscopia..."),
                                  QStringLiteral("oftalmologia")};
    forms::CommandButton Command8{QStringLiteral("Command8"), QStringLiteral("&Fondo de ojo..."),
                                  QStringLiteral("oftalmologia")};
    forms::CommandButton Command9{QStringLiteral("Command9"), QStringLiteral("&Estrabismo..."),
                                  QStringLiteral("ver")};
};
