; Pages, languages and what Explorer shows of the installer.

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${SIDEBAR}"
!define MUI_ABORTWARNING_CANCEL_DEFAULT
!define MUI_CUSTOMFUNCTION_GUIINIT ShowHeaderIcon
!define MUI_CUSTOMFUNCTION_UNGUIINIT un.ShowHeaderIcon

!define MUI_LANGDLL_REGISTRY_ROOT HKCU
!define MUI_LANGDLL_REGISTRY_KEY "${SETUP_KEY}"
!define MUI_LANGDLL_REGISTRY_VALUENAME "Language"
; Shown each time, with the language chosen last.
!define MUI_LANGDLL_ALWAYSSHOW
!define MUI_LANGDLL_WINDOWTITLE "${PROGRAM_NAME}"
!define MUI_LANGDLL_INFO "Please choose a language.$\r$\n${U+202B}נא לבחור שפה.${U+202C}"

MiscButtonText "$(Back)" "$(Next)" "$(Cancel)" "$(Close)"
InstallButtonText "$(Install)"
UninstallButtonText "$(Uninstall)"
SpaceTexts "$(SpaceRequired)" "$(SpaceAvailable)"
DirText "$(FolderText)" "$(FolderLabel)" "$(Browse)" "$(FolderBrowse)"

!define MUI_WELCOMEPAGE_TITLE "$(WelcomeTitle)"
!define MUI_WELCOMEPAGE_TITLE_3LINES
!define MUI_WELCOMEPAGE_TEXT "$(WelcomeText)"
!insertmacro MUI_PAGE_WELCOME

!define MUI_PAGE_HEADER_TEXT "$(FolderTitle)"
!define MUI_PAGE_HEADER_SUBTEXT "$(FolderSubtitle)"
!define MUI_DIRECTORYPAGE_TEXT_TOP "$(FolderText)"
!define MUI_DIRECTORYPAGE_TEXT_DESTINATION "$(FolderLabel)"
!define MUI_PAGE_CUSTOMFUNCTION_LEAVE LeaveFolderPage
!insertmacro MUI_PAGE_DIRECTORY

!define MUI_PAGE_HEADER_TEXT "$(InstallingTitle)"
!define MUI_PAGE_HEADER_SUBTEXT "$(InstallingSubtitle)"
!define MUI_INSTFILESPAGE_FINISHHEADER_TEXT "$(InstalledTitle)"
!define MUI_INSTFILESPAGE_FINISHHEADER_SUBTEXT "$(InstalledSubtitle)"
!define MUI_INSTFILESPAGE_ABORTHEADER_TEXT "$(NotInstalledTitle)"
!define MUI_INSTFILESPAGE_ABORTHEADER_SUBTEXT "$(NotInstalledSubtitle)"
!insertmacro MUI_PAGE_INSTFILES

!define MUI_FINISHPAGE_TITLE "$(FinishTitle)"
!define MUI_FINISHPAGE_TITLE_3LINES
!define MUI_FINISHPAGE_TEXT "$(FinishText)"
!define MUI_FINISHPAGE_BUTTON "$(Finish)"
!define MUI_FINISHPAGE_RUN "$INSTDIR\shabbat.exe"
!define MUI_FINISHPAGE_RUN_TEXT "$(FinishRun)"
!insertmacro MUI_PAGE_FINISH

UninstPage custom un.ShowRemovePage un.LeaveRemovePage
!define MUI_PAGE_HEADER_TEXT "$(RemovingTitle)"
!define MUI_PAGE_HEADER_SUBTEXT "$(RemovingSubtitle)"
!define MUI_INSTFILESPAGE_FINISHHEADER_TEXT "$(RemovedTitle)"
!define MUI_INSTFILESPAGE_FINISHHEADER_SUBTEXT "$(RemovedSubtitle)"
!define /redef MUI_INSTFILESPAGE_ABORTHEADER_TEXT "$(NotRemovedTitle)"
!define /redef MUI_INSTFILESPAGE_ABORTHEADER_SUBTEXT "$(NotRemovedSubtitle)"
!insertmacro MUI_UNPAGE_INSTFILES

!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "Hebrew"
!insertmacro MUI_RESERVEFILE_LANGDLL

VIProductVersion "${VERSION}"
VIFileVersion "${VERSION}"
!macro VERSION_TEXTS language
  VIAddVersionKey /LANG=${language} "ProductName" "${PROGRAM_NAME}"
  VIAddVersionKey /LANG=${language} "ProductVersion" "${VERSION}"
  VIAddVersionKey /LANG=${language} "FileVersion" "${VERSION}"
  VIAddVersionKey /LANG=${language} "FileDescription" "${PROGRAM_NAME} Setup"
  VIAddVersionKey /LANG=${language} "CompanyName" "${PROGRAM_NAME}"
  VIAddVersionKey /LANG=${language} "LegalCopyright" "MIT licence"
!macroend
!insertmacro VERSION_TEXTS ${LANG_ENGLISH}
!insertmacro VERSION_TEXTS ${LANG_HEBREW}

; A dialog that is turned round for Hebrew leaves the icon in its header without a size, at the place of its right edge.
!macro SHOW_HEADER_ICON un
Function ${un}ShowHeaderIcon
  ${If} $(^RTL) = 0
    Return
  ${EndIf}
  GetDlgItem $0 $HWNDPARENT 1039
  System::Call '*(i 0, i 0, i 0, i 0) p.r1'
  System::Call 'user32::GetWindowRect(p r0, p r1)'
  System::Call 'user32::MapWindowPoints(p 0, p $HWNDPARENT, p r1, i 1)'
  System::Call '*$1(i.r2, i.r3)'
  System::Free $1
  System::Call 'user32::GetSystemMetrics(i 11) i.r4' ; SM_CXICON
  IntOp $2 $2 - $4
  System::Call 'user32::SetWindowPos(p r0, p 0, i r2, i r3, i r4, i r4, i 0x14)' ; SWP_NOZORDER, SWP_NOACTIVATE
FunctionEnd
!macroend
!insertmacro SHOW_HEADER_ICON ""
!insertmacro SHOW_HEADER_ICON "un."

; The uninstaller's page: where it removes from, and whether the user's own data are to go too.
Function un.ShowRemovePage
  !insertmacro MUI_HEADER_TEXT "$(RemoveTitle)" "$(RemoveSubtitle)"
  nsDialogs::Create 1018
  Pop $0
  nsDialogs::SetRTL $(^RTL)
  ${NSD_CreateLabel} 0 0 100% 24u "$(RemoveText)"
  Pop $0
  ${NSD_CreateText} 0 26u 100% 12u $INSTDIR
  Pop $0
  SendMessage $0 ${EM_SETREADONLY} 1 0
  ${NSD_CreateCheckBox} 0 54u 100% 12u "$(RemoveSettings)"
  Pop $SettingsCheckbox
  ${NSD_SetState} $SettingsCheckbox $RemovesSettings
  ${NSD_CreateText} 0 68u 100% 12u "$APPDATA\${FOLDER_NAME}"
  Pop $0
  SendMessage $0 ${EM_SETREADONLY} 1 0
  nsDialogs::Show
FunctionEnd

Function un.LeaveRemovePage
  ${NSD_GetState} $SettingsCheckbox $RemovesSettings
  Call un.WaitUntilFree
  ${If} $HeldFile != ""
    Abort
  ${EndIf}
FunctionEnd
