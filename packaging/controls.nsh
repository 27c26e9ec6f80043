; The controls register themselves, each bitness through the system's program for it.

!macro Regsvr32 options file
  ExecWait '$R8 $Registrar ${options} "${file}"' $0
  ${If} $0 != 0
    StrCpy $R9 "$R9$\r$\n${file}"
  ${EndIf}
!macroend

; $R8 names the program. The library comes last: it takes away the keys of the classes that a person has for the first
; controls only.
!macro Regsvr32All options folder
  !insertmacro Regsvr32 "${options}" "$INSTDIR\${folder}\ZephraPreview.ocx"
  !insertmacro Regsvr32 "${options}" "$INSTDIR\${folder}\ZephraSearch.dll"
  !insertmacro Regsvr32 "${options}" "$INSTDIR\${folder}\ActiveNeridaToolbar.ocx"
!macroend

; Leaves the files that failed in $R9. This program is of 32 bits and sees the system's folder of that bitness; the other
; one has another name for it.
!macro Regsvr32Both options
  StrCpy $R9 ""
  StrCpy $R8 '"$SYSDIR\regsvr32.exe"'
  !insertmacro Regsvr32All "${options}" "x86"
  ${If} ${RunningX64}
    StrCpy $R8 '"$WINDIR\Sysnative\regsvr32.exe"'
    !insertmacro Regsvr32All "${options}" "x64"
  ${EndIf}
!macroend

Function RegisterControls
  !insertmacro Regsvr32Both ""
  ${If} $R9 != ""
    !insertmacro StopWith ${EXIT_NOT_REGISTERED} "These controls could not be registered:$\r$\n$R9"
  ${EndIf}
FunctionEnd

Function un.UnregisterControls
  !insertmacro Regsvr32Both "/u"
FunctionEnd
