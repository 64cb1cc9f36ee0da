// A job of printing zmanim: what is asked of the spooler, how it is cancelled, and what the user is told.
#include "engine/properties.h"
#include "resources/ids.h"
#include "tests/program/dialog_driver.h"
#include "tests/program/printing_fixture.h"
#include "zmanim/print_abort_dialog.h"
#include "zmanim/print_zmanim.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

// A device context is asked for; no ranges of pages, no selection; copies are the driver's.
constexpr char kDialog[] = "print dialog flags 0x4010c owner yes";
constexpr char kStartDoc[] = "StartDoc 'Zmanim Times' to the printer";
constexpr char kCancelled[] =
    "message box 'Printing job cancelled successfully' caption 'Times / Readings' type 0x40 owner yes";

std::string Failure(const std::string& text, const char* owner = "yes") {
  return "message box '" + text + "' caption 'Error' type 0x10 owner " + owner;
}

class PrintJobTest : public PrintingFixture {
 protected:
  bool IsPrintEnabled() {
    SendMessageA(frame_, WM_INITMENU, reinterpret_cast<WPARAM>(GetMenu(frame_)), 0);
    return (GetMenuState(GetMenu(frame_), IDM_PRINT, MF_BYCOMMAND) & (MF_GRAYED | MF_DISABLED)) == 0;
  }

  void PrintPages(uint32_t pages) {
    UseZmanim(10 * pages);
    ComputeDays(1);
    Print();
  }
};

}  // namespace

TEST_F(PrintJobTest, TheSpoolerIsAskedInOrder) {
  PrintPages(2);
  EXPECT_THAT(CallLog(), ElementsAre(kDialog, "SetAbortProc", kStartDoc, "StartPage", "EndPage", "StartPage", "EndPage",
                                     "EndDoc", "DeleteDC"));
  EXPECT_EQ(Printer().abortProc, AbortPrinting);
}

TEST_F(PrintJobTest, WithoutDaysOrZmanimTheDocumentHasNoPages) {
  const auto expected = ElementsAre(kDialog, "SetAbortProc", kStartDoc, "EndDoc", "DeleteDC");
  PrintPages(0);
  EXPECT_THAT(CallLog(), expected);
  UseZmanim(2);
  ComputeDays(1);
  FreeBlockProperty(document_, property::kZmanimTimes);
  Print();
  EXPECT_THAT(CallLog(), expected);
}

TEST_F(PrintJobTest, TheDialogShowsThePageAndHoldsTheFrame) {
  std::vector<std::string> shown;
  Printer().onStartPage = [&](int) {
    shown.push_back(FieldText(PrintAbort.dialog, IDC_ABORT_PROGRESS));
    EXPECT_FALSE(IsWindowEnabled(frame_));
  };
  PrintPages(2);
  EXPECT_THAT(shown, ElementsAre("Page 1", "Page 2"));
  Print();
  EXPECT_THAT(shown, ElementsAre("Page 1", "Page 2", "Page 1", "Page 2"));
}

// The click waits in the queue until the page lets messages be handled.
TEST_F(PrintJobTest, CancellingStopsBeforeTheNextPage) {
  Printer().onStartPage = [](int page) {
    if (page == 2) PostMessageA(PrintAbort.dialog, WM_COMMAND, IDCANCEL, 0);
  };
  PrintPages(4);
  EXPECT_THAT(CallLog(), ElementsAre(kDialog, "SetAbortProc", kStartDoc, "StartPage", "EndPage", "StartPage", "EndPage",
                                     "AbortDoc", "DeleteDC", kCancelled));
}

TEST_F(PrintJobTest, EscapeCancelsToo) {
  Printer().onStartPage = [](int) { PostMessageA(PrintAbort.dialog, WM_KEYDOWN, VK_ESCAPE, 1); };
  PrintPages(3);
  EXPECT_THAT(CallsWith("StartPage"), SizeIs(1));
  EXPECT_EQ(CallLog().back(), kCancelled);
}

TEST_F(PrintJobTest, ThePageThatWasCancelledMayEndInAnError) {
  Printer().endPageAnswer = 0;
  Printer().onEndPage = [](int) { SendMessageA(PrintAbort.dialog, WM_COMMAND, IDCANCEL, 0); };
  PrintPages(1);
  EXPECT_THAT(CallsWith("message box"), ElementsAre(kCancelled));
}

