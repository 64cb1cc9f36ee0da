// Lets a monkey at the finished program: monkey [SEED] [SECONDS]. Code 0 when the program has stood it, 1 when not;
// what was done last, the windows and the seed are told then. What Wine says of a crash is on its own error output.
#include <cstdlib>
#include <ctime>
#include <iostream>

#include "tests/monkey/monkey.h"

namespace fs = std::filesystem;

namespace {

// The first rest is soon, when all that is loaded once is there; the others are compared with it.
constexpr std::size_t kStepsToFirstRest = 250;
constexpr std::size_t kStepsBetweenRests = 1500;
// Growth between two rests of one run that is no leak: caches, fonts and what the heap keeps.
constexpr std::size_t kAllowedBytes = 96u << 20;
constexpr std::size_t kAllowedGdiObjects = 200;

// The program of this build, from its folder to the settings that it will have.
fs::path ProgramFolder() {
  char path[MAX_PATH];
  GetModuleFileNameA(nullptr, path, sizeof path);
  return fs::path(path).parent_path().parent_path() / "program";
}

// What the program exports goes into the working folder.
fs::path MakeFolders() {
  const fs::path folder =
      fs::temp_directory_path() / ("times_readings_monkey_" + std::to_string(GetCurrentProcessId()));
  fs::remove_all(folder);  // numbers of processes come again
  fs::create_directories(folder / "settings");
  fs::create_directories(folder / "exports");
  SetEnvironmentVariableA("PATH", "C:\\windows\\system32;C:\\windows");
  SetEnvironmentVariableA("TIMES_READINGS_HOME", (folder / "settings").string().c_str());
  SetCurrentDirectoryA((folder / "exports").string().c_str());
  return folder;
}

// Wine then writes a crash to its error output, where it would else show a box and wait.
void AskWineForNoCrashBox() {
  constexpr DWORD kNo = 0;
  RegSetKeyValueA(HKEY_CURRENT_USER, "Software\\Wine\\WineDbg", "ShowCrashDialog", REG_DWORD, &kNo, sizeof kNo);
}

void PrintHoldings(const char* when, const Holdings& holdings) {
  std::cout << "  " << when << ": " << (holdings.committedBytes >> 10) << " KiB committed, " << holdings.gdiObjects
            << " GDI objects, " << holdings.windows << " windows\n";
}

void CheckGrowth(const Holdings& first, const Holdings& last) {
  PrintHoldings("at rest", last);
  std::cout.flush();
  if (last.committedBytes > first.committedBytes + kAllowedBytes) throw Fault("memory grows");
  if (last.gdiObjects > first.gdiObjects + kAllowedGdiObjects) throw Fault("GDI objects grow in number");
  if (last.windows > first.windows) throw Fault("windows stay behind documents that are closed");
}

void Report(const Monkey& monkey, const Fault& fault, uint64_t seed, const fs::path& folder) {
  std::cout << "The last steps:\n";
  monkey.journal().Print(std::cout);
  if (monkey.program()) std::cout << "The windows:\n" << monkey.program()->WindowTree();
  std::cout << "Settings and exports are kept in " << folder.string() << '\n';
  std::cout << "monkey: seed " << seed << ", step " << monkey.journal().step() << ": " << fault.what() << std::endl;
}

int Run(uint64_t seed, ULONGLONG seconds) {
  const fs::path folder = MakeFolders();
  const ULONGLONG end = GetTickCount64() + seconds * 1000;
  Monkey monkey(seed, ProgramFolder(), folder / "settings");
  try {
    while (GetTickCount64() < end) {
      monkey.Step();
      if (monkey.journal().step() % kStepsBetweenRests != kStepsToFirstRest) continue;
      monkey.Rest();
      CheckGrowth(monkey.firstRest(), monkey.lastRest());
    }
    monkey.Finish();
    CheckGrowth(monkey.firstRest(), monkey.lastRest());
  } catch (const Fault& fault) {
    Report(monkey, fault, seed, folder);
    return 1;
  }
  std::cout << "monkey: seed " << seed << ", " << monkey.journal().step() << " steps, the slowest took "
            << monkey.slowestMilliseconds() << " ms; the program has stood it" << std::endl;
  SetCurrentDirectoryA("C:\\");
  std::error_code ignored;
  fs::remove_all(folder, ignored);
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  const uint64_t seed =
      count > 1 ? std::strtoull(arguments[1], nullptr, 10) : static_cast<uint64_t>(std::time(nullptr));
  const ULONGLONG seconds = count > 2 ? std::strtoull(arguments[2], nullptr, 10) : 600;
  AskWineForNoCrashBox();
  std::cout << "monkey: seed " << seed << ", " << seconds << " s" << std::endl;
  try {
    return Run(seed, seconds);
  } catch (const std::exception& failure) {
    std::cout << "monkey: seed " << seed << ": " << failure.what() << std::endl;
    return 1;
  }
}
