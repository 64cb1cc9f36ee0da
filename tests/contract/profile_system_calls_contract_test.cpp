// The profile library beside the system's own private-profile calls: one script, two files, the same answers.
//
// Left out is where Wine's calls part from the documented ones: a list or a quoted text that fits its buffer exactly is
// cut; a default is stripped of quotes, and for a null key not of its trailing blanks; lines before the first section
// count as a section without name; a key without name is listed; a commented-out key can be asked for by its name with
// the semicolon; a file with a byte order mark is converted to the code page.
#include <gtest/gtest.h>

#include "companion/profile.h"
#include "tests/contract/settings_home.h"

namespace {

using std::string_literals::operator""s;

constexpr char kDefault[] = "d e";

class ProfileBesideTheSystem : public testing::Test {
 protected:
  void Start(const std::string& bytes) {
    home_.Put("ours.ini", bytes);
    home_.Put("theirs.ini", bytes);
  }

  void ExpectSameText(const char* section, const char* key, uint32_t size = 100) {
    std::string ours(100, '#');
    std::string theirs(100, '#');
    const uint32_t ourCount = ProfileGetString(section, key, kDefault, ours.data(), size, ours_.c_str());
    const uint32_t theirCount = GetPrivateProfileStringA(section, key, kDefault, theirs.data(), size, theirs_.c_str());
    EXPECT_EQ(ourCount, theirCount) << Call(section, key) << " size " << size;
    EXPECT_EQ(ours.substr(0, ourCount + 1), theirs.substr(0, theirCount + 1)) << Call(section, key) << " size " << size;
  }

  void ExpectSameNumber(const char* section, const char* key) {
    EXPECT_EQ(ProfileGetInt(section, key, -77, ours_.c_str()),
              static_cast<int32_t>(GetPrivateProfileIntA(section, key, -77, theirs_.c_str())))
        << Call(section, key);
  }

  void WriteBoth(const char* section, const char* key, const char* value) {
    EXPECT_EQ(ProfileWriteString(section, key, value, ours_.c_str()) != 0,
              WritePrivateProfileStringA(section, key, value, theirs_.c_str()) != FALSE)
        << Call(section, key);
  }

  void ExpectSameListsAndValues() {
    ExpectSameText(nullptr, nullptr);
    for (const char* section : {"A", "B", "C", "N", "none"}) {
      ExpectSameText(section, nullptr);
      for (const char* key : {"x", "y", "z", "e", "k", "q", "sp key", "none"}) {
        ExpectSameText(section, key);
        ExpectSameNumber(section, key);
      }
    }
  }

 private:
  static std::string Call(const char* section, const char* key) {
    return "["s + (section ? section : "(null)") + "] " + (key ? key : "(null)");
  }

