#include "publishing/core/one_page_layout.h"

#include <algorithm>
#include <cstdint>
#include <numeric>

#include "publishing/core/column_widths.h"

namespace publishing {
namespace {

// Parts of a line's height, in percent.
constexpr int kColumnGap = 90;
constexpr int kBlockGap = 220;
constexpr int kRowGap = 12;
constexpr int kGroupGap = 25;

// How much of what is left beside and below the rows goes between them, in percent of what is there.
constexpr int kMostColumnSpread = 120;
constexpr int kMostLeading = 90;

// Of the title, to what it would be otherwise, in percent.
constexpr int kTitleSize = 140;

// Below title and remarks, and above notes, in percent of a line.
constexpr int kTitleGap = 75;
constexpr int kNotesGap = 50;

// Title, remarks and notes may take this part of the page, each of them.
constexpr int kSurroundingShare = 3;

int Percent(int length, int percent) {
  return static_cast<int>(int64_t{length} * percent / 100);
}

int Sum(const std::vector<int>& numbers) {
  return std::accumulate(numbers.begin(), numbers.end(), 0);
}

int GapsBetween(std::size_t count) {
  return count == 0 ? 0 : static_cast<int>(count) - 1;
}

}  // namespace

OnePageLayout::Metrics OnePageLayout::MetricsAt(int size) const {
  Metrics metrics{};
  metrics.text = std::max(texts_.LineHeight(PageFont::kText, size), texts_.LineHeight(PageFont::kHeading, size));
  metrics.line =
      texts_.HasLargeTexts() ? std::max(metrics.text, texts_.LineHeight(PageFont::kLarge, size)) : metrics.text;
  metrics.columnGap = Percent(metrics.text, kColumnGap);
  metrics.blockGap = Percent(metrics.text, kBlockGap);
  metrics.rowGap = std::max(Percent(metrics.text, kRowGap), 1);
  metrics.groupGap = Percent(metrics.text, kGroupGap);
  return metrics;
}

// The widths of columns in a block of this width; nothing where it is too narrow.
std::optional<std::vector<int>> OnePageLayout::ColumnsIn(int width, const OnePageForm& form, int columnGap) const {
  std::vector<int> own;
  std::vector<int> least;
  for (std::size_t column = 0; column < texts_.ColumnCount(); ++column) {
    int whole = texts_.headings()[column].widestWord;
    int word = whole;
    for (const MeasuredRow& row : texts_.rows()) {
      if (row.isGroup) continue;
      whole = std::max(whole, row.cells[column].whole);
      word = std::max(word, row.cells[column].widestWord);
    }
    own.push_back(WidthAtSize(whole, form.size));
    least.push_back(WidthAtSize(word, form.size));
  }
  const int room = width - GapsBetween(own.size()) * columnGap;
  if (Sum(form.wraps ? least : own) > room) return std::nullopt;
  return ColumnWidths(own, least, room);
}

std::optional<OnePageLayout::Plan> OnePageLayout::PlanOf(const OnePageForm& form) const {
  Plan plan{};
  plan.form = form;
  plan.metrics = MetricsAt(form.size);
  const auto blocks = static_cast<int>(form.blocks);
  const int width = (body_.width - (blocks - 1) * plan.metrics.blockGap) / blocks;
  auto columns = ColumnsIn(width, form, plan.metrics.columnGap);
  if (!columns || width < 1) return std::nullopt;
  plan.columns = std::move(*columns);
  plan.blockWidth = Sum(plan.columns) + GapsBetween(plan.columns.size()) * plan.metrics.columnGap;
  plan.titleHeight = TitleHeight(plan);
  plan.notesHeight = NotesHeight(plan);
  const int share = body_.height / kSurroundingShare;
  if (plan.titleHeight > share || plan.notesHeight > share) return std::nullopt;
  plan.headingHeight = HeadingHeight(plan);
  plan.rows = RowsOf(plan);
  const int height = body_.height - plan.titleHeight - plan.headingHeight - plan.notesHeight;
  plan.room = {form.blocks, height, plan.metrics.groupGap, form.keepsGroupsWhole};
  auto starts = FillBlocks(plan.rows, plan.room);
  if (!starts || height < 0) return std::nullopt;
  plan.starts = std::move(*starts);
  return plan;
}

std::vector<BlockRow> OnePageLayout::RowsOf(const Plan& plan) const {
  std::vector<BlockRow> rows;
  const int size = plan.form.size;
  for (const MeasuredRow& row : texts_.rows()) {
    std::size_t lines = 1;
    for (std::size_t cell = 0; cell < row.cells.size(); ++cell) {
      const int width = row.isGroup ? plan.blockWidth : plan.columns[cell];
      lines = std::max(lines, texts_.Lines(row.cells[cell], texts_.FontOf(row, cell), size, width).size());
    }
    const int first = row.isGroup ? plan.metrics.text : plan.metrics.line;
    rows.push_back({first + static_cast<int>(lines - 1) * first + plan.metrics.rowGap, row.isGroup});
  }
  return rows;
}

int OnePageLayout::HeadingHeight(const Plan& plan) const {
  std::size_t lines = 0;
  for (std::size_t column = 0; column < plan.columns.size(); ++column) {
    const MeasuredText& heading = texts_.headings()[column];
    if (heading.text.empty()) continue;
    lines = std::max(lines, texts_.Lines(heading, PageFont::kHeading, plan.form.size, plan.columns[column]).size());
  }
  return lines == 0 ? 0 : static_cast<int>(lines) * plan.metrics.text + 2 * plan.metrics.rowGap;
}

// The size of a line of title and remarks.
int OnePageLayout::TitleSize(std::size_t text, int size) const {
  const int larger = Percent(size, kTitleSize);
  const bool isLarger =
      texts_.TitleFont(text) == PageFont::kTitle && WidthAtSize(texts_.title()[text].whole, larger) <= body_.width;
  return isLarger ? larger : size;
}

int OnePageLayout::TitleHeight(const Plan& plan) const {
  int height = 0;
  for (std::size_t text = 0; text < texts_.title().size(); ++text) {
    const PageFont font = texts_.TitleFont(text);
    const int size = TitleSize(text, plan.form.size);
    const auto lines = texts_.Lines(texts_.title()[text], font, size, body_.width).size();
    height += static_cast<int>(lines) * texts_.LineHeight(font, size);
  }
  return height == 0 ? 0 : height + Percent(plan.metrics.text, kTitleGap);
}

int OnePageLayout::NotesHeight(const Plan& plan) const {
  int height = 0;
  for (const MeasuredText& note : texts_.notes()) {
    const auto lines = texts_.Lines(note, PageFont::kSmall, plan.form.size, body_.width).size();
    height += static_cast<int>(lines) * texts_.LineHeight(PageFont::kSmall, plan.form.size);
  }
  return height == 0 ? 0 : height + Percent(plan.metrics.text, kNotesGap);
}

// Blocks of one height, and what room is left put between columns, blocks and rows.
void OnePageLayout::Spread(Plan& plan) const {
  const int height = plan.room.height;
  if (auto starts = FillEvenly(plan.rows, plan.room)) plan.starts = std::move(*starts);
  std::size_t most = 1;
  for (std::size_t block = 0; block < plan.starts.size(); ++block) {
    const std::size_t end = block + 1 < plan.starts.size() ? plan.starts[block + 1] : plan.rows.size();
    most = std::max(most, end - plan.starts[block]);
  }
  plan.leading =
      std::min((height - plan.room.height) / static_cast<int>(most), Percent(plan.metrics.text, kMostLeading));
  Metrics& metrics = plan.metrics;
  const auto blocks = static_cast<int>(plan.form.blocks);
  const int gaps = GapsBetween(plan.columns.size());
  const int free = (body_.width - (blocks - 1) * metrics.blockGap) / blocks - plan.blockWidth;
  if (gaps > 0) {
    const int spread = std::min(free / gaps, Percent(metrics.columnGap, kMostColumnSpread));
    metrics.columnGap += spread;
    plan.blockWidth += gaps * spread;
  }
  const int left = body_.width - blocks * plan.blockWidth - (blocks - 1) * metrics.blockGap;
  if (blocks > 1) metrics.blockGap += std::min(left / blocks, metrics.blockGap);
}

// Puts the lines of a plan on the page, from the top on.
class OnePageLayout::Placer {
 public:
  Placer(const OnePageLayout& layout, const Plan& plan)
      : layout_(layout), texts_(layout.texts_), body_(layout.body_), plan_(plan) {}

