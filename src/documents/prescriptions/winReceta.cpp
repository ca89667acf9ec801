#include "documents/prescriptions/winReceta.h"

#include "core/services/paciente.h"
#include "core/services/services.h"
#include "core/session/recetario.h"
#include "core/session/screens.h"
#include "core/session/session.h"
#include "documents/prescriptions/recetas.h"
#include "platform/forms/layout.h"
#include "platform/forms/tag.h"

using namespace Qt::StringLiterals;
using namespace forms;

winReceta::winReceta(qint64 paciente, const QString &texto)
    : Form(u"winReceta"_s), paciente_(paciente), alAbrir_(texto)
{
    setWindowTitle(u"Receta"_s);
    textReceta.setPlaceholderText(u"Escriba aquí la receta"_s);
    textReceta.setPlainText(texto);
    textReceta.moveCursor(QTextCursor::End);
    Command4.setToolTip(u"Agrega lo recetado al paciente la última vez"_s);
    setContents(this, Column{
                          Expanding(Picture2),
                          Row{Command1, Command3, Command4, Stretch(), Command2},
                      });
    resize(Picture2.sizeHint().width() + 60, 660);
    // What was printed is recorded; once it is changed it is another prescription, to print and keep.
    connect(&textReceta, &QPlainTextEdit::textChanged, this, [this] {
        Command1.show();
        Command3.show();
    });
    connect(&Picture2, &Canvas::doubleClicked, this, &winReceta::abrirTratamiento);
    connect(&Command1, &QPushButton::clicked, this, &winReceta::imprimir);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"CERRAR"_s); });
    connect(&Command3, &QPushButton::clicked, this, [this] { answer(u"GUARDAR"_s); });
    connect(&Command4, &QPushButton::clicked, this, &winReceta::repetir);
}

/// Once: what was moved on the sheet stays so when the person comes back from a treatment.
void winReceta::activate()
{
    if (dibujada_)
        return;
    dibujada_ = true;
    MODULE11::prepararRecetario();
    Picture2.hold(textReceta, Picture2.papel().receta);
    textReceta.setFocus();
    Command4.setEnabled(recetas::ultima(paciente_).has_value());
    try {
        dibujar();
    } catch (const basic::Error &error) { // the prescription can be written on a bare sheet
        MODULE11::MuestraError(error.description());
    }
}

void winReceta::dibujar()
{
    const recetario::Diseno diseno = recetario::leer(MODULE11::TablaRecetario);
    dibujarElementos(diseno);
    if (diseno.imagen)
        Picture2.mostrarImagen(*diseno.imagen);
}

void winReceta::dibujarElementos(const recetario::Diseno &diseno)
{
    for (const auto &[numero, elemento] : diseno.elementos) {
        recetario::Elemento sinSubrayar = elemento; // only the editor of the sheet underlines
        sinSubrayar.subrayado = false;
        const recetario::Rotulo rotulo = recetario::rotulo(elemento.valor, paciente_);
        Picture2.mostrar(numero, sinSubrayar, rotulo.texto);
        CanvasItem &item = Picture2.elem(numero);
        forms::setTag(&item, rotulo.tratamiento);
        if (!rotulo.tratamiento.isEmpty())
            item.setToolTip(u"Doble clic: ver el tratamiento"_s);
    }
}

void winReceta::abrirTratamiento(const QString &item)
{
    const QString tratamiento = forms::tag(Picture2.item(item));
    if (Picture2.numeroDe(item) && !tratamiento.isEmpty())
        screens::showModal("panTratamientos", tratamiento);
}

/// Both buttons stay away whatever is answered, until the prescription is touched again.
void winReceta::imprimir()
{
    Command1.hide();
    Command3.hide();
    if (!MODULE11::Pregunta(u"Imprime la receta"_s))
        return;
    recetas::imprimir(recetas::registrar(paciente_, texto()));
    alAbrir_ = texto();
}

void winReceta::repetir()
{
    const std::optional<QString> ultima = recetas::ultima(paciente_);
    if (!ultima)
        return;
    textReceta.moveCursor(QTextCursor::End);
    if (!textReceta.textCursor().atBlockStart())
        textReceta.insertPlainText(u"\n"_s);
    textReceta.insertPlainText(*ultima);
    textReceta.setFocus();
}

/// Esc and the frame close by mistake too, and must not take a prescription with them.
bool winReceta::queryUnload()
{
    return texto() == alAbrir_ || MODULE11::PreguntaSiBorra(u"Cierra la receta sin guardarla"_s);
}

std::optional<QString> EmiteReceta(qint64 paciente, const QString &textoInicial)
{
    winReceta receta(paciente, textoInicial);
    if (const QString nombre = services::nombreDePaciente(QString::number(paciente)); !nombre.isEmpty())
        receta.setWindowTitle(u"Receta de "_s + nombre);
    receta.showModal();
    if (receta.tag() != u"GUARDAR")
        return std::nullopt;
    return receta.texto();
}

#include "moc_winReceta.cpp"
