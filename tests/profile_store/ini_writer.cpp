// Sets keys to their own numbers in section "Keys" of "written.ini".
#include <string>

#include "companion/profile.h"
#include "tests/profile_store/writer_progress.h"

int main(int argumentCount, char** arguments) {
  return RunWriter(argumentCount, arguments, [](int number) {
    const std::string text = std::to_string(number);
    return ProfileWriteString("Keys", text.c_str(), text.c_str(), "written.ini") != 0;
  });
}