TEST_F(PrintJobTest, TheAbortProcedureAnswersWhetherTheJobGoesOn) {
  Printer().onEndPage = [this](int) {
    EXPECT_EQ(AbortPrinting(nullptr, 0), TRUE);
    PostMessageA(PrintAbort.dialog, WM_COMMAND, IDCANCEL, 0);
    PostMessageA(frame_, WM_COMMAND, IDM_VIEW_READINGS, 0);
    EXPECT_EQ(AbortPrinting(nullptr, 0), FALSE);
    EXPECT_TRUE(IsWindowVisible(container_)) << "what comes after the click is left to the main loop";
  };
  PrintPages(1);
  DispatchPendingMessages();
  EXPECT_FALSE(IsWindowVisible(container_));
}

TEST_F(PrintJobTest, TheEndOfTheProgramReachesTheMainLoop) {
  Printer().onStartPage = [](int) { PostQuitMessage(3); };
  PrintPages(3);
  EXPECT_THAT(CallsWith("StartPage"), SizeIs(1));
  MSG message{};
  while (message.message != WM_QUIT && PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) continue;
  EXPECT_EQ(message.message, UINT{WM_QUIT});
  EXPECT_EQ(message.wParam, 3u);
}

TEST_F(PrintJobTest, AFailureToInstallTheAbortProcedure) {
  Printer().setAbortProcAnswer = -1;
  Print();
  EXPECT_THAT(CallLog(), ElementsAre(kDialog, "SetAbortProc", Failure("SHABBAT.InitPrinting: SetAbortProc failed"),
                                     "AbortDoc", "DeleteDC", kCancelled));
}

TEST_F(PrintJobTest, AFailureToStartTheDocumentIsFollowedByTheCancellation) {
  Printer().startDocAnswer = 0;
  Print();
  EXPECT_THAT(CallLog(),
              ElementsAre(kDialog, "SetAbortProc", kStartDoc, Failure("SHABBAT.InitPrinting: StartDoc failed"),
                          "AbortDoc", "DeleteDC", kCancelled));
}

TEST_F(PrintJobTest, APageThatDoesNotStartIsSkipped) {
  Printer().startPageAnswer = 0;
  PrintPages(2);
  const std::string failure = Failure("SHABBAT.PrintZmanimPaper: StartPage failed", "none");
  EXPECT_THAT(CallLog(), ElementsAre(kDialog, "SetAbortProc", kStartDoc, "StartPage", failure, "StartPage", failure,
                                     "EndDoc", "DeleteDC"));
  EXPECT_THAT(Libraries().printedDraws, IsEmpty());
}

TEST_F(PrintJobTest, APageThatDoesNotEndIsReported) {
  Printer().endPageAnswer = 0;
  PrintPages(1);
  EXPECT_THAT(CallLog(),
              ElementsAre(kDialog, "SetAbortProc", kStartDoc, "StartPage", "EndPage",
                          Failure("SHABBAT.PrintZmanimPaper: EndPage failed", "none"), "EndDoc", "DeleteDC"));
}

TEST_F(PrintJobTest, ADocumentThatDoesNotEndIsReported) {
  Printer().endDocAnswer = -1;
  PrintPages(1);
  EXPECT_THAT(CallLog(), ElementsAre(kDialog, "SetAbortProc", kStartDoc, "StartPage", "EndPage", "EndDoc",
                                     Failure("SHABBAT.DonePrinting: EndDoc failed"), "DeleteDC"));
}

TEST_F(PrintJobTest, ACancelledPrintDialogPrintsNothing) {
  Printer().chosen = false;
  Print();
  EXPECT_THAT(CallLog(), ElementsAre(kDialog));
  Printer().chosen = true;
  Printer().givesPrinter = false;
  Print();
  EXPECT_THAT(CallLog(), ElementsAre(kDialog, kDialog));
}

TEST_F(PrintJobTest, PrintingToAFileIsPassedOn) {
  Printer().printsToFile = true;
  Print();
  EXPECT_THAT(CallLog(), Contains("StartDoc 'Zmanim Times' to FILE:"));
}

