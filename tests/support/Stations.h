// Every window of the program but the splash, in each of its states. The caller has made the sample data file the
// program's own and shown the main window.
#pragma once

#include <QString>

#include <span>

class QWidget;

struct Station
{
    const char *name;
    QWidget *(*open)();

    // The picture of "dossier, member" in the manual is "dossier-member".
    QString pictureName() const
    {
        return QString::fromLatin1(name).remove(QLatin1Char(',')).replace(QLatin1Char(' '), QLatin1Char('-'));
    }
};

std::span<const Station> stations();
// Deletes the frame with its child windows, and every other window that a station opened.
void closeStations();
