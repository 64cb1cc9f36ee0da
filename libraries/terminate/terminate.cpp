// What happens when nobody catches an exception: as when the program aborts, which its crash report knows; where
// nothing knows it, as in tools, the end comes at once and without a word.
//
// This replaces the handler of the C++ runtime, which first names the exception on the standard error stream, where a
// program of windows has none. Its demangler of names would make every DLL 48 KB larger.
#include <csignal>
#include <cstdlib>
#include <exception>

void __gnu_cxx::__verbose_terminate_handler() {
  std::raise(SIGABRT);  // by itself abort would first have the system's runtime show a box of its own
  std::abort();
}
