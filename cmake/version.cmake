# The forms of the version that project() states, for whatever shows it.
string(REPLACE "." "," FILE_VERSION_NUMBERS ${PROJECT_VERSION})

# As people read it: the last number with four digits, then the mark of a release.
string(LENGTH ${PROJECT_VERSION_TWEAK} digits)
math(EXPR missing_digits "4 - ${digits}")
string(REPEAT "0" ${missing_digits} zeros)
set(FILE_VERSION_TEXT
  "${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}.${PROJECT_VERSION_PATCH}.${zeros}${PROJECT_VERSION_TWEAK}R")
