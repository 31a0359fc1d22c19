// The floor of the search: grep as a program of its own.
#pragma once

#include "benchmarks/Files.h"
#include "benchmarks/RawFiles.h"

#include <QFile>
#include <QStringList>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <vector>

// In how many lines of all the files the phrase stands, whatever its case: LC_ALL=C grep -ci -a.
inline int grepCount(const QString &phrase, const QStringList &paths)
{
    QByteArrayList arguments{"grep", "-ci", "-a", "-h", phrase.toLatin1()};
    for (const QString &path : paths)
        arguments << path.toUtf8();
    std::vector<char *> pointers;
    for (QByteArray &argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    char locale[] = "LC_ALL=C";
    char *environment[] = {locale, nullptr};

    // Into a file: with nowhere to write to, grep stops at the first match.
    const QString counts = files::folder() + QStringLiteral("/counts");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, counts.toUtf8().constData(), O_WRONLY | O_CREAT | O_TRUNC,
                                     0600);
    pid_t process = 0;
    int status = 0;
    raw::require(posix_spawnp(&process, "grep", &actions, nullptr, pointers.data(), environment) == 0 &&
                 waitpid(process, &status, 0) == process && WIFEXITED(status) && WEXITSTATUS(status) <= 1);
    posix_spawn_file_actions_destroy(&actions);

    QFile file(counts);
    raw::require(file.open(QIODevice::ReadOnly));
    int sum = 0;
    for (const QByteArray &line : file.readAll().split('\n'))
        sum += line.toInt();
    return sum;
}
