// Every window of the program in each of its states, as a test opens it: over the sample data file, with the main
// window on the screen.
#pragma once

#include <span>

class QWidget;

struct Station
{
    const char *name;
    QWidget *(*open)();
};

std::span<const Station> stations();
