// The reader process: reads the tables of a Jet 4 file with libmdb and writes them to standard output as Frames.h says.
//
// libmdb finds pages and definitions; how a row is divided and what its values are is read here, since libmdb passes
// over rows and ends values early where it does not understand them. The file may be damaged or hostile: a crash in
// libmdb ends this process alone, which has given up everything it does not need (Confinement.h).
#pragma once

namespace jet {

// The argument that makes the tool this process; the path of the file and the seconds of processor time stand behind
// it.
inline constexpr auto readerArgument = "--read-jet-tables";
inline constexpr unsigned long readerMemory = 512UL * 1024 * 1024; // bytes

// Returns the exit code: 0 when all that there is to say was written, be it a failure.
int readTables(const char *path, const char *processorSeconds);

} // namespace jet
