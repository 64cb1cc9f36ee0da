// Binding of the calendar filters and the solar library by name.
//
// Each binding loads its library, checks the interface version where one is asked for, and looks up every entry point.
// On a failure it shows one message, unloads the library and answers false.
#pragma once

bool BindCivilCalendar();  // CIVILCAL.DLL, interface version 267 or later
bool BindLunarCalendar();  // LUNARCAL.DLL
bool BindSolar();          // SOLAR.DLL, interface version 256 or later

// Unloading clears the entry points. A library that is not loaded is left alone.
void UnloadCivilCalendar();
void UnloadLunarCalendar();
void UnloadSolar();
