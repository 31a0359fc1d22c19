// What the reader process gives up before it looks at a file from elsewhere.
#pragma once

namespace jet {

struct Limits
{
    unsigned long memory;    // bytes of address space
    unsigned long processor; // seconds
};

// From here on the process has so much memory and processor time, can open files for reading alone and write to
// standard output and nowhere else, start nothing, reach no network and no other process; and it ends with its parent.
// False, with the reason in errno, where the kernel does not grant one of these: then nothing may be read.
bool confine(const Limits &limits);

} // namespace jet
