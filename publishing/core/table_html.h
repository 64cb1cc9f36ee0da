// A table as a page for browsers.
#pragma once

#include "output/text_sink.h"
#include "publishing/core/progress.h"
#include "publishing/core/table.h"

namespace publishing {

// One page of HTML in UTF-8 that needs nothing else and runs nothing: dark where the reader's screen is, on narrow
// screens a card for each row, each of its texts beside its column's heading, on paper with the headings on every page.
// Every text stands isolated, whatever its direction and the signs in it.
// False when progress ended it; what the sink got until then is no file.
bool WriteHtml(const Table& table, TextSink& sink, const Progress& progress = {});

}  // namespace publishing
