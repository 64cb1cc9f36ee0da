// A posted message of the monkey's own and the window property in which the hook of marker_dll.cpp keeps its wParam
// when the program takes it from its queue. The hook is the only way to see that from outside.
#pragma once

inline constexpr char kMarkerMessage[] = "TimesReadingsMonkeyMarker";
inline constexpr char kMarkerProperty[] = "TimesReadingsMonkeyMarker";
inline constexpr char kMarkerLibrary[] = "monkey_marker.dll";
inline constexpr char kMarkerHook[] = "NoteMarker";
