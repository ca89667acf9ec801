#include "documents/prescriptions/panCarElem.h"

#include "core/services/services.h"
#include "documents/prescriptions/hoja.h"
#include "platform/forms/layout.h"

#include <QFontDatabase>

using namespace Qt::StringLiterals;
using namespace forms;
using recetario::Campo;

namespace
{

constexpr int cuerpoMenor = 5, cuerpoMayor = 50;

/// Chooses an entry; one that this machine does not offer stays what the element has.
void elegir(ComboBox &lista, const QString &entrada)
{
    if (lista.findText(entrada) < 0)
        lista.addItem(entrada);
    lista.setValue(entrada);
}

} // namespace

panCarElem::panCarElem(const recetario::Elemento &elemento) : Form(u"panCarElem"_s), elemento_(elemento)
{
    setWindowTitle(u"Propiedades del elemento"_s);
    int numero = 1;
    for (const Campo &campo : recetario::campos())
        opciones_.push_back(std::make_unique<OptionButton>(u"Option%1"_s.arg(numero++), campo.titulo));
    disponer();
    for (const auto &opcion : opciones_)
        connect(opcion.get(), &QRadioButton::toggled, this, &panCarElem::elegirClase);
    connect(&Text1, &QLineEdit::textEdited, this, [this](const QString &texto) { propio_ = texto; });
    connect(&Command1, &QPushButton::clicked, this, &panCarElem::aceptar);
    connect(&Command2, &QPushButton::clicked, this, [this] { answer(u"NO"_s); });
    Command1.setDefault(true);
}

void panCarElem::disponer()
{
    std::vector<Item> clases;
    for (const auto &opcion : opciones_)
        clases.push_back(*opcion);
    clases.push_back(Option8);
    Text1.setMinimumSize(420, 80);
    setContents(this, Column{
                          Row{Group(u"Qué muestra"_s, Column(std::move(clases))),
                              Expanding(Column{
                                  Group(u"Con qué letra"_s,
                                        Column{Fields{{u"&Fuente :"_s, Combo1}, {u"&Tamaño :"_s, Combo2}},
                                               Row{Check2, Check3, Stretch()}}),
                                  Above(u"Te&xto o muestra :"_s, Text1),
                                  Stretch(),
                              })},
                          Row{Stretch(), Command1, Command2},
                      });
}

void panCarElem::load()
{
    ofrecerLetras();
    elegir(Combo1, elemento_.fuente.isEmpty() ? QFontInfo(font()).family() : elemento_.fuente);
    elegir(Combo2, QString::number(elemento_.cuerpo));
    Check2.setChecked(elemento_.negrita);
    Check3.setChecked(elemento_.italica);
    elegirOpcion();
    elegirClase();
    mostrarLetra();
    connect(&Combo1, &QComboBox::currentTextChanged, this, &panCarElem::mostrarLetra);
    connect(&Combo2, &QComboBox::currentTextChanged, this, &panCarElem::mostrarLetra);
    connect(&Check2, &QCheckBox::toggled, this, &panCarElem::mostrarLetra);
    connect(&Check3, &QCheckBox::toggled, this, &panCarElem::mostrarLetra);
}

void panCarElem::elegirOpcion()
{
    OptionButton *opcion = &Option8;
    propio_ = elemento_.valor;
    for (std::size_t i = 0; i < opciones_.size(); ++i)
        if (recetario::campos()[i].etiqueta == elemento_.valor) {
            opcion = opciones_[i].get();
            propio_.clear();
        }
    opcion->setChecked(true);
}

void panCarElem::ofrecerLetras()
{
    Combo1.addItems(QFontDatabase::families());
    for (int cuerpo = cuerpoMenor; cuerpo <= cuerpoMayor; ++cuerpo)
        Combo2.addItem(QString::number(cuerpo));
}

const Campo *panCarElem::campo() const
{
    for (std::size_t i = 0; i < opciones_.size(); ++i)
        if (opciones_[i]->isChecked())
            return &recetario::campos()[i];
    return nullptr;
}

void panCarElem::elegirClase()
{
    const Campo *elegido = campo();
    Text1.setEnabled(!elegido);
    Text1.setText(elegido ? elegido->muestra : propio_);
}

void panCarElem::mostrarLetra()
{
    Text1.setFont(recetario::letra(elemento()));
}

void panCarElem::aceptar()
{
    if (!campo() && Text1.text().trimmed().isEmpty()) {
        MODULE11::MuestraError(u"Escriba el texto del elemento."_s);
        Text1.setFocus();
        return;
    }
    answer(u"SI"_s);
}

recetario::Elemento panCarElem::elemento() const
{
    recetario::Elemento elegido = elemento_;
    elegido.valor = campo() ? campo()->etiqueta : Text1.text();
    elegido.fuente = Combo1.value();
    elegido.cuerpo = Combo2.value().toInt();
    elegido.negrita = Check2.isChecked();
    elegido.italica = Check3.isChecked();
    return elegido;
}

#include "moc_panCarElem.cpp"
