// What was done last, so that a failure can be told with what led to it.
#pragma once

#include <cstddef>
#include <deque>
#include <ostream>
#include <stdexcept>
#include <string>

// What the monkey finds wrong with the program. It ends the run.
struct Fault : std::runtime_error {
  using std::runtime_error::runtime_error;
};

class Journal {
 public:
  void NextStep() { ++step_; }
  std::size_t step() const { return step_; }
  void Note(const std::string& action) {
    constexpr std::size_t kKept = 300;
    lines_.push_back(std::to_string(step_) + "  " + action);
    if (lines_.size() > kKept) lines_.pop_front();
  }
  void Print(std::ostream& out) const {
    for (const std::string& line : lines_) out << line << '\n';
  }

 private:
  std::size_t step_ = 0;
  std::deque<std::string> lines_;
};
