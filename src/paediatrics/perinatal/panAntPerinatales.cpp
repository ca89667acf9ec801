#include "paediatrics/perinatal/panAntPerinatales.h"

#include "core/records/fichaDelPaciente.h"
#include "core/services/paciente.h"
#include "core/services/services.h"
#include "paediatrics/perinatal/panEvolEmbarazo.h"
#include "paediatrics/perinatal/panObservaRecien.h"
#include "paediatrics/perinatal/panOtrosRecien.h"

#include <QTabBar>

using namespace Qt::StringLiterals;
using namespace forms;
using perinatal::Valores;

namespace
{

const QStringList terminaciones = {u"Espontánea"_s, u"Inducida"_s, u"Conducida"_s,
                                   u"Fórceps"_s,    u"Vacuum"_s,   u"Cesárea"_s};
constexpr int cesarea = 5;
const QStringList causas = {u"Cesárea anterior"_s,
                            u"Desproporción pelvicofetal"_s,
                            u"Desprendimiento de placenta"_s,
                            u"Detención del trabajo de parto"_s,
                            u"Embarazo múltiple"_s,
                            u"Placenta previa"_s,
                            u"Preeclampsia"_s,
                            u"Presentación pelviana"_s,
                            u"Prolapso de cordón"_s,
                            u"Sufrimiento fetal"_s};
constexpr int drogasSi = 0, drogasNo = 1;
const QString nombreDeLaMadre = u"Nombre de la Madre"_s;

} // namespace

panAntPerinatales::panAntPerinatales()
    : Form(u"panAntPerinatales"_s), Combo1(u"Combo1"_s, perinatal::gruposSanguineos),
      Combo2(u"Combo2"_s, perinatal::gruposSanguineos), Combo4(u"Combo4"_s, causas, true)
{
    setWindowTitle(u"Antecedentes perinatales"_s);
    campos_.ligar(u"Grupo sanguineo Madre"_s, Combo1);
    campos_.ligar(u"Analisis cordon Grupo sanguineo"_s, Combo2);
    campos_.ligar(u"Causa de Intervencion Parto"_s, Combo4);
    campos_.ligar(u"Terminacion Parto"_s, Text2);
    campos_.ligar(u"Nombre Drogas Parto"_s, Text3.add(0));
    campos_.ligar(u"Tiempo Drogas anteparto"_s, Text3.add(1));
    setContents(this, Column{
                          Expanding(Tabs(SSTab1, {{u"Datos maternos"_s, datosMaternos()},
                                                  {u"Parto"_s, parto()},
                                                  {u"Recien nacido"_s, recienNacido()},
                                                  {u"Examen físico inmediato"_s, examen()}})),
                          Row{Stretch(), Command1, Command2},
                      });
    resize(1040, 620);
    conectar();
}

Item panAntPerinatales::datosMaternos()
{
    const auto casilla = [this](const QString &columna) -> CheckBox & {
        return campos_.casilla(columna, columna);
    };
    return Row{
        Expanding(
            Group(u"Madre"_s,
                  Column{campos_.textos({nombreDeLaMadre, u"Edad de la Madre al Nacer"_s,
                                         u"Talla de la Madre al Nacer"_s, u"Peso anterior de la Madre"_s,
                                         u"Peso al nacer de la Madre"_s, u"Gestas de la Madre"_s,
                                         u"Paridad"_s, u"Tiempo rotura membrana"_s,
                                         u"Edad Gestacional madre"_s, u"Patologias de la madre"_s},
                                        {{u"Grupo sanguineo Madre :"_s, Combo1}}),
                         Stretch()})),
        Expanding(Column{
            Group(u"Embarazo y serología"_s,
                  Grid(2, {casilla(u"HIV Madre"_s), casilla(u"VDRL"_s), casilla(u"Chagas Madre"_s),
                           casilla(u"Toxoplasmosis Madre"_s),
                           campos_.casilla(u"sensibilización"_s, u"Sensibilización"_s),
                           campos_.casilla(u"control Prenatal"_s, u"Ausencia de control prenatal"_s)})),
            Row{Command5, Stretch()},
            Expanding(Group(u"Patologías perinatales"_s, patologias_.contenido())),
        }),
    };
}

Item panAntPerinatales::drogas()
{
    conDrogas_.addButton(&Option11.add(drogasSi, u"Sí"_s), drogasSi);
    conDrogas_.addButton(&Option11.add(drogasNo, u"No"_s), drogasNo);
    for (const auto &[indice, caja] : Text3)
        caja->setEnabled(false);
    return Group(u"Drogas en el parto"_s, Column{Row{Option11(drogasSi), Option11(drogasNo), Stretch()},
                                                 Fields{{u"Nombre Drogas Parto :"_s, Text3(0)},
                                                        {u"Tiempo Drogas anteparto :"_s, Text3(1)}}});
}

