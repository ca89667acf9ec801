#include "paediatrics/pressure/panTension.h"

#include "core/reports/papel.h"
#include "core/services/paciente.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "paediatrics/pressure/panTomaTension.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"
#include "platform/forms/twips.h"

using namespace Qt::StringLiterals;
using namespace forms;
using presion::Cual;
using presion::Toma;

namespace
{

constexpr qint64 diasDeLaCurva = 5475;
constexpr double altoSinCurva = 3300; // twips
constexpr int anchoDeLista = 320;

void escribir(dao::Recordset &fila, const Toma &toma)
{
    fila[u"fecha"] = toma.fecha;
    fila[u"minima"] = toma.minima;
    fila[u"maxima"] = toma.maxima;
}

Toma leer(dao::Recordset &fila)
{
    return {fila[u"fecha"].date(), fila[u"minima"].number(), fila[u"maxima"].number()};
}

} // namespace

panTension::panTension()
    : ListaDelPaciente(u"panTension"_s, u"Percentilación de la tensión arterial"_s,
                       {{u"Fecha"_s, u"fecha"_s, u"dd/mm/yyyy"_s, 100},
                        {u"Máxima"_s, u"maxima"_s, {}, 80},
                        {u"Mínima"_s, u"minima"_s, {}, 80}},
                       u"Select * from tomapresion where paciente = %1 order by fecha"_s)
{
    disponer();
    for (presion::Curva *curva : {&Picture1, &Picture2})
        connect(curva, &Canvas::clicked, this, [this, curva](const QString &item) {
            if (const auto toma = curva->numeroDe(item))
                DBGrid1.setCurrentRow(*toma);
        });
}

void panTension::disponer()
{
    QFont destacada = lblPaciente.font();
    destacada.setBold(true);
    lblPaciente.setFont(destacada);
    for (Label *palabras : {&lblMaxima, &lblMinima}) {
        palabras->setWordWrap(true);
        palabras->setFixedWidth(anchoDeLista);
    }
    DBGrid1.setFixedWidth(anchoDeLista);
    setContents(
        this, Column{Row{Column{lblPaciente, Expanding(DBGrid1), lblMaxima, lblMinima},
                         Column{Tabs(SSTab1, {{u"Mínima"_s, Picture1}, {u"Máxima"_s, Picture2}}), Stretch()}},
                     Row{command(u"Command1"_s, u"&Nueva..."_s, u"agregar"_s, [this] { nueva(); }),
                         rowCommand(u"Command3"_s, u"&Modificar..."_s, u"editar"_s, [this] { cambiar(); }),
                         rowCommand(u"Command2"_s, u"&Borrar"_s, u"borrar"_s, [this] { borrar(); }),
                         command(u"Command4"_s, u"&Imprimir"_s, u"imprimir"_s, [this] { imprimir(); }),
                         Stretch(), closes(u"Command5"_s, u"&Cerrar"_s)}});
}

void panTension::activate()
{
    const qint64 antes = paciente();
    ListaDelPaciente::activate();
    if (paciente() == 0)
        return;
    if (paciente() != antes)
        leerPaciente();
    dibujar();
    if (paciente() != antes && !tomas_.empty())
        DBGrid1.setCurrentRow(static_cast<int>(tomas_.size()) - 1); // the latest is asked for first
}

/// Of a patient without a known sex there are no curves to compare with.
void panTension::leerPaciente()
{
    letra_ = QChar();
    nacimiento_.reset();
    auto fila = services::paciente(paciente());
    sexo_ = fila ? (*fila)[u"Sexo"].text() : QString();
    lblPaciente.setCaption(fila ? (*fila)[u"Apellido y Nombres"].text() : QString());
    const QChar letra = sexo_.isEmpty() ? QChar() : sexo_[0].toUpper();
    if (letra != u'V' && letra != u'M') {
        msgBox(u"Error al ubicar al paciente"_s, Icon::Critical, u"Error"_s);
        return;
    }
    letra_ = letra;
    if (const basic::Value dia = (*fila)[u"Fecha de Nacimiento"]; !dia.isNull())
        nacimiento_ = dia.date();
    Picture1.trazarReferencia(letra_);
    Picture2.trazarReferencia(letra_);
    if (nacimiento_ && basic::today().wholeDays() - nacimiento_->wholeDays() > diasDeLaCurva)
        SSTab1.setFixedHeight(static_cast<int>(toPixels(altoSinCurva)));
}

void panTension::dibujar()
{
    tomas_.clear();
    dao::Recordset filas =
        MODULE11::BaseDatos.openRecordset(Data1.recordSource(), dao::Recordset::Kind::Snapshot);
    for (; !filas.eof(); filas.moveNext())
        tomas_.push_back(leer(filas));
    if (letra_.isNull() || !nacimiento_)
        return;
    Picture1.ponerTomas(tomas_, *nacimiento_);
    Picture2.ponerTomas(tomas_, *nacimiento_);
    rowShown();
}

std::optional<Toma> panTension::tomaActual()
{
    return Data1.hasRow() ? std::optional(leer(Data1.recordset())) : std::nullopt;
}

QString panTension::enPalabras(Cual cual, const Toma &toma) const
{
    return presion::enPalabras(cual, paciente(), sexo_, nacimiento_, toma);
}

void panTension::rowShown()
{
    const auto toma = tomaActual();
    lblMaxima.setCaption(toma ? enPalabras(Cual::Maxima, *toma) : QString());
    lblMinima.setCaption(toma ? enPalabras(Cual::Minima, *toma) : QString());
    const auto lugar = toma ? std::optional(DBGrid1.currentRow()) : std::nullopt;
    Picture1.destacar(lugar);
    Picture2.destacar(lugar);
}

void panTension::nueva()
{
    panTomaTension captura;
    capture(captura, [&](dao::Recordset &fila) {
        fila[u"Paciente"] = paciente();
        escribir(fila, captura.toma());
    });
    dibujar();
}

void panTension::cambiar()
{
    panTomaTension captura;
    captura.mostrar(*tomaActual());
    captura.showModal();
    if (captura.tag() != u"SI")
        return;
    Data1.change([&](dao::Recordset &filas) {
        const auto cambiada = filas.bookmark();
        filas.edit([&] { escribir(filas, captura.toma()); });
        filas.requery(); // another date is another place
        filas.setBookmark(cambiada);
    });
    dibujar();
}

void panTension::borrar()
{
    if (!askBox(u"Está seguro de eliminar el registro?"_s, u"Atención"_s, Answer::No))
        return;
    deleteRow();
    dibujar();
}

/// The two curves, and the figures that they show, in words.
void panTension::imprimir()
{
    if (!MODULE11::Pregunta(u"Imprime las tablas de percentilación de tensión del paciente"_s))
        return;
    const QString titulo = u"Percentilación de la tensión arterial de "_s + lblPaciente.caption();
    const auto impresora = printing::defaultChoice(titulo);
    if (!impresora)
        return;
    informes::Papel papel(*impresora);
    for (auto [curva, nombre] : {std::pair{&Picture1, u"Mínima"_s}, {&Picture2, u"Máxima"_s}}) {
        papel.escribir(nombre, 11, true);
        papel.dibujar(*curva);
    }
    for (const Toma &toma : tomas_)
        papel.escribir(u"%1   %2. %3"_s.arg(basic::dateText(toma.fecha), enPalabras(Cual::Maxima, toma),
                                            enPalabras(Cual::Minima, toma)),
                       9);
    papel.terminar();
}

#include "moc_panTension.cpp"
