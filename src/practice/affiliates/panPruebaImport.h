#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/form.h"
#include "practice/affiliates/mapa.h"

#include <QTableWidget>

/// What an import would do: the first lines of the roll cut by the map, and the counts of all of it.
class panPruebaImport : public forms::Form
{
    Q_OBJECT
public:
    panPruebaImport(const afiliados::Mapa &mapa, const std::vector<QStringList> &lineas,
                    const QString &resumen);

private:
    QTableWidget Grid1;
    forms::MemoBox txResumen{QStringLiteral("txResumen")};
    forms::CommandButton Command1{QStringLiteral("Command1"), QStringLiteral("&Cerrar"),
                                  QStringLiteral("cerrar")};
};
