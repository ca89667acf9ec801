#include "clinical/laboratory/panEstudios.h"

#include "clinical/laboratory/panComplem.h"
#include "clinical/laboratory/panNueEstudio.h"
#include "core/services/paciente.h"
#include "core/services/services.h"

using namespace Qt::StringLiterals;
using namespace forms;

panEstudios::panEstudios()
    : ListaDelPaciente(u"panEstudios"_s, u"Estudios efectuados al paciente"_s,
                       {{u"Fecha"_s, u"Fecha"_s, u"dd/mm/yyyy"_s, 84},
                        {u"Estudio"_s, u"Tipo"_s, {}, 190},
                        {u"Especialista"_s, u"Especialista"_s, {}, 120}},
                       u"Select * from estudios where paciente = %1 order by fecha"_s)
{
    Data1.bind(mTipo, u"Tipo"_s);
    Data1.bind(mEspecialista, u"Especialista"_s);
    Data1.bind(mResultados, u"Resultados"_s);
    Data1.bind(mObservaciones, u"Observaciones"_s);
    setContents(this,
                Column{Expanding(Row{Expanding(DBGrid1, 4), Expanding(estudio(), 5)}),
                       Row{command(u"Command2"_s, u"&Nuevo"_s, u"agregar"_s, [this] { nuevo(); },
                                   {.gate = u"AgregarEstudios"_s}),
                           deletes(u"Command3"_s, u"&Quitar"_s,
                                   {.gate = u"BorrarEstudios"_s, .question = u"Borra este estudio"_s}),
                           rowCommand(u"Command22"_s, u"&Guardar"_s, u"guardar"_s, [this] { guardar(); }),
                           rowCommand(u"Command4"_s, u"&Informe con imágenes..."_s, u"editar"_s,
                                      [this] { abrirInforme(); }),
                           Stretch(), closes(u"Command1"_s, u"&Cerrar"_s)}});
    resize(940, 500);
    connect(&mFecha, &QLineEdit::editingFinished, this, &panEstudios::guardarFecha);
}

Item panEstudios::estudio()
{
    mFecha.setFixedWidth(110);
    return Column{
        Fields{{u"&Fecha :"_s, Row{mFecha, Stretch()}},
               {u"E&studio :"_s, mTipo},
               {u"Es&pecialista :"_s, mEspecialista}},
        Expanding(Above(u"&Resultados :"_s, mResultados)),
        Expanding(Above(u"&Observaciones :"_s, mObservaciones)),
    };
}

void panEstudios::activate()
{
    setWindowTitle(u"Planilla de Estudios de "_s + services::nombreDePaciente(tag()));
    guardarFecha();
    ListaDelPaciente::activate();
}

bool panEstudios::queryUnload()
{
    guardarFecha();
    return ListaDelPaciente::queryUnload();
}

void panEstudios::rowShown()
{
    const bool hay = Data1.hasRow();
    for (QWidget *campo :
         std::initializer_list<QWidget *>{&mFecha, &mTipo, &mEspecialista, &mResultados, &mObservaciones})
        campo->setEnabled(hay);
    mFecha.clear(); // of a row deleted at another station nothing stays to be written
    fechaMostrada_.clear();
    if (!hay)
        return;
    mFecha.setFecha(Data1.recordset()[u"Fecha"]);
    fechaMostrada_ = mFecha.text();
}

void panEstudios::nuevo()
{
    panNueEstudio captura;
    capture(captura, [&](dao::Recordset &fila) { estudios::escribir(fila, paciente(), captura.estudio()); });
}

void panEstudios::guardar()
{
    guardarFecha();
    Data1.updateRecord();
}

/// One report a kind of study, whatever the row.
void panEstudios::abrirInforme()
{
    const QString tipo = mTipo.text().trimmed();
    if (tipo.isEmpty()) {
        MODULE11::MuestraError(u"Escriba antes qué estudio es."_s);
        mTipo.setFocus();
        return;
    }
    guardar();
    complementos::abrir(paciente(), tipo);
}

/// The date is written by itself: in the table "-" is no date.
void panEstudios::guardarFecha()
{
    if (Data1.hasRow() && mFecha.text() != fechaMostrada_)
        Data1.set(u"Fecha"_s, mFecha.fecha());
}

#include "moc_panEstudios.cpp"
