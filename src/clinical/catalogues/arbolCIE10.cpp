#include "clinical/catalogues/arbolCIE10.h"

#include "core/services/services.h"
#include "core/session/session.h"
#include "platform/basic/runtime.h"
#include "platform/basic/typed.h"
#include "platform/dao/sqltext.h"

#include <QSet>
#include <QSignalBlocker>

#include <array>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace
{

/// A level of the tree: where its nodes are read, and the nodes they hang from.
struct Nivel {
    QStringView prefijo, tabla, id, texto;
    QStringView prefijoPadre, idPadre, formatoPadre;
};
constexpr std::array niveles = {
    Nivel{u"CL", u"clasificacion", u"idClasificacion", u"Clasificacion", u"", u"", u""},
    Nivel{u"GR", u"grupos", u"idGrupo", u"Grupo", u"CL", u"idClasificacion", u"00"},
    Nivel{u"CA", u"categorias", u"idCategoria", u"Categoria", u"GR", u"idGrupo", u"0000"},
    Nivel{u"", u"Diagnosticos", u"idDiagnostico", u"descripcion", u"CA", u"idCategoria", u""},
};
enum { Capitulos, Grupos, Categorias, Enfermedades };

constexpr int rolClave = Qt::UserRole;
constexpr int largoPrefijo = 2;

QString clave(const QTreeWidgetItem &nodo)
{
    return nodo.data(0, rolClave).toString();
}

/// -1 below the diseases.
int nivelDebajoDe(const QString &prefijo)
{
    for (int nivel = Grupos; nivel <= Enfermedades; ++nivel)
        if (niveles[static_cast<std::size_t>(nivel)].prefijoPadre == prefijo)
            return nivel;
    return -1;
}

/// The table's own text key: two digits of a chapter, four of a group, a category's as it is.
QString claveDeTabla(const QString &cola, const Nivel &debajo)
{
    return debajo.formatoPadre.isEmpty() ? cola : basic::format(basic::val(cola), debajo.formatoPadre);
}

void ponerNegrita(QTreeWidgetItem &nodo, bool negrita)
{
    QFont letra = nodo.font(0);
    letra.setBold(negrita);
    nodo.setFont(0, letra);
}

/// The node, or the outermost closed one that hides it.
QTreeWidgetItem *aLaVista(QTreeWidgetItem *nodo)
{
    for (QTreeWidgetItem *superior = nodo->parent(); superior; superior = superior->parent())
        if (!superior->isExpanded())
            nodo = superior;
    return nodo;
}

int profundidad(const QTreeWidgetItem *nodo)
{
    int pasos = 0;
    for (; nodo->parent(); nodo = nodo->parent())
        ++pasos;
    return pasos;
}

} // namespace

QString catalogos::idDiagnosticoCIE(const QString &descripcion)
{
    return MODULE11::BuscaCampo(
               u"Select descripcion, idDiagnosticoCIE from Diagnosticos where descripcion = "_s +
                   dao::quoted(descripcion),
               u"idDiagnosticoCIE")
        .text();
}

ArbolCIE10::ArbolCIE10(forms::TreeView &arbol) : arbol_(arbol)
{
}

bool ArbolCIE10::esEnfermedad(const QTreeWidgetItem &nodo)
{
    return clave(nodo).isEmpty();
}

QTreeWidgetItem *ArbolCIE10::nodo(int indice) const
{
    const bool hay = indice >= 1 && indice <= static_cast<int>(nodos_.size());
    return hay ? nodos_[static_cast<std::size_t>(indice - 1)] : nullptr;
}

/// Every level above the diseases can be opened, whether or not its children are in the tree yet.
QTreeWidgetItem *ArbolCIE10::crear(const QString &texto, const QString &clave)
{
    auto *nodo = new QTreeWidgetItem({texto});
    if (!clave.isEmpty()) {
        nodo->setData(0, rolClave, clave);
        nodo->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
        claves_.insert(clave, nodo);
    }
    nodos_.push_back(nodo);
    return nodo;
}

/// Adds a level's rows below their parents. All the children of a parent go in at once, for a tree in sight
/// pays for each insertion. Rows without a parent stay out, and diseases that are there already.
void ArbolCIE10::agregar(int nivel, const QString &origen)
{
    const Nivel &n = niveles[static_cast<std::size_t>(nivel)];
    dao::Recordset filas = BaseDatos.openRecordset(origen, dao::Recordset::Kind::Snapshot);
    const int id = filas.ordinal(n.id), texto = filas.ordinal(n.texto), padre = filas.ordinal(n.idPadre);
    QHash<QTreeWidgetItem *, QList<QTreeWidgetItem *>> hijos;
    for (; !filas.eof(); filas.moveNext()) {
        QTreeWidgetItem *superior = nullptr;
        if (nivel != Capitulos) {
            superior = claves_.value(n.prefijoPadre.toString() + filas.value(padre).text());
            if (!superior)
                continue;
        }
        const QString propia = filas.value(id).text();
        if (nivel == Enfermedades && !agregadas_.insert(propia).second)
            continue;
        const QString clave = nivel == Enfermedades ? QString() : n.prefijo.toString() + propia;
        hijos[superior].append(crear(filas.value(texto).text(), clave));
    }
    for (auto [superior, nuevos] : hijos.asKeyValueRange())
        superior ? superior->addChildren(nuevos) : arbol_.addTopLevelItems(nuevos);
}

