; Files by lists. A list has a file's name to a line, relative to the folder that the program is installed in (UTF-16,
; made by list_contents); every installed copy keeps its own, so that the next version knows what this one brought.
;
; Inserted twice, for installer and uninstaller: FILE_FUNCTIONS "" and FILE_FUNCTIONS "un."

!define INSTALLED_LIST "installed-files.txt"

Var ListFolder ; the folder that the names of a list are in
Var ListFile   ; the list
Var KeepList   ; what is in this list is not removed; may be empty
Var HeldFile   ; the first file found in use, empty for none
Var LeftFile   ; the last file that could not be removed, empty for none

; A scanner for viruses holds a fresh file for a moment: how often, 100 ms apart, this run tries again.
!define PATIENCE 50
Var Patience

!macro FILE_FUNCTIONS un

; The next name of the open list $0 in $1, empty at its end.
Function ${un}ReadName
  Push $2
  ClearErrors
  FileReadUTF16LE $0 $1
  ${If} ${Errors}
    StrCpy $1 ""
  ${EndIf}
  ${Do}
    StrCpy $2 $1 1 -1
    ${If} $2 != "$\r"
    ${AndIf} $2 != "$\n"
      ${ExitDo}
    ${EndIf}
    StrCpy $1 $1 -1
  ${Loop}
  Pop $2
FunctionEnd

; Sets HeldFile to the first file of the list that nobody may write to or replace just now: a program that runs, a file
; that another program keeps to itself. Files that are not there are free.
Function ${un}FindHeldFile
  StrCpy $HeldFile ""
  ClearErrors
  FileOpen $0 $ListFile r
  ${If} ${Errors}
    Return
  ${EndIf}
  ${Do}
    Call ${un}ReadName
    ${If} $1 == ""
      ${ExitDo}
    ${EndIf}
    ; The uninstaller may run from its place.
    ${If} $1 != "uninstall.exe"
      StrCpy $2 "$ListFolder\$1"
      ; GENERIC_WRITE and DELETE, shared with everybody, OPEN_EXISTING
      System::Call 'kernel32::CreateFileW(w r2, i 0x40010000, i 7, p 0, i 3, i 0x80, p 0) p.r3 ?e'
      Pop $4
      ${If} $3 P<> -1
        System::Call 'kernel32::CloseHandle(p r3)'
      ${ElseIf} $4 = 32   ; ERROR_SHARING_VIOLATION
      ${OrIf} $4 = 33     ; ERROR_LOCK_VIOLATION
      ${OrIf} $4 = 1224   ; ERROR_USER_MAPPED_FILE
        StrCpy $HeldFile $2
        ${ExitDo}
      ${EndIf}
    ${EndIf}
  ${Loop}
  FileClose $0
FunctionEnd

; $2 is 1 when the name $1 stays within ListFolder, on no way through a junction or link to another place; else 0.
Function ${un}IsOwnName
  StrCpy $2 1
  StrCpy $3 0
  ${Do}
    StrCpy $4 $1 1 $3
    StrCpy $5 $1 2 $3
    ${If} $4 == ""
      ${ExitDo}
    ${ElseIf} $4 == ":"
    ${OrIf} $4 == "/"
    ${OrIf} $5 == ".."
      StrCpy $2 0
    ${ElseIf} $4 == "\"
      StrCpy $5 $1 $3
      StrCpy $5 "$ListFolder\$5"
      System::Call 'kernel32::GetFileAttributesW(w r5) i.r6'
      IntOp $5 $6 & 0x400 ; FILE_ATTRIBUTE_REPARSE_POINT; set as well where there is no such folder
      ${If} $3 = 0
      ${OrIf} $5 <> 0
        StrCpy $2 0
      ${EndIf}
    ${EndIf}
    IntOp $3 $3 + 1
  ${Loop}
FunctionEnd

; $2 is 1 when KeepList has the name $1; else 0.
Function ${un}IsKept
  StrCpy $2 0
  ${If} $KeepList == ""
    Return
  ${EndIf}
  Push $0
  StrCpy $3 $1
  FileOpen $0 $KeepList r
  ${Do}
    Call ${un}ReadName
    ${If} $1 == $3
      StrCpy $2 1
    ${EndIf}
  ${LoopUntil} $1 == ""
  FileClose $0
  StrCpy $1 $3
  Pop $0
FunctionEnd

; Deletes the file $1 of ListFolder, then the folders between the two that have become empty. List and uninstaller, which
; are last in the list, stay where another file had to stay, so that it can be removed later.
Function ${un}RemoveFile
  ${If} $LeftFile != ""
    ${If} $1 == "${INSTALLED_LIST}"
    ${OrIf} $1 == "uninstall.exe"
      Return
    ${EndIf}
  ${EndIf}
  ${Do}
    SetFileAttributes "$ListFolder\$1" NORMAL
    Delete "$ListFolder\$1"
    ; The uninstaller may run from its place; a folder of a file's name is not ours.
    ${If} $1 == "uninstall.exe"
    ${OrIfNot} ${FileExists} "$ListFolder\$1"
    ${OrIf} ${FileExists} "$ListFolder\$1\*.*"
      ${ExitDo}
    ${ElseIf} $Patience = 0
      StrCpy $LeftFile "$ListFolder\$1"
      ${ExitDo}
    ${EndIf}
    IntOp $Patience $Patience - 1
    Sleep 100
  ${Loop}
  StrCpy $3 $1
  ${Do}
    StrCpy $4 $3
    ${GetParent} $4 $3
    ${If} $3 == ""
      ${ExitDo}
    ${EndIf}
    RMDir "$ListFolder\$3"
  ${Loop}
FunctionEnd

; Removes the files that ListFile names from ListFolder, but for those of KeepList; LeftFile is one that had to stay.
Function ${un}RemoveListed
  StrCpy $LeftFile ""
  StrCpy $Patience ${PATIENCE}
  ClearErrors
  FileOpen $0 $ListFile r
  ${If} ${Errors}
    Return
  ${EndIf}
  ${Do}
    Call ${un}ReadName
    ${If} $1 == ""
      ${ExitDo}
    ${EndIf}
    Call ${un}IsKept
    ${If} $2 = 0
      Call ${un}IsOwnName
      ${If} $2 = 1
        Call ${un}RemoveFile
      ${EndIf}
    ${EndIf}
  ${Loop}
  FileClose $0
FunctionEnd

; Ends this run when another one of installer or uninstaller is at work.
Function ${un}BeTheOnlyOne
  System::Call 'kernel32::CreateMutexW(p 0, i 0, w "TimesReadingsSetup") p.r0 ?e'
  Pop $1
  ${If} $1 = 183 ; ERROR_ALREADY_EXISTS
    MessageBox MB_OK|MB_ICONEXCLAMATION "$(AlreadyRunning)" /SD IDOK
    SetErrorLevel ${EXIT_ALREADY_RUNNING}
    Quit
  ${EndIf}
FunctionEnd

!macroend
