// Display flags, kept in kFlagsFile. Setting one answers false when it could not be stored.
#pragma once

inline constexpr char kFlagsFile[] = "shab30.ini";

// Whether zmanim are named in Hebrew (section "Zmanim", key "Hebrew"); not unless set.
bool ZmanimInHebrew();
bool SetZmanimInHebrew(bool hebrew);

// Whether the user's own selection of zmanim is in force, rather than the built-in ones (section "Settings", key
// "EnableZmanim"); it is unless set otherwise.
bool ZmanimEnabled();
bool SetZmanimEnabled(bool enabled);
