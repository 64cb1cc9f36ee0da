/* profile.dll: INI files, with the semantics of the system's own private-profile calls.
 *
 * A file given by bare name lives in the program's settings folder; a name with a path is used as it stands. Texts are
 * 8-bit bytes and pass through unchanged; a file saved as UTF-16 is read as text of the code page. Section and key
 * names are compared without regard to ASCII letter case; blanks around names and values mean nothing; of several
 * sections or keys of a name the first counts, but the first of exactly the spelling asked for before all others. Own
 * writes are seen at once, those of other processes after at most 50 ms; a file that cannot be read answers the
 * defaults, or what was last seen of it. Writes are atomic and serialised between processes. No operation shows a
 * window. */
#ifndef TIMES_READINGS_COMPANION_PROFILE_H
#define TIMES_READINGS_COMPANION_PROFILE_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The integer value of a key: an optional sign, then decimal digits, or hexadecimal ones after 0x, octal after 0o,
 * binary after 0b, up to the first other character; text that does not start with a number is 0, and a number past 32
 * bits keeps its low 32. The default when the key is missing or its value is empty. */
int32_t ProfileGetInt(const char* section, const char* key, int32_t defaultValue, const char* file);

/* The text of a key into buffer (size bytes, terminator included), cut to size - 1 bytes; one pair of enclosing quotes
 * is taken off. A missing key answers the default without its trailing blanks (null: empty). A null key lists
 * the section's keys, a null section the file's sections, each zero-terminated, with one more zero at the end; a list
 * that does not fit is cut and ends in two zeros. Answers the number of bytes copied without the (last) terminator; for
 * a cut text size - 1, for a cut list size - 2. */
uint32_t ProfileGetString(const char* section, const char* key, const char* defaultValue, char* buffer, uint32_t size,
                          const char* file);

/* Writes a key; a null value deletes the key, a null key deletes the section; what is not there counts as deleted.
 * Comments, order and unknown lines of the file survive. Nonzero when the file holds what was asked; on failure 0, and
 * the file is as it was. Besides failures of the disk, this is so for a null section and for what could not be read
 * back: an empty name, a key with "=" in it or with ";" or "[" at its start, an end of line within a text. */
int32_t ProfileWriteString(const char* section, const char* key, const char* value, const char* file);

/* Whether what is read of a file is what it holds: nonzero when the file can be read at this moment, or has not changed
 * since it was, or is not there; 0 when another program keeps it to itself or it may not be opened, so that the
 * operations above answer defaults or what was last seen. A dialog asks before it shows settings to be changed. The
 * file need not be an INI file. The library may be older than this entry: look it up by name. */
int32_t ProfileCanRead(const char* file);

/* The folder of files given by bare name, as things stand at this moment: a full path without a separator at its end,
 * in UTF-8, since a user's name may be of any script, into buffer (size bytes, terminator included). Answers its bytes
 * without the terminator; 0, and an empty text, when it does not fit or cannot be known. The folder need not exist, and
 * is not made. The library may be older than this entry: look it up by name. */
uint32_t ProfileGetFolder(char* buffer, uint32_t size);

#ifdef __cplusplus
}
#endif

#endif
