// The zmanim in use: the user's selection, as the library answers it, or the built-in ones, as the display flag says.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string>

#include "zmanim/core/zmanim_labels.h"

// The number of zmanim in use now. A selection larger than a day has room for counts as kMostZmanim.
uint32_t GetZmanimCount();

// The zmanim in use now, as a block for a document (zmanim_labels.h); null without memory.
HGLOBAL DescribeZmanimInUse();

// Whether the zmanim in use are still those of labels: the same mode, number, order and names, and, where the library
// tells, definitions; and whether no list of the times set by hand has been changed since.
bool AreInUse(const ZmanimLabels& labels);

// The description of a zman of the library now; empty when it has none.
std::string LibraryZmanName(uint32_t zman);

// The zman of the library that has this description now; nothing when there is none.
std::optional<uint32_t> LibraryZmanNamed(const std::string& description);

// Whether the user's selection is in use and has a zman of this description.
bool IsSelected(const std::string& description);
