#include "specialties/gynaecology/fichaGineco.h"

#include "core/services/paciente.h"
#include "core/session/screens.h"

using namespace Qt::StringLiterals;
using namespace forms;

namespace gineco
{

namespace
{

const records::FilaPropia fila{u"Gineco"_s, u"idPaciente"_s};

} // namespace

FichaGineco::FichaGineco(const QString &ventana, const QString &titulo) : Form(ventana)
{
    setWindowTitle(titulo);
    QFont destacada = lblPaciente.font();
    destacada.setBold(true);
    lblPaciente.setFont(destacada);
    connect(&Command1, &QPushButton::clicked, this, &FichaGineco::guardar);
    connect(&Command2, &QPushButton::clicked, this, &FichaGineco::unload);
}

void FichaGineco::disponer(Item contenido, std::vector<Item> mas)
{
    mas.insert(mas.end(), {Stretch(), Command1, Command2});
    setContents(this, Column{lblPaciente, Expanding(contenido), Row(mas)});
    setMinimumWidth(560);
}

/// What is being written is not read over when another window gives the way back.
void FichaGineco::activate()
{
    const auto paciente = services::numeroDePaciente(tag());
    Command1.setEnabled(paciente.has_value());
    if (!paciente || leida_)
        return;
    leida_ = true;
    lblPaciente.setCaption(services::nombreDePaciente(tag()));
    campos_.mostrar(fila.leer(*paciente));
}

void FichaGineco::guardar()
{
    if (const auto paciente = services::numeroDePaciente(tag())) {
        fila.escribir(*paciente, campos_.valores());
        unload();
    }
}

} // namespace gineco

panAnteGineco::panAnteGineco() : FichaGineco(u"panAnteGineco"_s, u"Antecedentes ginecológicos"_s)
{
    campos_.ligar(u"DUM"_s, mDum);
    mDum.setFixedWidth(120);
    for (const auto &[boton, ventana] : {std::pair{&Command3, screens::Window("panGinecoObs1")},
                                         std::pair{&Command4, screens::Window("panGinecoObs2")},
                                         std::pair{&Command5, screens::Window("panGinecoMamas")}})
        connect(boton, &QPushButton::clicked, this,
                [this, ventana = ventana] { screens::showModal(ventana, tag()); });
    disponer(Column{Fields{campos_.renglon(u"Ciclos Menstruales"_s),
                           {u"DUM :"_s, Row{mDum, Stretch()}},
                           campos_.renglon(u"Primera Relacion"_s),
                           campos_.renglon(u"Metodo Anticonceptivo"_s),
                           campos_.renglon(u"Gestas"_s),
                           campos_.renglon(u"Abortos"_s),
                           campos_.renglon(u"Cauterizaciones"_s),
                           campos_.renglon(u"Ultimo Examen Mamas"_s),
                           campos_.renglon(u"Ultima Mamografia"_s)},
                    Stretch()},
             {Command3, Command4, Command5});
}

panGinecoObs1::panGinecoObs1() : FichaGineco(u"panGinecoObs1"_s, u"Genitales externos"_s)
{
    disponer(Column{
        campos_.textos({u"Pilosidad"_s, u"Labios"_s, u"Clitoris"_s, u"Meato Uretral"_s, u"Gl Bartholin"_s,
                        u"Himen"_s, u"Estatica Pelvica"_s, u"Incontinencia Urinaria"_s, u"Abdomen"_s}),
        Stretch()});
}

panGinecoObs2::panGinecoObs2() : FichaGineco(u"panGinecoObs2"_s, u"Vagina y tacto"_s)
{
    disponer(
        Column{campos_.textos({u"vagina"_s, u"Colon"_s, u"Muco Cervical"_s, u"Toco Vagina"_s, u"Toco Colon"_s,
                               u"Toco Anexo D"_s, u"Toco Anexo E"_s, u"Toco Recto"_s, u"Toco Parametrios"_s}),
               Stretch()});
}

panGinecoMamas::panGinecoMamas() : FichaGineco(u"panGinecoMamas"_s, u"Mamas"_s)
{
    campos_.ligar(u"Observaciones Mamas"_s, mObservaciones);
    disponer(Column{campos_.textos({u"Nro Lactancias"_s, u"Duracion Lactancias"_s, u"Traumatismos Mamarios"_s,
                                    u"Otros Problemas Mamarios"_s, u"Inspeccion Estatica Mamas"_s,
                                    u"Inspeccion Dinamica Mamas"_s, u"Palpado Mamas"_s, u"Papila y Aureola"_s,
                                    u"Axilas"_s}),
                    Expanding(Above(u"Observaciones Mamas :"_s, mObservaciones))});
}

#include "moc_fichaGineco.cpp"
