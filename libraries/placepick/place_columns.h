// The columns of the list of places.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

#include "libraries/placepick/place_list.h"
#include "libraries/stamp/stamp_core.h"

namespace placepick {

class PlaceColumns {
 public:
  PlaceColumns();

  // Puts the columns into a list view, and shares out its width: the first takes what the others leave.
  void Add(HWND list) const;
  void Fit(HWND list) const;

  // What stands in a column, from 0; empty in one that is not there.
  std::wstring Text(const Place& place, int column) const;

  // Takes the time of the computer's clock; whether the minute is another than the one before.
  bool SetNow();

 private:
  const stamp::Form form_;
  int64_t nowSeconds_ = 0;  // since 1970-01-01 00:00 UTC
};

}  // namespace placepick
