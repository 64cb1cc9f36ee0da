#include "tests/monkey/input.h"

#include "tests/monkey/running_program.h"

namespace {

// F1 is left out, since it starts the browser, and so is F10 with the keys that go on from a menu to a command.
constexpr WPARAM kKeys[] = {VK_TAB,  VK_TAB,  VK_RETURN, VK_SPACE,  VK_UP,   VK_DOWN,   VK_LEFT, VK_RIGHT,   VK_PRIOR,
                            VK_NEXT, VK_HOME, VK_END,    VK_DELETE, VK_BACK, VK_INSERT, VK_F2,   VK_F4,      VK_F5,
                            VK_F6,   VK_ADD,  VK_ESCAPE, '0',       '5',     '9',       VK_APPS, VK_SUBTRACT};

// No separators of paths: a file name made of these stays in the working folder. Neither b nor h, the letters of Browse
// and Help, which would press these where a dialog takes letters for buttons.
constexpr wchar_t kCharacters[] = L"0123456789.-+ aceikmnorstuxz;,\"'=[]\u05D0\u05E9\u00E9\u20AC\t\x1B";

constexpr const wchar_t* kTexts[] = {L"1.1.2026",
                                     L"31.12.2026",
                                     L"1.1.2027",
                                     L"28.2.2028",
                                     L"29.2.2027",
                                     L"31.2.1",
                                     L"0.0.0",
                                     L"1.1.1",
                                     L"1.1.1583",
                                     L"31.12.2239",
                                     L"31.12.9999",
                                     L"1.1.99999",
                                     L"-1.-1.-1",
                                     L"1/2/2026",
                                     L"0",
                                     L"1",
                                     L"5",
                                     L"12",
                                     L"18",
                                     L"23",
                                     L"24",
                                     L"40",
                                     L"45",
                                     L"59",
                                     L"60",
                                     L"72",
                                     L"89",
                                     L"90",
                                     L"179",
                                     L"180",
                                     L"2026",
                                     L"5787",
                                     L"99999",
                                     L"-1",
                                     L"-99999",
                                     L"2147483648",
                                     L"8.5",
                                     L"8,5",
                                     L"-8.5",
                                     L"1e9",
                                     L"16.1",
                                     L"NaN",
                                     L"",
                                     L" ",
                                     L"Jerusalem",
                                     L"Aachen",
                                     L"Troms\u00F8",
                                     L"My place",
                                     L"zz",
                                     L";",
                                     L"\t",
                                     L"=x=",
                                     L"[Locations]",
                                     L"times.txt",
                                     L"dates.txt",
                                     L"no such folder\\times.txt",
                                     L"NUL",
                                     L"\u05D9\u05E8\u05D5\u05E9\u05DC\u05D9\u05DD",
                                     L"%s%n%d",
                                     L"\u20AC\u00B0\u2019"};

constexpr LPARAM kFirstPress = 1;  // the repeat count of a key message

LPARAM Packed(POINT point) {
  return MAKELPARAM(point.x, point.y);
}

}  // namespace

std::string Input::Key(HWND window, WPARAM key) const {
  const std::string where = Describe(window);  // which the key may close
  PostMessageA(window, WM_KEYDOWN, key, kFirstPress);
  PostMessageA(window, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
  return "key " + std::to_string(key) + " to " + where;
}

std::string Input::AnyKey(HWND window) {
  const WPARAM key = dice_.Pick(kKeys);
  std::string what;
  for (int times = dice_.Chance(10) ? 30 : 1; times > 0; --times) what = Key(window, key);
  return what;
}

std::string Input::Characters(HWND window, const std::wstring& text) const {
  for (const wchar_t character : text) PostMessageW(window, WM_CHAR, character, kFirstPress);
  return "type " + std::to_string(text.size()) + " characters into " + Describe(window);
}

std::string Input::AnyCharacter(HWND window) {
  constexpr std::size_t kCount = std::size(kCharacters) - 1;
  return Characters(window, std::wstring(1, kCharacters[dice_.Below(kCount)]));
}

std::string Input::Click(HWND window, POINT point, bool twice) const {
  PostMessageA(window, WM_MOUSEMOVE, 0, Packed(point));
  PostMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON, Packed(point));
  PostMessageA(window, WM_LBUTTONUP, 0, Packed(point));
  if (twice) {
    PostMessageA(window, WM_LBUTTONDBLCLK, MK_LBUTTON, Packed(point));
    PostMessageA(window, WM_LBUTTONUP, 0, Packed(point));
  }
  return std::string(twice ? "double-click " : "click ") + std::to_string(point.x) + "," + std::to_string(point.y) +
         " of " + Describe(window);
}

