#include "win/core/crash_text.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <string>
#include <vector>

namespace {

CrashModule Module(uint64_t base, uint32_t size, const char* name, std::array<uint16_t, 4> version = {}) {
  CrashModule module{base, size, {}, {version[0], version[1], version[2], version[3]}};
  std::strncpy(module.name, name, sizeof module.name - 1);
  return module;
}

const std::vector<CrashModule> kModules = {Module(0x140000000, 0x5000, "shabbat.exe", {6, 0, 0, 1}),
                                           Module(0x7FF812340000, 0x1000, "ntdll.dll")};

CrashFacts Facts() {
  CrashFacts facts{};
  facts.program = "Times / Readings 6.0.0.0001R";
  const uint32_t windows[] = {10, 0, 19045};
  std::memcpy(facts.windowsVersion, windows, sizeof windows);
  const uint16_t utc[] = {2026, 1, 2, 3, 4, 5};
  std::memcpy(facts.utc, utc, sizeof utc);
  facts.code = 0xC0000094;
  facts.address = 0x140001234;
  return facts;
}

std::string Text(const CrashFacts& facts, std::size_t size = 4096) {
  std::vector<char> buffer(size);
  return std::string(buffer.data(), WriteCrash(facts, buffer));
}

std::string Place(uint64_t address, const std::vector<CrashModule>& modules = kModules, std::size_t size = 4096) {
  std::vector<char> buffer(size);
  return std::string(buffer.data(), WritePlace(address, modules, buffer));
}

std::string Calls(const std::vector<uint64_t>& calls, std::size_t size = 4096) {
  std::vector<char> buffer(size);
  return std::string(buffer.data(), WriteCalls(calls, kModules, buffer));
}

}  // namespace

TEST(CrashText, SaysWhatHappenedAndWhere) {
  EXPECT_EQ(Text(Facts()),
            "Crash report of Times / Readings 6.0.0.0001R\r\n"
            "Windows 10.0.19045, 2026-01-02 03:04:05 UTC\r\n"
            "This file has not been sent to anybody. It holds nothing of what you have entered.\r\n"
            "\r\n"
            "What: integer division by zero (0xC0000094)\r\n"
            "At: 0x140001234\r\n");
}

TEST(CrashText, NamesTheModuleOfTheCrashAndAllModules) {
  EXPECT_EQ(Place(0x140001234),
            "Where: shabbat.exe + 0x1234\r\n"
            "\r\n"
            "Modules:\r\n"
            "  shabbat.exe 6.0.0.1, from 0x140000000 on\r\n"
            "  ntdll.dll, from 0x7FF812340000 on\r\n");
}

TEST(CrashText, NamesTheAccessThatFailed) {
  CrashFacts facts = Facts();
  facts.code = 0xC0000005;
  facts.isAccess = true;
  facts.accessedAddress = 0x10;
  EXPECT_NE(Text(facts).find("What: access violation (0xC0000005), reading 0x10\r\n"), std::string::npos);
  facts.access = 1;
  EXPECT_NE(Text(facts).find(", writing 0x10\r\n"), std::string::npos);
  facts.access = 8;
  EXPECT_NE(Text(facts).find(", executing 0x10\r\n"), std::string::npos);
}

TEST(CrashText, GivesTheNumberOfAnExceptionThatItDoesNotKnow) {
  CrashFacts facts = Facts();
  facts.code = 0x12345;
  EXPECT_NE(Text(facts).find("What: an exception (0x00012345)\r\n"), std::string::npos);
}

// A module ends before the address that is its size away from its base.
TEST(CrashText, CallsAreNamedByTheModuleThatHoldsThem) {
  EXPECT_EQ(Calls({0x140000000, 0x140004FFF, 0x140005000, 0x13FFFFFFF, 0x7FF812340010}),
            "\r\n"
            "Calls, the innermost first:\r\n"
            "  shabbat.exe + 0x0\r\n"
            "  shabbat.exe + 0x4FFF\r\n"
            "  0x140005000, in no module\r\n"
            "  0x13FFFFFFF, in no module\r\n"
            "  ntdll.dll + 0x10\r\n");
}

// Whatever the buffer's size, the text is a beginning of the whole one or leaves out lines, and never half of one.
TEST(CrashText, LinesThatDoNotFitAreLeftOut) {
  const std::string whole = Place(0x140001234);
  EXPECT_EQ(Place(0x140001234, kModules, whole.size()), whole);
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const std::string text = Place(0x140001234, kModules, size);
    ASSERT_LE(text.size(), size);
    ASSERT_LT(text.size(), whole.size());
    ASSERT_TRUE(text.empty() || text.ends_with("\r\n")) << size;
  }
}

TEST(CrashText, NameThatFillsItsFieldIsNotReadBeyondIt) {
  const std::string name(63, 'm');
  EXPECT_NE(Place(0, {Module(0x1000, 0x1000, name.c_str())}).find("  " + name + ", from 0x1000 on\r\n"),
            std::string::npos);
}
