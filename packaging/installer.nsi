; The installer, for NSIS 3.08 or later:
;
;   makensis -V2 -NOCD -DVERSION=6.0.0.1 -DCONTENTS=FOLDER -DICON=FILE.ico -DOUTPUT=SETUP.exe [-DSIGN=COMMAND] installer.nsi
;
; CONTENTS, ICON and OUTPUT are absolute; COMMAND signs the file named as its argument. It installs for the user who runs
; it, without elevation. The same contents make the same bytes.
;
; Command line of the installer: /S installs silently, /D=FOLDER (last, unquoted) there, or in its subfolder "Times
; Readings" when it holds something else. Of the uninstaller: /S removes silently, /REMOVESETTINGS the user's settings
; too, _?=FOLDER (last, unquoted) makes it stay in its place, so that one can wait for it; it is then left for the caller
; to delete.
;
; Exit codes: 0 done; 1 cancelled; 2 a file could not be written or removed; and with nothing touched:
!define EXIT_IN_USE 3          ; the program runs from that folder, or another one holds a file there
!define EXIT_CANNOT_WRITE 4    ; the folder cannot be written to
!define EXIT_ALREADY_RUNNING 5 ; another run of installer or uninstaller is at work
!define EXIT_NOT_INSTALLED 6   ; the uninstaller finds no installed copy beside it

Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
SetDateSave off
CRCCheck force
RequestExecutionLevel user
ManifestDPIAware true
ManifestSupportedOS all
AllowSkipFiles off
ShowInstDetails nevershow
ShowUninstDetails nevershow

!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh
!include WordFunc.nsh
!include WinVer.nsh

!define PROGRAM_NAME "Times / Readings"
!define NAME_IN_TEXTS "Times${U+00A0}/${U+00A0}Readings" ; on one line
!define FOLDER_NAME "Times Readings" ; file names have no slash
!define SETUP_KEY "Software\Times Readings"
!define PROGRAMS_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall"
!define UNINSTALL_KEY "${PROGRAMS_KEY}\Times Readings"
!define USER_PROGRAMS "$LOCALAPPDATA\Programs"
!define START_MENU "$SMPROGRAMS\${FOLDER_NAME}"

; What this version brings, what the one in INSTDIR brought, and the one in another folder.
!define NEW_LIST "$PLUGINSDIR\new.txt"
!define OLD_LIST "$PLUGINSDIR\old.txt"
!define PREVIOUS_LIST "$PLUGINSDIR\previous.txt"

Name "${PROGRAM_NAME}"
OutFile "${OUTPUT}"
InstallDir "${USER_PROGRAMS}\${FOLDER_NAME}"
InstallDirRegKey HKCU "${SETUP_KEY}" "Folder"
BrandingText "${PROGRAM_NAME} ${VERSION}"

!tempfile CONTENTS_SCRIPT
!tempfile CONTENTS_LIST
!tempfile SIDEBAR
!system '"${__FILEDIR__}/make_sidebar" "${ICON}" "${SIDEBAR}"' = 0
!system '"${__FILEDIR__}/list_contents" "${CONTENTS}" "${CONTENTS_SCRIPT}" "${CONTENTS_LIST}"' = 0
!include "${CONTENTS_SCRIPT}"
!ifdef SIGN
  !uninstfinalize '${SIGN} "%1"' = 0
  !finalize '${SIGN} "%1"' = 0
!endif

!include "${__FILEDIR__}/installer_files.nsh"
!include "${__FILEDIR__}/installer_font.nsh"

Var PreviousFolder   ; another folder that the program is installed in, or empty
Var InstalledVersion
Var UnwrittenFile
Var SettingsCheckbox
Var RemovesSettings  ; 1 when the user's settings are to go too

!include "${__FILEDIR__}/installer_pages.nsh"
!include "${__FILEDIR__}/installer_english.nsh"
!include "${__FILEDIR__}/installer_hebrew.nsh"

!insertmacro FILE_FUNCTIONS ""
!insertmacro FILE_FUNCTIONS "un."
!include "${__FILEDIR__}/installer_staging.nsh"
!include "${__FILEDIR__}/installer_folder.nsh"

; ---- Installing ----

Function .onInit
  SetShellVarContext current
  !insertmacro MUI_LANGDLL_DISPLAY
  Call BeTheOnlyOne
  InitPluginsDir
  File "/oname=${NEW_LIST}" "${CONTENTS_LIST}"
  ReadRegStr $InstalledVersion HKCU "${UNINSTALL_KEY}" "DisplayVersion"
  ${VersionCompare} "$InstalledVersion" "${VERSION}" $0
  ${If} $InstalledVersion != ""
  ${AndIf} $0 = 1
    MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "$(OlderVersion)" /SD IDYES IDYES +3
    SetErrorLevel 1
    Quit
  ${EndIf}
FunctionEnd

Function RemoveEarlierFiles
  StrCpy $ListFolder $INSTDIR
  StrCpy $ListFile "${OLD_LIST}"
  StrCpy $KeepList "${NEW_LIST}"
  Call RemoveListed
  ${If} $PreviousFolder != ""
    StrCpy $ListFolder $PreviousFolder
    StrCpy $ListFile "${PREVIOUS_LIST}"
    StrCpy $KeepList ""
    Call RemoveListed
    RMDir $PreviousFolder
  ${EndIf}
FunctionEnd

