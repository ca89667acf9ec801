#include "answers.h"
#include "platform/basic/environment.h"
#include "platform/dao/database.h"
#include "platform/forms/controls.h"
#include "platform/forms/data.h"
#include "platform/forms/databar.h"
#include "platform/forms/dbgrid.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace
{

class DataTest : public testing::Test
{
protected:
    DataTest()
    {
        database.create(folder.filePath(u"BASE.MDB"_s), u";PWD=prueba"_s);
        if (!database.isOpen())
            database.open(folder.filePath(u"BASE.MDB"_s), false, false, u";PWD=prueba"_s);
        createTable();
        add({u"Gasa"_s, u"Jeringa"_s, u"Venda"_s});
        data.setDatabase(&database);
        data.setRecordSource(u"Select * from Articulos order by id"_s);
        data.bind(name, u"Nombre"_s);
        data.bind(price, u"Precio"_s);
        data.bind(billed, u"Facturada"_s);
        QObject::connect(&data, &forms::Data::reposition, &data, [this] { ++repositions; });
    }

    void createTable()
    {
        database.execute(
            u"CREATE TABLE Articulos (id COUNTER, Nombre TEXT(60), Precio CURRENCY, Facturada BIT, Alta DATE)"_s);
    }

    void add(const QStringList &names)
    {
        dao::Batch batch(database);
        dao::Recordset rows = database.openRecordset(u"Articulos"_s);
        for (const QString &text : names) {
            rows.addNew();
            rows[u"Nombre"] = text;
            rows[u"Precio"] = 10;
            rows.update();
        }
        batch.commit();
    }

    void moveTo(qint64 row)
    {
        data.change([row](dao::Recordset &rows) { rows.setAbsolutePosition(row); });
    }

    basic::Value stored(qint64 row, QStringView field)
    {
        dao::Recordset rows = database.openRecordset(data.recordSource());
        rows.setAbsolutePosition(row);
        return rows[field];
    }

    QTemporaryDir folder;
    dao::Database database;
    forms::TextBox name{u"Text1"_s}, price{u"Text2"_s};
    forms::CheckBox billed{u"Check1"_s, u"Facturada"_s};
    forms::Data data{u"Data1"_s};
    int repositions = 0;
};

int errorOf(const std::function<void()> &work)
{
    try {
        work();
    } catch (const dao::Error &error) {
        return error.number();
    }
    return 0;
}

} // namespace

TEST_F(DataTest, changedControlsAreWrittenBeforeTheRowChanges)
{
    data.refresh();
    EXPECT_EQ(name.text(), u"Gasa"_s);
    EXPECT_FALSE(data.dirty());
    name.setText(u"Gasa estéril"_s);
    billed.setChecked(true);
    EXPECT_TRUE(data.dirty());
    moveTo(2);
    EXPECT_EQ(name.text(), u"Venda"_s);
    EXPECT_FALSE(billed.isChecked());
    EXPECT_FALSE(data.dirty());
    EXPECT_EQ(repositions, 2);
    EXPECT_EQ(stored(0, u"Nombre").text(), u"Gasa estéril"_s);
    EXPECT_TRUE(stored(0, u"Facturada").truth());

    price.setText(u"1.234,5"_s);
    data.refresh();
    EXPECT_EQ(stored(2, u"Precio").number(), 1234.5);
    price.clear();
    data.updateRecord();
    EXPECT_TRUE(stored(0, u"Precio").isNull());
    name.setText(u"x"_s);
    data.updateControls();
    EXPECT_EQ(name.text(), u"Gasa estéril"_s);
}

TEST_F(DataTest, valueThatIsRefusedKeepsTheRowAndWhatWasTyped)
{
    data.refresh();
    price.setText(u"caro"_s);
    EXPECT_NE(errorOf([&] { moveTo(1); }), 0);
    EXPECT_EQ(data.recordset().absolutePosition(), 0);
    EXPECT_EQ(price.text(), u"caro"_s);
    price.setText(u"12"_s);
    moveTo(1);
    EXPECT_EQ(stored(0, u"Precio").number(), 12);
}

TEST_F(DataTest, addedRowTakesWhatTheControlsShow)
{
    data.refresh();
    data.change([](dao::Recordset &rows) { rows.addNew(); });
    EXPECT_EQ(name.text(), QString());
    name.setText(u"Algodón"_s);
    data.updateRecord();
    EXPECT_EQ(stored(3, u"Nombre").text(), u"Algodón"_s);
}

TEST_F(DataTest, rowThatSomebodyDeletedLetsGoOfItsControls)
{
    data.refresh();
    database.execute(u"DELETE FROM Articulos WHERE Nombre = 'Gasa'"_s);
    name.setText(u"otra"_s);
    EXPECT_EQ(errorOf([&] { moveTo(1); }), dao::Error::RecordDeleted);
    moveTo(1);
    EXPECT_EQ(name.text(), u"Jeringa"_s);
}

