#include "catalogues.h"

#include "datafile.h"

#include "core/session/session.h"

#include <stdexcept>

using namespace Qt::StringLiterals;
using MODULE11::BaseDatos;

namespace practica
{

Catalogues::Catalogues()
{
    const auto read = [&](consultas::Grupo group, const QString &table, const QString &key) {
        dao::Recordset rows = BaseDatos.openRecordset(u"Select Descripcion, %1 from %2"_s.arg(key, table));
        for (; !rows.eof(); rows.moveNext())
            keys_[group][rows[0].text()] = rows[1].integer();
    };
    read(consultas::Sintomas, u"Sintomas"_s, u"idSintoma"_s);
    read(consultas::Tratamientos, u"Tratamientos"_s, u"idTratamiento"_s);
    read(consultas::Diagnosticos, u"DIAGPERSONALES"_s, u"idDiagPersonales"_s);
}

ports::Renglon Catalogues::entry(consultas::Grupo group, const QString &name) const
{
    const auto found = keys_[group].find(name);
    if (found == keys_[group].end())
        throw std::runtime_error(u"not in its catalogue: %1"_s.arg(name).toStdString());
    return {found->first, found->second};
}

FirstAges fillDoses()
{
    FirstAges ages;
    dao::Recordset rows = BaseDatos.openRecordset(u"Tratamientos"_s);
    rows.setIndex(u"Descripcion");
    forEachRow(u"dosis.csv"_s, [&](const DataRow &dose) {
        const QString name = dose.text(u"Descripcion"_s);
        rows.seek(u"=", name);
        if (rows.noMatch())
            throw std::runtime_error(u"no treatment for the dose of %1"_s.arg(name).toStdString());
        rows.edit();
        for (const QString &column : {u"Dosis"_s, u"Intervalo"_s, u"Lapso"_s})
            if (const QString text = dose.text(column); !text.isEmpty())
                rows[column] = text;
        rows[u"DETALLES"] = u"Cifras de demostración: la práctica carga las suyas."_s;
        rows.update();
        ages[name] = dose.number(u"desde"_s);
    });
    return ages;
}

} // namespace practica
