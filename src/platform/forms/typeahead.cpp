#include "platform/forms/typeahead.h"

#include "platform/basic/typed.h"

#include <QAbstractItemModel>
#include <QApplication>

namespace forms
{

int TypeAhead::rowFor(const QString &letter, const QAbstractItemModel &model, int current)
{
    const int pause = QApplication::keyboardInputInterval() * 3; // names are typed with thought
    const bool goesOn = sinceTyped_.isValid() && sinceTyped_.elapsed() < pause;
    typed_ = goesOn ? typed_ + letter : letter;
    sinceTyped_.start();
    const int rows = model.rowCount();
    const int start = qMax(0, goesOn ? current : current + 1);
    for (int i = 0; i < rows; ++i) {
        const int row = (start + i) % rows;
        if (basic::beginsWithTyped(model.index(row, 0).data().toString(), typed_))
            return row;
    }
    return -1;
}

} // namespace forms
