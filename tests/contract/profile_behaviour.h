// What is expected of the profile library whoever stands behind its header: the library itself, or the double of the
// program's tests. Each says by what it starts from files that hold nothing.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>

// Makes the files empty, for as long as what it answers is kept.
using EmptyFiles = std::function<std::shared_ptr<void>()>;

class ProfileBehaviour : public testing::TestWithParam<EmptyFiles> {
 protected:
  void SetUp() override { files_ = GetParam()(); }

 private:
  std::shared_ptr<void> files_;
};
