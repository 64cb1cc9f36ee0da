// A table as a file for word processors.
#pragma once

#include <cstdint>
#include <string>

#include "output/text_sink.h"
#include "publishing/core/orientation.h"
#include "publishing/core/progress.h"
#include "publishing/core/table.h"

namespace publishing {

enum class PaperSize : uint8_t { kA4, kLetter };

struct RtfStyle {
  std::string face = {};  // of the font, UTF-8
  int halfPoints = 20;    // smaller where columns have no room side by side
  PaperSize paper = PaperSize::kA4;
  Orientation orientation = Orientation::kAutomatic;
};

// RTF in ASCII. Title and remarks stand on the first page, title and first remark small on top of every other, a page's
// number below each; the row of headings is repeated on every page. Texts written from right to left are aligned so,
// and so are such parts of other texts. Lines of a text stay lines, tabs become blanks; signs that turn the direction
// of what follows are left out.
// False when progress ended it; what the sink got until then is no file.
bool WriteRtf(const Table& table, const RtfStyle& style, TextSink& sink, const Progress& progress = {});

}  // namespace publishing
