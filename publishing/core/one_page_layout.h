// Where everything stands on the one page, for letters of a size and a number of blocks.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "publishing/core/block_plan.h"
#include "publishing/core/one_page.h"
#include "publishing/core/one_page_texts.h"

namespace publishing {

struct OnePageForm {
  std::size_t blocks;
  int size;               // of the letters
  bool wraps;             // texts of rows are wrapped where columns lack room
  bool keepsGroupsWhole;  // blocks begin with groups only
};

class OnePageLayout {
 public:
  // texts live as long as the layout.
  OnePageLayout(const OnePageTexts& texts, const PageBox& body) : texts_(texts), body_(body) {}

  bool Fits(const OnePageForm& form) const { return PlanOf(form).has_value(); }

  // form: one that fits.
  PlacedPage Place(const OnePageForm& form) const;

 private:
  // Lengths that go with the size.
  struct Metrics {
    int text;  // the height of a line
    int line;  // of a row's first line, which may have large texts
    int columnGap;
    int blockGap;
    int rowGap;    // below each row
    int groupGap;  // above a row that names a group
  };
  struct Plan {
    OnePageForm form;
    Metrics metrics;
    std::vector<int> columns;  // their widths
    int blockWidth;            // its columns and the gaps between them
    int titleHeight;
    int headingHeight;
    int notesHeight;
    std::vector<BlockRow> rows;
    BlockRoom room;
    std::vector<std::size_t> starts;  // of the blocks
    int leading = 0;                  // that rows get beyond their height
  };
  class Placer;

  std::optional<Plan> PlanOf(const OnePageForm& form) const;
  Metrics MetricsAt(int size) const;
  std::optional<std::vector<int>> ColumnsIn(int width, const OnePageForm& form, int columnGap) const;
  std::vector<BlockRow> RowsOf(const Plan& plan) const;
  int HeadingHeight(const Plan& plan) const;
  int TitleSize(std::size_t text, int size) const;
  int TitleHeight(const Plan& plan) const;
  int NotesHeight(const Plan& plan) const;
  void Spread(Plan& plan) const;

  const OnePageTexts& texts_;
  PageBox body_;
};

}  // namespace publishing
