#include "practice/tariffs/panPrestaciones.h"

#include "core/reports/informes.h"
#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/environment.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/boxes.h"
#include "platform/forms/progress.h"
#include "practice/tariffs/importaTarifas.h"
#include "practice/tariffs/panAumento.h"
#include "practice/tariffs/panNuePrestacion.h"
#include "practice/tariffs/tarifas.h"

#include <QFile>
#include <QHeaderView>

using namespace Qt::StringLiterals;
using namespace forms;
using namespace tarifas;

namespace
{

QString ordenadasPor(QStringView campo)
{
    return u"Select * from Prestaciones order by [%1]"_s.arg(campo);
}

QString resumen(const Importacion &hecha)
{
    constexpr qsizetype lineasALaVista = 15;
    QString texto = u"Prestaciones nuevas: %1\nCambiadas: %2\nLíneas omitidas: %3"_s.arg(hecha.nuevas)
                        .arg(hecha.cambiadas)
                        .arg(hecha.omitidas.size());
    for (const QString &omitida : hecha.omitidas.first(qMin(lineasALaVista, hecha.omitidas.size())))
        texto += u'\n' + omitida;
    if (hecha.omitidas.size() > lineasALaVista)
        texto += u"\n..."_s;
    return hecha.detenida ? texto + u"\nSe detuvo antes del final."_s : texto;
}

} // namespace

panPrestaciones::panPrestaciones()
    : Tabla(u"panPrestaciones"_s, u"Mantenimiento de la tabla de prestaciones"_s, columnasDeGrilla())
{
    setSource(ordenadasPor(columnas[cDescripcion].campo));
    for (int i = 0; const Columna &columna : columnas) {
        TextBox &campo = Text1.add(i++, columna.largo);
        Data1.bind(campo, columna.campo.toString(),
                   columna.tipo == Columna::Importe ? u"0.00##"_s : QString());
    }
    disponer();
    resize(1120, 600);
    DBGrid1.horizontalHeader()->setSectionsClickable(true);
    connect(DBGrid1.horizontalHeader(), &QHeaderView::sectionClicked, this, &panPrestaciones::ordenarPor);
    connect(&txtBusca, &QLineEdit::textEdited, this, &panPrestaciones::buscarAlEscribir);
}

void panPrestaciones::disponer()
{
    std::vector<Item> campos;
    for (int i = 0; const Columna &columna : columnas)
        campos.push_back(Above(columna.titulo.toString() + u" :"_s, Text1(i++)));
    txtBusca.setPlaceholderText(u"Código o parte de la descripción"_s);
    setContents(this, Column{
                          Fields{{u"Bú&squeda rápida :"_s, txtBusca}},
                          Expanding(DBGrid1),
                          Grid(5, std::move(campos)),
                          Row{command(u"Command1"_s, u"&Nueva..."_s, u"nuevo"_s, [this] { agregar(); }),
                              deletes(u"Command2"_s, u"&Borrar"_s, {.question = u"Borra este registro"_s}),
                              command(u"Command4"_s, u"B&uscar..."_s, u"buscar"_s, [this] { buscar(); }),
                              command(u"Command5"_s, u"&Informe"_s, u"informes"_s,
                                      [] {
                                          informes::muestra(u"prestaciones.rpt"_s,
                                                            u"{prestaciones.descripcion} <> ''"_s);
                                      }),
                              command(u"Command6"_s, u"&Aumentar..."_s, u"editar"_s, [this] { aumentar(); }),
                              command(u"Command7"_s, u"I&mportar..."_s, u"abrir"_s, [this] { importar(); }),
                              Stretch(), closes(u"Command3"_s, u"Sa&lir"_s)},
                      });
}

void panPrestaciones::agregar()
{
    panNuePrestacion nueva;
    capture(nueva, [&nueva](dao::Recordset &fila) { nueva.escribir(fila); });
}

void panPrestaciones::ordenarPor(int columna)
{
    Data1.updateRecord();
    setSource(ordenadasPor(columnas.at(static_cast<std::size_t>(columna)).campo));
    refresh();
}

/// False, and the row stays, when there is none such.
bool panPrestaciones::irA(const QString &criterio)
{
    bool hallada = false;
    if (Data1.hasRow())
        Data1.change([&](dao::Recordset &filas) {
            filas.findFirst(criterio);
            hallada = !filas.noMatch();
        });
    return hallada;
}

/// A code that is also part of a name means the code.
void panPrestaciones::buscar()
{
    const QString texto =
        inputBox(u"Ingrese el texto o el código a buscar"_s, u"Buscar"_s).value_or(QString());
    if (!texto.isEmpty() && !irA(u"Codigo = "_s + dao::quoted(texto)))
        irA(u"Descripcion LIKE "_s + dao::quoted(dao::typedPattern(texto, dao::Match::Anywhere)));
}

void panPrestaciones::buscarAlEscribir(const QString &texto)
{
    txtBusca.setFound(
        texto.isEmpty() ||
        irA(u"Codigo LIKE "_s + dao::quoted(dao::typedPattern(texto, dao::Match::Beginning))) ||
        irA(u"Descripcion LIKE "_s + dao::quoted(dao::typedPattern(texto, dao::Match::Anywhere))));
}

void panPrestaciones::aumentar()
{
    Data1.updateRecord();
    panAumento aumento;
    aumento.showModal();
    if (aumento.tag() == u"SI")
        reread();
}

void panPrestaciones::importar()
{
    Data1.updateRecord();
    const QString nombre = openFileDialog(u"Importar aranceles"_s, basic::programFolder(),
                                          u"Listas de aranceles (*.csv *.txt)"_s);
    if (nombre.isEmpty())
        return;
    QFile archivo(nombre);
    if (!archivo.open(QIODevice::ReadOnly)) {
        MODULE11::MuestraError(u"No se puede leer el archivo %1:\n%2"_s.arg(nombre, archivo.errorString()));
        return;
    }
    try {
        Progress avance(u"Importando aranceles..."_s);
        const Importacion hecha =
            importaCsv(MODULE11::BaseDatos, textoDeArchivo(archivo.readAll()),
                       [&avance](qint64 hechas, qint64 de) { return avance.tell(hechas, de); });
        MODULE11::Aviso(resumen(hecha));
    } catch (const basic::Error &error) {
        MODULE11::MuestraError(error.description());
    }
    refresh();
}

#include "moc_panPrestaciones.cpp"
