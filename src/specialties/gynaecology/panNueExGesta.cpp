#include "specialties/gynaecology/panNueExGesta.h"

#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

struct Dato {
    const char *rotulo, *columna;
};
constexpr Dato datos[] = {
    {"&I.G. :", "IG"},     {"&Peso :", "Peso"}, {"P&resion :", "Presion"},
    {"&Edema :", "Edema"}, {"&Toco :", "Toco"}, {"A&U :", "AU"},
    {"CA :", "CA"},        {"&BCF :", "BCF"},
};
constexpr int largo = 30;

} // namespace

panNueExGesta::panNueExGesta() : Form(u"panNueExGesta"_s)
{
    setWindowTitle(u"Nuevo examen de gestación"_s);
    std::vector<FieldRow> izquierda, derecha;
    for (const Dato &dato : datos) {
        TextBox &campo = Text1.add(Text1.size() + 1, largo);
        (Text1.size() <= 4 ? izquierda : derecha).emplace_back(QString::fromLatin1(dato.rotulo), campo);
    }
    Command1.setDefault(true);
    setContents(this,
                Column{Fields{{u"&Fecha :"_s, Row{dt1, Stretch()}}},
                       Row{Expanding(Fields(izquierda)), Expanding(Fields(derecha))},
                       Expanding(Above(u"&Detalles :"_s, mDetalles)), Row{Stretch(), Command1, Command2}});
    resize(480, 360);
    connect(&Command1, &QPushButton::clicked, this, [this] { answer(u"SI"_s); });
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

void panNueExGesta::escribir(dao::Recordset &fila) const
{
    fila[u"Fecha"] = dt1.value();
    fila[u"Detalles"] = mDetalles.toPlainText();
    for (const auto &[i, campo] : Text1)
        fila[QString::fromLatin1(datos[i - 1].columna)] = campo->text();
}

#include "moc_panNueExGesta.cpp"
