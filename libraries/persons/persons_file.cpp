#include "libraries/persons/persons_file.h"
