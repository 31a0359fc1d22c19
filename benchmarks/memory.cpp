// By how many bytes the process grows at most while it moves a value of 100 MB, the caller's own buffer counted in.
// The argument says which way: append-ours, append-floor, get-ours or get-floor. Prints megabytes.
#include "benchmarks/LargeValue.h"

#include <QFile>

#include <string_view>

using namespace Qt::Literals::StringLiterals;

namespace {

// A figure of this process from the system, in bytes: its size now (VmRSS) or the largest ever (VmHWM).
qint64 processFigure(const QByteArray &name)
{
    QFile status(u"/proc/self/status"_s);
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray &line : status.readAll().split('\n')) {
            if (line.startsWith(name + ':'))
                return line.mid(name.size() + 1).trimmed().chopped(3).toLongLong() * 1024;
        }
    }
    std::fprintf(stderr, "This system does not tell %s\n", name.constData());
    std::exit(1);
}

template <class Work> void measure(Work &&work)
{
    const qint64 before = processFigure("VmRSS");
    work();
    std::printf("%.1f\n", double(processFigure("VmHWM") - before) / 1e6);
}

} // namespace

int main(int argc, char **argv)
{
    const std::string_view way = argc == 2 ? argv[1] : "";
    const bool appends = way.starts_with("append");
    // A file that stands already: making it would be the largest that this process ever was.
    const QString path = files::empty(appends ? u"memory.mdb"_s : u"value.mdb"_s);
    const raw::File file(path);
    data::Connection connection;
    connection.Open(files::connectionString(path));
    if (way == "append-ours")
        measure([&] { largevalue::appendOurs(connection, largevalue::content()); });
    else if (way == "append-floor")
        measure([&] { largevalue::appendFloor(file, largevalue::content()); });
    else if (way == "get-ours")
        measure([&] { return largevalue::readOurs(connection).size(); });
    else if (way == "get-floor")
        measure([&] { return largevalue::readFloor(file).size(); });
    else
        return 2;
    return 0;
}