/// The text is what is kept; a button writes a usual word into it.
std::vector<FieldRow> panAntPerinatales::terminacion()
{
    std::vector<Item> botones;
    for (int i = 0; i < terminaciones.size(); ++i) {
        OptionButton &boton = Option1.add(i, terminaciones[i]);
        terminaciones_.addButton(&boton, i);
        botones.emplace_back(boton);
    }
    Combo4.setEnabled(false);
    return {{u"Terminacion Parto :"_s, Text2},
            {QString(), Grid(3, std::move(botones))},
            {u"Causa de Intervencion Parto :"_s, Combo4}};
}

Item panAntPerinatales::parto()
{
    return Row{
        Expanding(Column{
            Group(u"Parto"_s, campos_.textos({u"Comienzo Parto"_s, u"Presentacion Parto"_s}, terminacion())),
            drogas(), Stretch()}),
        Expanding(Column{Group(u"Líquido amniótico"_s, campos_.opciones(u"Tipo liquido amniotico"_s, 4)),
                         Group(u"Sufrimiento fetal"_s, campos_.opciones(u"sufrimiento fetal"_s, 4)),
                         Group(u"Parto efectuado por"_s, campos_.opciones(u"Parto efectuado por"_s, 3)),
                         Group(u"Parto atendido en"_s, campos_.opciones(u"Parto atendido en"_s, 2)),
                         Group(u"Nacimiento"_s, campos_.opciones(u"Nacimiento"_s, 4)), Stretch()}),
    };
}

Item panAntPerinatales::recienNacido()
{
    return Row{
        Expanding(Column{Group(u"Apgar: al minuto y a los 5 minutos"_s, apgar_.contenido()),
                         Row{Command4, Stretch()}, Stretch()}),
        Expanding(Column{
            Group(u"Cordón"_s,
                  Column{campos_.textos({u"Ligadura cordon"_s, u"Analisis cordon Coombs"_s,
                                         u"Analisis cordon bilirrubina"_s, u"Analisis cordon hemoglobina"_s},
                                        {{u"Analisis cordon Grupo sanguineo :"_s, Combo2}}),
                         campos_.casilla(u"Cordon presento anomalias"_s, u"Cordón con anomalías"_s)}),
            Group(u"Maniobras de rutina"_s,
                  Row{campos_.casilla(u"Maniobras de Rutina secado"_s, u"Secado"_s),
                      campos_.casilla(u"Maniobras de Rutina aspirNaso"_s, u"Aspiración nasofaríngea"_s),
                      campos_.casilla(u"Maniobras de Rutina aspirGastro"_s, u"Aspiración gástrica"_s),
                      Stretch()}),
            Stretch(),
        }),
    };
}

Item panAntPerinatales::examen()
{
    const auto hallazgos = [this](const QString &titulo,
                                  std::initializer_list<std::pair<QString, QString>> casillas) {
        std::vector<Item> todas;
        for (const auto &[columna, caption] : casillas)
            todas.emplace_back(campos_.casilla(columna, caption));
        return Group(titulo, Grid(3, std::move(todas)));
    };
    return Row{
        Expanding(
            Column{
                Group(u"Medidas"_s, Column{campos_.textos({u"Tiempo de vida al examen"_s,
                                                           u"Edad gestacional por examen fisico"_s}),
                                           medidas_.contenido()}),
                hallazgos(u"Piel y examen neurológico"_s, {{u"Color de la piel ictericia"_s, u"Ictericia"_s},
                                                           {u"Color de la piel palida"_s, u"Palidez"_s},
                                                           {u"Color de la piel sianosis"_s, u"Cianosis"_s},
                                                           {u"Neurologico normal"_s, u"Normal"_s},
                                                           {u"Neurologico deprimido"_s, u"Deprimido"_s},
                                                           {u"Neurologico excitado"_s, u"Excitado"_s}}),
                hallazgos(u"Otros hallazgos"_s,
                          {{u"Presencia de dificultad respiratoria"_s, u"Dificultad respiratoria"_s},
                           {u"Presencia de dificultad cardiovascular"_s, u"Dificultad cardiovascular"_s},
                           {u"Abdomen anormal"_s, u"Abdomen anormal"_s},
                           {u"Orino al nacer"_s, u"Orinó al nacer"_s},
                           {u"Expulso meconio al nacer"_s, u"Expulsó meconio"_s},
                           {u"Presenta malformaciones"_s, u"Malformaciones"_s}}),
                campos_.textos({u"Malformaciones destacadas"_s, u"Diagnóstico"_s}), Stretch()},
            3),
        Expanding(Column{Group(u"Permanencia"_s,
                               campos_.textos({u"Permanencia con la madre"_s, u"Permanencia en UCI"_s,
                                               u"Permanencia en cunera"_s, u"Permanencia de traslado"_s,
                                               u"Permanencia en Unidad de observacion"_s})),
                         Expanding(Group(u"Diagnósticos del recien nacido"_s, diagnosticos_.contenido())),
                         Row{Command6, Stretch()}},
                  2),
    };
}

