; The folder to install in: the program's own, one that can be written to, no file of it in use; and whether the program
; is installed in another one.

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

; $0 is 1 when INSTDIR holds what is not the program's, or is a whole drive; else 0. Settings alone are those of a copy
; that was removed, an unpacking folder alone is a broken-off run's.
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

; $0 is 1 when PreviousFolder is INSTDIR. Links, drives and short names give a folder many names; so what counts is
; whether a file made in the one is in the other.
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
