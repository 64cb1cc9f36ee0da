#pragma once

// Writes a setting; a setting of "shabbat2.ini" or "shabloc2.ini" is written into the sibling calendar's copy of the
// file too ("almanachlp2.ini", "almanachlpl2.ini"). A null value deletes the key, a null key the section. False when a
// write failed.
bool WriteMirrored(const char* section, const char* key, const char* value, const char* file);
