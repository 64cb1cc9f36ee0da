; The installer, for NSIS 3.08 or later:
;
;   makensis -V2 -NOCD -DVERSION=6.0.0.1 -DCONTENTS=FOLDER -DICON=FILE.ico -DOUTPUT=SETUP.exe [-DSIGN=COMMAND] installer.nsi
;
; CONTENTS, ICON and OUTPUT are absolute; COMMAND signs the file named as its argument. It installs for the user who runs
; it, without elevation. The same contents make the same bytes.
;
; Command line of the installer: /S installs silently, /D=FOLDER (last, unquoted) there, or in its subfolder "Times
; Readings" when it holds something else. Of the uninstaller: /S removes silently, /REMOVESETTINGS the user's settings too, _?=FOLDER (last, unquoted) makes it stay in its place, so that one
; can wait for it; it is then left for the caller to delete.
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
; Its folders have this name with a number and ".tmp".
!define STAGING_NAME "tr-setup-"
!define EARLIER_FILES "~old" ; the folder in there of copies of what is replaced

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
; Everything is unpacked here first: when the disk is full, the installed version is still whole. Empty until this run has
; made it.
Var Staging
Var InstalledVersion
Var UnwrittenFile
Var SettingsCheckbox
Var RemovesSettings  ; 1 when the user's settings are to go too

!include "${__FILEDIR__}/installer_pages.nsh"
!include "${__FILEDIR__}/installer_english.nsh"
!include "${__FILEDIR__}/installer_hebrew.nsh"

!insertmacro FILE_FUNCTIONS ""
!insertmacro FILE_FUNCTIONS "un."

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

; Rids INSTDIR of "..", of "/" and of a backslash at its end, so that what is registered is the folder's plain name.
Function MakeFolderFull
  StrCpy $1 $INSTDIR
  System::Call 'kernel32::GetFullPathNameW(w r1, i ${NSIS_MAX_STRLEN}, w .r0, p 0) i.r2'
  ${If} $2 = 0
  ${OrIf} $2 >= ${NSIS_MAX_STRLEN}
    Return
  ${EndIf}
  StrCpy $1 $0 1 -1
  ${If} $1 == "\"
    StrCpy $0 $0 -1
  ${EndIf}
  StrCpy $INSTDIR $0
FunctionEnd

; $0 is 1 when INSTDIR holds what is not the program's, or is a whole drive; else 0. Settings alone are those of a copy that
; was removed, an unpacking folder alone is a broken-off run's.
Function HoldsSomethingElse
  StrCpy $0 0
  ${If} ${FileExists} "$INSTDIR\${INSTALLED_LIST}"
  ${OrIf} ${FileExists} "$INSTDIR\shabbat.exe"
    Return
  ${EndIf}
  StrLen $1 $INSTDIR
  ${If} $1 <= 2
    StrCpy $0 1
    Return
  ${EndIf}
  FindFirst $1 $2 "$INSTDIR\*.*"
  ${DoUntil} $2 == ""
    StrCpy $3 $2 9
    ${If} $2 != "."
    ${AndIf} $2 != ".."
    ${AndIf} $2 != "settings"
    ${AndIf} $3 != "${STAGING_NAME}"
      StrCpy $0 1
    ${EndIf}
    FindNext $1 $2
  ${Loop}
  FindClose $1
FunctionEnd

; Makes INSTDIR a folder of the program's own, where need be below what was chosen.
Function TakeOwnFolder
  Call MakeFolderFull
  ${Do}
    Call HoldsSomethingElse
    ${If} $0 = 0
      ${ExitDo}
    ${EndIf}
    StrCpy $INSTDIR "$INSTDIR\${FOLDER_NAME}"
  ${Loop}
FunctionEnd

; $0 is 1 when INSTDIR can be written to; else 0. Leaves nothing behind.
Function TryFolder
  StrCpy $0 0
  StrCpy $1 $INSTDIR
  StrLen $2 $INSTDIR
  ${If} $2 > 200 ; the longest name of a file below it, and what the system allows (259)
    Return
  ${EndIf}
  ${DoUntil} ${FileExists} "$1\*.*"
    ${GetParent} $1 $1
    ${If} $1 == ""
      Return
    ${EndIf}
  ${Loop}
  ClearErrors
  ; Where the folder is still to be made, its parent need not take files (as C:\), but folders.
  ${If} $1 == $INSTDIR
    GetTempFileName $2 $1
    ${IfNot} ${Errors}
      Delete $2
      StrCpy $0 1
    ${EndIf}
  ${Else}
    CreateDirectory "$1\times-readings-setup.tmp"
    ${IfNot} ${Errors}
      RMDir "$1\times-readings-setup.tmp"
      StrCpy $0 1
    ${EndIf}
  ${EndIf}
