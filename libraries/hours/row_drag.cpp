#include "libraries/hours/row_drag.h"

#include <utility>

namespace hours {
namespace {

constexpr UINT_PTR kTimer = 1;
constexpr UINT kScrollMilliseconds = 80;

}  // namespace

void RowDrag::Begin(HWND dialog, const ZmanList& list, std::size_t row, Move move) {
  dialog_ = dialog;
  list_ = &list;
  move_ = std::move(move);
  start_ = row_ = row;
  RECT rectangle = {LVIR_BOUNDS, 0, 0, 0};
  SendMessageW(list.Window(), LVM_GETITEMRECT, row, reinterpret_cast<LPARAM>(&rectangle));
  mouse_ = {rectangle.left, rectangle.top};
  SetCapture(dialog);
  SetTimer(dialog, kTimer, kScrollMilliseconds, nullptr);
}

void RowDrag::OnMouse(POINT point) {
  mouse_ = point;
  MapWindowPoints(dialog_, list_->Window(), &mouse_, 1);
  RECT client;
  GetClientRect(list_->Window(), &client);
  const bool isBeside = mouse_.y < client.top || mouse_.y >= client.bottom;
  if (isBeside) return;
  if (const auto row = list_->RowAt({client.left + 1, mouse_.y})) MoveTo(*row);
}

void RowDrag::OnTimer() {
  RECT client;
  GetClientRect(list_->Window(), &client);
  if (mouse_.y < client.top && row_ > 0) MoveTo(row_ - 1);
  if (mouse_.y >= client.bottom && row_ + 1 < list_->Count()) MoveTo(row_ + 1);
}

void RowDrag::MoveTo(std::size_t row) {
  if (row == row_) return;
  const std::size_t from = std::exchange(row_, row);
  move_(from, row);
}

void RowDrag::Drop() {
  if (IsUnderWay()) End();
}

void RowDrag::Cancel() {
  if (!IsUnderWay()) return;
  MoveTo(start_);
  End();
}

void RowDrag::End() {
  move_ = nullptr;
  KillTimer(dialog_, kTimer);
  if (GetCapture() == dialog_) ReleaseCapture();
}

}  // namespace hours
