#include "figures/panPrevalencias.h"

#include "core/security/niveles.h"
#include "core/services/services.h"
#include "platform/basic/environment.h"
#include "platform/dao/sqltext.h"
#include "platform/forms/boxes.h"
#include "platform/forms/colour.h"
#include "platform/forms/layout.h"
#include "platform/forms/progress.h"

using namespace Qt::StringLiterals;
using namespace forms;
using figures::Figura;
using figures::Nombrado;
using figures::Seleccion;

namespace
{

enum Prevalencia { Sexo, Edades, Tratamientos, Diagnosticos, Motivos };
constexpr const char *opciones[] = {"&Sexo", "&Edades", "&Tratamientos", "&Diagnosticos", "&M.Consulta"};
constexpr int referencias = 11, ladoDeLaMuestra = 14;

} // namespace

panPrevalencias::panPrevalencias() : Form(u"panPrevalencias"_s)
{
    setWindowTitle(u"Gráficos Prevalentes"_s);
    llenarListas();
    disponer();
    for (auto &[i, opcion] : Option1)
        connect(opcion.get(), &QRadioButton::toggled, this,
                [this] { Combo5.setEnabled(Option1(Diagnosticos).isChecked()); });
    Option1(Sexo).setChecked(true);
    Combo5.setEnabled(false);
    connect(&Command1, &QPushButton::clicked, this, &panPrevalencias::graficar);
    connect(&Command2, &QPushButton::clicked, this, [this] { Graph1.imprimir(); });
    connect(&Command3, &QPushButton::clicked, this, [this] { Graph1.guardar(); });
    connect(&Command4, &QPushButton::clicked, this, &panPrevalencias::unload);
    connect(&Graph1, &figures::Grafico::elegido, this, &panPrevalencias::listar);
}

void panPrevalencias::llenarListas()
{
    Combo1.addItems({u"Varon"_s, u"Mujer"_s, u"Ambos"_s});
    Combo2.addItem(u"Todos"_s);
    for (const figures::GrupoDeEdad &grupo : figures::gruposDeEdad())
        Combo2.addItem(QString::fromLatin1(grupo.nombre));
    Combo3.addItems({u"Todos los pacientes atendidos"_s, u"Pacientes atendidos este año"_s,
                     u"Pacientes atendidos el año pasado"_s, u"Pacientes atendidos este mes"_s});
    Combo4.addItems({u"Todas"_s, u"1º vez"_s, u"Ulterior"_s});
    for (const figures::Fuente &fuente : figures::fuentesDeDiagnosticos())
        Combo5.addItem(QString::fromLatin1(fuente.nombre));
    for (ComboBox *lista : {&Combo1, &Combo2, &Combo3, &Combo4})
        lista->setCurrentIndex(-1);
    Combo5.setCurrentIndex(0);
}

void panPrevalencias::disponer()
{
    std::vector<Item> cuales, lineas;
    for (const char *opcion : opciones)
        cuales.emplace_back(Option1.add(Option1.size(), QString::fromUtf8(opcion)));
    for (int i = 0; i < referencias; ++i) {
        Label &referencia = Label4.add(i);
        referencia.setWordWrap(true);
        Label &muestra = Shape1.add(i);
        muestra.setFixedSize(ladoDeLaMuestra, ladoDeLaMuestra);
        setBackColor(muestra, figures::color(i));
        muestra.hide();
        lineas.emplace_back(Row{muestra, Expanding(referencia)});
    }
    lineas.push_back(Stretch());
    const Item filtros = Column{Fields{{u"Se&xo :"_s, Combo1},
                                       {u"Ed&ad :"_s, Combo2},
                                       {u"&Rango :"_s, Combo3},
                                       {u"C&onsulta :"_s, Combo4}},
                                Group(u"Prevalencia"_s, Column(cuales)), Fields{{u"&Fuente :"_s, Combo5}},
                                Command1, Stretch()};
    setContents(this,
                Column{Expanding(Row{filtros, Expanding(Graph1), Group(u"REFERENCIAS"_s, Column(lineas))}),
                       Row{Command2, Command3, Stretch(), Command4}});
    Command2.setEnabled(false);
    Command3.setEnabled(false);
    resize(1180, 560);
}

