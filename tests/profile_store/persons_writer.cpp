// Adds persons to the persons' file whose notes are their numbers.
#include <string>
#include <vector>

#include "libraries/persons/persons_file.h"
#include "tests/profile_store/writer_progress.h"

int main(int argumentCount, char** arguments) {
  return RunWriter(argumentCount, arguments, [](int number) {
    persons::Person person;
    person.event.date = {1, 2, 2000};
    person.name = "Moshe";
    person.notes = std::to_string(number);
    std::vector<persons::Change> missed;
    return persons::StoreChanges({{std::nullopt, person}}, &missed) && missed.empty();
  });
}
