// The document library at work: it opens as a browser, and lists the documents of a node that has many.
#include "benchmarks/EndOnErrors.h"
#include "benchmarks/Files.h"
#include "benchmarks/RawStore.h"
#include "library/frmDocumentExp.h"
#include "platform/runtime/Application.h"

#include <QApplication>
#include <QFileInfo>
#include <QHeaderView>

#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace {

class Library
{
public:
    enum class Mode { Manager, Browser };
    explicit Library(Mode mode)
    {
        m_window.adminFunction = mode == Mode::Manager;
        m_window.Show();
    }

    // A click on the node, up to its documents on the screen.
    void list(int node)
    {
        tree()->setCurrentItem(&tree()->Nodes(node));
        Q_EMIT tree()->Click();
        documents()->grab();
    }
    void paint() { m_window.grab(); }
    desktop::TreeView *tree() { return m_window.findChild<desktop::TreeView *>(u"TreClassView"_s); }
    desktop::ListView *documents() { return m_window.findChild<desktop::ListView *>(u"LstStudenInformation"_s); }

private:
    frmDocumentExp m_window;
};

void openOurs(benchmark::State &state)
{
    for ([[maybe_unused]] auto _ : state) {
        Library library(Library::Mode::Browser);
        library.paint();
        if (library.tree()->Nodes.Count() != files::libraryNodes + 1)
            state.SkipWithError("other than 2,000 nodes under the root");
    }
}
BENCHMARK(openOurs)->Name("library_open/ours")->Unit(benchmark::kMillisecond);

void openFloor(benchmark::State &state)
{
    const QByteArray path = files::library().toUtf8();
    // A bare file knows no order of texts but SQLite's own.
    const QByteArray structure =
        files::emitted(u"SELECT ObjectTbl.* From ObjectTbl Where (((ObjectTbl.ObjectType) <> \"Root\")) "
                       "ORDER BY ObjectTbl.ObjectIndex, ObjectTbl.ObjectParentIndex;"_s)
            .replace("COLLATE STORE", "COLLATE NOCASE");
    QByteArrayList counts;
    for (int node = 2; node < 2 + files::libraryNodes; ++node)
        counts << files::emittedCount(u"SELECT * FROM Resources WHERE ObjectIndex = "_s + QString::number(node));
    for ([[maybe_unused]] auto _ : state) {
        const raw::File outer(path);
        const raw::Statement nodes(outer, structure);
        for (const QByteArray &sql : counts) {
            if (!nodes.step())
                state.SkipWithError("a node is missing");
            for (int column = 0; column < sqlite3_column_count(nodes.get()); ++column)
                benchmark::DoNotOptimize(nodes.text(column));
            const raw::File inner(path);
            const raw::Statement count(inner, sql);
            count.step();
            benchmark::DoNotOptimize(count.text(0));
        }
    }
}
BENCHMARK(openFloor)->Name("library_open/floor")->Unit(benchmark::kMillisecond);

void listOurs(benchmark::State &state)
{
    Library library(Library::Mode::Manager);
    for ([[maybe_unused]] auto _ : state)
        library.list(files::largeNode);
    if (library.documents()->ListItems.Count() != files::documentsOfLargeNode)
        state.SkipWithError("other than 5,000 documents");
}
BENCHMARK(listOurs)->Name("library_click/ours")->Unit(benchmark::kMillisecond);

// The texts of the large node, as the list shows them.
QList<QStringList> linesOf(Library &library)
{
    library.list(files::largeNode);
    const desktop::ListView &documents = *library.documents();
    QList<QStringList> lines;
    for (int line = 0; line < documents.topLevelItemCount(); ++line) {
        lines.emplace_back();
        for (int column = 0; column < documents.columnCount(); ++column)
            lines.back() << documents.topLevelItem(line)->text(column);
    }
    return lines;
}

// A list of Qt alone, with columns as wide as the real one's.
void listFloor(benchmark::State &state)
{
    Library library(Library::Mode::Manager);
    const QList<QStringList> lines = linesOf(library);
    const desktop::ListView &documents = *library.documents();
    QTreeWidget bare;
    bare.setColumnCount(documents.columnCount());
    bare.setUniformRowHeights(true);
    bare.resize(documents.size());
    for (int column = 0; column < documents.columnCount(); ++column)
        bare.setColumnWidth(column, documents.columnWidth(column));
    bare.show();
    for ([[maybe_unused]] auto _ : state) {
        bare.clear();
        QList<QTreeWidgetItem *> items;
        for (const QStringList &line : lines)
            items << new QTreeWidgetItem(line);
        bare.addTopLevelItems(items);
        bare.grab();
    }
    if (bare.topLevelItemCount() != files::documentsOfLargeNode)
        state.SkipWithError("other than 5,000 documents");
}
BENCHMARK(listFloor)->Name("library_click/floor")->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    endOnErrors();
    runtime::App::setPath(QFileInfo(files::library()).path());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
