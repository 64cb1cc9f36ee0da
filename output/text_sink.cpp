#include "output/text_sink.h"

void WriteLine(TextSink& sink, std::string_view text) {
  sink.Write(text);
  sink.Write("\r\n");
}
