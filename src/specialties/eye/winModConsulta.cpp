#include "specialties/eye/winModConsulta.h"

#include "core/services/services.h"
#include "platform/basic/environment.h"
#include "platform/basic/runtime.h"
#include "specialties/eye/panEstrabismo.h"
#include "specialties/eye/pangraBio.h"
#include "specialties/eye/refraccion.h"

using namespace Qt::StringLiterals;
using namespace forms;
using oftalmo::Clase;
using oftalmo::Textos;

namespace
{

struct Agudeza {
    QString titulo, derecho, izquierdo; ///< columns
};
const Agudeza correcciones[] = {
    {u"SC"_s, u"aguVisOdSC"_s, u"aguVisOiSC"_s},
    {u"CSC"_s, u"aguVisOdCSC"_s, u"aguVisOiCSC"_s},
    {u"CC"_s, u"aguVisOdCCC"_s, u"aguVisOiCCC"_s},
    {u"CE"_s, u"aguVisOdCE"_s, u"aguVisOiCE"_s},
};
const QString capituloDelOjo = u"select * from consultadiagnostico where idClasificacion = '07'"_s;
const QString palabrasDeLectura[] = {u"Normal"_s, u"Alterada"_s};
constexpr int altoDeMemo = 62;

} // namespace

winModConsulta::winModConsulta() : Form(u"winModConsulta"_s)
{
    for (const auto &[columna, memo] :
         std::initializer_list<std::pair<QString, QWidget *>>{{u"motivo"_s, &mmodMotivo},
                                                              {u"Antecedentes"_s, &mmodAntecede},
                                                              {u"diagnostico"_s, &mmodDiagnostico},
                                                              {u"periferia"_s, &mPeriferia},
                                                              {u"biomicroscopia"_s, &mBiomicroscopia},
                                                              {u"fondodeojo"_s, &mFondo},
                                                              {u"refraccion_OD"_s, &mRefraccionOD},
                                                              {u"refraccion_OI"_s, &mRefraccionOI},
                                                              {u"refraccion_M"_s, &mRefraccionM},
                                                              {u"Auxiliar1"_s, &Combo1},
                                                              {u"Auxiliar2"_s, &Combo2},
                                                              {u"r_p"_s, &mConRP}})
        campos_.ligar(columna, *memo);
    for (ComboBox *diagnostico : {&Combo1, &Combo2}) {
        MODULE11::LlenaLista(*diagnostico, capituloDelOjo, u"Descripcion");
        diagnostico->setCurrentIndex(-1);
        diagnostico->setMinimumContentsLength(24);
        diagnostico->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    }
    mConFecha.setFixedWidth(100);
    lblTestAmsler.setToolTip(u"Un clic lo cambia"_s);
    setContents(this, Column{Expanding(Tabs(SSTab1, {{u"Consulta"_s, consulta()},
                                                     {u"Refracción y anteojos"_s, refraccion()},
                                                     {u"Receta"_s, receta()}})),
                             Row{Command7, Command8, Command9, Stretch(), Command5, Command6}});
    resize(1000, 640);
    conectar();
    antes_ = escrito();
}

Item winModConsulta::textosPropios(Textos clase, ComboBox &lista, MemoBox &memo, const QString &agregar,
                                   const QString &quitar)
{
    const auto llenar = [&lista, clase] {
        lista.clear();
        MODULE11::LlenaLista(lista, oftalmo::consultaDeTextos(clase), u"Descripcion");
        lista.setCurrentIndex(-1);
        lista.clearEditText();
    };
    const auto boton = [&](const QString &icono, const QString &dice, auto trabajo) -> CommandButton & {
        CommandButton &nuevo = comTextos.add(comTextos.size(), QString(), icono);
        nuevo.setToolTip(dice);
        nuevo.setAccessibleName(dice);
        nuevo.setAutoDefault(false);
        connect(&nuevo, &QPushButton::clicked, this, [&lista, clase, trabajo, llenar] {
            if (const QString texto = lista.value().trimmed(); !texto.isEmpty()) {
                trabajo(clase, texto);
                llenar();
                lista.setEditText(texto);
            }
        });
        return nuevo;
    };
    lista.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    lista.setMinimumContentsLength(20);
    lista.lineEdit()->setMaxLength(255);
    lista.setToolTip(u"Elegir un texto lo agrega abajo"_s);
    connect(&lista, &QComboBox::textActivated, &memo, [&memo](const QString &texto) {
        if (!texto.isEmpty())
            memo.appendPlainText(texto);
    });
    llenar();
    return Row{Expanding(lista), boton(u"agregar"_s, agregar, oftalmo::agregarTexto),
               boton(u"quitar"_s, quitar, oftalmo::quitarTexto)};
}