TEST_F(DataTest, sourceThatDoesNotOpenLeavesNoRecordset)
{
    data.refresh();
    data.setRecordSource(u"Select * from NoExiste"_s);
    EXPECT_NE(errorOf([&] { data.refresh(); }), 0);
    EXPECT_FALSE(data.hasRecordset());
    EXPECT_EQ(name.text(), QString());
}

TEST_F(DataTest, gridAndDataFollowEachOther)
{
    forms::DBGrid grid(u"DBGrid1"_s);
    int changed = -1;
    QObject::connect(&grid, &forms::DBGrid::rowChanged, &grid, [&](int row) { changed = row; });
    data.refresh();
    grid.setSource(data, {{u"Artículo"_s, u"nombre"_s}, {u"Precio"_s, u"Precio"_s, u"#,##0.00"_s}});
    EXPECT_EQ(grid.currentRow(), 0);
    EXPECT_EQ(grid.model()->index(0, 1).data().toString(), u"10,00"_s);

    grid.setCurrentRow(2);
    EXPECT_EQ(data.recordset().absolutePosition(), 2);
    EXPECT_EQ(name.text(), u"Venda"_s);
    EXPECT_EQ(changed, 2);
    moveTo(1);
    EXPECT_EQ(grid.currentRow(), 1);
    EXPECT_EQ(changed, 1);

    name.setText(u"Jeringa 5"_s);
    data.updateRecord();
    EXPECT_EQ(grid.model()->index(1, 0).data().toString(), u"Jeringa 5"_s);
    data.change([](dao::Recordset &rows) { rows.deleteRow(); });
    EXPECT_EQ(grid.model()->rowCount(), 2);
    EXPECT_EQ(grid.currentRow(), -1);
    EXPECT_EQ(name.text(), QString());
    grid.setCurrentRow(1);
    EXPECT_EQ(name.text(), u"Venda"_s);

    database.execute(u"DELETE FROM Articulos WHERE Nombre = 'Gasa'"_s);
    EXPECT_EQ(grid.model()->index(0, 0).data().toString(), u"#Eliminado"_s);
    grid.setCurrentRow(0);
    EXPECT_EQ(name.text(), QString());
    data.refresh();
    EXPECT_EQ(grid.model()->rowCount(), 1);
    EXPECT_EQ(grid.currentRow(), 0);
}

TEST_F(DataTest, nothingLongerThanItsColumnIsTyped)
{
    forms::ComboBox kind(u"Combo1"_s, {u"Gasa"_s}, true);
    data.bind(kind, u"Nombre"_s);
    data.refresh();
    EXPECT_EQ(name.maxLength(), 60);
    EXPECT_EQ(kind.lineEdit()->maxLength(), 60);
    forms::DBGrid grid(u"DBGrid1"_s);
    grid.setEditable(true);
    grid.setSource(data, {{u"Artículo"_s, u"Nombre"_s}});
    grid.edit(grid.model()->index(0, 0));
    auto *cell = qobject_cast<QLineEdit *>(grid.indexWidget(grid.model()->index(0, 0)));
    ASSERT_TRUE(cell);
    EXPECT_EQ(cell->maxLength(), 60);
}

TEST_F(DataTest, gridStaysOnARowThatCannotBeWritten)
{
    forms::DBGrid grid(u"DBGrid1"_s);
    data.refresh();
    grid.setSource(data, {{u"Artículo"_s, u"Nombre"_s}});
    price.setText(u"caro"_s);
    Answers answers({u"Aceptar"_s});
    grid.setCurrentRow(2);
    EXPECT_EQ(grid.currentRow(), 0);
    EXPECT_EQ(price.text(), u"caro"_s);
}

TEST_F(DataTest, patternIsOnlyForTheEye)
{
    database.execute(u"UPDATE Articulos SET Alta = cdate('10:30:45') WHERE id < 3"_s);
    forms::TextBox hour(u"mDato(2)"_s);
    data.bind(hour, u"Alta"_s, u"HH:MM"_s);
    data.refresh();
    EXPECT_EQ(hour.text(), u"10:30"_s);
    name.setText(u"Algodón"_s);
    moveTo(1);
    EXPECT_EQ(stored(0, u"Alta").text(), u"10:30:45"_s) << "what was not typed is not written";
    hour.setText(u"7:05"_s);
    moveTo(2);
    EXPECT_EQ(stored(1, u"Alta").text(), u"07:05:00"_s);
    EXPECT_EQ(hour.text(), QString());
    hour.setText(u"25:00"_s);
    EXPECT_NE(errorOf([&] { moveTo(0); }), 0);
    EXPECT_EQ(hour.text(), u"25:00"_s);
}

