// The text of a crash report: what happened, where, in which version, with which modules. It takes no memory of the
// heap, which may be damaged by then, and says nothing of the user: modules go by their names without folders.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

// The exception that a program raises which gives up by itself, having no handler for a C++ exception or being told to
// abort: bits 28 to 31 say that it is an error of the application's own.
inline constexpr uint32_t kProgramGaveUp = 0xE0545201;

// A file that is loaded into the program.
struct CrashModule {
  uint64_t base;
  uint32_t sizeBytes;
  char name[64];        // ASCII, without its folder
  uint16_t version[4];  // all 0: it states none
};

struct CrashFacts {
  const char* program;         // name and version
  uint32_t windowsVersion[3];  // major, minor, build
  uint16_t utc[6];             // year, month, day, hour, minute, second
  uint32_t code;               // of the exception
  uint64_t address;            // of the instruction
  bool isAccess;               // an address could not be used: how and which follow
  uint64_t access;             // 0 reading, 1 writing, 8 executing
  uint64_t accessedAddress;
};

// These write lines that end in CR and LF, and answer their length, at most the buffer's; lines that do not fit are
// left out.

// What happened, and at which address.
std::size_t WriteCrash(const CrashFacts& facts, std::span<char> buffer);

// In which module that address is, and all modules.
std::size_t WritePlace(uint64_t address, std::span<const CrashModule> modules, std::span<char> buffer);

// The calls that led there, the innermost first, as addresses of code; each a line with the module and the place in it.
std::size_t WriteCalls(std::span<const uint64_t> calls, std::span<const CrashModule> modules, std::span<char> buffer);
