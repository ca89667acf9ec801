#include "paediatrics/perinatal/campos.h"

#include "core/services/opcionesPerinatales.h"
#include "core/session/session.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace perinatal
{

const QStringList gruposSanguineos = {u"A+"_s,  u"A-"_s,  u"B+"_s, u"B-"_s,
                                      u"AB+"_s, u"AB-"_s, u"0+"_s, u"0-"_s};

namespace
{

/// What a measure is written in, as long as nothing is.
const std::map<QString, QString, SinMayusculas> unidades = {
    {u"Talla de la Madre al Nacer"_s, u"cm"_s},
    {u"Peso anterior de la Madre"_s, u"kg"_s},
    {u"Peso al nacer de la Madre"_s, u"kg"_s},
    {u"Edad Gestacional madre"_s, u"semanas, o semanas+días"_s},
    {u"Edad gestacional por examen fisico"_s, u"semanas"_s},
    {u"Peso al Nacer"_s, u"gramos"_s},
    {u"Talla al Nacer"_s, u"cm"_s},
    {u"Perimetro cefalico al nacer"_s, u"cm"_s},
};

void limitar(QWidget &control, int largo)
{
    auto *linea = qobject_cast<QLineEdit *>(&control);
    if (auto *combo = qobject_cast<ComboBox *>(&control))
        linea = combo->lineEdit();
    if (linea)
        linea->setMaxLength(std::min(linea->maxLength(), largo));
}

/// What an older file holds and the list has not is shown, and so kept.
void elegir(ComboBox &combo, const QString &texto)
{
    if (!combo.isEditable() && combo.findText(texto) < 0)
        combo.addItem(texto);
    combo.setValue(texto);
}

void poner(QWidget &control, const basic::Value &valor)
{
    if (auto *casilla = qobject_cast<CheckBox *>(&control))
        casilla->setChecked(valor.truth());
    else if (auto *combo = qobject_cast<ComboBox *>(&control))
        elegir(*combo, valor.text());
    else if (auto *memo = qobject_cast<MemoBox *>(&control))
        memo->setPlainText(valor.text());
    else if (auto *linea = qobject_cast<TextBox *>(&control))
        linea->setText(valor.text());
}

basic::Value leido(const QWidget &control)
{
    if (const auto *casilla = qobject_cast<const CheckBox *>(&control))
        return casilla->isChecked();
    if (const auto *combo = qobject_cast<const ComboBox *>(&control))
        return combo->value();
    if (const auto *memo = qobject_cast<const MemoBox *>(&control))
        return memo->toPlainText();
    return qobject_cast<const TextBox *>(&control)->text();
}

/// The button of what is stored: its place, or in older files its word.
QAbstractButton *boton(const QButtonGroup &grupo, const QString &columna, const basic::Value &guardado)
{
    const QString palabra = services::opcionPerinatal(columna, guardado);
    for (QAbstractButton *boton : grupo.buttons())
        if (boton->text().compare(palabra, Qt::CaseInsensitive) == 0)
            return boton;
    return nullptr;
}

} // namespace

Campos::Campos(const QString &tabla) : tabla_(MODULE11::BaseDatos.tableDef(tabla))
{
}

void Campos::ligar(const QString &columna, QWidget &control)
{
    controles_[columna] = &control;
    if (const dao::FieldDef *campo = tabla_.field(columna); campo && campo->type == dao::FieldType::Text)
        limitar(control, campo->size);
}

TextBox &Campos::texto(const QString &columna)
{
    TextBox &campo = mDato.add(mDato.size());
    ligar(columna, campo);
    if (const auto unidad = unidades.find(columna); unidad != unidades.end())
        campo.setPlaceholderText(unidad->second);
    return campo;
}

CheckBox &Campos::casilla(const QString &columna, const QString &caption)
{
    CheckBox &campo = Check1.add(Check1.size(), caption);
    ligar(columna, campo);
    return campo;
}

Item Campos::opciones(const QString &columna, int porRenglon)
{
    auto &grupo = grupos_[columna];
    grupo = std::make_unique<QButtonGroup>();
    std::vector<Item> botones;
    int lugar = 0;
    for (const QString &palabra : services::opcionesPerinatales(columna)) {
        OptionButton &boton = Opcion.add(Opcion.size(), palabra);
        grupo->addButton(&boton, lugar++);
        botones.emplace_back(boton);
    }
    return Grid(porRenglon, std::move(botones));
}

Item Campos::textos(const QStringList &columnas, const std::vector<FieldRow> &otras)
{
    std::vector<FieldRow> filas;
    for (const QString &columna : columnas)
        filas.emplace_back(columna + u" :"_s, texto(columna));
    filas.insert(filas.end(), otras.begin(), otras.end());
    return Fields(std::move(filas));
}

void Campos::mostrar(const Valores &valores)
{
    for (const auto &[columna, control] : controles_)
        if (const basic::Value guardado = valor(valores, columna); !guardado.isNull())
            poner(*control, guardado);
    for (const auto &[columna, grupo] : grupos_)
        if (QAbstractButton *elegido = boton(*grupo, columna, valor(valores, columna)))
            elegido->setChecked(true);
}

Valores Campos::valores() const
{
    Valores valores;
    for (const auto &[columna, control] : controles_)
        valores[columna] = leido(*control);
    for (const auto &[columna, grupo] : grupos_)
        if (grupo->checkedId() >= 0)
            valores[columna] = QString::number(grupo->checkedId());
    return valores;
}

void Campos::alCambiar(const std::function<void()> &trabajo)
{
    for (const auto &[columna, control] : controles_)
        if (auto *linea = qobject_cast<TextBox *>(control))
            QObject::connect(linea, &QLineEdit::textChanged, linea, trabajo);
    for (const auto &[columna, grupo] : grupos_)
        QObject::connect(grupo.get(), &QButtonGroup::idToggled, grupo.get(), trabajo);
}

} // namespace perinatal
