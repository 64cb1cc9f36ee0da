#include "zmanim/core/zmanim_legend.h"

std::string ZmanimLegend(const std::vector<std::string>& names, unsigned firstNumber, const LegendSpacing& spacing,
                         std::string_view vilnaGaon, std::string_view magenAvraham) {
  std::string legend;
  unsigned number = firstNumber;
  for (const std::string& name : names) {
    if (number != firstNumber) legend += spacing.betweenZmanim;
    legend += std::to_string(number) + " = " + name;
    ++number;
  }
  legend += spacing.beforeVilnaGaon;
  legend += vilnaGaon;
  legend += spacing.beforeMagenAvraham;
  legend += magenAvraham;
  return legend;
}
