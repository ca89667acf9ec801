#include "paediatrics/vaccines/pannueVac.h"

#include "paediatrics/vaccines/planilla.h"
#include "platform/basic/runtime.h"
#include "platform/forms/boxes.h"
#include "platform/forms/layout.h"
#include "platform/forms/wrong.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr int anchoDelEjemplo = 150;

/// Nothing for an empty field.
std::optional<int> diasEscritos(const TextBox &campo)
{
    const QString texto = campo.text().trimmed();
    return texto.isEmpty() ? std::nullopt : std::optional(texto.toInt());
}

bool sonDias(const TextBox &campo)
{
    bool numero = true;
    const QString texto = campo.text().trimmed();
    return texto.isEmpty() || (texto.toInt(&numero) >= 0 && numero);
}

QString dias(const std::optional<int> &cuantos)
{
    return cuantos ? QString::number(*cuantos) : QString();
}

FieldRow conEjemplo(const QString &titulo, QWidget &campo, const QString &ejemplo)
{
    auto *rotulo = new QLabel(ejemplo);
    rotulo->setMinimumWidth(anchoDelEjemplo);
    return {titulo, Row{Expanding(campo), rotulo}};
}

} // namespace

pannueVac::pannueVac() : Form(u"pannueVac"_s)
{
    setWindowTitle(u"Nueva vacuna"_s);
    for (const vacunas::FilaDeEdad &fila : vacunas::filasDeEdad())
        Combo1.addItem(fila.clave.toString());
    Combo1.setValue({});
    Command1.setDefault(true);
    setContents(this, Column{
                          Fields{conEjemplo(u"&Nombre / Título :"_s, mNombre, u"( Ej : Anti Hepatitis B )"_s),
                                 conEjemplo(u"&Detalles :"_s, mDetalles, u"( Ej : Hepatitis B )"_s),
                                 conEjemplo(u"&Período :"_s, Combo1, u"( Ej : 12 MESES )"_s),
                                 conEjemplo(u"Código &ident. :"_s, mCodigo, u"( Ej : BIO-VAC HB )"_s),
                                 conEjemplo(u"&Orden en la tabla :"_s, mOrden, u"( Ej : 3 )"_s)},
                          Expanding(Above(u"Información &Relacionada :"_s, mInformacion)),
                          Group(u"Edad verdadera, en días de vida (en blanco: la del período)"_s,
                                Row{Fields{{u"R&ecomendada :"_s, mRecomendada}},
                                    Fields{{u"&Mínima :"_s, mMinima}}, Fields{{u"Má&xima :"_s, mMaxima}},
                                    Fields{{u"Desde la dosis an&terior :"_s, mIntervalo}}}),
                          Row{Stretch(), Command1, Command2},
                      });
    resize(760, 480);
    connect(&Command1, &QPushButton::clicked, this, &pannueVac::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
}

pannueVac::pannueVac(const vacunas::FilaDelPlan &fila) : pannueVac()
{
    setWindowTitle(u"Editar Vacuna"_s);
    mNombre.setText(fila.descripcion);
    mDetalles.setText(fila.detalle);
    Combo1.setValue(fila.dosis);
    mCodigo.setText(fila.vacuna);
    mOrden.setText(QString::number(fila.orden));
    mInformacion.setPlainText(fila.temas);
    if (!fila.edad)
        return;
    grupo_ = fila.edad->grupo;
    mRecomendada.setText(QString::number(fila.edad->recomendada));
    mMinima.setText(dias(fila.edad->minima));
    mMaxima.setText(dias(fila.edad->maxima));
    mIntervalo.setText(dias(fila.edad->intervalo));
}

vacunas::FilaDelPlan pannueVac::fila() const
{
    vacunas::FilaDelPlan fila{mNombre.text().trimmed(),
                              mDetalles.text().trimmed(),
                              Combo1.value().trimmed().toUpper(),
                              mCodigo.text().trimmed(),
                              mInformacion.toPlainText().trimmed(),
                              basic::nearestWhole(basic::toNumber(mOrden.text()).value_or(0)),
                              std::nullopt};
    if (const auto recomendada = diasEscritos(mRecomendada))
        fila.edad = {*recomendada, diasEscritos(mMinima), diasEscritos(mMaxima), diasEscritos(mIntervalo),
                     grupo_};
    return fila;
}

QWidget *pannueVac::primeraMala()
{
    const vacunas::FilaDelPlan escrita = fila();
    const std::pair<QWidget *, bool> campos[] = {
        {&mNombre, !escrita.descripcion.isEmpty()},
        {&mDetalles, !escrita.detalle.isEmpty()},
        {&Combo1, !escrita.dosis.isEmpty()},
        {&mCodigo, !escrita.vacuna.isEmpty()},
        {&mOrden, basic::isNumeric(mOrden.text())},
        {&mInformacion, !escrita.temas.isEmpty()},
        {&mRecomendada,
         sonDias(mRecomendada) && (escrita.edad || (mMinima.text().isEmpty() && mMaxima.text().isEmpty() &&
                                                    mIntervalo.text().isEmpty()))},
        {&mMinima, sonDias(mMinima)},
        {&mMaxima, sonDias(mMaxima)},
        {&mIntervalo, sonDias(mIntervalo)},
    };
    for (const auto &[campo, bien] : campos)
        if (!bien)
            return campo;
    return nullptr;
}

void pannueVac::aceptar()
{
    if (QWidget *campo = primeraMala()) {
        msgBox(u"Debe ingresar los datos correctamente !!"_s, Icon::Critical, u"Error"_s);
        markWrong(*campo, campo == &mOrden ? u"Un número"_s : u"Falta este dato, o no sirve"_s);
        return;
    }
    answer(u"SI"_s);
}

#include "moc_pannueVac.cpp"
