// The minutes of the zone in the location editor.
#include "tests/doubles/bound_doubles.h"
#include "tests/program/locations_fixture.h"

#include <commctrl.h>

#include <fstream>

using testing::IsEmpty;

namespace {

using LocationEditorZoneTest = LocationsTest;

}  // namespace

// 5:30 ahead, as Mumbai's. The edits are those of the common controls that the program's manifest names; others know no
// cue banner.
class LocationEditorHalfHourTest : public LocationsTest {
 protected:
  void SetUp() override {
    LocationsTest::SetUp();
    char folder[MAX_PATH];
    GetTempPathA(sizeof folder, folder);
    const std::string manifest = std::string(folder) + "location_editor_test.manifest";
    std::ofstream(manifest) << "<assembly xmlns='urn:schemas-microsoft-com:asm.v1' manifestVersion='1.0'><dependency>"
                               "<dependentAssembly><assemblyIdentity type='win32' "
                               "name='Microsoft.Windows.Common-Controls' version='6.0.0.0' processorArchitecture='*' "
                               "publicKeyToken='6595b64144ccf1df' language='*'/></dependentAssembly></dependency>"
                               "</assembly>";
    ACTCTXA request = {};
    request.cbSize = sizeof request;
    request.lpSource = manifest.c_str();
    context_ = CreateActCtxA(&request);
    ASSERT_NE(context_, INVALID_HANDLE_VALUE);
    ASSERT_TRUE(ActivateActCtx(context_, &cookie_));
  }
  void TearDown() override {
    DeactivateActCtx(0, cookie_);
    ReleaseActCtx(context_);
    LocationsTest::TearDown();
  }

  void ChangeMumbai(const std::function<void(HWND)>& drive) {
    Bound().places.push_back({"Mumbai", 1904, 7253, 5, 30});
    Manage([&](HWND manager) {
      Select(manager, 3);
      Edit(manager, 104, [&](HWND editor) {
        drive(editor);
        Click(editor, IDOK);
      });
      Click(manager, IDCANCEL);
    });
  }

 private:
  HANDLE context_ = INVALID_HANDLE_VALUE;
  ULONG_PTR cookie_ = 0;
};

TEST_F(LocationEditorHalfHourTest, EmptyMinutesOfABuiltInPlacesZoneTellWhatTheyAreAndKeepIt) {
  ChangeMumbai([](HWND editor) {
    EXPECT_EQ(FieldText(editor, 200), "");
    wchar_t cue[16] = L"";
    SendDlgItemMessageW(editor, 200, EM_GETCUEBANNER, reinterpret_cast<WPARAM>(cue), std::size(cue));
    EXPECT_STREQ(cue, L"30");
  });
  EXPECT_EQ(Stored("shabloc2.ini|Mumbai|TimeZone"), "5");
  EXPECT_EQ(Stored("shabloc2.ini|Mumbai|TimeZoneMin"), "30");
}

TEST_F(LocationEditorHalfHourTest, TypedMinutesOfABuiltInPlacesZoneAreTheUsers) {
  ChangeMumbai([](HWND editor) { SetField(editor, 200, "0"); });
  EXPECT_EQ(Stored("shabloc2.ini|Mumbai|TimeZoneMin"), "0");
}

TEST_F(LocationEditorZoneTest, EmptyMinutesOfANewPlacesZoneAreNone) {
  Manage([](HWND manager) {
    Edit(manager, 102, [](HWND editor) {
      Fill(editor, {.zoneMinutes = ""});
      Click(editor, IDOK);
    });
    Click(manager, IDCANCEL);
  });
  EXPECT_EQ(Stored("shabloc2.ini|Home|TimeZoneMin"), "0");
}

TEST_F(LocationEditorZoneTest, MinutesOfTheZoneThatAreNoNumberAreRefusedWithAReason) {
  Manage([](HWND manager) {
    Edit(manager, 102, [](HWND editor) {
      Fill(editor, {.zoneMinutes = "3o"});
      Click(editor, IDOK);
      EXPECT_EQ(CallsWith("message box").size(), 1u);
      EXPECT_EQ(GetFocus(), GetDlgItem(editor, 200));
      EXPECT_THAT(CallsWith("write"), IsEmpty());
      Click(editor, IDCANCEL);
    });
    Click(manager, IDCANCEL);
  });
}
