#include "clinical/laboratory/panComparaAnalisis.h"

#include "clinical/laboratory/analisis.h"
#include "core/services/paciente.h"
#include "platform/forms/layout.h"

using namespace Qt::StringLiterals;
using namespace forms;

panComparaAnalisis::panComparaAnalisis() : Form(u"panComparaAnalisis"_s)
{
    setWindowTitle(u"Comparación de laboratorio"_s);
    Label1.setWordWrap(true);
    setContents(this, Column{
                          Label1,
                          Expanding(Row{Expanding(List1, 2), Expanding(DBGrid1, 5)}),
                          Row{Stretch(), Command1},
                      });
    resize(980, 560);
    connect(&List1, &QListWidget::itemChanged, this, &panComparaAnalisis::comparar);
    connect(&Command1, &QPushButton::clicked, this, [this] { answer(u"SI"_s); });
}

void panComparaAnalisis::load()
{
    const QSignalBlocker llenando(List1);
    List1.llenar();
    comparar();
}

void panComparaAnalisis::comparar()
{
    const QStringList estudios = List1.tildados();
    Data1.setRecordSource(laboratorio::comparacion(services::numeroDePaciente(tag()).value_or(0), estudios));
    Data1.refresh();
    std::vector<GridColumn> columnas = {{u"Fecha"_s, u"fecha"_s, u"dd/mm/yyyy"_s, 84},
                                        {u"Hora"_s, u"hora"_s, u"HH:MM"_s, 50}};
    for (const QString &estudio : estudios)
        columnas.push_back({estudio, estudio});
    DBGrid1.setSource(Data1, std::move(columnas));
}

#include "moc_panComparaAnalisis.cpp"
