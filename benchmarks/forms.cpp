// Forms at run time: the designer's canvas, the tables that it makes and the pages of the record window, beside bare Qt
// and SQLite's own statements.
#include "benchmarks/EndOnErrors.h"
#include "benchmarks/Files.h"
#include "benchmarks/ProcessFigure.h"
#include "benchmarks/RawStore.h"
#include "datafile/Schema.h"
#include "dynamicforms/DatabaseGenerator.h"
#include "dynamicforms/DisplayInformation.h"
#include "dynamicforms/TableGeneration.h"
#include "platform/desktop/Twips.h"
#include "platform/runtime/Application.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>

#include <benchmark/benchmark.h>
#include <memory>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int fieldsOfPage = 200;
constexpr int tables = 50;
constexpr int fieldsOfTable = 40;
constexpr int densest = 50; // twips between the points of a grid

// Three pages of the designer's: two of 200 fields, for each of which the first person has a value, and an empty one.
QString forms()
{
    QDir(files::folder()).mkpath(u"forms"_s);
    const QString path = files::folder() + u"/forms/Tolmark.mdb"_s;
    if (QFile::exists(path))
        return path;
    datafile::createDataFile(path);
    data::Database file;
    file.open(path);
    file.execute(
        "DELETE FROM FieldInfo; DELETE FROM TabInfo; INSERT INTO TabInfo (TabId, TabNam, TabDescription) VALUES"
        " (1, 'Page 1', ''), (2, 'Page 2', ''), (3, 'Blank', '')");
    for (const QByteArray page : {"1", "2"}) {
        QByteArray columns;
        QByteArray values;
        for (int field = 1; field <= fieldsOfPage; ++field) {
            const QByteArray number = QByteArray::number(field);
            const QByteArray top = QByteArray::number(field % 25 * 360);
            columns += ", \"Field " + number + "\" TEXT";
            values += ", 'value " + number + '\'';
            file.execute("INSERT INTO FieldInfo (TabId, FieldName, FieldDescription, FieldDisplayOrder, labelLeft, "
                         "labelTop, fieldLeft, fieldTop, fieldWidth) VALUES (" +
                         page + ", 'Field " + number + "', '', " + number + ", 300, " + top + ", 3000, " + top +
                         ", 2850)");
        }
        file.execute("CREATE TABLE \"Page " + page + "\" (Id INTEGER PRIMARY KEY, PersonalInformationId INTEGER" +
                     columns + "); INSERT INTO \"Page " + page + "\" VALUES (1, 1" + values + ')');
    }
    return path;
}

// A new empty file where the last one was.
QString newEmpty()
{
    QDir(files::folder()).mkpath(u"generation"_s);
    const QString path = files::folder() + u"/generation/Tolmark.mdb"_s;
    QFile::remove(path);
    QFile::copy(files::empty(u"nothing.mdb"_s), path);
    return path;
}

// The point x, y of the canvas for every crossing of the densest grid.
QList<QPointF> gridPoints(const desktop::PictureBox &canvas)
{
    const double perPixel = desktop::twips(1);
    QList<QPointF> points;
    for (int y = densest; y < int(canvas.Height()); y += densest) {
        for (int x = densest; x < int(canvas.Width()); x += densest)
            points << QPointF(x / perPixel, y / perPixel);
    }
    return points;
}

class Dotted : public QFrame
{
public:
    QList<QPointF> points;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QFrame::paintEvent(event);
        QPainter(this).drawPoints(points.constData(), int(points.size()));
    }
};

void gridOurs(benchmark::State &state)
{
    DatabaseGenerator designer;
    designer.Show();
    designer.txtGridSize->setSelected(0);
    designer.TabStrip1->setSelectedItem(3); // a page without fields
    for ([[maybe_unused]] auto _ : state)
        designer.Picture1->grab();
}
BENCHMARK(gridOurs)->Name("grid/ours")->Unit(benchmark::kMillisecond);

