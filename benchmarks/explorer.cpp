// The member explorer at work: the real window, its controls found by their names and their signals raised.
#include "benchmarks/EndOnErrors.h"
#include "benchmarks/Files.h"
#include "benchmarks/RawStore.h"
#include "benchmarks/Statements.h"
#include "explorers/FrmDataBaseExplorer.h"
#include "platform/runtime/Application.h"

#include <QApplication>

#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace {

class Explorer
{
public:
    Explorer() { m_window.Show(); }

    void refresh() { Q_EMIT control<desktop::Label>(u"LblMemberListing")->Click(); }
    void list(char group)
    {
        tree()->setCurrentItem(&tree()->Nodes(group - 'A' + 1));
        Q_EMIT tree()->Click();
    }
    desktop::TreeView *tree() { return control<desktop::TreeView>(u"TreClassView"); }
    desktop::ListView *members() { return control<desktop::ListView>(u"LstStudenInformation"); }

private:
    template <class Control> Control *control(QStringView name)
    {
        return m_window.findChild<Control *>(name.toString());
    }

    FrmDataBaseExplorer m_window;
};

void treeOurs(benchmark::State &state)
{
    Explorer explorer;
    for ([[maybe_unused]] auto _ : state)
        explorer.refresh();
    if (explorer.tree()->Nodes.Count() != 28)
        state.SkipWithError("other than 28 groups");
}
BENCHMARK(treeOurs)->Name("tree/ours")->Unit(benchmark::kMillisecond);

void treeFloor(benchmark::State &state)
{
    const QByteArray path = files::organisation().toUtf8();
    const QByteArray groups = files::emitted(statements::groups());
    QByteArrayList counts;
    for (char group = 'A'; group <= 'Z'; ++group)
        counts << files::emittedCount(statements::membersOfGroup(QChar::fromLatin1(group)));
    for ([[maybe_unused]] auto _ : state) {
        const raw::File outer(path);
        const raw::Statement nodes(outer, groups);
        for (const QByteArray &sql : counts) {
            nodes.step();
            const raw::File inner(path);
            const raw::Statement count(inner, sql);
            count.step();
            benchmark::DoNotOptimize(sqlite3_column_int(count.get(), 0));
        }
    }
}
BENCHMARK(treeFloor)->Name("tree/floor")->Unit(benchmark::kMillisecond);

void listOurs(benchmark::State &state)
{
    Explorer explorer;
    for ([[maybe_unused]] auto _ : state)
        explorer.list(files::largeGroup);
    if (explorer.members()->ListItems.Count() != 2000)
        state.SkipWithError("other than 2,000 members");
}
BENCHMARK(listOurs)->Name("list_2000/ours")->Unit(benchmark::kMillisecond);

// A list of Qt alone, of the real one's size.
class BareList
{
public:
    BareList()
    {
        tree.setColumnCount(columns);
        tree.setUniformRowHeights(true);
        tree.resize(explorer.members()->size());
        tree.show();
    }

    static constexpr int columns = 11;
    Explorer explorer;
    QTreeWidget tree;
};

// The texts of the large group, as the list shows them.
QList<QStringList> linesOf(Explorer &explorer)
{
    explorer.list(files::largeGroup);
    const desktop::ListView &members = *explorer.members();
    QList<QStringList> lines;
    for (int line = 0; line < members.topLevelItemCount(); ++line) {
        lines.emplace_back();
        for (int column = 0; column < BareList::columns; ++column)
            lines.back() << members.topLevelItem(line)->text(column);
    }
    return lines;
}

void fillOurs(benchmark::State &state)
{
    Explorer explorer;
    const QList<QStringList> lines = linesOf(explorer);
    desktop::ListView &members = *explorer.members();
    for ([[maybe_unused]] auto _ : state) {
        members.ListItems.Clear();
        desktop::ListFilling filling(members);
        for (const QStringList &line : lines) {
            desktop::ListItem &item = filling.Add();
            for (int column = 0; column < BareList::columns; ++column)
                item.setSubItem(column, line[column]);
        }
    }
}
BENCHMARK(fillOurs)->Name("fill_2000/ours")->Unit(benchmark::kMillisecond);

void listFloor(benchmark::State &state)
{
    BareList bare;
    const QList<QStringList> lines = linesOf(bare.explorer);
    for ([[maybe_unused]] auto _ : state) {
        bare.tree.clear();
        QList<QTreeWidgetItem *> items;
        for (const QStringList &line : lines)
            items << new QTreeWidgetItem(line);
        bare.tree.addTopLevelItems(items);
    }
}
BENCHMARK(listFloor)->Name("list_2000/floor")->Unit(benchmark::kMillisecond);

void listFloorWithQuery(benchmark::State &state)
{
    BareList bare;
    const QByteArray path = files::organisation().toUtf8();
    const QByteArray sql = files::emitted(statements::memberListOfGroup(QChar::fromLatin1(files::largeGroup)));
    for ([[maybe_unused]] auto _ : state) {
        bare.tree.clear();
        QList<QTreeWidgetItem *> items;
        const raw::File file(path);
        const raw::Statement members(file, sql);
        while (members.step()) {
            auto *item = new QTreeWidgetItem;
            for (int column = 0; column < BareList::columns; ++column)
                item->setText(column, members.text(column));
            items << item;
        }
        bare.tree.addTopLevelItems(items);
    }
}
BENCHMARK(listFloorWithQuery)->Name("list_2000_query/floor")->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    endOnErrors();
    files::organisation();
    runtime::App::setPath(files::folder());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
