#pragma once

// How the RTF files are written.
enum class RtfForm {
  // The form that the program has always had. Some word processors take two of its tables for one, or a blank for a
  // part of a font's name.
  kUsual,
  // What every word processor opens: each table tells where it begins, names are escaped, the fonts of Hebrew texts are
  // told with their charset and without a blank before them.
  kForAllWordProcessors,
};

// What begins the definition of a table's cells. Without it a table adds its cells to those of the table before.
constexpr const char* StartOfTable(RtfForm form) {
  return form == RtfForm::kForAllWordProcessors ? "\\trowd" : "";
}
