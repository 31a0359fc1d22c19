// Failures of files and of memory below SQLite and below our own code: one call among those that the program makes,
// counted from 1, or all from that one on.
#pragma once

#include <QString>

#include <array>
#include <functional>
#include <random>

namespace proof {

enum class Fault {
    IoError,     // of a file of the store: open, read, write, sync, truncate, delete, lock
    FullDisk,    // of a file of the store: write, sync, and open where it is made
    Kill,        // SIGKILL before a call on a file of the store
    StoreMemory, // an allocation of SQLite
    OwnMemory    // a new in our own code; what Qt and the standard library allocate by themselves does not fail
};
// In the release build Qt's functions are inlined into ours, and cannot be told from them any more.
#ifdef NDEBUG
inline constexpr std::array allFaults{Fault::IoError, Fault::FullDisk, Fault::Kill, Fault::StoreMemory};
#else
inline constexpr std::array allFaults{Fault::IoError, Fault::FullDisk, Fault::Kill, Fault::StoreMemory,
                                      Fault::OwnMemory};
#endif

struct Plan
{
    Fault fault = Fault::IoError;
    qint64 at = 0; // none
    bool lasts = false;
};

// Puts itself below SQLite, before its first use.
void installFaults();
void installFaultyFiles(); // called by it
// From here on calls are counted, until another plan takes the place of this one.
void arm(Plan plan);
bool hasCome();
qint64 callsSoFar(Fault fault);
// Counts a call that such a fault can meet. True when it is to fail.
bool isDue(Fault fault);

// Records from here on what a loss of power would leave of the store's files: all that was synced, and of what was
// written since any part of its sectors of 512 bytes, of its new lengths, new names and deleted names. `committed` is
// called when a journal is gone.
void watchDisk(std::function<void()> beforeSync, std::function<void()> committed);
// Puts the files as they would be then into a folder; without chance nothing that was not synced is left.
void writeAfterLoss(const QString &folder, std::mt19937 *chance);

} // namespace proof
