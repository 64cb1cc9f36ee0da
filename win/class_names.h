// The window classes of the program. Windows of the sibling calendar find the frame by its class name.
#pragma once

namespace window_class {

inline constexpr char kFrame[] = "ShabbatMain";
inline constexpr char kDocument[] = "ShabbatChild";
inline constexpr char kToolbar[] = "ShabbatToolbar";
inline constexpr char kIconButton[] = "ShabbatIconButton";
inline constexpr char kHeaderPane[] = "ShabbatChildOne";
inline constexpr char kListPane[] = "ShabbatChildTwo";
inline constexpr char kZmanimContainer[] = "ShabbatZmanim";
inline constexpr char kZmanimHeadingPane[] = "ShabbatZmanimOne";
inline constexpr char kZmanimTablePane[] = "ShabbatZmanimTwo";
inline constexpr char kZmanimLegendPane[] = "ShabbatZmanimThree";
inline constexpr char kReadingsContainer[] = "ShabbatParasha";
inline constexpr char kReadingsHeaderPane[] = "ShabbatParashaOne";
inline constexpr char kReadingsListPane[] = "ShabbatParashaTwo";
inline constexpr char kTooltip[] = "ShabbatComment";

}  // namespace window_class
