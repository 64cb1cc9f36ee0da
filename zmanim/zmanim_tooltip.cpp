#include "zmanim/zmanim_tooltip.h"

#include <windowsx.h>

#include <commctrl.h>

#include <string>

#include "engine/optional_entries.h"
#include "engine/properties.h"
#include "resources/ids.h"
#include "win/scoped.h"
#include "zmanim/core/builtin_zmanim_texts.h"
#include "zmanim/core/zmanim_block.h"
#include "zmanim/core/zmanim_labels.h"
#include "zmanim/custom_zmanim.h"
#include "zmanim/zmanim_in_use.h"
#include "zmanim/zmanim_measures.h"

namespace {

constexpr int kWidestTipHundredthInches = 400;
constexpr int kShownMilliseconds = 30000;  // long enough to read a definition; the system's most is 32767

// What the tooltip is about. The tool's id is the cell's index in the block; of the heading, the zman's.
struct HoveredCell {
  UINT_PTR id;
  RECT area;  // of the pane
};

HWND ContainerOf(HWND pane) {
  return GetParent(pane);
}

HWND DocumentOf(HWND pane) {
  return GetParent(ContainerOf(pane));
}

bool IsHeading(HWND pane) {
  return GetDlgCtrlID(pane) == IDC_ZMANIM_HEADING;
}

HWND TooltipOf(HWND container) {
  return static_cast<HWND>(GetPropA(container, property::kZmanimTooltip));
}

ZmanimGeometry GeometryOf(HWND pane) {
  const HWND document = DocumentOf(pane);
  const HFONT font = GetFontProperty(document, IsHeading(pane) ? property::kBoldZmanimFont : property::kZmanimFont);
  const ScopedWindowDc dc(pane);
  return MeasureZmanimTable(GetDlgItem(ContainerOf(pane), IDC_ZMANIM_TABLE), dc.dc(), font,
                            GetBlockProperty(document, property::kZmanimTimes),
                            GetBlockProperty(document, property::kZmanimLabels));
}

std::optional<HoveredCell> HeadingCellAt(const ZmanimGeometry& geometry, POINT point) {
  if (point.x >= geometry.clientWidth) return std::nullopt;  // beside the numbers
  const IndexRange zmanim = geometry.ZmanimIn({point.x, 0, 1, 1});
  if (zmanim.begin == zmanim.end) return std::nullopt;
  const int x = geometry.ColumnX(zmanim.begin);
  return HoveredCell{zmanim.begin, {x, 0, x + geometry.ColumnWidth(), geometry.rowHeight}};
}

std::optional<HoveredCell> TableCellAt(const ZmanimGeometry& geometry, POINT point) {
  const std::optional<ZmanimCell> cell = geometry.CellAt(point.x, point.y);
  if (!cell) return std::nullopt;
  const PaneRect rect = geometry.CellRect(*cell);
  return HoveredCell{UINT_PTR{cell->day} * kMostZmanim + cell->zman, {rect.x, rect.y, rect.Right(), rect.Bottom()}};
}

std::optional<HoveredCell> CellAt(HWND pane, POINT point) {
  const ZmanimGeometry geometry = GeometryOf(pane);
  return IsHeading(pane) ? HeadingCellAt(geometry, point) : TableCellAt(geometry, point);
}

HWND CreateTooltip(HWND container) {
  const HWND tooltip =
      CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX, CW_USEDEFAULT, CW_USEDEFAULT,
                      CW_USEDEFAULT, CW_USEDEFAULT, container, nullptr,
                      reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(container, GWLP_HINSTANCE)), nullptr);
  if (!tooltip) return nullptr;
  const ScopedWindowDc display(nullptr);
  SendMessageW(tooltip, TTM_SETMAXTIPWIDTH, 0,
               MulDiv(kWidestTipHundredthInches, GetDeviceCaps(display.dc(), LOGPIXELSX), 100));
  SendMessageW(tooltip, TTM_SETDELAYTIME, TTDT_AUTOPOP, kShownMilliseconds);
  SetPropA(container, property::kZmanimTooltip, tooltip);
  return tooltip;
}

// The fields that every version of the system's controls knows.
TTTOOLINFOW EmptyTool() {
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V2_SIZE;
  return tool;
}

std::optional<TTTOOLINFOW> CurrentTool(HWND tooltip) {
  TTTOOLINFOW tool = EmptyTool();
  if (!SendMessageW(tooltip, TTM_ENUMTOOLSW, 0, reinterpret_cast<LPARAM>(&tool))) return std::nullopt;
  return tool;
}

