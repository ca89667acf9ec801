#pragma once

#include "core/records/tabla.h"
#include "platform/forms/controlarray.h"
#include "specialties/cardiology/dibujoDeTorax.h"
#include "specialties/cardiology/trazado.h"

#include <map>

/// "Evolución Cardiológica": the dated heart records of the patient whose number is the tag, each with its
/// tracing, pulses, foci, examination and a chest diagram. A diagram is written when it is saved; those that
/// were drawn in other records meanwhile are saved with it.
class panCardioPrin : public records::ListaDelPaciente
{
    Q_OBJECT
public:
    panCardioPrin();

protected:
    void activate() override;
    void rowShown() override;
    void deleteRow() override;
    bool queryUnload() override;

private:
    forms::TextBox &texto(const QString &columna);
    forms::FieldRow renglon(const QString &rotulo, const QString &columna);
    forms::Item pulsosDe(QChar lado, const QString &nombre);
    forms::Item electro();
    forms::Item pulsos();
    forms::Item focos();
    forms::Item examen();
    forms::Item hallazgosDelTorax();
    forms::Item diagrama();

    void nuevo();
    void adquirir();
    void verTrazado();
    void abrirRx();
    void evaluacionDeportiva();
    void guardar();
    void guardarDiagramas();
    void imprimirDiagrama();
    bool hayDiagramasSinGuardar() const { return !pendientes_.empty() || dibujo_.cambiado(); }
    void apartarDiagrama();
    void mostrarDiagrama();
    void mostrarCambios(qint64 consulta);
    void exigirNumero();
    QString archivoDe(qint64 consulta, QStringView extension) const;

    qint64 mostrada_ = 0;                                       ///< the record on the screen; 0 for none
    QString archivoMostrado_;                                   ///< of its diagram, as it was read
    std::map<qint64, std::vector<torax::Elemento>> pendientes_; ///< unsaved diagrams of other records

    forms::SSTab SSTab1{QStringLiteral("SSTab1")};
    forms::Label lblPaciente{QStringLiteral("lblPaciente")};
    forms::Label lblAviso{QStringLiteral("lblAviso")};
    forms::DTPicker mFecha{QStringLiteral("mFecha")};
    forms::ControlArray<forms::TextBox> mDato{QStringLiteral("mDato")};
    forms::ControlArray<forms::CheckBox> Check1{QStringLiteral("Check1")};
    forms::TextBox Text18{QStringLiteral("Text18")}; ///< centimetres of jugular pressure
    forms::TextBox mImagen{QStringLiteral("mImagen")};
    forms::MemoBox mInterpretacion{QStringLiteral("mInterpretacion")};
    Trazado Image3{QStringLiteral("Image3")};
    forms::ListBox List1{QStringLiteral("List1")}; ///< what changed since the record before
    forms::Canvas figura_;
    DibujoDeTorax dibujo_{DibujoDeTorax::Fondo::Torax};
};
