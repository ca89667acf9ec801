#include "clinical/laboratory/listaDeAnalisis.h"

#include "clinical/laboratory/analisis.h"

ListaDeAnalisis::ListaDeAnalisis(const QString &nombre) : ListBox(nombre)
{
}

void ListaDeAnalisis::ponerEnColumnas()
{
    setFlow(QListView::TopToBottom);
    setWrapping(true);
    setResizeMode(QListView::Adjust);
    setUniformItemSizes(false); // a column is as wide as its longest name
}

void ListaDeAnalisis::llenar()
{
    clear();
    for (const QString &estudio : laboratorio::estudios())
        (new QListWidgetItem(estudio, this))->setCheckState(Qt::Unchecked);
}

void ListaDeAnalisis::tildar(const QStringList &estudios)
{
    for (int i = 0; i < count(); ++i)
        if (estudios.contains(item(i)->text(), Qt::CaseInsensitive))
            item(i)->setCheckState(Qt::Checked);
}

QStringList ListaDeAnalisis::tildados() const
{
    QStringList estudios;
    for (int i = 0; i < count(); ++i)
        if (item(i)->checkState() == Qt::Checked)
            estudios += item(i)->text();
    return estudios;
}

#include "moc_listaDeAnalisis.cpp"