FunctionEnd

; $0 is 1 when PreviousFolder is INSTDIR. Links, drives and short names give a folder many names; so what counts is whether
; a file made in the one is in the other.
Function IsPreviousFolderHere
  StrCpy $0 0
  ${IfNot} ${FileExists} "$INSTDIR\*.*"
    Return
  ${EndIf}
  ClearErrors
  GetTempFileName $1 $INSTDIR
  ${If} ${Errors}
    StrCpy $0 1 ; not known: then nothing is removed from there
    Return
  ${EndIf}
  ${GetFileName} $1 $2
  ${If} ${FileExists} "$PreviousFolder\$2"
    StrCpy $0 1
  ${EndIf}
  Delete $1
FunctionEnd

; Finds what is installed already: the list of INSTDIR's earlier version, PreviousFolder and its list. Lists are read as
; copies, since those in their folders are among the files that must be free.
Function FindInstalled
  Delete "${OLD_LIST}"
  Delete "${PREVIOUS_LIST}"
  CopyFiles /SILENT "$INSTDIR\${INSTALLED_LIST}" "${OLD_LIST}"
  ReadRegStr $PreviousFolder HKCU "${UNINSTALL_KEY}" "InstallLocation"
  ${If} $PreviousFolder == ""
  ${OrIfNot} ${FileExists} "$PreviousFolder\${INSTALLED_LIST}"
    StrCpy $PreviousFolder ""
    Return
  ${EndIf}
  Call IsPreviousFolderHere
  ${If} $0 = 1
    StrCpy $PreviousFolder ""
  ${Else}
    CopyFiles /SILENT "$PreviousFolder\${INSTALLED_LIST}" "${PREVIOUS_LIST}"
  ${EndIf}
FunctionEnd

; Sets HeldFile to a file in use that is to be replaced or removed; asks the user to free it until he cancels.
Function WaitUntilFree
  Call FindInstalled
  again:
  StrCpy $ListFolder $INSTDIR
  StrCpy $ListFile "${NEW_LIST}"
  Call FindHeldFile
  ${If} $HeldFile == ""
    StrCpy $ListFile "${OLD_LIST}"
    Call FindHeldFile
  ${EndIf}
  ${If} $HeldFile == ""
  ${AndIf} $PreviousFolder != ""
    StrCpy $ListFolder $PreviousFolder
    StrCpy $ListFile "${PREVIOUS_LIST}"
    Call FindHeldFile
  ${EndIf}
  ${If} $HeldFile != ""
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(InUse)" /SD IDCANCEL IDRETRY again
  ${EndIf}
FunctionEnd

; The folder page stays until the folder will do.
Function LeaveFolderPage
  Call MakeFolderFull
  StrCpy $4 $INSTDIR
  Call TakeOwnFolder
  ${If} $INSTDIR != $4
    MessageBox MB_OKCANCEL|MB_ICONINFORMATION "$(OwnFolder)" IDOK own
    StrCpy $INSTDIR $4
    Abort
    own:
    FindWindow $1 "#32770" "" $HWNDPARENT
    GetDlgItem $1 $1 1019
    SendMessage $1 ${WM_SETTEXT} 0 "STR:$INSTDIR"
  ${EndIf}
  Call TryFolder
  ${If} $0 = 0
    MessageBox MB_OK|MB_ICONEXCLAMATION "$(CannotUseFolder)"
    Abort
  ${EndIf}
  Call FindInstalled
  ${If} $PreviousFolder != ""
    MessageBox MB_OKCANCEL|MB_ICONQUESTION "$(Moves)" IDOK +2
    Abort
  ${EndIf}
  Call WaitUntilFree
  ${If} $HeldFile != ""
    Abort
  ${EndIf}
FunctionEnd

