// Handles and states that end with their scope.
#pragma once

#include <windows.h>

// Puts an object into a device context for the scope. A null object leaves the context as it is.
class ScopedSelect {
 public:
  ScopedSelect(HDC dc, HGDIOBJ object) : dc_(dc), old_(object ? SelectObject(dc, object) : nullptr) {}
  ~ScopedSelect() {
    if (old_) SelectObject(dc_, old_);
  }
  ScopedSelect(const ScopedSelect&) = delete;
  ScopedSelect& operator=(const ScopedSelect&) = delete;

 private:
  HDC dc_;
  HGDIOBJ old_;
};

// Text colour, and the colour behind the text.
class ScopedTextColors {
 public:
  ScopedTextColors(HDC dc, COLORREF text, COLORREF background)
      : dc_(dc), oldText_(SetTextColor(dc, text)), oldBackground_(SetBkColor(dc, background)) {}
  ~ScopedTextColors() {
    SetTextColor(dc_, oldText_);
    SetBkColor(dc_, oldBackground_);
  }
  ScopedTextColors(const ScopedTextColors&) = delete;
  ScopedTextColors& operator=(const ScopedTextColors&) = delete;

 private:
  HDC dc_;
  COLORREF oldText_;
  COLORREF oldBackground_;
};

// A pen, brush or font of the scope's own.
template <typename Handle>
class ScopedGdiObject {
 public:
  explicit ScopedGdiObject(Handle handle) : handle_(handle) {}
  ~ScopedGdiObject() {
    if (handle_) DeleteObject(handle_);
  }
  ScopedGdiObject(const ScopedGdiObject&) = delete;
  ScopedGdiObject& operator=(const ScopedGdiObject&) = delete;
  Handle get() const { return handle_; }

 private:
  Handle handle_;
};

// BeginPaint and EndPaint.
class ScopedPaint {
 public:
  explicit ScopedPaint(HWND window) : window_(window), dc_(BeginPaint(window, &paint_)) {}
  ~ScopedPaint() { EndPaint(window_, &paint_); }
  ScopedPaint(const ScopedPaint&) = delete;
  ScopedPaint& operator=(const ScopedPaint&) = delete;
  HDC dc() const { return dc_; }
  const RECT& area() const { return paint_.rcPaint; }  // what is to be painted lies in it

 private:
  HWND window_;
  PAINTSTRUCT paint_{};
  HDC dc_;
};

// A device context of a window, or of the whole display for a null window.
class ScopedWindowDc {
 public:
  explicit ScopedWindowDc(HWND window) : window_(window), dc_(GetDC(window)) {}
  ~ScopedWindowDc() { ReleaseDC(window_, dc_); }
  ScopedWindowDc(const ScopedWindowDc&) = delete;
  ScopedWindowDc& operator=(const ScopedWindowDc&) = delete;
  HDC dc() const { return dc_; }

 private:
  HWND window_;
  HDC dc_;
};

// A movable block, locked. Null for a null block.
template <typename Record>
class ScopedGlobalLock {
 public:
  explicit ScopedGlobalLock(HGLOBAL block)
      : block_(block), record_(block ? static_cast<Record*>(GlobalLock(block)) : nullptr) {}
  ~ScopedGlobalLock() {
    if (record_) GlobalUnlock(block_);
  }
  ScopedGlobalLock(const ScopedGlobalLock&) = delete;
  ScopedGlobalLock& operator=(const ScopedGlobalLock&) = delete;
  Record* get() const { return record_; }
  Record* operator->() const { return record_; }
  explicit operator bool() const { return record_ != nullptr; }

 private:
  HGLOBAL block_;
  Record* record_;
};

// The hourglass, for work on the user-interface thread.
class ScopedWaitCursor {
 public:
  ScopedWaitCursor() : old_(SetCursor(LoadCursor(nullptr, IDC_WAIT))) {}
  ~ScopedWaitCursor() { SetCursor(old_); }
  ScopedWaitCursor(const ScopedWaitCursor&) = delete;
  ScopedWaitCursor& operator=(const ScopedWaitCursor&) = delete;

 private:
  HCURSOR old_;
};
