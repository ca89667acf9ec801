#include "specialties/odontology/tooth.h"

#include "core/records/comando.h"
#include "core/services/paciente.h"
#include "core/session/screens.h"
#include "platform/basic/environment.h"

#include <QDir>
#include <QTabBar>

#include <utility>

using namespace Qt::StringLiterals;
using namespace forms;
using records::comando;

namespace
{

enum Pagina { delOdontograma, delPresupuesto };
const QString titulo = u"Odontología"_s;

void destacar(Label &rotulo, int puntosDeMas)
{
    QFont letra = rotulo.font();
    letra.setBold(true);
    letra.setPointSize(letra.pointSize() + puntosDeMas);
    rotulo.setFont(letra);
}

} // namespace

tooth::tooth() : Form(u"tooth"_s)
{
    setWindowTitle(titulo);
    destacar(Label4, 2);
    destacar(Label19, 0);
    lblPieza.setSizePolicy(QSizePolicy::Ignored,
                           QSizePolicy::Preferred); // a long legend does not widen the window
    Combo1.setMinimumWidth(200);
    mesa_.agregar(herramientas_);
    mesa_.agregar(colores_);
    const QString paginas[] = {u"Odontograma"_s, u"Presupuesto"_s};
    for (int i = 0; const QString &pagina : paginas) {
        CommandButton &boton = sMenu.add(i, pagina);
        boton.setCheckable(true);
        boton.setAutoDefault(false);
        paginas_.addButton(&boton, i++);
    }
    setContents(
        this,
        Column{
            Row{Label4, Stretch(), sMenu(delOdontograma), sMenu(delPresupuesto)},
            Expanding(Tabs(SSTab1, {{paginas[delOdontograma], paginaDelOdontograma()},
                                    {paginas[delPresupuesto], Expanding(presupuestos_)}})),
            Row{comando(*this, u"Command5"_s, u"&Imprimir"_s, u"imprimir"_s, [this] { imprimir(); }),
                comando(*this, u"Command6"_s, u"Informes..."_s, u"informes"_s,
                        [] { screens::showModal("panInformes"); }),
                comando(*this, u"Command7"_s, u"A&yuda"_s, u"ayuda"_s, [this] { abrirAyuda(); }), Stretch(),
                comando(*this, u"Command2"_s, u"&Cerrar"_s, u"cerrar"_s, [this] { unload(); })},
        });
    SSTab1.tabBar()->hide();
    SSTab1.setFocusProxy(nullptr); // the Tab key would come to the hidden bar and stay there
    SSTab1.setDocumentMode(true);
    armarMenu();
    conectar();
    herramientas_.mostrarColor(color_);
    mostrarPagina(delOdontograma);
    lblSinLeer.hide();
    mostrarEleccion();
    resize(1180, 690);
}

tooth::~tooth() = default;

void tooth::abrirPresupuestos(qint64 paciente)
{
    tooth ventana;
    ventana.setTag(QString::number(paciente));
    forms::setTag(&ventana.Combo1, u"PRE"_s);
    ventana.showModal();
}

Item tooth::paginaDelOdontograma()
{
    return Column{
        Row{Fields{{u"&Esquema :"_s, Combo1}}, Label19, Stretch(),
            comando(*this, u"Command3"_s, u"&Nuevo"_s, u"agregar"_s, [this] { nuevo(); }), Command1,
            comando(*this, u"Command4"_s, u"&Borrar"_s, u"borrar"_s, [this] { borrar(); }),
            comando(*this, u"Command9"_s, u"Co&mparar..."_s, u"ver"_s, [this] { comparar(); })},
        Expanding(mesa_),
        Row{Expanding(lblPieza), Fields{{u"Lugar en el gráfico :"_s, Label3}}},
        lblSinLeer,
    };
}

void tooth::conectar()
{
    for (auto &[pagina, boton] : sMenu)
        connect(boton.get(), &QPushButton::clicked, this, [this, pagina = pagina] { mostrarPagina(pagina); });
    connect(&SSTab1, &QTabWidget::currentChanged, this, &tooth::mostrarPagina);
    connect(&Combo1, &QComboBox::currentIndexChanged, this, &tooth::cambiarEsquema);
    connect(&Command1, &QPushButton::clicked, this, [this] {
        if (hayDondeTrabajar())
            guardar();
    });
    connect(&Picture1, &odonto::Odontograma::caraPulsada, this, &tooth::elegirCara);
    connect(&Picture1, &odonto::Odontograma::menuPedido, this, [this](int cara, QPoint lugar) {
        elegirCara(cara);
        menuPop.popup(lugar);
    });
    connect(&herramientas_, &odonto::Herramientas::elegida, this, &tooth::usarHerramienta);
    connect(&herramientas_, &odonto::Herramientas::leyendaPedida, this, &tooth::pedirLeyenda);
    connect(&herramientas_, &odonto::Herramientas::limpiezaPedida, this, &tooth::limpiarPieza);
    connect(&colores_, &odonto::Colores::elegido, this, [this](int color) {
        color_ = color;
        herramientas_.mostrarColor(color);
    });
}

void tooth::mostrarPagina(int pagina)
{
    SSTab1.setCurrentIndex(pagina);
    sMenu(pagina).setChecked(true);
}

/// The folder of pictures of the practice is beside the program.
void tooth::load()
{
    QDir().mkpath(basic::programFile(u"images"_s));
    if (forms::tag(&Combo1) == u"PRE")
        mostrarPagina(delPresupuesto);
    forms::setTag(&Combo1, {});
}

void tooth::activate()
{
    if (std::exchange(abierta_, true))
        return;
    leerPaciente();
}

void tooth::leerPaciente()
{
    const auto numero = services::numeroDePaciente(tag());
    if (numero) {
        if (auto fila = services::paciente(*numero)) {
            paciente_ = numero;
            const QString nombre = (*fila)[u"Apellido y Nombres"].text();
            Label4.setCaption(nombre);
            setWindowTitle(titulo + u" - "_s + nombre);
        } else {
            Label4.setCaption(u"Error : El paciente bajo el número %1 no se ha localizado."_s.arg(*numero));
        }
    }
    Command1.setEnabled(paciente_.has_value());
    llenarCombo({});
    presupuestos_.mostrar(paciente_);
}

bool tooth::queryUnload()
{
    return dejarCambios(u"Desea guradar los cambios Realizados del paciente ?"_s);
}

#include "moc_tooth.cpp"
