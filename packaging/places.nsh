; For whom, and where. Everybody's installation needs an administrator; others install for themselves. An installation
; that is there already is renewed where it is. /CurrentUser chooses oneself, /AllUsers everybody.

!macro UseRegistryOfMode
  ${If} $ForEverybody == 1
    SetShellVarContext all
    StrCpy $Registrar "/s"
  ${Else}
    SetShellVarContext current
    StrCpy $Registrar "/s /n /i:user"
  ${EndIf}
!macroend

; The Apps list has one place for each bitness of the system; ours is the system's own. Everything else of ours is in
; the 32-bit view, where the library looks.
!macro UseAppsView
  ${If} ${RunningX64}
    SetRegView 64
  ${EndIf}
!macroend

; Leaves 1 or 0: has this person the right to install for everybody?
!macro PushIsAdministrator
  UserInfo::GetAccountType
  Pop $0
  ${If} $0 == "Admin"
    Push 1
  ${Else}
    Push 0
  ${EndIf}
!macroend

Function FindPlaces
  Push $R0
  Push $R1
  Push $R2
  !insertmacro UseAppsView
  ReadRegStr $R0 HKLM "${APPS_ENTRY}" "InstallLocation"
  ReadRegStr $R1 HKCU "${APPS_ENTRY}" "InstallLocation"
  SetRegView 32
  !insertmacro PushIsAdministrator
  Pop $R2
  StrCpy $ForEverybody $R2
  ${If} $R0 == ""
  ${AndIf} $R1 != ""
    StrCpy $ForEverybody 0
  ${EndIf}
  Call ReadModeSwitches
  ${If} $ForEverybody != 1
  ${AndIf} $R0 != ""
    !insertmacro StopWith ${EXIT_FOR_EVERYBODY} "${PRODUCT} is installed for everybody on this computer. An administrator can update or remove it."
  ${EndIf}
  ${If} $ForEverybody == 1
  ${AndIf} $R2 != 1
    !insertmacro StopWith ${EXIT_FOR_EVERYBODY} "Only an administrator can install for everybody on this computer."
  ${EndIf}
  !insertmacro UseRegistryOfMode
  Call ChooseFolder
  Pop $R2
  Pop $R1
  Pop $R0
FunctionEnd

Function ReadModeSwitches
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/CurrentUser" $1
  ${IfNot} ${Errors}
    StrCpy $ForEverybody 0
  ${EndIf}
  ClearErrors
  ${GetOptions} $0 "/AllUsers" $1
  ${IfNot} ${Errors}
    StrCpy $ForEverybody 1
  ${EndIf}
FunctionEnd

; $R0 and $R1 are the folders of installations that are there already; a folder from the command line goes first.
Function ChooseFolder
  ${If} $ForEverybody == 1
    StrCpy $ModeText "It is installed for everybody on this computer."
    StrCpy $0 $R0
  ${Else}
    StrCpy $ModeText "It is installed for you alone. To install it for everybody, start this program as an administrator."
    StrCpy $0 $R1
  ${EndIf}
  ${If} $INSTDIR != ""
    Return
  ${EndIf}
  ${If} $0 != ""
    StrCpy $INSTDIR $0
  ${ElseIf} $ForEverybody != 1
    StrCpy $INSTDIR "$LOCALAPPDATA\Programs\${PRODUCT}"
  ${ElseIf} ${RunningX64}
    StrCpy $INSTDIR "$PROGRAMFILES64\${PRODUCT}"
  ${Else}
    StrCpy $INSTDIR "$PROGRAMFILES32\${PRODUCT}"
  ${EndIf}
FunctionEnd

Function un.FindPlaces
  Push $0
  !insertmacro UseAppsView
  ReadRegStr $0 HKCU "${APPS_ENTRY}" "InstallLocation"
  SetRegView 32
  ${If} $0 == $INSTDIR
    StrCpy $ForEverybody 0
  ${Else}
    StrCpy $ForEverybody 1
    !insertmacro PushIsAdministrator
    Pop $0
    ${If} $0 != 1
      !insertmacro StopWith ${EXIT_FOR_EVERYBODY} "${PRODUCT} is installed for everybody on this computer. Only an administrator can remove it."
    ${EndIf}
  ${EndIf}
  !insertmacro UseRegistryOfMode
  Pop $0
FunctionEnd