std::optional<Seleccion> panPrevalencias::seleccion() const
{
    for (const ComboBox *lista : {&Combo1, &Combo2, &Combo3, &Combo4, &Combo5})
        if (lista->isEnabled() && lista->currentIndex() < 0)
            return std::nullopt;
    return Seleccion{Combo1.value(), Combo2.value(), static_cast<Seleccion::Rango>(Combo3.currentIndex()),
                     Combo4.value()};
}

std::optional<Figura> panPrevalencias::figura(const Seleccion &seleccion)
{
    const basic::Date hoy = basic::today();
    if (Option1(Sexo).isChecked())
        return figures::porSexo(seleccion, hoy);
    if (Option1(Edades).isChecked())
        return figures::porEdades(seleccion, hoy);
    if (Option1(Diagnosticos).isChecked() && Combo5.currentIndex() > 0)
        return figures::porFuente(Combo5.currentIndex(), seleccion, hoy);
    const Nombrado que = Option1(Tratamientos).isChecked()   ? Nombrado::Tratamientos
                         : Option1(Diagnosticos).isChecked() ? Nombrado::Patologias
                                                             : Nombrado::Sintomas;
    Progress avance(u"Se leen las consultas"_s);
    return figures::porNombre(que, seleccion, hoy, [&](qint64 hechas) { return avance.tell(hechas); });
}

void panPrevalencias::graficar()
{
    const auto elegida = seleccion();
    if (!elegida) {
        msgBox(u"Debe ingresar datos"_s, Icon::Exclamation, u"Estadisticas"_s);
        return;
    }
    const auto hallada = figura(*elegida);
    if (!hallada)
        return;
    if (hallada->datos.empty()) {
        msgBox(u"Sin registros"_s, Icon::Information, u"Estadisticas"_s);
        return;
    }
    Graph1.mostrar(*hallada, figures::Tipo::Torta);
    mostrarReferencias(*hallada);
    Command2.setEnabled(true);
    Command3.setEnabled(true);
    const QString visitas =
        u"Select Fecha, [Nombre del Paciente], Edad, Sexo, Motivo, Dr from Consulta where "_s +
        figures::condicionDeVisitas(*elegida, basic::today());
    visitasDe_ = nullptr;
    if (Option1(Sexo).isChecked())
        visitasDe_ = [visitas](int porcion) {
            return visitas + (porcion == 0 ? u" and sexo = 'Varon'"_s : u" and sexo = 'Mujer'"_s);
        };
    else if (Option1(Edades).isChecked())
        visitasDe_ = [visitas](int porcion) {
            const auto &grupo = figures::gruposDeEdad()[static_cast<std::size_t>(porcion)];
            return visitas + u" and edad >= %1 and edad <= %2"_s.arg(grupo.desde).arg(grupo.hasta);
        };
}

void panPrevalencias::mostrarReferencias(const Figura &figura)
{
    for (auto &[i, referencia] : Label4) {
        const auto lugar = static_cast<std::size_t>(i);
        const bool usada = lugar < figura.datos.size();
        referencia->setVisible(usada);
        referencia->setCaption(usada ? figura.datos[lugar].rotulo : QString());
        Shape1(i).setVisible(usada);
    }
}

/// The visits of a slice by sex or age; the names' slices are counted over five places, and have no list.
void panPrevalencias::listar(int porcion)
{
    if (visitasDe_)
        MODULE11::MuestraListado(visitasDe_(porcion),
                                 Graph1.figura().datos[static_cast<std::size_t>(porcion)].rotulo);
}

#include "moc_panPrevalencias.cpp"
