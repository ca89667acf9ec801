#include "core/service/panSQL.h"

#include "core/service/seleccion.h"
#include "core/services/criterio.h"
#include "core/services/services.h"
#include "platform/basic/environment.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"

#include <QFile>
#include <QSaveFile>
#include <QStringDecoder>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

const QString archivosSql = u"Archivos SQL (*.sql)"_s;
constexpr qint64 masLargo = 1 << 20; ///< bytes of a selection; what is longer is another kind of file

/// In the order of the list.
QStringList elegidas(const ListBox &lista)
{
    QStringList nombres;
    for (int fila = 0; fila < lista.count(); ++fila)
        if (lista.item(fila)->isSelected())
            nombres += lista.item(fila)->text();
    return nombres;
}

/// Files of earlier programs are in Latin letters of one byte.
QString leido(const QByteArray &bytes)
{
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString texto = utf8(bytes);
    return utf8.hasError() ? QString::fromLatin1(bytes) : texto;
}

} // namespace

panSQL::panSQL(dao::TableDef tabla, const QString &sql) : Form(u"panSQL"_s), tabla_(std::move(tabla))
{
    setWindowTitle(u"Edición del registro SQL"_s);
    Text1.setPlainText(sql);
    for (const dao::FieldDef &campo : tabla_.fields()) {
        List1.addLine(campo.name);
        List2.addLine(campo.name);
        Combo1.addItem(campo.name);
    }
    for (ListBox *lista : {&List1, &List2})
        lista->setSelectionMode(QAbstractItemView::ExtendedSelection);
    Combo1.setCurrentIndex(-1);
    Combo2.addItems(seleccion::comparaciones());
    Combo2.setCurrentIndex(0);
    disponer();
    conectar();
}

void panSQL::disponer()
{
    const QString ayuda = u"Elija las columnas con el mouse y la tecla Ctrl."_s;
    Text1.setMinimumHeight(110);
    setContents(
        this, Column{
                  Expanding(Above(u"Se&lección :"_s, Text1)),
                  Tabs(SSTab1,
                       {{u"Ca&mpos"_s, Column{new QLabel(ayuda), Expanding(List1), Row{Stretch(), Command3}}},
                        {u"&Orden"_s, Column{new QLabel(ayuda), Expanding(List2), Row{Stretch(), Command4}}},
                        {u"&Filtro"_s, Column{Fields{{u"Cam&po :"_s, Combo1},
                                                     {u"Compa&ración :"_s, Combo2},
                                                     {u"&Valor :"_s, Text2}},
                                              Row{Stretch(), Command5}, Stretch()}}}),
                  Row{Command6, Command7, Stretch(), Command1, Command2},
              });
    resize(640, 560);
}

void panSQL::conectar()
{
    connect(&Command1, &QPushButton::clicked, this, [this] { answer(u"SI"_s); });
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
    connect(&Command3, &QPushButton::clicked, this, &panSQL::ponerColumnas);
    connect(&Command4, &QPushButton::clicked, this, &panSQL::ponerOrden);
    connect(&Command5, &QPushButton::clicked, this, &panSQL::ponerFiltro);
    connect(&Command6, &QPushButton::clicked, this, &panSQL::abrir);
    connect(&Command7, &QPushButton::clicked, this, &panSQL::guardar);
}

void panSQL::ponerColumnas()
{
    if (const QStringList columnas = elegidas(List1); !columnas.isEmpty())
        Text1.setPlainText(seleccion::deColumnas(tabla_.name(), columnas));
}

void panSQL::ponerOrden()
{
    if (const QStringList columnas = elegidas(List2); !columnas.isEmpty())
        Text1.setPlainText(seleccion::conOrden(sql(), columnas));
}

void panSQL::ponerFiltro()
{
    clearWrong(Text2);
    const dao::FieldDef *campo = tabla_.field(Combo1.value());
    if (!campo) {
        MODULE11::MuestraError(u"Elija antes el campo."_s);
        return;
    }
    const auto criterio = seleccion::criterio(*campo, Combo2.value(), Text2.text());
    if (!criterio) {
        MODULE11::MuestraError(services::loQuePide(*campo));
        markWrong(Text2, services::loQuePide(*campo));
        return;
    }
    Text1.setPlainText(seleccion::conCriterio(sql(), *criterio));
}

void panSQL::abrir()
{
    const QString nombre = openFileDialog(u"Abrir"_s, basic::programFolder(), archivosSql);
    if (nombre.isEmpty())
        return;
    QFile archivo(nombre);
    if (!archivo.open(QIODevice::ReadOnly))
        MODULE11::MuestraError(u"No se puede leer %1.\n%2"_s.arg(nombre, archivo.errorString()));
    else if (archivo.size() > masLargo)
        MODULE11::MuestraError(u"%1 no es una selección guardada."_s.arg(nombre));
    else
        Text1.setPlainText(leido(archivo.readAll()));
}

void panSQL::guardar()
{
    const QString nombre =
        saveFileDialog(u"Guardar"_s, basic::programFile(tabla_.name() + u".sql"_s), archivosSql);
    if (nombre.isEmpty())
        return;
    QSaveFile archivo(nombre);
    archivo.open(QIODevice::WriteOnly);
    archivo.write(sql().toUtf8());
    if (!archivo.commit())
        MODULE11::MuestraError(u"No se puede guardar %1.\n%2"_s.arg(nombre, archivo.errorString()));
}

#include "moc_panSQL.cpp"