; The same without pages.
Function TakeFolderSilently
  Call TakeOwnFolder
  Call TryFolder
  ${If} $0 = 0
    SetErrorLevel ${EXIT_CANNOT_WRITE}
    Quit
  ${EndIf}
  Call WaitUntilFree
  ${If} $HeldFile != ""
    SetErrorLevel ${EXIT_IN_USE}
    Quit
  ${EndIf}
FunctionEnd

; Makes Staging, by a name that nothing in INSTDIR has.
Function MakeStaging
  CreateDirectory $INSTDIR
  StrCpy $1 0
  ${Do}
    IntOp $1 $1 + 1
    StrCpy $0 "$INSTDIR\${STAGING_NAME}$1.tmp"
    System::Call 'kernel32::CreateDirectoryW(w r0, p 0) i.r2 ?e'
    Pop $3
    ${If} $2 <> 0
      StrCpy $Staging $0
      Return
    ${EndIf}
  ${LoopWhile} $3 = 183 ; ERROR_ALREADY_EXISTS
  StrCpy $UnwrittenFile $0
  MessageBox MB_OK|MB_ICONSTOP "$(CannotWrite)" /SD IDOK
  Abort
FunctionEnd

; Moves the file $2 to UnwrittenFile in one step; $4 is 0 when another program does not let go of either.
Function MoveStagedFile
  StrCpy $3 $UnwrittenFile
  StrCpy $Patience ${PATIENCE}
  ${Do}
    SetFileAttributes $3 NORMAL
    ; MOVEFILE_REPLACE_EXISTING, MOVEFILE_WRITE_THROUGH
    System::Call 'kernel32::MoveFileExW(w r2, w r3, i 9) i.r4'
    ${If} $4 <> 0
    ${OrIf} $Patience = 0
      ${ExitDo}
    ${EndIf}
    IntOp $Patience $Patience - 1
    Sleep 100
  ${Loop}
FunctionEnd

; Keeps copies of the files that are to be replaced.
Function KeepEarlierFiles
  FileOpen $0 "${NEW_LIST}" r
  ${Do}
    Call ReadName
    StrCpy $2 "$INSTDIR\$1"
    ${If} $1 == ""
      ${ExitDo}
    ${ElseIf} ${FileExists} $2
      StrCpy $3 "$Staging\${EARLIER_FILES}\$1"
      ${GetParent} $3 $4
      CreateDirectory $4
      System::Call 'kernel32::CopyFileW(w r2, w r3, i 1) i.r4'
      ${If} $4 = 0
        StrCpy $UnwrittenFile $2
        MessageBox MB_OK|MB_ICONSTOP "$(CannotWrite)" /SD IDOK
        FileClose $0
        Abort
      ${EndIf}
    ${EndIf}
  ${Loop}
  FileClose $0
FunctionEnd

; Undoes MoveStagedFiles, which came as far as UnwrittenFile: an installed version stays the one that it was.
Function BringBackEarlierFiles
  StrCpy $ListFolder $INSTDIR
  FileOpen $0 "${NEW_LIST}" r
  ${Do}
    Call ReadName
    StrCpy $3 "$INSTDIR\$1"
    ${If} $1 == ""
    ${OrIf} $3 == $UnwrittenFile
      ${ExitDo}
    ${EndIf}
    StrCpy $2 "$Staging\${EARLIER_FILES}\$1"
    ${If} ${FileExists} $2
      System::Call 'kernel32::MoveFileExW(w r2, w r3, i 9)'
    ${Else}
      Call RemoveFile
    ${EndIf}
  ${Loop}
  FileClose $0
FunctionEnd

; Brings the unpacked files to their places.
Function MoveStagedFiles
  Call KeepEarlierFiles
  FileOpen $0 "${NEW_LIST}" r
  ${Do}
    Call ReadName
    ${If} $1 == ""
      ${ExitDo}
    ${EndIf}
    StrCpy $2 "$Staging\$1"
    StrCpy $UnwrittenFile "$INSTDIR\$1"
    ${GetParent} $UnwrittenFile $3
    CreateDirectory $3
    again:
    Call MoveStagedFile
    ${If} $4 = 0
      MessageBox MB_RETRYCANCEL|MB_ICONSTOP "$(CannotWrite)" /SD IDCANCEL IDRETRY again
      FileClose $0
      Call BringBackEarlierFiles
      Abort
    ${EndIf}
  ${Loop}
  FileClose $0
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
