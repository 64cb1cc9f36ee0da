#pragma once

// Starts the program several times, each with an empty settings folder, and reports the milliseconds from the start of
// the process until its first document is painted. False when the program does not come up.
bool MeasureStartUp();
