#include "benchmarks/documents_bench.h"

#include <windows.h>

#include <cstdio>
#include <filesystem>
#include <numeric>
#include <string>

#include "app/document_file.h"
#include "app/taken_document.h"
#include "benchmarks/measured.h"
#include "benchmarks/zmanim_bench.h"
#include "engine/bound_entries.h"
#include "engine/properties.h"
#include "readings/readings_list.h"
#include "shabbat/shabbat_list.h"
#include "zmanim/calculate_zmanim.h"

namespace {

constexpr int32_t kFirstDay = 726468;  // 1 January 1990
constexpr int32_t kDays = 32001;
constexpr uint32_t kZmanim = 40;
constexpr Location kJerusalem = {"Jerusalem", 3147, 3514, 2, 0};

struct SavedType {
  const char* name;
  DocumentType type;
};

constexpr SavedType kTypes[] = {
    {"web page", DocumentType::kHtml},   {"word processor's file", DocumentType::kRtf},
    {"spreadsheet", DocumentType::kCsv}, {"calendar", DocumentType::kCalendar},
    {"plain text", DocumentType::kText},
};

HWND Document() {
  const HWND document = CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
  const DateRange range = {DateFromAbsolute(kFirstDay), DateFromAbsolute(kFirstDay + kDays - 1)};
  SetRangeProperties(document, range);
  SetPlace(document, kJerusalem);
  ComputeZmanim(document, kJerusalem, range, LongRange::kCutSilently);
  ComputeReadings(document, range, LongRange::kCutSilently);
  ComputeShabbatTimes(document, kJerusalem, range, {true, 0});
  return document;
}

void Save(const DocumentSource& source, const DocumentForm& form, const DocumentFile& file) {
  if (SaveDocument(nullptr, source, form, file) != SavingResult::kSaved) std::fprintf(stderr, "not saved\n");
}

void MeasureKind(const DocumentSource& source, DocumentKind kind, const std::string& name, const std::wstring& path) {
  DocumentForm form;
  form.choice.kind = kind;
  form.choice.zmanim.resize(kZmanim);
  std::iota(form.choice.zmanim.begin(), form.choice.zmanim.end(), 0);
  form.rtf.face = "Arial";
  for (const SavedType& row : kTypes) {
    const DocumentFile file = {path, row.type};
    const std::string label = "32,001 " + name + " x 40 zmanim saved as " + row.name + ", ms";
    Report(label.c_str(), BestMilliseconds(1, [&] { Save(source, form, file); }));
  }
}

}  // namespace

void MeasureDocuments(const SettingsHome& home) {
  // The end that a window of an earlier measurement has asked for would cancel long jobs.
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
  if (!ChooseZmanim(home, kZmanim)) return;
  const HWND document = Document();
  {
    const TakenDocument taken(document);
    const std::wstring path = (home.Folder() / "document").wstring();
    MeasureKind(taken.source(), DocumentKind::kDays, "days", path);
    MeasureKind(taken.source(), DocumentKind::kZmanim, "days of zmanim", path);
  }
  for (const char* const block : {property::kZmanimTimes, property::kZmanimLabels, property::kParashaReadings,
                                  property::kReadingsForm, property::kShabbatTimes, property::kCity}) {
    FreeBlockProperty(document, block);
  }
  DestroyWindow(document);
}
