#include "win/core/crash_text.h"

#include <algorithm>
#include <cinttypes>
#include <cstdarg>
#include <cstdio>

namespace {

struct ExceptionName {
  uint32_t code;
  const char* name;
};

// Codes of Windows (winnt.h), of the compiler's runtime (libgcc's unwind-seh.c), and our own.
constexpr ExceptionName kExceptionNames[] = {
    {0xC0000005, "access violation"},
    {0xC0000006, "a page could not be read from the disk"},
    {0xC000001D, "illegal instruction"},
    {0xC0000025, "an exception that cannot be continued"},
    {0xC0000094, "integer division by zero"},
    {0xC0000095, "integer overflow"},
    {0xC0000096, "privileged instruction"},
    {0xC00000FD, "stack overflow"},
    {0xC0000374, "heap corruption"},
    {0xC0000409, "stack corruption"},
    {0x80000003, "breakpoint"},
    {0x20474343, "a C++ exception that nobody caught"},
    {kProgramGaveUp, "the program gave up by itself"},
};

const char* NameOf(uint32_t code) {
  const auto row = std::ranges::find(kExceptionNames, code, &ExceptionName::code);
  return row == std::end(kExceptionNames) ? "an exception" : row->name;
}

const char* NameOfAccess(uint64_t access) {
  constexpr uint64_t kWriting = 1;
  constexpr uint64_t kExecuting = 8;
  return access == kWriting ? "writing" : access == kExecuting ? "executing" : "reading";
}

// Lines into a buffer, as far as they fit whole.
class Lines {
 public:
  explicit Lines(std::span<char> buffer) : buffer_(buffer) {}

  [[gnu::format(printf, 2, 3)]] void Add(const char* format, ...) {
    char line[256];
    va_list arguments;
    va_start(arguments, format);
    const int printed = std::vsnprintf(line, sizeof line - 2, format, arguments);
    va_end(arguments);
    if (printed < 0) return;
    std::size_t length = std::min(static_cast<std::size_t>(printed), sizeof line - 3);
    line[length++] = '\r';
    line[length++] = '\n';
    if (length > buffer_.size() - length_) return;
    std::copy_n(line, length, buffer_.begin() + static_cast<std::ptrdiff_t>(length_));
    length_ += length;
  }

  std::size_t Length() const { return length_; }

 private:
  std::span<char> buffer_;
  std::size_t length_ = 0;
};

const CrashModule* ModuleAt(uint64_t address, std::span<const CrashModule> modules) {
  const auto found = std::ranges::find_if(modules, [address](const CrashModule& module) {
    return address >= module.base && address - module.base < module.sizeBytes;
  });
  return found == modules.end() ? nullptr : &*found;
}

void AddPlace(Lines& lines, const char* before, uint64_t address, std::span<const CrashModule> modules) {
  if (const CrashModule* const module = ModuleAt(address, modules)) {
    lines.Add("%s%s + 0x%" PRIX64, before, module->name, address - module->base);
  } else {
    lines.Add("%s0x%" PRIX64 ", in no module", before, address);
  }
}

void AddModule(Lines& lines, const CrashModule& module) {
  const uint16_t* const version = module.version;
  if (std::all_of(version, version + 4, [](uint16_t part) { return part == 0; })) {
    lines.Add("  %s, from 0x%" PRIX64 " on", module.name, module.base);
  } else {
    lines.Add("  %s %u.%u.%u.%u, from 0x%" PRIX64 " on", module.name, version[0], version[1], version[2], version[3],
              module.base);
  }
}

}  // namespace

std::size_t WriteCrash(const CrashFacts& facts, std::span<char> buffer) {
  Lines lines(buffer);
  const uint16_t* const utc = facts.utc;
  lines.Add("Crash report of %s", facts.program);
  lines.Add("Windows %u.%u.%u, %04u-%02u-%02u %02u:%02u:%02u UTC", facts.windowsVersion[0], facts.windowsVersion[1],
            facts.windowsVersion[2], utc[0], utc[1], utc[2], utc[3], utc[4], utc[5]);
  lines.Add("This file has not been sent to anybody. It holds nothing of what you have entered.");
  lines.Add("%s", "");
  if (facts.isAccess) {
    lines.Add("What: %s (0x%08X), %s 0x%" PRIX64, NameOf(facts.code), facts.code, NameOfAccess(facts.access),
              facts.accessedAddress);
  } else {
    lines.Add("What: %s (0x%08X)", NameOf(facts.code), facts.code);
  }
  lines.Add("At: 0x%" PRIX64, facts.address);
  return lines.Length();
}

std::size_t WritePlace(uint64_t address, std::span<const CrashModule> modules, std::span<char> buffer) {
  Lines lines(buffer);
  AddPlace(lines, "Where: ", address, modules);
  lines.Add("%s", "");
  lines.Add("Modules:");
  for (const CrashModule& module : modules) AddModule(lines, module);
  return lines.Length();
}

std::size_t WriteCalls(std::span<const uint64_t> calls, std::span<const CrashModule> modules, std::span<char> buffer) {
  Lines lines(buffer);
  lines.Add("%s", "");
  lines.Add("Calls, the innermost first:");
  for (const uint64_t address : calls) AddPlace(lines, "  ", address, modules);
  return lines.Length();
}