TEST_F(PrintJobTest, OneJobIsPrintedAtATime) {
  Printer().onStartPage = [this](int) { PostMessageA(frame_, WM_COMMAND, IDM_PRINT, 0); };
  PrintPages(1);
  EXPECT_THAT(CallsWith("print dialog"), SizeIs(1));
}

// Cancel lets the frame have input again before the job has ended.
TEST_F(PrintJobTest, NoOtherJobStartsAfterCancelWhileTheFirstHasNotEnded) {
  Printer().onStartPage = [this](int) {
    SendMessageA(PrintAbort.dialog, WM_COMMAND, IDCANCEL, 0);
    EXPECT_TRUE(IsWindowEnabled(frame_));
    SendMessageA(frame_, WM_COMMAND, IDM_PRINT, 0);
  };
  Printer().startPageAnswer = 0;
  PrintPages(2);
  EXPECT_THAT(CallsWith("print dialog"), SizeIs(1));
  EXPECT_EQ(CallLog().back(), kCancelled);
  Printer().onStartPage = nullptr;
  Printer().startPageAnswer = 1;
  Print();
  EXPECT_THAT(CallsWith("print dialog"), SizeIs(2)) << "the next job is free to start";
}

TEST_F(PrintJobTest, ADocumentClosedMeanwhileIsPrintedWhole) {
  Printer().onStartPage = [this](int) { SendMessageA(frame_, WM_COMMAND, IDM_WINDOW_CLOSE_ALL, 0); };
  PrintPages(2);
  ASSERT_THAT(Printer().pages, SizeIs(2));
  EXPECT_EQ(Printer().pages[1][0].text, "Zmanim of Aachen");
  EXPECT_THAT(PrintedDates(1), ElementsAre("05.01"));
}

TEST_F(PrintJobTest, NothingLeaksAndTheLocationStays) {
  PrintPages(2);
  const SystemScript before = System();
  for (const char* const hebrew : {"0", "1"}) {
    Libraries().settings["shab30.ini|Zmanim|Hebrew"] = hebrew;
    Print();
  }
  Printer().startDocAnswer = 0;
  Print();
  EXPECT_EQ(System().fonts, before.fonts);
  EXPECT_EQ(System().blocks, before.blocks);
  EXPECT_EQ(System().locks, before.locks);
  EXPECT_EQ(System().deviceContexts, before.deviceContexts);
  EXPECT_EQ(DocumentPlace(document_), "Aachen");
}

TEST_F(PrintJobTest, OnlyTheZmanimViewCanBePrinted) {
  EXPECT_TRUE(IsPrintEnabled());
  for (const unsigned view : {IDM_VIEW_SHABBAT_TIMES, IDM_VIEW_READINGS}) {
    SendMessageA(frame_, WM_COMMAND, view, 0);
    EXPECT_FALSE(IsPrintEnabled());
    Print();
  }
  SendMessageA(frame_, WM_COMMAND, IDM_VIEW_ZMANIM, 0);
  EXPECT_TRUE(IsPrintEnabled());
  SendMessageA(frame_, WM_COMMAND, IDM_WINDOW_CLOSE_ALL, 0);
  EXPECT_FALSE(IsPrintEnabled());
  Print();
  EXPECT_THAT(CallsWith("print dialog"), IsEmpty());
}

TEST_F(PrintJobTest, TheToolbarPrintsToo) {
  UseZmanim(1);
  ComputeDays(1);
  SendMessageA(document_, WM_COMMAND, IDB_PRINT, 0);
  DispatchPendingMessages();
  EXPECT_THAT(Printer().pages, SizeIs(1));
}

TEST_F(PrintJobTest, TheSetUpDialogIsTheSystemsAndNothingOfItIsKept) {
  const auto blocks = System().blocks;
  for (const bool chosen : {true, false}) {
    Printer().chosen = chosen;
    CallLog().clear();
    SendMessageA(frame_, WM_COMMAND, IDM_PRINTER_SETUP, 0);
    EXPECT_THAT(CallLog(), ElementsAre("print dialog flags 0x40 owner yes"));
    EXPECT_EQ(System().blocks, blocks);
  }
}
