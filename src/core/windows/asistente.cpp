#include "core/windows/asistente.h"

#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/forms/layout.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

const QSize tamano(800, 480);

const QStringList temas = {
    u"Como insertar los datos de mis pacientes?"_s,
    u"Como abro la ficha de un paciente ya registrado?"_s,
    u"Como uso el sistema sin interferir la consulta?"_s,
    u"Como visualizo las consultas de un día determinado?"_s,
    u"Como personalizar a mi gusto el uso del sistema?"_s,
};

} // namespace

asistente::asistente() : Form(u"asistente"_s)
{
    setWindowTitle(u"Asistente"_s);
    Combo1.addItems(temas);
    Image1.setFixedSize(tamano);
    Image1.setAlignment(Qt::AlignCenter);
    Image1.setFrameShape(QFrame::StyledPanel);
    setContents(this, Column{
                          Fields{{Label1, Combo1}},
                          Image1,
                          Row{Command3, Stretch(), Command1, Command2},
                      });
    connect(&Combo1, &QComboBox::currentIndexChanged, this, [this] { mostrar(1); });
    connect(&Command1, &QPushButton::clicked, this, [this] { mostrar(paso_ - 1); });
    connect(&Command2, &QPushButton::clicked, this, [this] { mostrar(paso_ + 1); });
    connect(&Command3, &QPushButton::clicked, this, [this] { mostrar(1); });
}

void asistente::load()
{
    Combo1.setCurrentIndex(0); // which shows it
}

QString asistente::archivo(int paso) const
{
    return basic::programFile(u"asistente/asist_%1_%2.GIF"_s.arg(
        basic::format(Combo1.currentIndex() + 1, u"00"), basic::format(paso, u"00")));
}

void asistente::mostrar(int paso)
{
    paso_ = paso;
    const QPixmap figura(archivo(paso));
    if (figura.isNull())
        Image1.setText(u"No hay imágenes para este tema."_s);
    else
        Image1.setPixmap(figura.scaled(tamano, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    Command1.setEnabled(paso > 1);
    Command2.setEnabled(QFileInfo::exists(archivo(paso + 1)));
}

#include "moc_asistente.cpp"
