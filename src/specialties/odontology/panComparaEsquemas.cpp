#include "specialties/odontology/panComparaEsquemas.h"

#include "core/services/paciente.h"
#include "specialties/odontology/esquemas.h"

#include <QSignalBlocker>

using namespace Qt::StringLiterals;
using namespace forms;

namespace
{

constexpr int lados = 2, altoDeLista = 130;

} // namespace

panComparaEsquemas::panComparaEsquemas() : Form(u"panComparaEsquemas"_s)
{
    setWindowTitle(u"Comparación de esquemas"_s);
    List1.setMaximumHeight(altoDeLista);
    QFont destacada = Label4.font();
    destacada.setBold(true);
    Label4.setFont(destacada);
    setContents(this, Column{
                          Label4,
                          Expanding(Row{Expanding(lado(0, u"&Esquema :"_s)),
                                        Expanding(lado(1, u"Com&parado con :"_s))}),
                          lblDiferencias,
                          List1,
                          Row{Stretch(), Command2},
                      });
    resize(1280, 680);
    connect(&Command2, &QPushButton::clicked, this, &panComparaEsquemas::unload);
}

Item panComparaEsquemas::lado(int indice, const QString &rotulo)
{
    ComboBox &combo = Combo1.add(indice);
    connect(&combo, &QComboBox::currentIndexChanged, this, &panComparaEsquemas::comparar);
    return Column{Fields{{rotulo, combo}}, Expanding(Picture1.add(indice))};
}

void panComparaEsquemas::load()
{
    Label4.setCaption(services::nombreDePaciente(tag()));
    const auto paciente = services::numeroDePaciente(tag());
    const QStringList nombres = paciente ? esquemas::nombres(*paciente) : QStringList();
    for (auto &[indice, combo] : Combo1) {
        const QSignalBlocker silencio(*combo);
        combo->addItems(nombres);
        combo->setCurrentIndex(indice == 0 ? 0 : combo->count() - 1);
    }
    comparar();
}

void panComparaEsquemas::comparar()
{
    const auto paciente = services::numeroDePaciente(tag());
    std::array<odonto::Esquema, lados> esquemas;
    for (auto &[indice, combo] : Combo1) {
        const auto guardado = paciente ? esquemas::leer(*paciente, combo->value()) : std::nullopt;
        auto &esquema = esquemas[static_cast<std::size_t>(indice)];
        if (guardado)
            esquema = odonto::Esquema::deTexto(guardado->string1, guardado->string2);
        Picture1(indice).mostrar(esquema);
    }
    const std::vector<odonto::Diferencia> distintas = odonto::diferencias(esquemas[0], esquemas[1]);
    std::vector<int> piezas;
    List1.clear();
    for (const odonto::Diferencia &diferencia : distintas) {
        List1.addLine(diferencia.texto);
        piezas.push_back(diferencia.pieza);
    }
    for (auto &[indice, dibujo] : Picture1)
        dibujo->destacar(piezas);
    lblDiferencias.setCaption(distintas.empty() ? u"Los dos esquemas son iguales."_s
                                                : u"Piezas distintas: %1"_s.arg(distintas.size()));
}

#include "moc_panComparaEsquemas.cpp"