Item winModConsulta::agudezas()
{
    std::vector<Item> cuadro = {new QLabel, new QLabel(u"O.D."_s), new QLabel(u"O.I."_s)};
    for (const Agudeza &agudeza : correcciones) {
        auto *rotulo = new QLabel(agudeza.titulo + u" :"_s);
        cuadro.emplace_back(rotulo);
        for (const QString &columna : {agudeza.derecho, agudeza.izquierdo}) {
            const bool derecho = columna == agudeza.derecho;
            const int indice = static_cast<int>(&agudeza - correcciones) + (derecho ? 0 : 4);
            ComboBox &combo = mAgudeza.add(indice, oftalmo::escalaDeAgudeza(), true);
            combo.setAccessibleName(u"Agudeza %1 %2"_s.arg(agudeza.titulo, derecho ? u"O.D."_s : u"O.I."_s));
            combo.setCurrentIndex(-1);
            campos_.ligar(columna, combo);
            if (derecho) // the row's caption leads to its first field
                rotulo->setBuddy(&combo);
            cuadro.emplace_back(combo);
        }
    }
    return Group(u"Agudeza visual"_s, Grid(3, cuadro));
}

Item winModConsulta::hallazgos()
{
    for (MemoBox *memo : {&mPeriferia, &mBiomicroscopia, &mFondo})
        memo->setMinimumHeight(altoDeMemo);
    return Row{Expanding(Above(u"Biomicroscopia :"_s, mBiomicroscopia)),
               Expanding(Above(u"Fondo de ojo :"_s, mFondo)), Expanding(Above(u"Periferia :"_s, mPeriferia))};
}

Item winModConsulta::consulta()
{
    for (const int i : {0, 1})
        Option1.add(i, palabrasDeLectura[i]);
    for (MemoBox *memo : {&mmodMotivo, &mmodAntecede, &mmodDiagnostico})
        memo->setMinimumHeight(altoDeMemo);
    mmodMotivo.setMaximumHeight(2 * altoDeMemo);
    const Item motivos =
        textosPropios(Textos::Motivos, comboMotivo, mmodMotivo, u"Agregar este motivo a la lista"_s,
                      u"Quitar este motivo de la lista"_s);
    return Row{Expanding(Column{Row{Fields{{u"Fec&ha :"_s, mConFecha}}, Stretch(), lblModo},
                                Group(u"Motivo de consulta"_s, Column{motivos, mmodMotivo}),
                                Expanding(Above(u"Antecedentes :"_s, mmodAntecede)), Expanding(hallazgos()),
                                Expanding(Above(u"&Diagnóstico :"_s, mmodDiagnostico))},
                         3),
               Expanding(Column{agudezas(),
                                Group(u"P.I.O."_s, Fields{{u"O.D. :"_s, deColumna(u"tensionocuod"_s)},
                                                          {u"O.I. :"_s, deColumna(u"tensionocuoi"_s)}}),
                                Group(u"Test de Amsler"_s, Row{lblTestAmsler, Stretch(), Command1}),
                                Group(u"Vision Cercana"_s, Row{Option1(0), Option1(1)}), Stretch()},
                         1)};
}

