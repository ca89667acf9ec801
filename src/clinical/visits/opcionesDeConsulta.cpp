#include "clinical/visits/opcionesDeConsulta.h"

#include "clinical/visits/consulta.h"

using namespace forms;
using consultas::OpcionesDeConsulta;

namespace
{

void elegir(QButtonGroup &grupo, const QString &texto)
{
    grupo.setExclusive(false);
    for (QAbstractButton *opcion : grupo.buttons())
        opcion->setChecked(opcion->text() == texto.trimmed());
    grupo.setExclusive(true);
}

QString elegida(const QButtonGroup &grupo)
{
    const QAbstractButton *opcion = grupo.checkedButton();
    return opcion ? opcion->text() : QString();
}

} // namespace

OpcionesDeConsulta::OpcionesDeConsulta()
{
    for (const int i : {0, 1}) {
        lugar_.addButton(&option3d1.add(i, consultas::lugar(i == 0)));
        tipo_.addButton(&option3d2.add(i, consultas::tipo(i == 0)));
    }
    option3d1(0).setChecked(true);
    option3d2(0).setChecked(true);
    for (const QButtonGroup *grupo : {&lugar_, &tipo_})
        connect(grupo, &QButtonGroup::buttonClicked, this, &OpcionesDeConsulta::elegida);
}

QString OpcionesDeConsulta::lugar() const
{
    return ::elegida(lugar_);
}

QString OpcionesDeConsulta::tipo() const
{
    return ::elegida(tipo_);
}

void OpcionesDeConsulta::setLugar(const QString &texto)
{
    elegir(lugar_, texto);
}

void OpcionesDeConsulta::setTipo(const QString &texto)
{
    elegir(tipo_, texto);
}

void OpcionesDeConsulta::setEnabled(bool enabled)
{
    for (const int i : {0, 1}) {
        option3d1(i).setEnabled(enabled);
        option3d2(i).setEnabled(enabled);
    }
}

#include "moc_opcionesDeConsulta.cpp"