void gridFloor(benchmark::State &state)
{
    DatabaseGenerator designer;
    Dotted canvas;
    canvas.points = gridPoints(*designer.Picture1);
    canvas.resize(designer.Picture1->size());
    canvas.show();
    for ([[maybe_unused]] auto _ : state)
        canvas.grab();
    if (canvas.points.size() < 28'000)
        state.SkipWithError("too few points");
}
BENCHMARK(gridFloor)->Name("grid/floor")->Unit(benchmark::kMillisecond);

// Between two pages of the same fields, one by one.
void designerPage(benchmark::State &state)
{
    DatabaseGenerator designer;
    designer.Show();
    designer.chkGrid->setChecked(false);
    int tab = 1;
    for ([[maybe_unused]] auto _ : state) {
        tab = 3 - tab;
        designer.TabStrip1->setSelectedItem(tab);
        designer.Picture1->grab();
    }
    if (!designer.Picture1->findChild<QLineEdit *>(u"Text1(%1)"_s.arg(fieldsOfPage)))
        state.SkipWithError("a field is missing");
}
BENCHMARK(designerPage)->Name("designer_page/ours")->Unit(benchmark::kMillisecond);

void recordPage(benchmark::State &state)
{
    DisplayInformation record;
    record.RecordId = 1;
    record.Show();
    int tab = 1;
    for ([[maybe_unused]] auto _ : state) {
        tab = 3 - tab;
        record.TabStrip1->setSelectedItem(tab);
        record.Frame1->grab();
    }
    if (record.Frame1->findChild<QLineEdit *>(u"Text1(%1)"_s.arg(fieldsOfPage))->text() != u"value 200")
        state.SkipWithError("a value is missing");
}
BENCHMARK(recordPage)->Name("record_page/ours")->Unit(benchmark::kMillisecond);

void recordOpening(benchmark::State &state)
{
    for ([[maybe_unused]] auto _ : state) {
        DisplayInformation record;
        record.RecordId = 1;
        record.Show();
        record.Frame1->grab();
    }
}
BENCHMARK(recordOpening)->Name("record_open/ours")->Unit(benchmark::kMillisecond);

// 400 widgets, shown and painted, and the row whose values the boxes have.
void pageFloor(benchmark::State &state)
{
    const QByteArray path = forms().toUtf8();
    QWidget window;
    window.resize(900, 600);
    window.show();
    for ([[maybe_unused]] auto _ : state) {
        QWidget page(&window);
        page.resize(window.size());
        const raw::File file(path);
        const raw::Statement row(file, "SELECT * FROM \"Page 1\" WHERE PersonalInformationId = 1");
        row.step();
        for (int field = 1; field <= fieldsOfPage; ++field) {
            const int y = field % 25 * 24;
            auto *label = new QLabel(u"Field %1"_s.arg(field), &page);
            label->setGeometry(20, y, 160, 22);
            auto *box = new QLineEdit(row.text(2 + field), &page);
            box->setGeometry(200, y, 190, 22);
        }
        page.show();
        page.grab();
    }
}
BENCHMARK(pageFloor)->Name("page/floor")->Unit(benchmark::kMillisecond);

QString tableName(int table)
{
    return u"Table %1"_s.arg(table);
}

// Runs make on a new empty file each time and counts only that.
template <class Make> void measureOnNewFile(benchmark::State &state, Make make)
{
    for ([[maybe_unused]] auto _ : state) {
        const QString path = newEmpty();
        runtime::App::setPath(QFileInfo(path).path());
        const double began = processorSeconds();
        make(path);
        state.SetIterationTime(processorSeconds() - began);
        const raw::File file(path.toUtf8());
        const raw::Statement count(file, "SELECT count(*) FROM pragma_table_info('Table 50')");
        count.step();
        if (sqlite3_column_int(count.get(), 0) != fieldsOfTable + 3)
            state.SkipWithError("other than 43 columns");
    }
    runtime::App::setPath(QFileInfo(forms()).path());
}

// Fifty tabs of forty fields, as the designer holds them.
void generateAll(const QString &)
{
    static const auto form = [] {
        std::pair<QStringList, FieldRows> made;
        auto &[captions, rows] = made;
        rows.RowCounter = 1;
        for (int table = 1; table <= tables; ++table) {
            captions << tableName(table);
            for (int field = 1; field <= fieldsOfTable; ++field) {
                FieldRow &row = rows.next();
                row.RowTabNam = tableName(table);
                row.RowFieldName = u"Field %1"_s.arg(field);
                rows.countUp();
            }
        }
        return made;
    }();
    generateTables(form.first, form.second);
}

void generateOurs(benchmark::State &state)
{
    measureOnNewFile(state, generateAll);
}
BENCHMARK(generateOurs)->Name("generate/ours")->UseManualTime()->Unit(benchmark::kMillisecond);

// What SQLite is told for each table: the table and what numbers its rows.
QByteArrayList generatedStatements()
{
    const QString path = newEmpty();
    runtime::App::setPath(QFileInfo(path).path());
    generateAll(path);
    QByteArrayList statements;
    const raw::File file(path);
    for (int table = 1; table <= tables; ++table) {
        const raw::Statement stored(file, "SELECT group_concat(sql, '; ') FROM (SELECT sql FROM sqlite_master WHERE "
                                          "tbl_name = 'Table " +
                                              QByteArray::number(table) + "' ORDER BY type)");
        stored.step();
        statements << "BEGIN; " + stored.text(0).toUtf8() + "; COMMIT";
    }
    return statements;
}

void generateFloor(benchmark::State &state)
{
    const QByteArrayList statements = generatedStatements();
    measureOnNewFile(state, [&statements](const QString &path) {
        const raw::File file(path);
        for (const QByteArray &sql : statements)
            file.execute(sql.constData());
    });
}
BENCHMARK(generateFloor)->Name("generate/floor")->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    endOnErrors();
    runtime::App::setPath(QFileInfo(forms()).path());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
