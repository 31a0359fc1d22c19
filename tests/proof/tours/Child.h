// A driver's trial in a process of its own, which is forked when everything is set up: the program over a folder of its
// own, without a person before it.
#pragma once

#include "platform/desktop/Settings.h"
#include "shell/frame/MDIBaseForm.h"
#include "support/DataStoreFolder.h"

#include <QApplication>
#include <QTimer>

#include <csignal>
#include <cstdio>
#include <functional>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

// Before the application is made: Qt's remarks about the display that is not there are not printed.
inline void printNoRemarks()
{
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type == QtCriticalMsg || type == QtFatalMsg)
            std::fprintf(stderr, "%s\n", qPrintable(text));
    });
}

// Code 0 or 1 with what the child wrote into its pipe, or the fault: a signal, a hang, another code.
struct Ending
{
    int code = 0;
    QByteArray told;
    QString fault;
};

// Ends the child by a signal after so many seconds of the processor, or after a minute, unless it is called again
// before. The sanitizers take a multiple of the time.
inline void hangAfter(int seconds)
{
#ifdef __SANITIZE_ADDRESS__
    seconds *= 4;
#endif
    const itimerval time{{0, 0}, {seconds, 0}};
    setitimer(ITIMER_PROF, &time, nullptr);
    alarm(60);
}

// `body` returns the exit code and writes what it has to tell into the file that it is given.
inline Ending inChild(const std::function<int(std::FILE *)> &body)
{
    int ends[2];
    if (pipe(ends) != 0)
        qFatal("no pipe");
    const pid_t child = fork();
    if (child == 0) {
        std::FILE *told = fdopen(ends[1], "w");
        setvbuf(told, nullptr, _IOLBF, 0);
        std::_Exit(body(told));
    }
    close(ends[1]);
    Ending ending;
    char buffer[4096];
    for (ssize_t size = 0; (size = read(ends[0], buffer, sizeof buffer)) > 0;)
        ending.told.append(buffer, size);
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    ending.code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    if (WIFSIGNALED(status) && (WTERMSIG(status) == SIGPROF || WTERMSIG(status) == SIGALRM))
        ending.fault = QStringLiteral("hangs");
    else if (WIFSIGNALED(status))
        ending.fault = QStringLiteral("signal %1").arg(WTERMSIG(status));
    else if (ending.code > 1)
        ending.fault = QStringLiteral("exit code %1").arg(ending.code);
    return ending;
}