std::string Input::ClickButton(HWND button) const {
  const std::string what = "press " + Describe(button);
  PostMessageA(button, BM_CLICK, 0, 0);
  return what;
}

// A little outside too, as a mouse that is dragged.
POINT Input::AnyPoint(HWND window) {
  RECT client;
  GetClientRect(window, &client);
  return {dice_.Between(-2, client.right + 2), dice_.Between(-2, client.bottom + 2)};
}

std::string Input::AnyMouse(HWND window) {
  const POINT point = AnyPoint(window);
  const std::string where = Describe(window);
  switch (dice_.Between(1, 6)) {
    case 1: return Click(window, point);
    case 2: return Click(window, point, true);
    case 3:  // a drag
      PostMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON, Packed(point));
      for (int i = 0; i < 5; ++i) PostMessageA(window, WM_MOUSEMOVE, MK_LBUTTON, Packed(AnyPoint(window)));
      PostMessageA(window, WM_LBUTTONUP, 0, Packed(AnyPoint(window)));
      return "drag in " + where;
    case 4: {
      POINT onScreen = point;
      ClientToScreen(window, &onScreen);
      const int clicks = dice_.Between(-20, 20);
      PostMessageA(window, WM_MOUSEWHEEL, MAKEWPARAM(0, clicks * WHEEL_DELTA), Packed(onScreen));
      return "wheel by " + std::to_string(clicks) + " over " + where;
    }
    case 5:
      PostMessageA(window, WM_RBUTTONDOWN, MK_RBUTTON, Packed(point));
      PostMessageA(window, WM_RBUTTONUP, 0, Packed(point));
      return "right click in " + where;
  }
  PostMessageA(window, WM_MOUSEMOVE, 0, Packed(point));
  return "move over " + where;
}

std::string Input::AnyScroll(HWND window) {
  constexpr WORD kRequests[] = {SB_LINEUP, SB_LINEDOWN,   SB_PAGEUP,        SB_PAGEDOWN, SB_TOP,
                                SB_BOTTOM, SB_THUMBTRACK, SB_THUMBPOSITION, SB_ENDSCROLL};
  const UINT message = dice_.Chance(50) ? WM_VSCROLL : WM_HSCROLL;
  const WORD request = dice_.Pick(kRequests);
  const int position = dice_.Chance(20) ? 0xFFFF : dice_.Between(0, 400);
  PostMessageA(window, message, MAKEWPARAM(request, position), 0);
  return "scroll " + std::to_string(request) + " to " + std::to_string(position) + " in " + Describe(window);
}

// The system handles messages in a loop of its own until the button is let go.
std::string Input::PressScrollBar(HWND window) {
  RECT bounds;
  GetWindowRect(window, &bounds);
  const LPARAM edge = Packed({bounds.right - dice_.Between(1, 12), dice_.Between(bounds.top, bounds.bottom)});
  const LPARAM bottom = Packed({dice_.Between(bounds.left, bounds.right), bounds.bottom - dice_.Between(1, 12)});
  const bool vertical = dice_.Chance(50);
  PostMessageA(window, WM_NCLBUTTONDOWN, vertical ? HTVSCROLL : HTHSCROLL, vertical ? edge : bottom);
  PostMessageA(window, WM_MOUSEMOVE, MK_LBUTTON, Packed(AnyPoint(window)));
  PostMessageA(window, WM_LBUTTONUP, 0, Packed(AnyPoint(window)));
  return std::string("press the ") + (vertical ? "vertical" : "horizontal") + " scroll bar of " + Describe(window);
}

std::wstring Input::AnyDate() {
  const int year = dice_.Chance(70) ? dice_.Between(2026, 2028) : dice_.Between(1990, 2070);
  return std::to_wstring(dice_.Between(1, 28)) + L"." + std::to_wstring(dice_.Between(1, 12)) + L"." +
         std::to_wstring(year);
}

std::wstring Input::AnyText() {
  if (dice_.Chance(5)) return std::wstring(300, dice_.Chance(50) ? L'9' : L'\u05D0');
  if (dice_.Chance(80)) return dice_.Pick(kTexts);
  std::wstring text;
  for (int left = dice_.Between(1, 12); left > 0; --left) {
    text += kCharacters[dice_.Below(std::size(kCharacters) - 1)];
  }
  return text;
}
