// A file on its way into a sink, which takes it in large pieces.
#pragma once

#include <string>

#include "output/text_sink.h"

namespace publishing {

class SinkBuffer {
 public:
  explicit SinkBuffer(TextSink& sink) : sink_(sink) {}

  // What is still to be written; one appends to it.
  std::string& text() { return text_; }

  // To be called after each part that may be written by itself: a row, an event.
  void EndPart() {
    if (text_.size() >= kPieceBytes) WriteAll();
  }

  void WriteAll() {
    sink_.Write(text_);
    text_.clear();
  }

 private:
  static constexpr std::size_t kPieceBytes = 64 * 1024;

  TextSink& sink_;
  std::string text_;
};

}  // namespace publishing
