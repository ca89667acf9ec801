#pragma once

#include "clinical/laboratory/casillaDeImagen.h"
#include "clinical/laboratory/complementos.h"
#include "platform/forms/controlarray.h"
#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "platform/forms/layout.h"
#include "platform/forms/richtextbox.h"

#include <QScrollArea>

#include <functional>
#include <memory>

/// The report of a complementary examination of the patient whose number is the tag: a rich text in a file of
/// its own, and a row of pictures.
class panComplem : public forms::Form
{
    Q_OBJECT
public:
    panComplem();

    /// Which examination, before the window is shown.
    void setExamen(const QString &examen) { examen_ = examen; }

protected:
    void activate() override;
    bool queryUnload() override;

private:
    forms::Item barra();
    forms::ToolButton &boton(int lugar, const QString &titulo, const QString &icono,
                             std::function<void()> accion);
    forms::ToolButton &llave(int lugar, const QString &titulo, const QString &icono,
                             std::function<void(bool)> accion);
    forms::Item tira();

    void leer();
    void leerInforme();
    QString nombreDelArchivo() const; ///< below the program's folder
    void mostrarLetra(const QTextCharFormat &letra);
    void mostrarParrafo();
    void elegirColor();
    void buscar();
    void buscarOtra();
    void agregarHistoria();
    void imprimir();

    CasillaDeImagen &agregarCasilla();
    void elegirImagen(CasillaDeImagen &casilla);
    void quitarCasilla(CasillaDeImagen &casilla);
    void quitarLasQueFaltan();
    void numerarCasillas();
    /// The pictures as they are in the row; nothing when a date is none: it was told.
    std::optional<std::vector<complementos::Imagen>> imagenes();

    void guardar();
    bool nadieLoCambio() const;
    void escribirInforme();

    qint64 paciente_ = 0;
    QString examen_ = QStringLiteral("Informe");
    complementos::Complemento complemento_;
    QByteArray enElArchivo_; ///< as it was read or written last
    bool leido_ = false, imagenesCambiadas_ = false;
    QString buscado_, carpeta_;

    forms::Label lblPaciente{QStringLiteral("lblPaciente")};
    forms::Label Label1{QStringLiteral("Label1")}; ///< what became of the saving
    forms::ControlArray<forms::ToolButton> Toolbar1{QStringLiteral("Toolbar1")};
    forms::ComboBox Combo1{QStringLiteral("Combo1")}; ///< size
    forms::ComboBox Combo2{QStringLiteral("Combo2")}; ///< font
    forms::RichTextBox RT1{QStringLiteral("RT1")};
    QScrollArea tira_;
    std::vector<CasillaDeImagen *> casillas_;
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Guardar"),
                                  QStringLiteral("guardar")};
    forms::CommandButton Command2{QStringLiteral("Command2"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};

namespace complementos
{

/// Opens the report of an examination of a patient, modally.
void abrir(qint64 paciente, const QString &examen);

} // namespace complementos