Function Register
  WriteRegStr HKCU "${SETUP_KEY}" "Folder" $INSTDIR
  WriteRegStr HKCU "${SETUP_KEY}" "Language" $LANGUAGE
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "${PROGRAM_NAME}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\shabbat.exe,0"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "${PROGRAM_NAME}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" $INSTDIR
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" ${CONTENTS_KILOBYTES}
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
  CreateDirectory "${START_MENU}"
  ; They start where OutPath is.
  CreateShortcut "${START_MENU}\Times Readings.lnk" "$INSTDIR\shabbat.exe"
  CreateShortcut "${START_MENU}\Times Readings Help.lnk" "$INSTDIR\help\index.html"
  CreateShortcut "${START_MENU}\Uninstall Times Readings.lnk" "$INSTDIR\uninstall.exe"
FunctionEnd

Section
  ${If} ${Silent}
    Call TakeFolderSilently
  ${EndIf}
  Call MakeStaging
  !insertmacro ExtractContents "$Staging"
  SetOutPath $Staging
  File "/oname=${INSTALLED_LIST}" "${CONTENTS_LIST}"
  ClearErrors
  WriteUninstaller "$Staging\uninstall.exe"
  ${If} ${Errors}
    StrCpy $UnwrittenFile "$Staging\uninstall.exe"
    MessageBox MB_OK|MB_ICONSTOP "$(CannotWrite)" /SD IDOK
    Abort
  ${EndIf}
  SetOutPath $INSTDIR
  Call MoveStagedFiles
  RMDir /r $Staging
  Call RemoveEarlierFiles
  Call Register
  Call InstallFont
SectionEnd

Function .onInstFailed
  SetErrorLevel 2
  SetOutPath $TEMP
  ${If} $Staging != ""
    RMDir /r $Staging
  ${EndIf}
  RMDir $INSTDIR
FunctionEnd

; ---- Uninstalling ----

Function un.onInit
  SetShellVarContext current
  !insertmacro MUI_UNGETLANGUAGE
  Call un.BeTheOnlyOne
  ${IfNot} ${FileExists} "$INSTDIR\${INSTALLED_LIST}"
  ${AndIfNot} ${FileExists} "$INSTDIR\shabbat.exe"
    MessageBox MB_OK|MB_ICONEXCLAMATION "$(NotInstalledHere)" /SD IDOK
    SetErrorLevel ${EXIT_NOT_INSTALLED}
    Quit
  ${EndIf}
  InitPluginsDir
  File "/oname=${NEW_LIST}" "${CONTENTS_LIST}"
  StrCpy $ListFolder $INSTDIR
  StrCpy $ListFile "${NEW_LIST}"
  StrCpy $RemovesSettings 0
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/REMOVESETTINGS" $1
  ${IfNot} ${Errors}
    StrCpy $RemovesSettings 1
  ${EndIf}
FunctionEnd

Function un.WaitUntilFree
  again:
  Call un.FindHeldFile
  ${If} $HeldFile != ""
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(InUse)" /SD IDCANCEL IDRETRY again
  ${EndIf}
FunctionEnd

; Removes the folder $0 with all that is in it. Of junctions and links the link goes, not what it leads to.
Function un.RemoveTree
  System::Call 'kernel32::GetFileAttributesW(w r0) i.r1'
  IntOp $1 $1 & 0x400 ; FILE_ATTRIBUTE_REPARSE_POINT
  ${If} $1 <> 0
    RMDir $0
    Return
  ${EndIf}
  FindFirst $1 $2 "$0\*.*"
  ${DoUntil} $2 == ""
    ${If} $2 == "."
    ${OrIf} $2 == ".."
    ${ElseIf} ${FileExists} "$0\$2\*.*"
      Push $0
      Push $1
      StrCpy $0 "$0\$2"
      Call un.RemoveTree
      Pop $1
      Pop $0
    ${Else}
      SetFileAttributes "$0\$2" NORMAL
      Delete "$0\$2"
    ${EndIf}
    FindNext $1 $2
  ${Loop}
  FindClose $1
  RMDir $0
FunctionEnd

; Another folder may have become the installed one meanwhile; then what Windows knows is that one's.
Function un.Unregister
  ReadRegStr $0 HKCU "${UNINSTALL_KEY}" "InstallLocation"
  ${If} ${FileExists} "$0\${INSTALLED_LIST}"
    Return
  ${EndIf}
  Call un.RemoveFont
  Delete "${START_MENU}\Times Readings.lnk"
  Delete "${START_MENU}\Times Readings Help.lnk"
  Delete "${START_MENU}\Uninstall Times Readings.lnk"
  RMDir "${START_MENU}"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  DeleteRegKey /ifempty HKCU "${PROGRAMS_KEY}"
  DeleteRegKey HKCU "${SETUP_KEY}"
FunctionEnd

Section Uninstall
  ${If} ${Silent}
    Call un.WaitUntilFree
    ${If} $HeldFile != ""
      SetErrorLevel ${EXIT_IN_USE}
      Quit
    ${EndIf}
  ${EndIf}
  SetOutPath $TEMP
  StrCpy $KeepList ""
  Call un.RemoveListed
  RMDir $INSTDIR
  RMDir "${USER_PROGRAMS}" ; when no other program is there
  Call un.Unregister ; not where the list had to stay
  ${If} $RemovesSettings = 1
    StrCpy $0 "$APPDATA\${FOLDER_NAME}"
    Call un.RemoveTree
  ${EndIf}
  ${If} $LeftFile != ""
    MessageBox MB_OK|MB_ICONEXCLAMATION "$(NotAllRemoved)" /SD IDOK
    SetErrorLevel 2
    Abort
  ${EndIf}
SectionEnd

!delfile "${CONTENTS_SCRIPT}"
!delfile "${CONTENTS_LIST}"
!delfile "${SIDEBAR}"
