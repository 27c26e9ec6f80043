; The installer of ActiveNeridaToolbar. tools/installer lays out what is installed; pack writes the lists of files, draws
; the pictures and gives their places and the version to this. What it promises stands in README.md.
Unicode true
ManifestDPIAware true
ManifestSupportedOS all
RequestExecutionLevel highest
!ifdef QUICK
  SetCompress off
!else
  SetCompressor /SOLID lzma
  SetCompressorDictSize 16
!endif

!include MUI2.nsh
!include x64.nsh
!include WinVer.nsh
!include FileFunc.nsh
!include LogicLib.nsh

!define PRODUCT "ActiveNeridaToolbar"
!define PUBLISHER "Tarnwell"
!define PRODUCT_KEY "Software\Tarnwell\Zephra"
!define VERSION_KEY "${PRODUCT_KEY}\1.0"
!define PRODUCT_TEXT "Zephra 1.0"
!define APPS "Software\Microsoft\Windows\CurrentVersion\Uninstall"
!define APPS_ENTRY "${APPS}\${PRODUCT}"

!define EXIT_IN_USE 10
!define EXIT_FOR_EVERYBODY 11
!define EXIT_NOT_REGISTERED 12
!define EXIT_NO_MODELS 13

Name "${PRODUCT}"
BrandingText "${PRODUCT} ${VERSION}"
OutFile "${TARGET}"
ShowInstDetails nevershow
ShowUninstDetails nevershow

VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "${PRODUCT}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}.0"
VIAddVersionKey "FileDescription" "${PRODUCT} Setup"
VIAddVersionKey "CompanyName" "${PUBLISHER}"
VIAddVersionKey "LegalCopyright" "${PUBLISHER}"
VIAddVersionKey "OriginalFilename" "${PRODUCT}-Setup.exe"

!define MUI_ICON "${ART}/setup.ico"
!define MUI_UNICON "${ART}/setup.ico"
!define MUI_HEADERIMAGE
!define MUI_HEADERIMAGE_RIGHT
!define MUI_HEADERIMAGE_BITMAP "${ART}/header.bmp"
!define MUI_HEADERIMAGE_UNBITMAP "${ART}/header.bmp"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${ART}/wizard.bmp"
!define MUI_UNWELCOMEFINISHPAGE_BITMAP "${ART}/wizard.bmp"
!define MUI_ABORTWARNING

!define MUI_WELCOMEPAGE_TITLE "Welcome to ${PRODUCT}"
!define MUI_WELCOMEPAGE_TEXT "This installs the toolbar and the catalog for 3D clip art, a library of models, and Zephra Document, a small program to try them in.$\r$\n$\r$\nModels that you have added and your settings are kept when an older version is here already.$\r$\n$\r$\n$ModeText"
!define MUI_FINISHPAGE_TITLE "${PRODUCT} is installed"
!define MUI_FINISHPAGE_TEXT "Zephra Document is in the start menu. Double-click the model on its page to edit it."
!define MUI_FINISHPAGE_RUN "$INSTDIR\zephra-host.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Open Zephra Document"

Var ForEverybody ; 1 or 0
Var ModeText
Var Registrar    ; "/s", and what makes a control register for one person only

!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; Ends with an exit code of its own, after telling why; silently when nobody is there to read it.
!macro StopWith code text
  MessageBox MB_OK|MB_ICONEXCLAMATION "${text}" /SD IDOK
  SetErrorLevel ${code}
  Abort "${text}"
!macroend

!include "${LISTS}/files.nsh"
!include "places.nsh"
!include "files_in_use.nsh"
!include "controls.nsh"
!include "product_keys.nsh"

Function .onInit
  Call FindPlaces
FunctionEnd

Section
  SetOverwrite on
  Call RefuseFilesInUse
  Call RemoveOlderVersion
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  Call WriteAppsEntry
  !insertmacro InstallCommonFiles
  ${If} ${RunningX64}
    !insertmacro InstallFiles_x86
    !insertmacro InstallFiles_x64
    !insertmacro InstallPrograms_x64
  ${Else}
    !insertmacro InstallFiles_x86
    !insertmacro InstallPrograms_x86
  ${EndIf}
  SetOutPath "$INSTDIR"
  Call BringModels
  Call WriteProductKeys
  Call RegisterControls
  CreateDirectory "$SMPROGRAMS\Zephra"
  CreateShortcut "$SMPROGRAMS\Zephra\Zephra Document.lnk" "$INSTDIR\zephra-host.exe" "" "$INSTDIR\zephra-host.exe" 0 \
    SW_SHOWNORMAL "" "A page with a 3D model on it"
  Call WriteSize
SectionEnd

; The models that come along stand in a folder of their own until the tool has brought them, index and database to where
; people's own may lie already.
Function BringModels
  nsExec::ExecToLog '"$INSTDIR\zephra-library.exe" replace-shipped "$INSTDIR\NewModels"'
  Pop $0
  RMDir /r "$INSTDIR\NewModels"
  ${If} $0 != 0
    !insertmacro StopWith ${EXIT_NO_MODELS} "The models could not be installed."
  ${EndIf}
FunctionEnd

; So that nothing of it stays behind that the new version does without.
Function RemoveOlderVersion
  ${If} ${FileExists} "$INSTDIR\uninstall.exe"
    ExecWait '"$INSTDIR\uninstall.exe" /S _?=$INSTDIR' $0
    ${If} $0 != 0
      !insertmacro StopWith $0 "The version that is installed could not be removed. Nothing was installed."
    ${EndIf}
  ${EndIf}
FunctionEnd

Function un.onInit
  Call un.FindPlaces
FunctionEnd

Section Uninstall
  Call un.RefuseFilesInUse
  Call un.UnregisterControls
  Call un.RemoveProductKeys
  nsExec::ExecToLog '"$INSTDIR\zephra-library.exe" replace-shipped'
  Pop $0
  Delete "$INSTDIR\Models\library.lock"
  !insertmacro RemoveFiles
  Delete "$SMPROGRAMS\Zephra\Zephra Document.lnk"
  RMDir "$SMPROGRAMS\Zephra"
  Call un.RemoveAppsEntry
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  ${If} $ForEverybody != 1
    RMDir "$LOCALAPPDATA\Programs" ; where it was empty before
  ${EndIf}
SectionEnd
