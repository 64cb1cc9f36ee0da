#include "libraries/occasions/year_rows.h"

namespace occasions {

void AddZman(const YearSources& sources, int32_t day, const hours::Definition& zman, Row row) {
  if (const std::optional<ClockMinute> moment = sources.sky.Zman(day, zman)) {
    return sources.rows.AddMoment(*moment, row);
  }
  row.notes |= sources.sky.NoteOfMissing(day, zman);
  sources.rows.AddDay(day, row);
}

}  // namespace occasions