TEST_F(DataTest, barStepsThroughTheRowsAndKnowsTheirEnds)
{
    forms::DataBar bar(data);
    const auto button = [&](const QString &step) { return bar.findChild<QToolButton *>(u"Data1"_s + step); };
    const auto steps = [&] {
        QString enabled;
        for (const QString &step : {u"Primero"_s, u"Anterior"_s, u"Siguiente"_s, u"Ultimo"_s})
            enabled += button(step)->isEnabled() ? step.at(0) : u'-';
        return enabled;
    };
    EXPECT_EQ(steps(), u"----"_s);
    data.refresh();
    EXPECT_EQ(steps(), u"--SU"_s);
    button(u"Siguiente"_s)->click();
    EXPECT_EQ(name.text(), u"Jeringa"_s);
    EXPECT_EQ(steps(), u"PASU"_s);
    button(u"Ultimo"_s)->click();
    EXPECT_EQ(name.text(), u"Venda"_s);
    EXPECT_EQ(steps(), u"PA--"_s);
    name.setText(u"Vendaje"_s);
    button(u"Primero"_s)->click();
    EXPECT_EQ(stored(2, u"Nombre").text(), u"Vendaje"_s);
    data.setRecordSource(u"Select * from Articulos where False"_s);
    data.refresh();
    EXPECT_EQ(steps(), u"----"_s);
}

TEST_F(DataTest, editIsTheWholeRowOrNothingOfIt)
{
    dao::Recordset rows = database.openRecordset(u"Select * from Articulos order by id"_s);
    EXPECT_NE(errorOf([&] {
                  rows.edit([&] {
                      rows[u"Nombre"] = u"Otra";
                      rows[u"Precio"] = u"caro";
                  });
              }),
              0);
    EXPECT_EQ(rows.editMode(), dao::Recordset::EditMode::None);
    EXPECT_EQ(rows[u"Nombre"].text(), u"Gasa"_s);
    rows.edit([&] { rows[u"Nombre"] = u"Otra"; });
    EXPECT_EQ(stored(0, u"Nombre").text(), u"Otra"_s);
}

TEST_F(DataTest, gridOutlivesItsData)
{
    forms::DBGrid grid(u"DBGrid1"_s);
    {
        forms::Data other(u"Data2"_s);
        other.setDatabase(&database);
        other.setRecordSource(u"Select * from Articulos"_s);
        other.refresh();
        grid.setSource(other, {{u"Artículo"_s, u"Nombre"_s}});
        EXPECT_EQ(grid.model()->rowCount(), 3);
    }
    EXPECT_EQ(grid.model(), nullptr);
}

/// Rows that change under a grid, and a source that fails while they are counted: what the grid shows as
/// chosen and what a command would work on are always the same row, or both are none.
TEST_F(DataTest, gridAndCurrentRowNeverPart)
{
    QStringList names;
    for (int i = 0; i < 100; ++i) // more than are read at once, so that counting asks the source
        names += u"Artículo %1"_s.arg(i);
    add(names);
    data.refresh();
    forms::DBGrid grid(u"DBGrid1"_s);
    grid.setSource(data, {{u"Artículo"_s, u"Nombre"_s}});
    const QAbstractItemModelTester contract(grid.model(),
                                            QAbstractItemModelTester::FailureReportingMode::Fatal);
    const auto together = [&] {
        const int current = data.hasRow() ? static_cast<int>(data.recordset().absolutePosition()) : -1;
        return grid.currentRow() == current && grid.selectionModel()->hasSelection() == (current >= 0);
    };
    EXPECT_TRUE(together());
    moveTo(80);
    EXPECT_TRUE(together());
    data.deleteRow();
    EXPECT_TRUE(together());
    data.change([](dao::Recordset &rows) {
        rows.addNew();
        rows.update();
        rows.setBookmark(rows.lastModified());
    });
    EXPECT_TRUE(together());
    grid.setCurrentRow(20);
    EXPECT_TRUE(together());

    EXPECT_NE(errorOf([&] {
                  data.change([&](dao::Recordset &rows) {
                      rows.requery();
                      rows.moveNext();
                      database.execute(u"DROP TABLE Articulos"_s);
                  });
              }),
              0);
    EXPECT_TRUE(together());
    EXPECT_FALSE(data.hasRow());
    EXPECT_EQ(name.text(), QString());
    EXPECT_EQ(errorOf([&] { data.deleteRow(); }), dao::Error::NoCurrentRecord);

    createTable();
    add(names);
    data.refresh();
    EXPECT_EQ(grid.model()->rowCount(), names.size());
    EXPECT_TRUE(together());
    grid.setCurrentRow(70);
    const QString shown = grid.model()->index(70, 0).data().toString();
    EXPECT_EQ(name.text(), shown);
}
