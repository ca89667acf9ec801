#include "specialties/gynaecology/panGinecoOtros.h"

#include "core/session/ports.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

struct Especialidad {
    const char *titulo, *columna;
};
constexpr Especialidad especialidades[] = {
    {"Menopausia", "Obs_Menopausia"},         {"Mastología", "Obs_Mastologia"},
    {"Infecciosas", "Obs_Infecciosas"},       {"Esterilidad e infertilidad", "Obs_Esterilidad"},
    {"Infanto Juvenil", "Obs_GinInfJuvenil"}, {"Vulva y vagina", "Obs_EnfVaginaVulva"},
    {"Utero y anexos", "Obs_EnfUteroAnexos"}, {"Oncologia", "Obs_Oncologia"},
};
const QString examen = u"Especialidades"_s;

} // namespace

panGinecoOtros::panGinecoOtros()
    : ListaDelPaciente(
          u"panGinecoOtros"_s, u"Especialidades Ginecológicas"_s,
          {{u"Fecha"_s, u"Fecha"_s, u"dd/mm/yyyy"_s, 110}},
          u"Select * from ExamenGO where idPaciente = %1 and Examen = 'Especialidades' order by Fecha"_s)
{
    setContents(
        this,
        Column{Expanding(Row{DBGrid1, Expanding(Tabs(SSTab1, {hoja(0), hoja(1), hoja(2), hoja(3), hoja(4),
                                                              hoja(5), hoja(6), hoja(7)}))}),
               Row{command(u"Command1"_s, u"&Nuevo..."_s, u"agregar"_s, [this] { nuevo(); }),
                   deletes(u"Command3"_s, u"&Borrar"_s, {.question = u"Seguro de borrar este registro ?"_s}),
                   Stretch(), closes(u"Command2"_s, u"&Cerrar"_s)}});
    DBGrid1.setFixedWidth(150);
    resize(1140, 480);
}

Page panGinecoOtros::hoja(int numero)
{
    const Especialidad &especialidad = especialidades[numero];
    MemoBox &nota = Text1.add(numero);
    Data1.bind(nota, QString::fromLatin1(especialidad.columna));
    const QString titulo = QString::fromUtf8(especialidad.titulo);
    CommandButton &graficos = Label2.add(numero, u"Gráficos"_s, u"ver"_s);
    graficos.setEnabled(bool(ports::abreComplemento));
    connect(&graficos, &QPushButton::clicked, this, [this, titulo] {
        if (paciente() != 0)
            ports::abreComplemento(paciente(), titulo);
    });
    return {titulo,
            Column{Expanding(Above(u"Desarrollo / Observaciones :"_s, nota)), Row{Stretch(), graficos}}};
}

void panGinecoOtros::rowShown()
{
    for (auto &[i, nota] : Text1)
        nota->setEnabled(Data1.hasRow());
}

/// An answer that is no date adds nothing.
void panGinecoOtros::nuevo()
{
    const auto respuesta =
        inputBox(u"Ingrese la fecha de registro:"_s, u"Nuevo examen"_s, basic::dateText(basic::today()), 10);
    if (!respuesta || !basic::isDate(*respuesta))
        return;
    const basic::Value fecha(*respuesta);
    addRow([&](dao::Recordset &fila) {
        fila[u"idPaciente"] = paciente();
        fila[u"Examen"] = examen;
        fila[u"Fecha"] = fecha.date();
    });
}

#include "moc_panGinecoOtros.cpp"
