; The display font for word processors: it makes the Hebrew of exported files readable. Windows lets a user have fonts
; of his own from version 1809 (build 17763) on; the program itself needs no such registration. The value "Font" of the
; installer's key, the file's SHA-256, says that the font came with the installer; one that the user has installed himself
; is left to him.

!define FONTS_KEY "Software\Microsoft\Windows NT\CurrentVersion\Fonts"
!define FONT_VALUE "DisplayHebrew1 (TrueType)"
!define USER_FONTS "$LOCALAPPDATA\Microsoft\Windows\Fonts"
!define FONT_FILE "${USER_FONTS}\DisplayHebrew1.ttf"
; A font that is in use when it is to go is deleted when the user next signs in; then nobody has it any more.
!define RUN_ONCE_KEY "Software\Microsoft\Windows\CurrentVersion\RunOnce"
!define RUN_ONCE_VALUE "Times Readings font"

; Tells every window without waiting for any.
!macro ANNOUNCE_FONTS
  System::Call 'user32::SendNotifyMessageW(p 0xFFFF, i 0x1D, p 0, p 0)' ; HWND_BROADCAST, WM_FONTCHANGE
!macroend

; Takes the font file $0 from the session, as often as installations have added it; a bound, lest it go on for ever.
!macro WITHDRAW_FONT
  ${ForEach} $2 1 100 + 1
    System::Call 'gdi32::RemoveFontResourceW(w r0) i.r1'
    ${If} $1 = 0
      ${ExitFor}
    ${EndIf}
  ${Next}
!macroend

Function InstallFont
  ${IfNot} ${AtLeastBuild} 17763
    Return
  ${EndIf}
  StrCpy $0 "${FONT_FILE}"
  ReadRegStr $1 HKCU "${RUN_ONCE_KEY}" "${RUN_ONCE_VALUE}"
  ${If} $1 != ""
    DeleteRegValue HKCU "${RUN_ONCE_KEY}" "${RUN_ONCE_VALUE}"
    WriteRegStr HKCU "${SETUP_KEY}" "Font" "an earlier version's"
  ${EndIf}
  ReadRegStr $1 HKCU "${SETUP_KEY}" "Font"
  ReadRegStr $2 HKCU "${FONTS_KEY}" "${FONT_VALUE}"
  ${If} $1 == ""
    ${If} $2 != ""
    ${OrIf} ${FileExists} $0
      Return
    ${EndIf}
  ${EndIf}
  ${IfNot} ${FileExists} $0
  ${OrIf} $1 != "${FONT_SHA256}"
    !insertmacro WITHDRAW_FONT
    CreateDirectory "${USER_FONTS}"
    SetFileAttributes $0 NORMAL
    StrCpy $2 "$INSTDIR\fonts\DisplayHebrew1.ttf"
    System::Call 'kernel32::CopyFileW(w r2, w r0, i 0) i.r1'
    ${If} $1 = 0
      MessageBox MB_OK|MB_ICONINFORMATION "$(FontInUse)" /SD IDOK
    ${Else}
      WriteRegStr HKCU "${SETUP_KEY}" "Font" "${FONT_SHA256}"
    ${EndIf}
  ${EndIf}
  ${If} ${FileExists} $0
    System::Call 'gdi32::AddFontResourceW(w r0)'
    WriteRegStr HKCU "${FONTS_KEY}" "${FONT_VALUE}" $0
    !insertmacro ANNOUNCE_FONTS
  ${EndIf}
FunctionEnd

Function un.RemoveFont
  ReadRegStr $0 HKCU "${SETUP_KEY}" "Font"
  ${If} $0 == ""
    Return
  ${EndIf}
  StrCpy $0 "${FONT_FILE}"
  DeleteRegValue HKCU "${FONTS_KEY}" "${FONT_VALUE}"
  DeleteRegKey /ifempty HKCU "${FONTS_KEY}"
  ${If} ${FileExists} $0
    !insertmacro WITHDRAW_FONT
    SetFileAttributes $0 NORMAL
    Delete $0
    !insertmacro ANNOUNCE_FONTS
  ${EndIf}
  ${If} ${FileExists} $0
    WriteRegStr HKCU "${RUN_ONCE_KEY}" "${RUN_ONCE_VALUE}" '"$SYSDIR\cmd.exe" /d /c del "$0"'
  ${Else}
    RMDir "${USER_FONTS}"
  ${EndIf}
FunctionEnd
