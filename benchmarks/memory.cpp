// By how many bytes the process grows at most while it moves a value of 100 MB, the caller's own buffer counted in, or
// a whole file of 200 MB. The argument says which way: append, get, store or fetch, "-ours" or "-floor". Prints
// megabytes. The files of the last two are those that benchmark_transfer leaves.
#include "benchmarks/LargeValue.h"
#include "benchmarks/ProcessFigure.h"
#include "benchmarks/StoredLargeFile.h"

#include <QGuiApplication>

#include <string_view>

using namespace Qt::Literals::StringLiterals;

namespace {

// Returns the program's exit code.
template <class Work> int measure(Work &&work)
{
    const qint64 before = processFigure("VmRSS");
    work();
    std::printf("%.1f\n", double(processFigure("VmHWM") - before) / 1e6);
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv); // the way of a file into the store shows the wait pointer
    const std::string_view way = argc == 2 ? argv[1] : "";
    if (way == "store-ours")
        return measure([store = files::empty(u"stored.mdb"_s)] { largefile::storeOurs(store); });
    if (way == "store-floor")
        return measure([store = files::empty(u"stored.mdb"_s)] { largefile::storeFloor(store); });
    if (way == "fetch-ours")
        return measure([store = largefile::storeWithFile()] { largefile::fetchOurs(store); });
    if (way == "fetch-floor")
        return measure([store = largefile::storeWithFile()] { largefile::fetchFloor(store); });
    const bool appends = way.starts_with("append");
    // A file that stands already: making it would be the largest that this process ever was.
    const QString path = files::empty(appends ? u"memory.mdb"_s : u"value.mdb"_s);
    const raw::File file(path);
    data::Connection connection;
    connection.Open(files::connectionString(path));
    if (way == "append-ours")
        return measure([&] { largevalue::appendOurs(connection, largevalue::content()); });
    if (way == "append-floor")
        return measure([&] { largevalue::appendFloor(file, largevalue::content()); });
    if (way == "get-ours")
        return measure([&] { return largevalue::readOurs(connection).size(); });
    if (way == "get-floor")
        return measure([&] { return largevalue::readFloor(file).size(); });
    return 2;
}
