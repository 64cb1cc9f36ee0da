// This moment by the computer's clock.
#pragma once

namespace dialogs {

// Since 1970-01-01 00:00 UTC.
double UtcSeconds();

}  // namespace dialogs
