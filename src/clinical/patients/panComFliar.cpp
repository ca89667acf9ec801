#include "clinical/patients/panComFliar.h"

#include "clinical/patients/panAnteFliares.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

const QDate sinFecha(1900, 1, 1); // stands for a date that is not known

const QStringList ocupacionesDelPadre = {u"<No>"_s,       u"Empleado"_s, u"Profesional"_s, u"Jubilado"_s,
                                         u"Desocupado"_s, u"Tecnico"_s,  u"Comerciante"_s, u"Empresario"_s,
                                         u"Artista"_s,    u"Docente"_s};
const QStringList ocupacionesDeLaMadre = {u"<No>"_s,       u"Empleada"_s, u"Profesional"_s, u"Jubilada"_s,
                                          u"Desocupada"_s, u"Tecnica"_s,  u"Comerciante"_s, u"Empresaria"_s,
                                          u"Artista"_s,    u"Docente"_s,  u"Ama de Casa"_s};

} // namespace

panComFliar::panComFliar() : Form(u"panComFliar"_s)
{
    setWindowTitle(u"Condición familiar del paciente"_s);
    for (const Progenitor quien : {padre, madre}) {
        Text1.add(quien, 100); // the columns' lengths
        ComboBox &ocupacion =
            Combo1.add(quien, quien == padre ? ocupacionesDelPadre : ocupacionesDeLaMadre, true);
        ocupacion.lineEdit()->setMaxLength(60);
        ocupacion.setValue(u"<No>"_s);
        Text2.add(quien, 20);
    }
    mFPa.setValue(basic::Date(sinFecha));
    mFMa.setValue(basic::Date(sinFecha));
    List1.setToolTip(u"Antecedentes psicologicos familiares"_s);
    Command7.setToolTip(u"Agrega una patologia familiar a la lista"_s);
    Command8.setToolTip(u"Borra la patologia seleccionada"_s);
    Command1.setDefault(true);

    const auto progenitor = [this](const QString &titulo, const QString &nombre, Progenitor quien) {
        return Group(titulo, Fields{{nombre, Text1(quien)},
                                    {u"Fecha de nacimiento :"_s, quien == padre ? mFPa : mFMa},
                                    {u"Actividad Laboral"_s, Combo1(quien)},
                                    {u"Horas de permanencia en el hogar :"_s, Text2(quien)}});
    };
    setContents(this, Column{
                          Row{progenitor(u"Padre"_s, u"Nombre del &padre"_s, padre),
                              progenitor(u"Madre"_s, u"Nombre de la &madre"_s, madre)},
                          Group(u"Patologías familiares"_s,
                                Row{Expanding(List1), Column{Command7, Command8, Stretch()}}),
                          Row{Stretch(), Command1, Command2},
                      });
    setMinimumWidth(900);
    connect(&Command7, &QPushButton::clicked, this, &panComFliar::agregarPatologias);
    connect(&Command8, &QPushButton::clicked, this, &panComFliar::quitarPatologia);
    connect(&Command1, &QPushButton::clicked, this, [this] { answer(u"SI"_s); });
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void panComFliar::mostrar(dao::Recordset *pediatria, const QStringList &patologias)
{
    List1.clear();
    List1.addItems(patologias);
    if (!pediatria)
        return;
    static constexpr const char16_t *columnas[][4] = {
        {u"Nombre del padre", u"Fecha Nacim Padre", u"Ocupacion Padre", u"Hs permanencia padre"},
        {u"Nombre de la Madre", u"Fecha Nacim Madre", u"Ocupacion Madre", u"Hs permanencia madre"}};
    for (const Progenitor quien : {padre, madre}) {
        const auto &[nombre, nacio, ocupacion, horas] = columnas[quien];
        Text1(quien).setText((*pediatria)[nombre].text());
        Combo1(quien).setValue((*pediatria)[ocupacion].text());
        Text2(quien).setText((*pediatria)[horas].text());
        const basic::Value fecha = (*pediatria)[nacio];
        (quien == padre ? mFPa : mFMa).setValue(fecha.isNull() ? basic::Date(sinFecha) : fecha.date());
    }
}

basic::Value panComFliar::nacimiento(const DTPicker &fecha) const
{
    return fecha.value().date() == sinFecha ? basic::Value(basic::Null{}) : basic::Value(fecha.value());
}

void panComFliar::agregarPatologias()
{
    panAnteFliares seleccion;
    seleccion.showModal();
    if (seleccion.tag() == u"SI")
        List1.addItems(seleccion.marcados());
}

void panComFliar::quitarPatologia()
{
    delete List1.takeItem(List1.currentRow());
}

#include "moc_panComFliar.cpp"
