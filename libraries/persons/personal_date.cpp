#include "libraries/persons/personal_date.h"
