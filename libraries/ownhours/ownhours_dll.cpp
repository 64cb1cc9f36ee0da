#include <utility>

#include "companion/ownhours.h"
#include "libraries/ownhours/own_times_dialog.h"
#include "libraries/ownhours/own_times_file.h"

namespace {

using ownhours::OpenStore;

OpenStore* StoreOf(const OwnHoursHandle* handle) {
  return handle ? static_cast<OpenStore*>(handle->store) : nullptr;
}

}  // namespace

int32_t OwnHoursLoad(OwnHoursHandle* handle) try {
  if (!handle) return 0;
  handle->store = nullptr;
  std::optional<OpenStore> store = OpenStore::Load();
  if (!store) return 0;
  handle->store = new OpenStore(std::move(*store));
  return 1;
} catch (...) {
  return 0;
}

int32_t OwnHoursGet(const OwnHoursHandle* handle, uint32_t day, uint32_t month, uint32_t year, const char* description,
                    const char* location, int32_t* hour, int32_t* minute) try {
  const OpenStore* store = StoreOf(handle);
  if (!store || !description || !location || !hour || !minute) return 0;
  const auto date = ownhours::PackDate(day, month, year);
  if (!date || !store->Times().HasTimesOn(*date)) return 0;
  const auto time = store->Times().Find(*date, description, location);
  if (!time) return 0;
  *hour = time->hour;
  *minute = time->minute;
  return 1;
} catch (...) {
  return 0;
}

int32_t OwnHoursSet(OwnHoursHandle* handle, uint32_t day, uint32_t month, uint32_t year, const char* description,
                    const char* location, int32_t hour, int32_t minute) try {
  OpenStore* store = StoreOf(handle);
  if (!store || !description || !location) return 0;
  const auto date = ownhours::PackDate(day, month, year);
  if (!date) return 0;
  const ownhours::Entry entry = {{*date, description, location}, {hour, minute}};
  if (!ownhours::CanBeKept(entry)) return 0;
  store->Set(entry);
  return 1;
} catch (...) {
  return 0;
}

int32_t OwnHoursStore(OwnHoursHandle* handle) try {
  OpenStore* store = StoreOf(handle);
  return store && store->Save() ? 1 : 0;
} catch (...) {
  return 0;
}

int32_t OwnHoursDoDialog(HWND owner, OwnHoursCalculate calculate) try {
  return ownhours::RunOwnTimesDialog(owner, calculate) ? 1 : 0;
} catch (...) {
  return 0;
}

void OwnHoursDone(OwnHoursHandle* handle) {
  if (!handle) return;
  delete StoreOf(handle);
  handle->store = nullptr;
}
