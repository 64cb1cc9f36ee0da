#include "app/export_commands.h"

#include "app/active_document.h"
#include "app/delimited_export_dialog.h"
#include "readings/export_readings.h"
#include "resources/ids.h"
#include "shabbat/export_shabbat.h"
#include "zmanim/export_zmanim.h"

namespace {

// The second layout of every view; only that of the Shabbat times has two forms.
void ExportSecondRtf(HWND frame, RtfLayout shabbatLayout) {
  const HWND document = ActiveDocument();
  if (!document) return;
  if (IsPaneVisible(document, IDC_LIST_PANE)) {
    ExportShabbatRtf(frame, document, shabbatLayout);
  } else if (IsPaneVisible(document, IDC_ZMANIM_PANE)) {
    ExportZmanimByDay(frame, document);
  } else {
    ExportReadingsNarrow(frame, document);
  }
}

}  // namespace

void ExportText(HWND frame) {
  const HWND document = ActiveDocument();
  if (!document) return;
  if (IsPaneVisible(document, IDC_LIST_PANE)) {
    ExportShabbatText(frame, document);
  } else if (IsPaneVisible(document, IDC_ZMANIM_PANE)) {
    ExportZmanim(frame, document, ExportFormat::kText);
  } else {
    ExportReadings(frame, document, ExportFormat::kText);
  }
}

void ExportRtf(HWND frame) {
  const HWND document = ActiveDocument();
  if (!document) return;
  if (IsPaneVisible(document, IDC_LIST_PANE)) {
    ChooseShabbatRtf(frame, document);
  } else if (IsPaneVisible(document, IDC_ZMANIM_PANE)) {
    ExportZmanim(frame, document, ExportFormat::kRtf);
  } else {
    ExportReadings(frame, document, ExportFormat::kRtf);
  }
}

void ExportRtfInThreeColumns(HWND frame) {
  ExportSecondRtf(frame, RtfLayout::kThreeColumns);
}
void ExportRtfInTwoColumns(HWND frame) {
  ExportSecondRtf(frame, RtfLayout::kTwoColumns);
}

void ExportZmanimByDayLater(HWND frame) {
  PostMessageA(frame, WM_COMMAND, IDM_EXPORT_RTF_THREE_COLUMNS, 0);
}
void ExportReadingsNarrowLater(HWND frame) {
  PostMessageA(frame, WM_COMMAND, IDM_EXPORT_RTF_TWO_COLUMNS, 0);
}

void ExportZmanimDelimited(HWND frame) {
  if (const HWND document = ActiveDocument()) RunZmanimExportDialog(frame, document);
}
void ExportDatesDelimited(HWND frame) {
  if (const HWND document = ActiveDocument()) RunDatesExportDialog(frame, document);
}
