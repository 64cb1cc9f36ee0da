// Where exports write their text. Bytes pass through unchanged.
#pragma once

#include <string>
#include <string_view>

class TextSink {
 public:
  virtual ~TextSink() = default;
  virtual void Write(std::string_view text) = 0;
};

class StringSink : public TextSink {
 public:
  void Write(std::string_view text) override { text_ += text; }
  const std::string& text() const { return text_; }

 private:
  std::string text_;
};

// The text and a line end (carriage return and line feed); an empty text gives an empty line.
void WriteLine(TextSink& sink, std::string_view text);
