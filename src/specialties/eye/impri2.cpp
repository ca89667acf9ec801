#include "specialties/eye/impri2.h"

#include "core/services/paciente.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/dao/error.h"
#include "platform/forms/boxes.h"
#include "platform/printing/printer.h"
#include "specialties/eye/visita.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

struct Anteojos {
    QString titulo, derecho, izquierdo; ///< columns
};
const Anteojos recetados[] = {
    {u"Lejos"_s, u"antreclejOD"_s, u"antreclejOi"_s},
    {u"Cerca"_s, u"antreccerOD"_s, u"antreccerOi"_s},
    {u"Intermedio"_s, u"antrecintOD"_s, u"antrecintOi"_s},
};
constexpr int largoDeRaya = 86, puntosDelTitulo = 14, puntos = 11;

} // namespace

QStringList oftalmo::lineasDeAnteojos(const records::Valores &visita)
{
    QStringList lineas;
    for (const Anteojos &anteojos : recetados)
        for (const auto &[ojo, columna] :
             {std::pair{u"O.D."_s, anteojos.derecho}, {u"O.I."_s, anteojos.izquierdo}})
            if (const QString texto = records::valor(visita, columna).text(); !texto.isEmpty())
                lineas += u"%1 %2 : %3"_s.arg(anteojos.titulo, ojo, texto);
    if (const QString receta = records::valor(visita, u"r_p"_s).text(); !receta.isEmpty())
        lineas += receta;
    return lineas;
}

impri2::impri2(qint64 paciente, qint64 idConsulta) : Form(u"impri2"_s), paciente_(paciente)
{
    setWindowTitle(u"Receta de anteojos"_s);
    Label1.setCaption(services::nombreDePaciente(QString::number(paciente)));
    Label2.setCaption(
        u"%1 M.P. %2 T.e.%3"_s.arg(MODULE11::DrActual, MODULE11::MatriculaDr, MODULE11::TelefonosDr));
    QFont destacada = Label1.font();
    destacada.setBold(true);
    Label1.setFont(destacada);
    if (const auto visita = oftalmo::leerVisita(idConsulta))
        lineas_ = oftalmo::lineasDeAnteojos(*visita);
    Text1.setPlainText(lineas_.join(u'\n'));
    Text1.setReadOnly(true);
    Command1.setEnabled(!lineas_.isEmpty());
    setContents(this, Column{Label2, Label1, Expanding(Text1), Row{Command1, Stretch(), Command2}});
    resize(520, 360);
    connect(&Command1, &QPushButton::clicked, this, &impri2::imprimir);
    connect(&Command2, &QPushButton::clicked, this, &impri2::unload);
}

void impri2::imprimir()
{
    const auto impresora = printing::defaultChoice(u"Anteojos de "_s + Label1.caption());
    if (!impresora)
        return;
    printing::Document papel(*impresora, impresora->name);
    const QString raya(largoDeRaya, u'_');
    papel.setFont(QFont(u"Times New Roman"_s, puntosDelTitulo));
    papel.print(Label2.caption());
    papel.setFont(QFont(u"Times New Roman"_s, puntos));
    papel.print(raya + u"\n\n"_s + basic::dateText(basic::today()) + u"\n"_s + Label1.caption() + u"\n\n"_s +
                lineas_.join(u'\n') + u"\n\n"_s + raya);
    papel.endDoc();
    if (askBox(u"Es correcta la impresión??"_s, u"PREGUNTA"_s))
        guardar();
    else
        msgBox(u"Vuelva a intentarlo"_s, Icon::Information, u"MENSAJE"_s);
}

void impri2::guardar()
{
    try {
        dao::Recordset recetas = MODULE11::BaseDatos.openRecordset(u"Recetario"_s);
        recetas.addNew();
        recetas[u"idPaciente"] = paciente_;
        recetas[u"Paciente"] = Label1.caption();
        recetas[u"fecha"] = basic::today();
        recetas[u"Receta"] = u"RECETA\n"_s + lineas_.join(u'\n');
        recetas[u"Dr"] = MODULE11::DrActual;
        recetas.update();
    } catch (const dao::Error &error) {
        MODULE11::MuestraError(u"La receta no se guardó.\n"_s + error.description());
    }
}

#include "moc_impri2.cpp"
