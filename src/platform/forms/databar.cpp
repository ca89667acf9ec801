#include "platform/forms/databar.h"

#include <QHBoxLayout>
#include <QIcon>

namespace forms
{

namespace
{

struct Look {
    const char *name, *icon, *hint;
};
constexpr Look looks[] = {
    {"Primero", "primero", "Primero"},
    {"Anterior", "anterior", "Anterior"},
    {"Siguiente", "siguiente", "Siguiente"},
    {"Ultimo", "ultimo", "Último"},
};

} // namespace

DataBar::DataBar(Data &rows) : rows_(rows)
{
    setObjectName(rows.objectName());
    caption_.setTextFormat(Qt::PlainText);
    caption_.setAlignment(Qt::AlignCenter);
    caption_.setWordWrap(true);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        QToolButton &button = buttons_[i];
        button.setObjectName(rows.objectName() + QString::fromUtf8(looks[i].name));
        button.setIcon(QIcon(QStringLiteral(":/icons/%1.svg").arg(QString::fromUtf8(looks[i].icon))));
        button.setToolTip(QString::fromUtf8(looks[i].hint));
        button.setAutoRepeat(true);
        connect(&button, &QToolButton::clicked, this, [this, i] { step(static_cast<Step>(i)); });
        if (i == Next)
            layout->addWidget(&caption_, 1);
        layout->addWidget(&button);
    }
    connect(&rows, &Data::reposition, this, &DataBar::enableSteps);
    enableSteps();
}

void DataBar::setCaption(const QString &caption)
{
    caption_.setText(caption);
    setWindowTitle(caption);
}

void DataBar::step(Step to)
{
    rows_.change([to](dao::Recordset &rows) {
        switch (to) {
        case First:
            return rows.moveFirst();
        case Previous:
            return rows.movePrevious();
        case Next:
            return rows.moveNext();
        case Last:
            return rows.moveLast();
        }
    });
}

void DataBar::enableSteps()
{
    const bool any = rows_.hasRow();
    const qint64 place = any ? rows_.recordset().absolutePosition() : -1;
    const bool first = place <= 0;
    const bool last = !any || place + 1 >= rows_.recordset().rowCount();
    for (const Step step : {First, Previous})
        buttons_[step].setEnabled(!first);
    for (const Step step : {Next, Last})
        buttons_[step].setEnabled(!last);
}

} // namespace forms

#include "moc_databar.cpp"
