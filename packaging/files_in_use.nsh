; Programs and controls of an installation that are running cannot be replaced. That is found out before anything is
; changed: such a file refuses to be opened for writing.

!macro FilesInUse un

; Adds the files of folder $R0 that are of pattern $R1 and in use to the list $R9.
Function ${un}AddFilesInUse
  FindFirst $R2 $R3 "$R0\$R1"
  ${DoUntil} $R3 == ""
    ClearErrors
    FileOpen $R4 "$R0\$R3" a
    ${If} ${Errors}
      StrCpy $R9 "$R9$\r$\n$R0\$R3"
    ${Else}
      FileClose $R4
    ${EndIf}
    ClearErrors
    FindNext $R2 $R3
  ${Loop}
  FindClose $R2
FunctionEnd

Function ${un}ListFilesInUse
  StrCpy $R9 ""
  StrCpy $R0 "$INSTDIR"
  StrCpy $R1 "zephra-*.exe"
  Call ${un}AddFilesInUse
  !insertmacro AddFilesOfBitness "${un}" "x86"
  !insertmacro AddFilesOfBitness "${un}" "x64"
FunctionEnd

Function ${un}RefuseFilesInUse
  ${Do}
    Call ${un}ListFilesInUse
    ${If} $R9 == ""
      Return
    ${EndIf}
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Some files are in use. Please close the programs and documents that use them, then try again:$\r$\n$R9" /SD IDCANCEL IDRETRY again
    SetErrorLevel ${EXIT_IN_USE}
    Abort "Some files are in use. Nothing was changed."
    again:
  ${Loop}
FunctionEnd
!macroend

!macro AddFilesOfBitness un folder
  StrCpy $R0 "$INSTDIR\${folder}"
  StrCpy $R1 "*.ocx"
  Call ${un}AddFilesInUse
  StrCpy $R1 "*.dll"
  Call ${un}AddFilesInUse
!macroend

!insertmacro FilesInUse ""
!insertmacro FilesInUse "un."
