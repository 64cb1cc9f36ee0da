// A number by which a selection of zmanim is recognised.
#pragma once

#include <cstdint>
#include <span>

#include "libraries/hours/choice.h"

namespace hours {

// The same for equal zmanim in the same order, in every process; another for another number of zmanim, order,
// description or definition, but for one chance in 2^64.
uint64_t FingerprintOf(std::span<const DescribedZman> zmanim);

}  // namespace hours
