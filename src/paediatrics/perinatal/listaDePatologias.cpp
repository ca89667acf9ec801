#include "paediatrics/perinatal/listaDePatologias.h"

#include "core/session/ports.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace perinatal
{

namespace
{

/// Where the international classification is opened: "Embarazo, parto y puerperio".
constexpr int capitulo = 15;
constexpr int altoMenor = 70;

} // namespace

ListaDePatologias::ListaDePatologias(const QString &lista, const QString &agregar, const QString &quitar,
                                     const QString &titulo)
    : titulo_(titulo), lista_(lista), agregar_(agregar, u"Agregar..."_s, u"agregar"_s),
      quitar_(quitar, u"Quitar"_s, u"quitar"_s)
{
    lista_.setMinimumHeight(altoMenor);
    lista_.setAccessibleName(titulo);
    agregar_.setEnabled(bool(ports::eligePatologia));
    QObject::connect(&agregar_, &QPushButton::clicked, &lista_, [this] { this->agregar(); });
    QObject::connect(&quitar_, &QPushButton::clicked, &lista_,
                     [this] { qDeleteAll(lista_.selectedItems()); });
}

Item ListaDePatologias::contenido()
{
    return Row{Expanding(lista_), Column{agregar_, quitar_, Stretch()}};
}

void ListaDePatologias::mostrar(const QStringList &lineas)
{
    lista_.clear();
    lista_.addItems(lineas);
}

void ListaDePatologias::agregar()
{
    if (const auto elegida = ports::eligePatologia(titulo_, capitulo); elegida && !elegida->nombre.isEmpty())
        lista_.addLine(elegida->nombre);
}

} // namespace perinatal