  PlacedPage Placed() {
    PlaceTitle();
    PlaceNotes();
    for (std::size_t block = 0; block < plan_.starts.size(); ++block) PlaceBlock(block);
    if (plan_.starts.empty()) PlaceHeadings(BlockX(0));
    return std::move(page_);
  }

 private:
  int BlockX(std::size_t block) const {
    const Metrics& metrics = plan_.metrics;
    const auto used = static_cast<int>(std::max<std::size_t>(plan_.starts.size(), 1));
    const int width = used * plan_.blockWidth + (used - 1) * metrics.blockGap;
    const auto place = texts_.IsRightToLeft() ? used - 1 - static_cast<int>(block) : static_cast<int>(block);
    return body_.x + (body_.width - width) / 2 + place * (plan_.blockWidth + metrics.blockGap);
  }

  int ColumnX(int blockX, std::size_t column) const {
    int x = 0;
    for (std::size_t before = 0; before < column; ++before) x += plan_.columns[before] + plan_.metrics.columnGap;
    return texts_.IsRightToLeft() ? blockX + plan_.blockWidth - x - plan_.columns[column] : blockX + x;
  }

  void PlaceTitle() {
    int y = body_.y;
    for (std::size_t text = 0; text < texts_.title().size(); ++text) {
      const PageFont font = texts_.TitleFont(text);
      const int size = layout_.TitleSize(text, plan_.form.size);
      y += PlaceText(texts_.title()[text], font, size, {body_.x, y, body_.width, texts_.LineHeight(font, size)});
    }
  }

