#include "core/records/campos.h"

#include "core/session/session.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace records
{

namespace
{

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
    else if (auto *fecha = qobject_cast<DTPicker *>(&control))
        fecha->setFieldValue(valor);
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
    if (const auto *fecha = qobject_cast<const DTPicker *>(&control))
        return fecha->fieldValue();
    return qobject_cast<const TextBox *>(&control)->text();
}

/// The button of what is stored: its place, or in older files its word.
QAbstractButton *boton(const QButtonGroup &grupo, const basic::Value &guardado)
{
    if (guardado.isNumeric())
        return grupo.button(static_cast<int>(guardado.integer()));
    for (QAbstractButton *boton : grupo.buttons())
        if (!guardado.isBlank() && boton->text().compare(guardado.text(), Qt::CaseInsensitive) == 0)
            return boton;
    return nullptr;
}

dao::Recordset filaDe(const FilaPropia &fila, qint64 paciente, dao::Recordset::Kind clase)
{
    return MODULE11::BaseDatos.openRecordset(
        u"Select * from [%1] where [%2] = %3"_s.arg(fila.tabla, fila.clave).arg(paciente), clase);
}

} // namespace

basic::Value valor(const Valores &valores, const QString &columna)
{
    const auto hallado = valores.find(columna);
    return hallado != valores.end() ? hallado->second : basic::Value(basic::Null{});
}

Valores FilaPropia::leer(qint64 paciente) const
{
    Valores valores;
    const dao::Recordset filas = filaDe(*this, paciente, dao::Recordset::Kind::Snapshot);
    if (filas.eof())
        return valores;
    for (int i = 0; i < static_cast<int>(filas.fields().size()); ++i)
        valores[filas.fields()[static_cast<std::size_t>(i)].name] = filas.value(i);
    return valores;
}

void FilaPropia::escribir(qint64 paciente, const Valores &valores, const Valores &alCrear) const
{
    dao::Recordset filas = filaDe(*this, paciente, dao::Recordset::Kind::Dynaset);
    if (filas.eof()) {
        filas.addNew();
        filas[clave] = paciente;
        for (const auto &[columna, valor] : alCrear)
            filas[columna] = valor;
        filas.update();
        filas.requery();
    }
    filas.edit([&] {
        for (const auto &[columna, valor] : valores)
            filas[columna] = valor;
    });
}

Campos::Campos(const QString &tabla, Unidades unidades)
    : tabla_(MODULE11::BaseDatos.tableDef(tabla)), unidades_(std::move(unidades))
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
    if (const auto unidad = unidades_.find(columna); unidad != unidades_.end())
        campo.setPlaceholderText(unidad->second);
    return campo;
}

CheckBox &Campos::casilla(const QString &columna, const QString &caption)
{
    CheckBox &campo = Check1.add(Check1.size(), caption);
    ligar(columna, campo);
    return campo;
}

Item Campos::opciones(const QString &columna, const QStringList &palabras, int porRenglon)
{
    auto &grupo = grupos_[columna];
    grupo = std::make_unique<QButtonGroup>();
    std::vector<Item> botones;
    int lugar = 0;
    for (const QString &palabra : palabras) {
        OptionButton &boton = Opcion.add(Opcion.size(), palabra);
        grupo->addButton(&boton, lugar++);
        botones.emplace_back(boton);
    }
    return Grid(porRenglon, std::move(botones));
}

FieldRow Campos::renglon(const QString &columna)
{
    return {columna + u" :"_s, texto(columna)};
}

Item Campos::textos(const QStringList &columnas, const std::vector<FieldRow> &otras)
{
    std::vector<FieldRow> filas;
    for (const QString &columna : columnas)
        filas.push_back(renglon(columna));
    filas.insert(filas.end(), otras.begin(), otras.end());
    return Fields(std::move(filas));
}

void Campos::mostrar(const Valores &valores)
{
    for (const auto &[columna, control] : controles_)
        if (const basic::Value guardado = valor(valores, columna); !guardado.isNull())
            poner(*control, guardado);
    for (const auto &[columna, grupo] : grupos_)
        if (QAbstractButton *elegido = boton(*grupo, valor(valores, columna)))
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

} // namespace records
