#include "clinical/history/lectorDeHistoria.h"

#include "core/reports/informes.h"
#include "platform/forms/layout.h"

#include <QLayout>
#include <QRegularExpression>
#include <QShortcut>
#include <QTextBlock>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr int altoDelTexto = 56; // three lines; it takes what room there is

/// The line that stands over a section is in capitals and ends in a colon.
bool esTitulo(const QString &linea)
{
    static const QRegularExpression titulo(u"^\\p{Lu}[\\p{Lu} .-]+ : $"_s);
    return titulo.match(linea).hasMatch();
}

} // namespace

LectorDeHistoria::LectorDeHistoria()
{
    RT1.setReadOnly(true);
    RT1.setMinimumHeight(altoDelTexto);
    RT1.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    cbSeccion.setPlaceholderText(u"Ir a la sección..."_s);
    cbSeccion.setAccessibleName(u"Sección de la historia"_s);
    cmdVista.setToolTip(u"Vista previa, para imprimir o guardar en PDF"_s);
    cmdVista.setAccessibleName(u"Vista previa"_s);
    txtBuscar.setPlaceholderText(u"Buscar (Ctrl+F)"_s);
    txtBuscar.setClearButtonEnabled(true);
    setContents(this, Column{Row{Expanding(cbSeccion), Expanding(txtBuscar), cmdVista}, Expanding(RT1)});
    layout()->setContentsMargins({});
    connect(&cbSeccion, &QComboBox::activated, this, &LectorDeHistoria::irALaSeccion);
    connect(&txtBuscar, &QLineEdit::returnPressed, this, &LectorDeHistoria::buscar);
    connect(&cmdVista, &QPushButton::clicked, this, &LectorDeHistoria::verPaginas);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, &txtBuscar,
            [this] { txtBuscar.setFocus(Qt::ShortcutFocusReason); });
    connect(new QShortcut(QKeySequence::FindNext, this), &QShortcut::activated, this,
            &LectorDeHistoria::buscar);
}

void LectorDeHistoria::mostrar(qint64 paciente, const QString &historia)
{
    paciente_ = paciente;
    cmdVista.setEnabled(!historia.isEmpty());
    RT1.setPlainText(historia);
    cbSeccion.clear();
    for (QTextBlock linea = RT1.document()->begin(); linea.isValid(); linea = linea.next())
        if (esTitulo(linea.text()))
            cbSeccion.addItem(linea.text().chopped(3), linea.blockNumber());
    cbSeccion.setCurrentIndex(-1);
    cbSeccion.setEnabled(cbSeccion.count() > 0);
}

/// The section's title becomes the first line in sight.
void LectorDeHistoria::irALaSeccion(int indice)
{
    const int linea = cbSeccion.itemData(indice).toInt();
    RT1.moveCursor(QTextCursor::End);
    RT1.setTextCursor(QTextCursor(RT1.document()->findBlockByNumber(linea)));
}

/// From the cursor on, and around from the start.
void LectorDeHistoria::buscar()
{
    if (txtBuscar.text().isEmpty())
        return;
    if (!RT1.find(txtBuscar.text())) {
        const QTextCursor antes = RT1.textCursor();
        RT1.moveCursor(QTextCursor::Start);
        if (!RT1.find(txtBuscar.text())) {
            RT1.setTextCursor(antes);
            txtBuscar.setFound(false);
            return;
        }
    }
    txtBuscar.setFound(true);
}

void LectorDeHistoria::verPaginas()
{
    informes::muestra(u"historia.rpt"_s, u"{Pacientes.Numero} = %1"_s.arg(paciente_),
                      {{u"historia"_s, RT1.toPlainText()}});
}

#include "moc_lectorDeHistoria.cpp"
