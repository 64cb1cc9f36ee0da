#pragma once

#include <string>
#include <string_view>
#include <vector>

// What stands between the parts of a legend.
struct LegendSpacing {
  std::string_view betweenZmanim;
  std::string_view beforeVilnaGaon;
  std::string_view beforeMagenAvraham;
};

// The legend of numbered zmanim in one text: "1 = Alot HaShachar,   2 = ..." and what the abbreviations of the two
// opinions stand for. The first name has firstNumber.
std::string ZmanimLegend(const std::vector<std::string>& names, unsigned firstNumber, const LegendSpacing& spacing,
                         std::string_view vilnaGaon, std::string_view magenAvraham);