Item winModConsulta::anteojos()
{
    const auto par = [this](const QString &derecho, const QString &izquierdo) {
        return Row{Expanding(deColumna(derecho)), Expanding(deColumna(izquierdo))};
    };
    return Row{Expanding(Group(u"Anteojos usados (O.D. - O.I.)"_s,
                               Fields{{u"Lejos :"_s, par(u"antusalejOD"_s, u"antusalejOI"_s)},
                                      {u"Cerca :"_s, par(u"antusacerOD"_s, u"antusacerOi"_s)},
                                      {u"Otros :"_s, par(u"antusaotrOD"_s, u"antusaotrOi"_s)}})),
               Expanding(Group(u"Anteojos recetados (O.D. - O.I.)"_s,
                               Fields{{u"Lejos :"_s, par(u"antreclejOD"_s, u"antreclejOi"_s)},
                                      {u"Cerca :"_s, par(u"antreccerOD"_s, u"antreccerOi"_s)},
                                      {u"Intermedio :"_s, par(u"antrecintOD"_s, u"antrecintOi"_s)}}))};
}

Item winModConsulta::correccion()
{
    return Row{Expanding(Group(u"Corrección Elejida"_s,
                               Fields{{u"O.D. :"_s, Row{Expanding(Combo1), deColumna(u"Auxiliar3"_s)}},
                                      {u"O.I. :"_s, Row{Expanding(Combo2), deColumna(u"Auxiliar4"_s)}}}),
                         2),
               Expanding(Group(u"Cicloplejia"_s, Fields{{u"O.D. :"_s, deColumna(u"topOdAgu"_s)},
                                                        {u"O.I. :"_s, deColumna(u"topOiAgu"_s)}}))};
}

Item winModConsulta::refraccion()
{
    for (TextBox *ojo : {&mRefraccionOD, &mRefraccionOI})
        ojo->setPlaceholderText(u"+1,25 -0,50 x 90"_s);
    for (Label *cuenta : {&lblCuentaOD, &lblCuentaOI}) {
        cuenta->setForegroundRole(QPalette::PlaceholderText);
        cuenta->setToolTip(u"Equivalente esférico y transposición de lo escrito; no se guardan"_s);
    }
    mRefraccionM.setMaximumHeight(altoDeMemo);
    return Column{
        Group(u"Refracción"_s, Fields{{u"O.D. :"_s, Row{Expanding(mRefraccionOD), Expanding(lblCuentaOD)}},
                                      {u"O.I. :"_s, Row{Expanding(mRefraccionOI), Expanding(lblCuentaOI)}},
                                      {u"Observaciones :"_s, mRefraccionM}}),
        correccion(), anteojos(), Stretch()};
}

Item winModConsulta::receta()
{
    const Item recetas =
        textosPropios(Textos::Recetas, comboReceta, mConRP, u"Agregar esta indicación a la lista"_s,
                      u"Quitar esta indicación de la lista"_s);
    return Column{Row{Expanding(recetas), Command2}, Expanding(Group(u"R.p."_s, mConRP))};
}