  SettingsHome home_;
  const std::string ours_ = home_.Path("ours.ini").string();
  const std::string theirs_ = home_.Path("theirs.ini").string();
};

TEST_F(ProfileBesideTheSystem, ReadsAnUntidyFileAlike) {
  Start(
      "stray=1\r\n; top\r\n  [A] ; junk\r\n x = 1 \r\nX=2\r\nno value\r\ne=\r\n\ty\t=\v2\f\r\n[B]k=0\r\nx=b=c;d\r\n"
      "[a]\r\nz=never\r\n[unclosed\r\n[ C ]\r\nx=\xE4\x80\xFF\r\ny=1\x1A");
  ExpectSameListsAndValues();
}

TEST_F(ProfileBesideTheSystem, ReadsAnyLineEndsAlike) {
  for (const char* text : {"[A]\nx=1\ny=2", "[A]\rx=1\ry=2\r", "[A]\n\rx=1\r\r\ny=2\r\n[B]\nx=3"}) {
    SCOPED_TRACE(text);
    Start(text);
    Sleep(60);  // both keep what they have read for a while
    ExpectSameListsAndValues();
  }
}

TEST_F(ProfileBesideTheSystem, ReadsOddHeadersAlike) {
  Start("[a]b]\r\nx=1\r\n[[h]]\r\nx=2\r\n[i=j]\r\nx=3\r\n[k;l]\r\nx=4\r\n");
  ExpectSameText(nullptr, nullptr);
  for (const char* section : {"a]b", "a", "[h]", "h", "i=j", "k;l", " k;l "}) ExpectSameText(section, "x");
}

TEST_F(ProfileBesideTheSystem, StripsQuotesAlike) {
  Start(
      "[A]\r\na=\"v\"\r\nb='v'\r\nc=\"v'\r\nd=\"\r\ne=\"\"\r\nf=\" v \"\r\ng=\"\"v\"\"\r\nh=\"v\" x\r\ni='\r\n"
      "j=x\"y\"\r\nk='\"v\"'\r\nl=\"v\r\n");
  for (const char* key : {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "l"}) ExpectSameText("A", key);
}

TEST_F(ProfileBesideTheSystem, CutsTextsAlike) {
  Start("[A]\r\nx=12345\r\nq=\"12345\"\r\n");
  for (uint32_t size = 1; size <= 8; ++size) {
    ExpectSameText("A", "x", size);
    if (size != sizeof "12345") ExpectSameText("A", "q", size);
    ExpectSameText("A", "none", size);
  }
}

TEST_F(ProfileBesideTheSystem, CutsListsAlike) {
  Start("[A]\r\nabc=1\r\ndefg=2\r\n[B]\r\n");
  for (const uint32_t size : {3u, 4u, 5u, 6u, 7u, 8u, 9u, 11u, 12u}) ExpectSameText("A", nullptr, size);
}

TEST_F(ProfileBesideTheSystem, ReadsNumbersAlike) {
  const char* const numbers[] = {"12",         "-12",    "+5",  "0x1F",  "0X1F",         "12abc", "abc",        "",
                                 "4294967297", "0b101",  "017", "0o178", "\"12\"",       "-0x10", "- 5",        "0xg",
                                 "\" 7\"",     "--5",    "1.9", "0B1",   "0xfffffffff",  "\"\"",  "2147483648", "+-5",
                                 "\"\t\v7\"",  "0x1F1F", "-",   "1e3",   "-99999999999", "0b12",  "00",         "0x"};
  std::string bytes = "[A]\r\n";
  for (size_t i = 0; i < std::size(numbers); ++i) bytes += "n"s + std::to_string(i) + "=" + numbers[i] + "\r\n";
  Start(bytes);
  for (size_t i = 0; i < std::size(numbers); ++i) ExpectSameNumber("A", ("n"s + std::to_string(i)).c_str());
}

TEST_F(ProfileBesideTheSystem, WritesAndDeletesAlike) {
  Start("; top\r\n[A]\r\n; c1\r\n x = 1 \r\nodd line\r\n\r\n[B]\r\ny=2\r\ny=3\r\n[B]\r\nz=4");
  const struct {
    const char* section;
    const char* key;
    const char* value;
  } script[] = {{"A", "x", "5"},
                {"a", "X", "6"},
                {"A", "k", "n"},
                {"B", "y", "3"},
                {"B", "z", " lead trail "},
                {"B", "q", "\"quoted\""},
                {"C", "k", "v"},
                {"A", nullptr, nullptr},
                {"B", "y", nullptr},
                {"B", "none", nullptr},
                {"none", "k", nullptr},
                {"none", nullptr, nullptr},
                {nullptr, "k", "v"},
                {"B", " sp key ", "v"},
                {" B ", "k", "v"},
                {" N ", "k", "\xE4"},
                {"C", "e", ""},
                {"B", nullptr, nullptr},
                {"C", "x", "a=b;c [d]"},
                {"B", "x", "-0x10"}};
  for (const auto& step : script) {
    SCOPED_TRACE(step.section ? step.section : "(null)");
    WriteBoth(step.section, step.key, step.value);
    ExpectSameListsAndValues();
  }
}

}  // namespace
