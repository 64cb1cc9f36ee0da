#include "app/compute_document.h"

#include "engine/current.h"
#include "engine/properties.h"
#include "readings/readings_list.h"
#include "shabbat/shabbat_list.h"
#include "win/scoped.h"
#include "zmanim/calculate_zmanim.h"

void ComputeDocument(HWND document, const Location& place, const DateRange& range,
                     const CandleOverrideRecord& candles) {
  const ScopedWaitCursor wait;
  SetPlace(document, place);
  SetRangeProperties(document, range);
  ComputeZmanim(document, place, range, LongRange::kReport);
  ComputeReadings(document, range, LongRange::kReport);
  ComputeShabbatTimes(document, place, range, candles);
}

void CalculateShabbatTimes(HWND document, uint32_t startDay, uint32_t startMonth, uint32_t startYear, uint32_t endDay,
                           uint32_t endMonth, uint32_t endYear) {
  ComputeDocument(document, CurrentLocation, {{startDay, startMonth, startYear}, {endDay, endMonth, endYear}},
                  CandleOverride);
}
