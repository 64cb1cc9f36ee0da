; Everything is unpacked into a folder of INSTDIR first and moved from there: when the disk is full or a file stays held,
; the installed version is still whole.

!define STAGING_NAME "tr-setup-" ; with a number and ".tmp"
!define EARLIER_FILES "~old"     ; the folder in there of copies of what is replaced

Var Staging ; empty until this run has made it

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