void ArbolCIE10::cargar()
{
    arbol_.clear();
    for (int nivel = Capitulos; nivel < Enfermedades; ++nivel)
        agregar(nivel, niveles[static_cast<std::size_t>(nivel)].tabla.toString());
}

void ArbolCIE10::abrir(QTreeWidgetItem &nodo)
{
    const QString llave = clave(nodo);
    const int debajo = nivelDebajoDe(llave.left(largoPrefijo));
    if (debajo < 0 || nodo.childCount() > 0)
        return;
    const Nivel &n = niveles[static_cast<std::size_t>(debajo)];
    agregar(debajo, u"select * from %1 where %2 = %3"_s.arg(
                        n.tabla, n.idPadre, dao::quoted(claveDeTabla(llave.mid(largoPrefijo), n))));
}

/// One statement for all of them.
void ArbolCIE10::abrirCategorias(const std::vector<QTreeWidgetItem *> &nodos)
{
    QStringList sinAbrir;
    for (const QTreeWidgetItem *nodo : nodos)
        if (const QString llave = clave(*nodo); llave.startsWith(u"CA") && nodo->childCount() == 0)
            sinAbrir.append(dao::quoted(llave.mid(largoPrefijo)));
    if (!sinAbrir.isEmpty())
        agregar(Enfermedades,
                u"select * from Diagnosticos where idCategoria in (%1)"_s.arg(sinAbrir.join(u',')));
}

/// Collapsed first: marks are cheap on rows that are not in sight.
void ArbolCIE10::contraer()
{
    arbol_.collapseAll();
    for (QTreeWidgetItem *nodo : marcados_)
        ponerNegrita(*nodo, false);
    marcados_.clear();
}

void ArbolCIE10::expandir()
{
    const QSignalBlocker silencio(arbol_);
    abrirCategorias(nodos_);
    arbol_.expandAll();
}

void ArbolCIE10::marcar(QTreeWidgetItem &nodo)
{
    ponerNegrita(nodo, true);
    marcados_.push_back(&nodo);
    nodo.setExpanded(true);
}

/// The walk starts where the eye is: at the branch closed by hand that hides the current node, for what is
/// out of sight has no neighbours. Without a mark in sight it stays.
void ArbolCIE10::irAMarca(Sentido sentido)
{
    if (marcados_.empty())
        return;
    QTreeWidgetItem *const desde =
        aLaVista(arbol_.currentItem() ? arbol_.currentItem() : arbol_.topLevelItem(0));
    QTreeWidgetItem *nodo = desde;
    do {
        nodo = sentido == Siguiente ? arbol_.itemBelow(nodo) : arbol_.itemAbove(nodo);
        if (!nodo)
            nodo = sentido == Siguiente ? arbol_.topLevelItem(0) : ultimoALaVista();
    } while (nodo != desde && !nodo->font(0).bold());
    if (nodo->font(0).bold())
        irA(*nodo);
}

/// The current one already may still have been scrolled or collapsed away from.
void ArbolCIE10::irA(QTreeWidgetItem &nodo)
{
    arbol_.setCurrentItem(&nodo);
    arbol_.scrollToItem(&nodo);
}

QTreeWidgetItem *ArbolCIE10::ultimoALaVista() const
{
    QTreeWidgetItem *nodo = arbol_.topLevelItem(arbol_.topLevelItemCount() - 1);
    while (nodo->isExpanded() && nodo->childCount() > 0)
        nodo = nodo->child(nodo->childCount() - 1);
    return nodo;
}

QTreeWidgetItem *ArbolCIE10::buscar(const QString &texto)
{
    agregar(Enfermedades, u"Select * from Diagnosticos where Descripcion LIKE "_s +
                              dao::quoted(dao::typedPattern(texto, dao::Match::Anywhere)));
    const QSignalBlocker silencio(arbol_);
    contraer();
    for (QTreeWidgetItem *nodo : nodos_)
        if (basic::containsTyped(nodo->text(0), texto))
            marcados_.push_back(nodo);
    for (QTreeWidgetItem *nodo : marcados_)
        ponerNegrita(*nodo, true);
    abrirCategorias(marcados_);
    ponerALaVista();
    if (marcados_.empty()) {
        arbol_.setCurrentItem(nullptr);
        return nullptr;
    }
    irA(*marcados_.back());
    return marcados_.back();
}

/// Opens what is marked and all that stands above it, the deepest first, so that the tree in sight is laid
/// out once for each chapter and not for each node.
void ArbolCIE10::ponerALaVista()
{
    std::array<QSet<QTreeWidgetItem *>, niveles.size()> porAbrir;
    for (QTreeWidgetItem *marcado : marcados_)
        for (QTreeWidgetItem *nodo = esEnfermedad(*marcado) ? marcado->parent() : marcado; nodo;
             nodo = nodo->parent())
            porAbrir[static_cast<std::size_t>(profundidad(nodo))].insert(nodo);
    for (auto nodos = porAbrir.rbegin(); nodos != porAbrir.rend(); ++nodos)
        for (QTreeWidgetItem *nodo : *nodos)
            nodo->setExpanded(true);
}
