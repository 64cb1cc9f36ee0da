#pragma once

#include <windows.h>

#include "zmanim/core/zmanim_export.h"

// What a document's zmanim say besides their layout: their own names, in the form of times as it stands now. The days
// are left to whoever holds them. RenewZmanim comes first.
ZmanimExport DescribeZmanim(HWND document);