void panAntPerinatales::conectar()
{
    connect(&conDrogas_, &QButtonGroup::idToggled, this, [this] {
        for (const auto &[indice, caja] : Text3)
            caja->setEnabled(Option11(drogasSi).isChecked());
    });
    connect(&terminaciones_, &QButtonGroup::idToggled, this,
            [this] { Combo4.setEnabled(Option1(cesarea).isChecked()); });
    connect(&terminaciones_, &QButtonGroup::idClicked, this,
            [this](int id) { Text2.setText(terminaciones[id]); });
    connect(&Text2, &QLineEdit::textEdited, this, &panAntPerinatales::elegirTerminacion);
    connect(&Command1, &QPushButton::clicked, this, &panAntPerinatales::guardar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
    connect(&Command4, &QPushButton::clicked, this, [this] { completar(panOtrosRecien()); });
    connect(&Command5, &QPushButton::clicked, this, [this] { completar(panEvolEmbarazo()); });
    connect(&Command6, &QPushButton::clicked, this, [this] { completar(panObservaRecien()); });
}

void panAntPerinatales::activate()
{
    const auto numero = records::pacienteDe(*this);
    if (!numero || *numero == paciente_)
        return;
    paciente_ = *numero;
    leer(*numero);
    mostrada_ = escrita();
    SSTab1.tabBar()->setFocus(); // the menu goes on to a page with the arrow keys
}

/// Of a patient who is not there the record stays empty, and there is nothing to write it for.
void panAntPerinatales::leer(qint64 numero)
{
    auto paciente = services::paciente(numero);
    Command1.setEnabled(paciente.has_value());
    if (!paciente)
        return;
    setWindowTitle(u"Antecedentes perinatales de "_s + (*paciente)[u"Apellido y Nombres"].text());
    perinatal::Ficha ficha = perinatal::leer(numero);
    pediatria_ = std::move(ficha.pediatria);
    if (perinatal::valor(ficha.perinatal, nombreDeLaMadre).isBlank())
        ficha.perinatal[nombreDeLaMadre] = perinatal::valor(pediatria_, nombreDeLaMadre);
    mostrar(ficha);
    if (comienzo_)
        mostrar(*comienzo_);
    mostrarNoColumnas();
    medidas_.setSexo((*paciente)[u"Sexo"].text());
}

void panAntPerinatales::mostrar(const perinatal::Ficha &ficha)
{
    campos_.mostrar(ficha.perinatal);
    patologias_.mostrar(ficha.patologias);
    diagnosticos_.mostrar(ficha.diagnosticos);
}

/// The buttons that no column keeps follow from the texts beside them.
void panAntPerinatales::mostrarNoColumnas()
{
    if (!Text3(0).text().isEmpty() || !Text3(1).text().isEmpty())
        Option11(drogasSi).setChecked(true);
    elegirTerminacion();
}

/// The button whose word the text begins with; for any other text, none.
void panAntPerinatales::elegirTerminacion()
{
    terminaciones_.setExclusive(false);
    for (const auto &[indice, boton] : Option1)
        boton->setChecked(Text2.text().startsWith(boton->text(), Qt::CaseInsensitive));
    terminaciones_.setExclusive(true);
}

void panAntPerinatales::completar(perinatal::Complemento &&dialogo)
{
    dialogo.mostrar(pediatria_);
    dialogo.mostrar(aceptados_);
    dialogo.setTag(tag());
    dialogo.showModal();
    if (dialogo.tag() != u"SI")
        return;
    for (const auto &[columna, valor] : dialogo.valores())
        aceptados_[columna] = valor;
}

perinatal::Ficha panAntPerinatales::escrita() const
{
    return {campos_.valores(), aceptados_, patologias_.lineas(), diagnosticos_.lineas()};
}

void panAntPerinatales::guardar()
{
    perinatal::Ficha ficha = escrita();
    if (Option11(drogasNo).isChecked())
        ficha.perinatal[u"Nombre Drogas Parto"_s] = ficha.perinatal[u"Tiempo Drogas anteparto"_s] = QString();
    // The patient's page shows the mother from the paediatric data.
    const basic::Value &madre = ficha.perinatal[nombreDeLaMadre];
    if (!madre.isBlank() && madre != perinatal::valor(pediatria_, nombreDeLaMadre))
        ficha.pediatria[nombreDeLaMadre] = madre;
    perinatal::guardar(paciente_, ficha);
    answer(u"SI"_s);
}

/// "Cancelar" leaves at once; Esc and the frame do not throw a record away by themselves.
bool panAntPerinatales::queryUnload()
{
    return paciente_ == 0 || escrita() == mostrada_ ||
           MODULE11::PreguntaSiBorra(u"Cierra sin guardar los antecedentes perinatales"_s);
}

#include "moc_panAntPerinatales.cpp"
