#pragma once

#include "platform/forms/controls.h"

#include <QHash>

#include <unordered_set>

/// The classification as a tree: chapters, groups and categories from the start, the diseases of a category
/// once it is opened or a search finds them. A disease has no key.
class ArbolCIE10
{
public:
    explicit ArbolCIE10(forms::TreeView &arbol);

    void cargar();
    bool cargado() const { return !nodos_.empty(); }
    /// The children of a node that has none yet.
    void abrir(QTreeWidgetItem &nodo);

    void contraer();
    void expandir();
    /// Brings the diseases that hold the text into the tree and marks every node that holds it. The last one
    /// marked becomes the current one; null when there is none, which leaves the tree collapsed.
    QTreeWidgetItem *buscar(const QString &texto);
    void marcar(QTreeWidgetItem &nodo); ///< bold and open
    enum Sentido { Siguiente, Anterior };
    /// Makes the nearest marked node in sight the current one, and after the last the first.
    void irAMarca(Sentido sentido);
    /// By its place in the order of creation, from 1; null out of range.
    QTreeWidgetItem *nodo(int indice) const;

    static bool esEnfermedad(const QTreeWidgetItem &nodo);

private:
    void agregar(int nivel, const QString &origen);
    QTreeWidgetItem *crear(const QString &texto, const QString &clave);
    void abrirCategorias(const std::vector<QTreeWidgetItem *> &nodos);
    void ponerALaVista();
    void irA(QTreeWidgetItem &nodo);
    QTreeWidgetItem *ultimoALaVista() const;

    forms::TreeView &arbol_;
    std::vector<QTreeWidgetItem *> nodos_; ///< in order of creation
    QHash<QString, QTreeWidgetItem *> claves_;
    std::unordered_set<QString> agregadas_; ///< idDiagnostico of those in the tree
    std::vector<QTreeWidgetItem *> marcados_;
};

namespace catalogos
{

/// The key under which a visit stores the disease of this name, as text: the first one of the name. Empty
/// when there is none, or an apostrophe in the name breaks the question.
QString idDiagnosticoCIE(const QString &descripcion);

} // namespace catalogos
