// The system calls that change files, replaced in a whole test program (the linker takes its __imp_ pointers before the
// import library's): each can be made to fail, and another program's deeds can be put between them.
#pragma once

#include <windows.h>

#include <atomic>
#include <functional>

// Which of the calls that change a file is to fail, and as what.
enum class Failing { kNothing, kLock, kRead, kCreate, kWrite, kPartOfWrite, kFlush, kRename };
extern Failing failing;

// What another program does, once: between our reading and our renaming, or just after we found no file.
extern std::function<void()> doneMeanwhile;
extern std::function<void()> doneAfterMissing;

// Whether the disk tells the times of files in steps of two seconds, as FAT does.
extern bool timesAreRounded;

extern std::atomic<ULONGLONG> fileTimesAsked;