void AddTool(HWND tooltip, HWND pane, const HoveredCell& cell) {
  TTTOOLINFOW tool = EmptyTool();
  tool.hwnd = pane;
  tool.uId = cell.id;
  tool.rect = cell.area;
  tool.lpszText = LPSTR_TEXTCALLBACKW;
  SendMessageW(tooltip, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

// A tool of its own for each cell, so that the system takes the old tooltip away and waits anew; within a cell nothing
// changes.
void Follow(HWND pane, POINT point) {
  const HWND container = ContainerOf(pane);
  const std::optional<HoveredCell> cell = CellAt(pane, point);
  HWND tooltip = TooltipOf(container);
  if (!tooltip && cell) tooltip = CreateTooltip(container);
  if (!tooltip) return;
  if (const std::optional<TTTOOLINFOW> tool = CurrentTool(tooltip)) {
    if (cell && tool->hwnd == pane && tool->uId == cell->id && EqualRect(&tool->rect, &cell->area)) return;
    DropZmanimTooltip(container);
  }
  if (cell) AddTool(tooltip, pane, *cell);
}

void Relay(HWND pane, UINT message, WPARAM wParam, LPARAM lParam) {
  const HWND tooltip = TooltipOf(ContainerOf(pane));
  if (!tooltip) return;
  MSG relayed{pane, message, wParam, lParam, static_cast<DWORD>(GetMessageTime()), {}};
  relayed.pt = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  ClientToScreen(pane, &relayed.pt);
  SendMessageW(tooltip, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}

std::wstring Wide(const std::string& windows1252) {
  const int bytes = static_cast<int>(windows1252.size());
  std::wstring wide(windows1252.size(), L'\0');
  wide.resize(static_cast<std::size_t>(MultiByteToWideChar(1252, 0, windows1252.data(), bytes, wide.data(), bytes)));
  return wide;
}

// Empty when the library has not the entry, or not the zman any more.
std::wstring LibraryDefinition(const std::string& description) {
  const auto getDefinition = OptionalEntries.HoursGetDefinition;
  const std::optional<uint32_t> zman = getDefinition ? LibraryZmanNamed(description) : std::nullopt;
  if (!zman) return {};
  std::wstring text(getDefinition(*zman, nullptr, 0), L'\0');
  if (text.empty() || !getDefinition(*zman, text.data(), static_cast<uint32_t>(text.size()))) return {};
  text.resize(text.find(L'\0'));
  return text;
}

// A document's zman as it stands in its labels, which may be those of an earlier selection.
struct NamedZman {
  std::string name;
  std::wstring definition;
  bool isOfLibrary;
};

std::optional<NamedZman> ZmanOf(HWND document, uint32_t zman) {
  const ScopedGlobalLock<const ZmanimLabels> labels(GetBlockProperty(document, property::kZmanimLabels));
  if (!labels || zman >= labels->count) return std::nullopt;
  NamedZman named{labels->zmanim[zman].english, {}, labels->fromLibrary != 0};
  if (!named.isOfLibrary) {
    named.definition = Wide(kBuiltInZmanimTexts[zman].rule);
  } else if (AreInUse(*labels.get())) {  // else the same name may mean another zman now
    named.definition = LibraryDefinition(named.name);
  }
  return named;
}

// Whether the time that the document shows is the one that is stored.
bool IsSetByHand(HWND document, const std::string& description, uint32_t day, uint32_t zman) {
  const ScopedGlobalLock<const ZmanimBlock> block(GetBlockProperty(document, property::kZmanimTimes));
  if (!block || day >= block->count) return false;
  ScopedCustomZmanim store;
  ClockTime time{};
  return GetCustomZman(store.get(), block->days[day].date, description, DocumentPlace(document).c_str(), time) &&
         time == block->days[day].times[zman];
}

std::wstring TextOf(HWND pane, UINT_PTR id) {
  const HWND document = DocumentOf(pane);
  const auto zman = static_cast<uint32_t>(id % kMostZmanim);
  const std::optional<NamedZman> named = ZmanOf(document, zman);
  if (!named) return {};
  std::wstring text = Wide(named->name);
  if (!named->definition.empty()) text += L"\r\n" + named->definition;
  if (IsHeading(pane) || !named->isOfLibrary) return text;
  if (IsSetByHand(document, named->name, static_cast<uint32_t>(id / kMostZmanim), zman)) text += L"\r\nSet by hand.";
  return text;
}

// The system reads the text until it asks for the next one.
void OnGetText(HWND pane, NMTTDISPINFOW& notice) {
  static std::wstring shown;
  shown = TextOf(pane, notice.hdr.idFrom);
  notice.lpszText = shown.data();
}

}  // namespace

std::optional<LRESULT> ZmanimTooltipMessage(HWND pane, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_NOTIFYFORMAT:
      if (lParam == NF_QUERY) return NFR_UNICODE;  // the panes' own class is not
      break;
    case WM_NOTIFY:
      if (reinterpret_cast<const NMHDR*>(lParam)->code != TTN_GETDISPINFOW) break;
      OnGetText(pane, *reinterpret_cast<NMTTDISPINFOW*>(lParam));
      return 0;
    case WM_KILLFOCUS:  // another document, view or program comes up
      DropZmanimTooltip(ContainerOf(pane));
      break;
    case WM_MOUSEMOVE: Follow(pane, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}); [[fallthrough]];
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_MBUTTONDOWN:
    case WM_MBUTTONUP:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONUP: Relay(pane, message, wParam, lParam); break;
  }
  return std::nullopt;
}

void FollowMouseOverZmanim(HWND container) {
  if (!TooltipOf(container)) return;
  POINT point;
  if (!GetCursorPos(&point)) return;
  const HWND pane = WindowFromPoint(point);
  const bool isOurs =
      pane && (pane == GetDlgItem(container, IDC_ZMANIM_TABLE) || pane == GetDlgItem(container, IDC_ZMANIM_HEADING));
  if (!isOurs) return DropZmanimTooltip(container);
  ScreenToClient(pane, &point);
  ZmanimTooltipMessage(pane, WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y));
}

void DropZmanimTooltip(HWND container) {
  const HWND tooltip = TooltipOf(container);
  if (!tooltip) return;
  if (std::optional<TTTOOLINFOW> tool = CurrentTool(tooltip)) {
    SendMessageW(tooltip, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&*tool));
  }
}

void DestroyZmanimTooltip(HWND container) {
  const HWND tooltip = static_cast<HWND>(RemovePropA(container, property::kZmanimTooltip));
  if (tooltip) DestroyWindow(tooltip);
}
