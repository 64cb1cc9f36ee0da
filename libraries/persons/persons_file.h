// The persons' file: read and written whole, with the three versions before it kept as "persons.txt.1" (the last one
// before), ".2" and ".3".
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "libraries/persons/person.h"

namespace persons {

// The file as it stands now; nothing when it cannot be read. A missing file has no persons.
std::optional<Persons> StoredPersons();

// Makes the changes in the file as it is now, at once and whole (Applied). False when it could not be written, and the
// file is as it was.
bool StoreChanges(const std::vector<Change>& changes, std::vector<Change>* missed);

// The file's full path, for messages.
std::wstring PersonsPath();

}  // namespace persons
