#include "libraries/persons/persons_editing.h"
