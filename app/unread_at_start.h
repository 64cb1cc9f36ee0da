#pragma once

// Tells the user, in one box, which settings files cannot be read at the start. Whether the program is to go on: all of
// them can be read after all, or the user wants to go on without them, as if they were missing; nothing is written over
// them then, since writing a file begins with reading it.
bool GoOnWithUnreadSettings();