  void PlaceNotes() {
    const int size = plan_.form.size;
    int y = body_.Bottom() - plan_.notesHeight + Percent(plan_.metrics.text, kNotesGap);
    for (const MeasuredText& note : texts_.notes()) {
      const int height = texts_.LineHeight(PageFont::kSmall, size);
      y += PlaceText(note, PageFont::kSmall, size, {body_.x, y, body_.width, height});
    }
  }

  // box: of the first line. The height of all lines.
  int PlaceText(const MeasuredText& text, PageFont font, int size, PageBox box, int lineHeight = 0) {
    int height = 0;
    for (std::u16string& line : texts_.Lines(text, font, size, box.width)) {
      if (!line.empty()) page_.lines.push_back({size, box, std::move(line), {font, text.place, text.rightToLeft}});
      const int step = std::max(lineHeight, box.height);
      height += step;
      box.y += step;
    }
    return height;
  }

  int PlaceHeadings(int x) {
    const int top = body_.y + plan_.titleHeight;
    if (plan_.headingHeight == 0) return top;
    const int height = plan_.metrics.text;
    // Headings of fewer lines stand at the foot of the row.
    const int foot = top + plan_.headingHeight - 2 * plan_.metrics.rowGap;
    for (std::size_t column = 0; column < plan_.columns.size(); ++column) {
      const MeasuredText& heading = texts_.headings()[column];
      const int width = plan_.columns[column];
      const auto lines = texts_.Lines(heading, PageFont::kHeading, plan_.form.size, width).size();
      const int y = foot - static_cast<int>(lines) * height;
      PlaceText(heading, PageFont::kHeading, plan_.form.size, {ColumnX(x, column), y, width, height});
    }
    page_.rules.push_back({x, foot + plan_.metrics.rowGap, plan_.blockWidth, Rule::kThin});
    return top + plan_.headingHeight;
  }

  void PlaceBlock(std::size_t block) {
    const int x = BlockX(block);
    int y = PlaceHeadings(x);
    const std::size_t first = plan_.starts[block];
    const std::size_t end = block + 1 < plan_.starts.size() ? plan_.starts[block + 1] : plan_.rows.size();
    for (std::size_t row = first; row < end; ++row) {
      const bool isGroup = plan_.rows[row].isGroup;
      if (row > first && isGroup) {
        page_.rules.push_back({x, y + plan_.metrics.groupGap / 2, plan_.blockWidth, Rule::kThin});
        y += plan_.metrics.groupGap;
      } else if (row > first) {
        page_.rules.push_back({x, y - plan_.metrics.rowGap / 2, plan_.blockWidth, Rule::kHair});
      }
      PlaceRow(texts_.rows()[row], x, y + plan_.leading / 2);
      y += plan_.rows[row].height + plan_.leading;
    }
  }

  void PlaceRow(const MeasuredRow& row, int x, int y) {
    for (std::size_t cell = 0; cell < row.cells.size(); ++cell) {
      const PageFont font = texts_.FontOf(row, cell);
      const int left = row.isGroup ? x : ColumnX(x, cell);
      const int width = row.isGroup ? plan_.blockWidth : plan_.columns[cell];
      const int line = row.isGroup ? plan_.metrics.text : plan_.metrics.line;
      const int height = texts_.LineHeight(font, plan_.form.size);
      // Letters of either size stand on one base line, which is about four fifths below the top of a line.
      const int top = y + std::max(line - height, 0) * 4 / 5;
      PlaceText(row.cells[cell], font, plan_.form.size, {left, top, width, height}, line);
    }
  }

  const OnePageLayout& layout_;
  const OnePageTexts& texts_;
  const PageBox& body_;
  const Plan& plan_;
  PlacedPage page_;
};

PlacedPage OnePageLayout::Place(const OnePageForm& form) const {
  std::optional<Plan> plan = PlanOf(form);
  if (!plan) return {};
  Spread(*plan);
  return Placer(*this, *plan).Placed();
}

}  // namespace publishing
