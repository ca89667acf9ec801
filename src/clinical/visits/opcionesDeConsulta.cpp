#include "clinical/visits/opcionesDeConsulta.h"

#include "clinical/visits/consulta.h"

using namespace forms;

namespace
{

void elegir(ControlArray<OptionButton> &opciones, const QString &texto)
{
    for (auto &[indice, opcion] : opciones)
        if (opcion->text() == texto.trimmed())
            opcion->setChecked(true);
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

void OpcionesDeConsulta::setLugar(const QString &texto)
{
    elegir(option3d1, texto);
}

void OpcionesDeConsulta::setTipo(const QString &texto)
{
    elegir(option3d2, texto);
}

void OpcionesDeConsulta::setEnabled(bool enabled)
{
    for (const int i : {0, 1}) {
        option3d1(i).setEnabled(enabled);
        option3d2(i).setEnabled(enabled);
    }
}
