#pragma once

// Reports what the window of the occasions takes from its call until it is painted, for a year and for a century. The
// settings folder may be any.
void MeasureOccasionsWindow();
