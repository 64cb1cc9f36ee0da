#pragma once

#include <windows.h>

#include <optional>

#include "shabbat/core/shabbat_export.h"

// Asks for the layout of the RTF file; nothing when cancelled.
std::optional<RtfLayout> RunRtfOptionsDialog(HWND owner);
