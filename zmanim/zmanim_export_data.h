#pragma once

#include <windows.h>

#include "zmanim/core/zmanim_export.h"

// What a document's zmanim say besides their layout, by the settings as they stand now. The days are left to whoever
// holds them.
ZmanimExport DescribeZmanim(HWND document);