void winModConsulta::conectar()
{
    connect(&mConFecha, &QLineEdit::editingFinished, this, &winModConsulta::revisarFecha);
    for (TextBox *ojo : {&mRefraccionOD, &mRefraccionOI})
        connect(ojo, &QLineEdit::textChanged, this, &winModConsulta::contarRefraccion);
    const auto cambiarAmsler = [this] {
        lblTestAmsler.setCaption(lblTestAmsler.caption() == u" -" ? u" +"_s : u" -"_s);
    };
    connect(&lblTestAmsler, &Label::clicked, this, cambiarAmsler);
    connect(&Command1, &QPushButton::clicked, this, cambiarAmsler);
    connect(&Command2, &QPushButton::clicked, this, [this] {
        mConRP.setPlainText(u"RP/   "_s);
        mConRP.moveCursor(QTextCursor::End);
        mConRP.setFocus();
    });
    connect(&Command5, &QPushButton::clicked, this, [this] {
        revisarFecha();
        answer(u"GRABAR"_s);
    });
    connect(&Command6, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
    connect(&Command7, &QPushButton::clicked, this, [this] { dibujar(Clase::Biomicroscopia); });
    connect(&Command8, &QPushButton::clicked, this, [this] { dibujar(Clase::Fondo); });
    connect(&Command9, &QPushButton::clicked, this, &winModConsulta::estrabismo);
}

void winModConsulta::mostrar(const QString &modo, const QString &titulo, const records::Valores &valores)
{
    modo_ = modo;
    lblModo.setCaption(modo);
    setWindowTitle(titulo);
    valores_ = valores;
    campos_.mostrar(valores);
    const basic::Value fecha = records::valor(valores, u"Fecha"_s);
    mConFecha.setText(basic::dateText(fecha.isBlank() ? basic::today() : fecha.date()));
    lblTestAmsler.setCaption(records::valor(valores, u"testAmsler"_s).text().contains(u'+') ? u" +"_s
                                                                                            : u" -"_s);
    for (auto &[i, palabra] : Option1)
        palabra->setChecked(records::valor(valores, u"Lectura"_s).text() == palabrasDeLectura[i]);
    contarRefraccion();
    antes_ = escrito();
    mmodMotivo.setFocus();
}

basic::Value winModConsulta::lectura() const
{
    for (const auto &[i, palabra] : Option1)
        if (palabra->isChecked())
            return palabrasDeLectura[i];
    return records::valor(valores_, u"Lectura"_s);
}

records::Valores winModConsulta::escrito() const
{
    records::Valores todos = valores_;
    for (const auto &[columna, valor] : campos_.valores())
        todos[columna] = valor;
    todos[u"Fecha"_s] = basic::toDate(mConFecha.text()).value_or(basic::today());
    todos[u"testAmsler"_s] = lblTestAmsler.caption();
    todos[u"Lectura"_s] = lectura();
    return todos;
}

oftalmo::Visita winModConsulta::visita() const
{
    return {escrito(), dibujos_};
}

bool winModConsulta::queryUnload()
{
    const records::Valores ahora = escrito();
    const bool igual = dibujos_.empty() && std::ranges::all_of(ahora, [this](const auto &columna) {
                           return columna.second.text() == records::valor(antes_, columna.first).text();
                       });
    return igual || MODULE11::PreguntaSiBorra(u"Cierra sin guardar la consulta?"_s);
}

void winModConsulta::revisarFecha()
{
    const auto fecha = basic::toDate(mConFecha.text());
    mConFecha.setText(basic::dateText(fecha && fecha->date().isValid() ? *fecha : basic::today()));
}

void winModConsulta::contarRefraccion()
{
    lblCuentaOD.setCaption(oftalmo::cuentaDe(mRefraccionOD.text()));
    lblCuentaOI.setCaption(oftalmo::cuentaDe(mRefraccionOI.text()));
}

void winModConsulta::dibujar(Clase clase)
{
    const auto ventana = clase == Clase::Biomicroscopia
                             ? std::unique_ptr<oftalmo::DibujoEditable>(std::make_unique<pangraBio>())
                             : std::make_unique<panGraFondo>();
    const auto hecho = dibujos_.find(clase);
    ventana->mostrar(hecho != dibujos_.end()
                         ? hecho->second
                         : oftalmo::leerDibujo(records::valor(valores_, oftalmo::columnaDe(clase)).text()));
    ventana->showModal();
    if (ventana->tag() == u"SI")
        dibujos_[clase] = ventana->dibujo();
}

void winModConsulta::estrabismo()
{
    panEstrabismo ventana;
    ventana.mostrar(valores_);
    ventana.showModal();
    if (ventana.tag() == u"SI")
        for (const auto &[columna, valor] : ventana.valores())
            valores_[columna] = valor;
}

#include "moc_winModConsulta.cpp"
