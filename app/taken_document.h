// A document's blocks, brought up to date and copied: what is made of them stays itself whatever happens to the
// document meanwhile.
#pragma once

#include <windows.h>

#include <optional>
#include <vector>

#include "app/core/document_source.h"
#include "app/document_occasions.h"
#include "readings/readings_form.h"
#include "zmanim/core/builtin_zmanim.h"

class TakenDocument : private DocumentServices {
 public:
  explicit TakenDocument(HWND document);

  const DocumentSource& source() const { return source_; }
  uint32_t ReadingsLanguage() const { return form_.language; }

  // Leaves the Shabbat times and readings of a range, the Friday before its first Shabbat included, and no zmanim: the
  // document's own where it has the whole range, else those that a document of the place would have.
  void TakeRange(const DateRange& range);

 private:
  void TakeNeighbours();
  std::vector<ShabbatTimeEntry> ShabbatTimesFor(const DateRange& range) const;
  void TakeCustoms();
  void Calculate(const DateRange& range);
  void CutTo(const DateRange& range);

  int32_t AbsoluteDay(const CalendarDate& gregorian) const override;
  CalendarDate Gregorian(int32_t absoluteDay) const override;
  CalendarDate Jewish(int32_t absoluteDay) const override;
  std::string Weekday(int32_t weekday, uint32_t language) const override;
  std::string CivilMonth(const CalendarDate& gregorian, uint32_t language) const override;
  std::string JewishMonth(const CalendarDate& jewish, uint32_t language) const override;
  std::string OfReadings(std::string_view text) const override;
  std::string OfWestern(std::string_view text) const override;
  int32_t ClockOffsetSeconds(const CalendarDate& date, int32_t minuteOfDay) const override;
  int32_t ZmanDayOffset(const ZmanimDay& day, uint32_t zman) const override;
  std::vector<DocumentOccasion> Occasions(int32_t absoluteDay, uint32_t language) const override;
  const DaySun& SunOf(const CalendarDate& date) const;
  int32_t AskedClockOffset(const CalendarDate& date, int32_t minuteOfDay) const;

  std::vector<ShabbatTimeEntry> shabbatTimes_;
  std::vector<ZmanimDay> zmanim_;
  std::vector<ReadingsEntry> readings_;
  ReadingsForm form_;
  UINT readingsCodePage_;
  bool zmanimFromLibrary_ = false;
  DocumentSource source_;
  mutable DaySun sun_{};
  mutable int32_t sunDay_ = 0;                  // no day of a document
  mutable std::optional<int32_t> clockOffset_;  // all around clockDay_, unless the clock changes then
  mutable int32_t clockDay_ = 0;
  mutable OccasionsOfDocument occasions_;
};
