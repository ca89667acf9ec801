#include "datos.h"

#include "platform/basic/environment.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;

namespace selftest
{

panDatos::panDatos()
    : Form(u"panDatos"_s), Data1(u"Data1"_s), DBGrid1(u"DBGrid1"_s), Text1(u"Text1"_s), Text2(u"Text2"_s),
      Check1(u"Check1"_s, u"Facturada"_s), Command1(u"Command1"_s, u"&Nuevo"_s),
      Command2(u"Command2"_s, u"&Borrar"_s)
{
    setWindowTitle(u"Artículos"_s);
    using namespace forms;
    setContents(this, Column{Expanding(DBGrid1),
                             Fields{{u"Nombre :"_s, Text1}, {u"Precio :"_s, Text2}, {{}, Check1}},
                             Row{Stretch(), Command1, Command2}});
    resize(560, 420);
    connect(&Command1, &QPushButton::clicked, this, [this] {
        Data1.change([](dao::Recordset &rows) {
            rows.addNew();
            rows[u"Nombre"] = u"nuevo";
            rows.update();
            rows.setBookmark(rows.lastModified());
        });
    });
    connect(&Command2, &QPushButton::clicked, this,
            [this] { Data1.change([](dao::Recordset &rows) { rows.deleteRow(); }); });
}

void panDatos::load()
{
    database_.open(basic::programFile(u"BASE.MDB"_s), false, false, u";PWD=prueba"_s);
    Data1.setDatabase(&database_);
    Data1.setRecordSource(u"Select * from Articulos order by id"_s);
    Data1.refresh();
    Data1.bind(Text1, u"Nombre"_s);
    Data1.bind(Text2, u"Precio"_s);
    Data1.bind(Check1, u"Facturada"_s);
    DBGrid1.setEditable(true);
    DBGrid1.setSource(Data1, {{u"Artículo"_s, u"Nombre"_s, {}, 220},
                              {u"Precio"_s, u"Precio"_s, u"#,##0.00"_s},
                              {u"Alta"_s, u"Alta"_s}});
}

} // namespace selftest

#include "moc_datos.cpp"
