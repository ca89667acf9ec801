#include "clinical/catalogues/panTratamientos.h"

#include "clinical/catalogues/dosis.h"
#include "platform/basic/environment.h"

#include <QApplication>
#include <QImageReader>
#include <QKeyEvent>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

enum { cDescripcion, cDroga, cDosis, cIntervalo, cLapso };

/// The room for the picture of a product.
constexpr QSize marco(300, 200);

/// At most as large as its room, which a photo of many megapixels is read down to; null when there is no
/// such picture.
QImage leer(const QString &archivo)
{
    QImageReader lector(archivo);
    lector.setDecideFormatFromContent(true);
    lector.setAutoTransform(true);
    const auto cabe = [](QSize lado) { return lado.boundedTo(marco) == lado; };
    if (const QSize entera = lector.size(); entera.isValid() && !cabe(entera))
        lector.setScaledSize(entera.scaled(marco, Qt::KeepAspectRatio).expandedTo({1, 1}));
    const QImage producto = lector.read();
    if (producto.isNull() || cabe(producto.size())) // one that lies on its side may be too high once turned
        return producto;
    return producto.scaled(marco, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace

panTratamientos::panTratamientos()
    : catalogos::CatalogoClasificado(u"panTratamientos"_s,
                                     {.nombre = u"Tratamientos"_s,
                                      .id = u"idTratamiento"_s,
                                      .preguntaDeBaja = u"Borra este tratamiento de la tabla"_s,
                                      .campos = {{u"Descripcion"_s, 255},
                                                 {u"Droga"_s, 100},
                                                 {u"Dosis"_s, 30},
                                                 {u"Intervalo"_s, 30},
                                                 {u"Lapso"_s, 30}}},
                                     u"ClasTratamiento"_s)
{
    setWindowTitle(u"Tratamientos y medicación"_s);
    Label5.setReadOnly(true);
    SSPanel1.setWordWrap(true);
    SSPanel1.setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    SSPanel1.setMargin(4);
    Picture2.hide();
    setContents(this, Column{
                          Expanding(Row{Expanding(filtroYLista(), 2),
                                        Expanding(Tabs(SSTab1, {{u"&Tratamiento"_s, fichaTratamiento()},
                                                                {u"&Producto"_s, fichaProducto()}}),
                                                  3)}),
                          Fields{{u"Dosis para el paciente :"_s, SSPanel1}},
                          botones(Command1),
                      });
    resize(980, 560);
}

Item panTratamientos::fichaTratamiento()
{
    return Fields{
        {u"&Descripción :"_s, mDato(cDescripcion)}, {u"D&roga :"_s, mDato(cDroga)},
        {u"Dosis &x Kg. :"_s, mDato(cDosis)},       {u"&Intervalo de la dosis :"_s, mDato(cIntervalo)},
        {u"&Lapso de Tiempo :"_s, mDato(cLapso)},   {u"&Clasificación :"_s, Combo2}};
}

Item panTratamientos::fichaProducto()
{
    return Column{Expanding(Fields{{u"Nombre comercial :"_s, Label4}, {u"D&etalles :"_s, Label5}}), Picture2};
}

void panTratamientos::setPaciente(const QString &numero)
{
    forms::setTag(&mDato(cDosis), numero);
}

void panTratamientos::activate()
{
    catalogos::CatalogoClasificado::activate();
    if (tecleado_)
        return;
    tecleado_ = true;
    teclear(tag());
}

/// As a person would: the list goes to the first name that begins so.
void panTratamientos::teclear(const QString &nombre)
{
    for (const QChar letra : nombre) {
        QKeyEvent tecla(QEvent::KeyPress, letra == u' ' ? Qt::Key_Space : Qt::Key_unknown, Qt::NoModifier,
                        letra);
        QApplication::sendEvent(&List1, &tecla);
    }
}

bool panTratamientos::queryUnload()
{
    setPaciente({});
    return catalogos::CatalogoClasificado::queryUnload();
}

void panTratamientos::listar(dao::Recordset &filas)
{
    for (; !filas.eof(); filas.moveNext())
        if (pasaElFiltro(filas))
            agregarALaLista(filas);
}

void panTratamientos::mostrar(dao::Recordset *fila)
{
    catalogos::CatalogoClasificado::mostrar(fila);
    mostrarProducto(fila);
    SSPanel1.setCaption(fila ? catalogos::dosisParaElPaciente(forms::tag(&mDato(cDosis)), (*fila)[u"Dosis"],
                                                              (*fila)[u"Intervalo"])
                             : QString());
}

void panTratamientos::mostrarProducto(dao::Recordset *fila)
{
    Label4.setCaption(fila ? (*fila)[u"NOMBRECOMERCIAL"].text() : QString());
    Label5.setPlainText(fila ? (*fila)[u"DETALLES"].text() : QString());
    mostrarImagen(fila ? (*fila)[u"IMAGEN"].value() : basic::Null{});
}

void panTratamientos::nuevo()
{
    SSTab1.setCurrentIndex(0); // where the name is written
    catalogos::CatalogoClasificado::nuevo();
}

/// Below the program's folder where it is no full path. A file that is no picture is as one that is missing.
void panTratamientos::mostrarImagen(const basic::Value &imagen)
{
    const QImage producto = imagen.isBlank() ? QImage() : leer(basic::programFile(imagen.text()));
    Picture2.setPixmap(QPixmap::fromImage(producto));
    Picture2.setVisible(!producto.isNull());
}

#include "moc_panTratamientos.cpp"
