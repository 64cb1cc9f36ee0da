// The folder that the program was started from: the only one, beside the system's, from which anything is loaded or
// started.
//
// What the program imports has been loaded before its first statement runs; the manifest names those files as parts of
// the program, so that the loader too looks for them in this folder alone.
#pragma once

// From now on a library given by bare name is looked for in this folder and the system's, and neither in the current
// folder, where save dialogs and shortcuts lead, nor along PATH. To be the first statement of an executable.
void LoadFromOwnFolderAndSystemOnly();

// Whether a file of that bare name stands in this folder.
bool IsInOwnFolder(const wchar_t* name);
