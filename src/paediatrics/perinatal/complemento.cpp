#include "paediatrics/perinatal/complemento.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace perinatal
{

Complemento::Complemento(const QString &ventana, const QString &titulo) : Form(ventana)
{
    setWindowTitle(titulo);
    connect(&Command1, &QPushButton::clicked, this, [this] { answer(u"SI"_s); });
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void Complemento::disponer(Item contenido)
{
    setContents(this, Column{Expanding(std::move(contenido)), Row{Stretch(), Command1, Command2}});
}

} // namespace perinatal

#include "moc_complemento.cpp"
