// The seasons by the reckoning of Shmuel (Eruvin 56a): 91 days and 7.5 hours each, in the mean time of Jerusalem.
#pragma once

#include <cstdint>

namespace calendar {

// In the order of the Jewish year.
enum class Tekufa : int32_t { kTishri, kTevet, kNisan, kTammuz };

constexpr int64_t kMinutesPerDay = 24 * 60;

// Minutes since 0:00 of the absolute day 0, in the mean time of Jerusalem. The year is the Jewish one.
int64_t TekufaMinute(Tekufa tekufa, int32_t year);

// The day that it belongs to, by its daylight: from 18:00 on the next.
int32_t TekufaDay(Tekufa tekufa, int32_t year);

}  // namespace calendar
