#include "libraries/hours/choice.h"

namespace hours {
namespace {

constexpr const char* kDefault[] = {
    "dawn-16.1",
    "dawn-72-min",
    "tallit-11",
    "tallit-10.2",
    "sunrise",
    "shema-mga-16.1",
    "shema-mga-72-min",
    "shema-gra",
    "tefila-mga-72-min",
    "tefila-gra",
    "midday",
    "midday-half",
    "mincha-gedola-gra",
    "mincha-gedola-mga-72-min",
    "mincha-ketana-gra",
    "mincha-ketana-mga-72-min",
    "plag-gra",
    "sunset",
    "nightfall-5.95",
    "nightfall-7.083",
    "nightfall-7.5",
    "nightfall-8.5",
    "nightfall-8.75",
    "nightfall-72-min",
    "midnight",
};

constexpr const char* kVilnaGaon[] = {
    "dawn-72-min",         "tallit-11",     "sunrise",           "shema-gra", "tefila-gra",     "midday",
    "mincha-gedola-later", "samuch-gra",    "mincha-ketana-gra", "plag-gra",  "candles-18-min", "sunset",
    "nightfall-7.083",     "nightfall-8.5", "nightfall-72-min",  "midnight",
};

constexpr const char* kMagenAvraham[] = {
    "dawn-90-min",
    "dawn-72-min",
    "tallit-11",
    "sunrise",
    "shema-mga-90-min",
    "shema-mga-16.1",
    "shema-mga-72-min",
    "tefila-mga-90-min",
    "tefila-mga-72-min",
    "midday",
    "mincha-gedola-mga-72-min",
    "samuch-mga-72-min",
    "mincha-ketana-mga-72-min",
    "plag-mga-72-min",
    "candles-18-min",
    "sunset",
    "nightfall-8.5",
    "nightfall-72-min",
    "nightfall-90-min",
    "midnight",
};

constexpr const char* kBaalHaTanya[] = {
    "dawn-16.9",
    "tallit-11",
    "sunrise-baal-hatanya",
    "sunrise",
    "shema-baal-hatanya",
    "tefila-baal-hatanya",
    "midday",
    "mincha-gedola-baal-hatanya",
    "mincha-ketana-baal-hatanya",
    "plag-baal-hatanya",
    "candles-18-min",
    "sunset",
    "sunset-baal-hatanya",
    "nightfall-6",
    "nightfall-8.5",
    "midnight",
};

constexpr const char* kIsrael[] = {
    "dawn-90-zmanis",
    "dawn-72-zmanis",
    "tallit-11.5",
    "tallit-11",
    "sunrise",
    "sunrise-sea-level",
    "shema-mga-90-zmanis",
    "shema-mga-72-zmanis",
    "shema-gra",
    "tefila-mga-72-zmanis",
    "tefila-gra",
    "midday",
    "mincha-gedola-later",
    "mincha-ketana-gra",
    "plag-gra",
    "candles-40-min",
    "candles-20-min",
    "sunset-sea-level",
    "sunset",
    "nightfall-6.45",
    "nightfall-7.083",
    "nightfall-8.5",
    "nightfall-72-min",
    "midnight",
};

// In the order of the program's own table; the Magen Avraham's midday, the same there, is the transit here.
constexpr const char* kNineteen[] = {
    "dawn-72-min",
    "tallit-11",
    "tallit-10.2",
    "sunrise",
    "shema-mga-72-min",
    "shema-gra",
    "tefila-mga-72-min",
    "tefila-gra",
    "midday-half",
    "midday",
    "mincha-gedola-gra",
    "mincha-gedola-mga-72-min",
    "mincha-ketana-gra",
    "mincha-ketana-mga-72-min",
    "sunset",
    "nightfall-5.95",
    "nightfall-7.5",
    "nightfall-8.75",
    "nightfall-72-min",
};

constexpr Preset kPresets[] = {
    {"Usual zmanim", kDefault},
    {"Vilna Gaon (GR\"O)", kVilnaGaon},
    {"Magen Avraham (M\"A)", kMagenAvraham},
    {"Ba'al HaTanya", kBaalHaTanya},
    {"Israel", kIsrael},
    {"The nineteen built in", kNineteen},
};

}  // namespace

std::span<const Preset> Presets() {
  return kPresets;
}

}  // namespace hours
