#include "app/open_document.h"

#include <string>

#include "app/compute_document.h"
#include "app/core/document_title.h"
#include "app/program.h"
#include "document/document_fonts.h"
#include "engine/current.h"
#include "engine/properties.h"
#include "resources/ids.h"
#include "shabbat/shabbat_panes.h"
#include "win/class_names.h"

namespace {

// Deliberate: the years go under the names of the days, and the years' own properties stay empty. It does no harm,
// since whoever opens a document computes it next, which sets all six.
void SetRangeOfNewDocument(HWND document, const DateRange& range) {
  SetIntegerProperty(document, property::kStartDay, static_cast<int32_t>(range.start.uDay));
  SetIntegerProperty(document, property::kStartMonth, static_cast<int32_t>(range.start.uMonth));
  SetIntegerProperty(document, property::kStartDay, static_cast<int32_t>(range.start.uYear));
  SetIntegerProperty(document, property::kEndDay, static_cast<int32_t>(range.end.uDay));
  SetIntegerProperty(document, property::kEndMonth, static_cast<int32_t>(range.end.uMonth));
  SetIntegerProperty(document, property::kEndDay, static_cast<int32_t>(range.end.uYear));
}

}  // namespace

HWND OpenDocument(HWND frame) {
  const std::string title = DocumentTitle(CurrentLocation.name, CurrentRange);
  RECT client;
  GetClientRect(frame, &client);
  MDICREATESTRUCTA create{};
  create.szClass = window_class::kDocument;
  create.szTitle = title.c_str();
  create.hOwner = Program.instance;
  create.cx = client.right;
  create.cy = client.bottom;
  create.style = WS_CLIPCHILDREN;
  const auto document =
      reinterpret_cast<HWND>(SendMessageA(Program.mdiClient, WM_MDICREATE, 0, reinterpret_cast<LPARAM>(&create)));
  if (!document) return nullptr;
  MakeDocumentFonts(document);
  // The window was laid out while it was created, before it had its fonts.
  RECT documentClient;
  GetClientRect(document, &documentClient);
  SendMessageA(document, WM_SIZE, IsZoomed(document) ? SIZE_MAXIMIZED : SIZE_RESTORED,
               MAKELPARAM(documentClient.right, documentClient.bottom));
  SetRangeOfNewDocument(document, CurrentRange);
  return document;
}

void OpenAndCompute(HWND frame) {
  const HWND document = OpenDocument(frame);
  if (!document) return;
  CalculateShabbatTimes(document, CurrentRange.start.uDay, CurrentRange.start.uMonth, CurrentRange.start.uYear,
                        CurrentRange.end.uDay, CurrentRange.end.uMonth, CurrentRange.end.uYear);
  const HWND listPane = GetDlgItem(document, IDC_LIST_PANE);
  InvalidateRect(listPane, nullptr, TRUE);
  SetListPaneScrollRange(listPane);
  InvalidateRect(listPane, nullptr, TRUE);
}
