#include "core/records/filas.h"

#include "core/services/services.h"

using namespace Qt::StringLiterals;

namespace records
{

void reread(forms::Data &rows)
{
    rows.change([had = rows.hasRow()](dao::Recordset &read) {
        const dao::Recordset::Bookmark place = had ? read.bookmark() : dao::Recordset::Bookmark();
        read.requery();
        if (had)
            basic::ignoring({dao::Error::NoCurrentRecord, dao::Error::RecordDeleted},
                            [&] { read.setBookmark(place); });
    });
}

void addRow(forms::Data &rows, const Fill &fill)
{
    rows.change([&](dao::Recordset &added) {
        added.addNew();
        fill(added);
        added.update();
        const dao::Recordset::Bookmark place = added.lastModified();
        added.requery(); // it takes its place in the order of the rows
        added.setBookmark(place);
    });
}

void capture(forms::Data &rows, forms::Form &dialogue, const Fill &fill)
{
    rows.updateRecord(); // a text that is refused is put right before, not once the new row is typed
    for (const QString tag = dialogue.tag();;) {
        dialogue.setTag(tag); // an answer of before is none to this time
        dialogue.showModal();
        if (dialogue.tag() != u"SI")
            return;
        try {
            addRow(rows, fill);
            return;
        } catch (const dao::Error &error) {
            MODULE11::MuestraError(error.description());
        }
    }
}

} // namespace records
