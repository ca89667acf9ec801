#include "clinical/laboratory/fechaDeEstudio.h"

#include "clinical/laboratory/estudios.h"
#include "platform/basic/environment.h"

namespace
{

constexpr int largoDeFecha = 10;

} // namespace

FechaDeEstudio::FechaDeEstudio(const QString &nombre) : TextBox(nombre, largoDeFecha)
{
    connect(this, &QLineEdit::editingFinished, this, &FechaDeEstudio::reparar);
}

void FechaDeEstudio::setFecha(const basic::Value &fecha)
{
    setText(estudios::textoDeFecha(fecha));
}

basic::Value FechaDeEstudio::fecha()
{
    reparar();
    return estudios::fechaParaGuardar(text());
}

void FechaDeEstudio::reparar()
{
    setText(estudios::fechaEscrita(text(), basic::today()));
}

#include "moc_fechaDeEstudio.cpp"
