// The data files that the benchmarks share. Each is made at its first use, which is never part of what is measured.
//
// They stand in the folder that TOLMARK_BENCHMARK_FOLDER names, so that several programs can share them and whoever
// names it removes them; without that, in a temporary folder of the process.
#pragma once

#include <QByteArray>
#include <QString>

namespace files {

constexpr int attachmentBytes = 10'239; // and the zero byte: 10 KB a row

QString folder();
// Tolmark.mdb: 32,767 members, 2,000 of whom are listed under largeGroup; 100,000 interests; 10,000 attachments.
QString organisation();
// The same tables with ten attachments.
QString fewAttachments();
// The largest organisation with 1 GB of attachments; its first member has 500 rows of each kind, the attachments of 500
// names. In a folder of its own.
QString largeDossier();
// A document library of libraryNodes nodes under the root and 20,000 documents of 10 KB, documentsOfLargeNode of them
// in largeNode. In a folder of its own.
QString library();
// An empty organisation in a file of its own for each name.
QString empty(const QString &name);

constexpr char largeGroup = 'X';
constexpr int libraryNodes = 2000;
constexpr int largeNode = 2;
constexpr int documentsOfLargeNode = 5000;

QString connectionString(const QString &path);
// SQLite's SQL for a statement of the dialect: what the floors run.
QByteArray emitted(const QString &statement);
// For the count of a recordset's rows.
QByteArray emittedCount(const QString &statement);

} // namespace files
