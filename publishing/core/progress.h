// How a long job tells how far it is.
#pragma once

#include <cstddef>
#include <functional>

namespace publishing {

// Called every now and then with what is done of all there is to do. False: the user has had enough, and the job ends
// without a result. May be empty.
using Progress = std::function<bool(std::size_t done, std::size_t all)>;

}  // namespace publishing
