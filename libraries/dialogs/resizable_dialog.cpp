#include "libraries/dialogs/resizable_dialog.h"

#include <algorithm>
#include <string>

#include "companion/profile.h"

namespace dialogs {
namespace {

// The size of the client area in dialog units, so that it suits every resolution of the display.
constexpr char kSection[] = "Dialog";
constexpr char kWidth[] = "Width";
constexpr char kHeight[] = "Height";
constexpr LONG kMostUnits = 4000;
constexpr LONG kMarginUnits = 7;  // around the controls of every dialog

SIZE SizeOf(const RECT& rectangle) {
  return {rectangle.right - rectangle.left, rectangle.bottom - rectangle.top};
}

SIZE ClientSizeOf(HWND window) {
  RECT client;
  GetClientRect(window, &client);
  return SizeOf(client);
}

// The pixels of kMostUnits dialog units in each direction.
SIZE PixelsOfMostUnits(HWND dialog) {
  RECT rectangle = {0, 0, kMostUnits, kMostUnits};
  MapDialogRect(dialog, &rectangle);
  return SizeOf(rectangle);
}

// The client area that the controls need as the template has laid them out. The system makes no dialog larger than the
// screen, whatever its template says.
SIZE LayoutSizeOf(HWND dialog) {
  RECT margin = {0, 0, kMarginUnits, kMarginUnits};
  MapDialogRect(dialog, &margin);
  SIZE size = ClientSizeOf(dialog);
  for (HWND control = GetWindow(dialog, GW_CHILD); control; control = GetWindow(control, GW_HWNDNEXT)) {
    RECT rectangle;
    GetWindowRect(control, &rectangle);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rectangle), 2);
    size.cx = std::max(size.cx, rectangle.right + margin.right);
    size.cy = std::max(size.cy, rectangle.bottom + margin.bottom);
  }
  return size;
}

RECT WorkAreaAt(HWND window) {
  MONITORINFO monitor = {};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
  return monitor.rcWork;
}

// Where a length lies that is centred on an other one, but within bounds; at their beginning when it is longer.
LONG Centred(LONG length, LONG otherBegin, LONG otherEnd, LONG boundBegin, LONG boundEnd) {
  const LONG centred = otherBegin + (otherEnd - otherBegin - length) / 2;
  return std::max(boundBegin, std::min(centred, boundEnd - length));
}

void PlaceOverOwner(HWND dialog, SIZE size) {
  const HWND owner = GetWindow(dialog, GW_OWNER);
  const RECT work = WorkAreaAt(owner ? owner : dialog);
  RECT below = work;
  if (owner && !IsIconic(owner)) GetWindowRect(owner, &below);
  size = {std::min(size.cx, work.right - work.left), std::min(size.cy, work.bottom - work.top)};
  SetWindowPos(dialog, nullptr, Centred(size.cx, below.left, below.right, work.left, work.right),
               Centred(size.cy, below.top, below.bottom, work.top, work.bottom), size.cx, size.cy,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

void Keep(const char* file, const char* key, LONG pixels, LONG pixelsOfMostUnits) {
  const std::string units = std::to_string(MulDiv(pixels, kMostUnits, pixelsOfMostUnits));
  ProfileWriteString(kSection, key, units.c_str(), file);
}

void Apply(Follow follow, LONG growth, LONG& begin, LONG& end) {
  if (follow == Follow::kMove) begin += growth;
  if (follow != Follow::kNo) end += growth;
}

}  // namespace

void ResizableDialog::Start(HWND dialog, std::span<const Anchor> anchors, const char* file) {
  file_ = file;
  for (const Anchor& anchor : anchors) {
    Control control = {GetDlgItem(dialog, anchor.control), {}, anchor};
    GetWindowRect(control.window, &control.rectangle);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&control.rectangle), 2);
    controls_.push_back(control);
  }
  RECT window;
  GetWindowRect(dialog, &window);
  const SIZE made = ClientSizeOf(dialog);
  leastClient_ = LayoutSizeOf(dialog);
  leastWindow_ = {SizeOf(window).cx + leastClient_.cx - made.cx, SizeOf(window).cy + leastClient_.cy - made.cy};
  dialog_ = dialog;
  area_.Start(dialog, leastClient_);
  const SIZE client = KeptClientSize();
  PlaceOverOwner(dialog,
                 {leastWindow_.cx + client.cx - leastClient_.cx, leastWindow_.cy + client.cy - leastClient_.cy});
}

SIZE ResizableDialog::KeptClientSize() const {
  const auto units = [this](const char* key) {
    return std::clamp<LONG>(ProfileGetInt(kSection, key, 0, file_), 0, kMostUnits);
  };
  RECT kept = {0, 0, units(kWidth), units(kHeight)};
  MapDialogRect(dialog_, &kept);
  return {std::max(kept.right, leastClient_.cx), std::max(kept.bottom, leastClient_.cy)};
}

void ResizableDialog::ArrangeControls() {
  if (!dialog_) return;
  const SIZE layout = area_.Fit();
  const POINT position = area_.Position();
  HDWP positions = BeginDeferWindowPos(static_cast<int>(controls_.size()));
  for (const Control& control : controls_) {
    RECT rectangle = control.rectangle;
    Apply(control.anchor.horizontal, layout.cx - leastClient_.cx, rectangle.left, rectangle.right);
    Apply(control.anchor.vertical, layout.cy - leastClient_.cy, rectangle.top, rectangle.bottom);
    OffsetRect(&rectangle, -position.x, -position.y);
    const SIZE size = SizeOf(rectangle);
    positions = DeferWindowPos(positions, control.window, nullptr, rectangle.left, rectangle.top, size.cx, size.cy,
                               SWP_NOZORDER | SWP_NOACTIVATE);
  }
  EndDeferWindowPos(positions);
}

void ResizableDialog::LimitSize(MINMAXINFO& limits) const {
  if (!dialog_) return;
  const SIZE work = SizeOf(WorkAreaAt(dialog_));
  limits.ptMinTrackSize = {std::min(leastWindow_.cx, work.cx), std::min(leastWindow_.cy, work.cy)};
}

void ResizableDialog::KeepSize() const {
  if (!dialog_) return;
  const SIZE client = ClientSizeOf(dialog_);
  const SIZE kept = KeptClientSize();
  if (client.cx == kept.cx && client.cy == kept.cy) return;
  const SIZE mostUnits = PixelsOfMostUnits(dialog_);
  Keep(file_, kWidth, client.cx, mostUnits.cx);
  Keep(file_, kHeight, client.cy, mostUnits.cy);
}

}  // namespace dialogs
