#include "libraries/persons/person.h"
