; What the library and the system read of an installation.

; Their names are looked for by the first three letters, in the 32-bit view.
Function WriteProductKeys
  SetRegView 32
  WriteRegStr SHCTX "${PRODUCT_KEY}" "Dictionary" "$INSTDIR"
  WriteRegStr SHCTX "${PRODUCT_KEY}" "System" "$INSTDIR"
  WriteRegStr SHCTX "${PRODUCT_KEY}" "Styles" "$INSTDIR"
  WriteRegStr SHCTX "${PRODUCT_KEY}" "Help" "$INSTDIR"
  WriteRegStr SHCTX "${PRODUCT_KEY}" "LiveText" "${PRODUCT_TEXT}"
  ReadRegStr $0 SHCTX "${PRODUCT_KEY}" "Expansion"
  ${If} $0 == ""  ; with any content it leads to the page of expansions, and an expansion may have written its own
    WriteRegStr SHCTX "${PRODUCT_KEY}" "Expansion" "$INSTDIR"
  ${EndIf}
  WriteRegStr SHCTX "${VERSION_KEY}" "Models" "$INSTDIR\Models"
FunctionEnd

; Others may have added to the keys, and what is theirs stays.
Function un.RemoveProductKeys
  SetRegView 32
  DeleteRegValue SHCTX "${VERSION_KEY}" "Models"
  DeleteRegValue SHCTX "${PRODUCT_KEY}" "Dictionary"
  DeleteRegValue SHCTX "${PRODUCT_KEY}" "System"
  DeleteRegValue SHCTX "${PRODUCT_KEY}" "Styles"
  DeleteRegValue SHCTX "${PRODUCT_KEY}" "Help"
  DeleteRegValue SHCTX "${PRODUCT_KEY}" "LiveText"
  ReadRegStr $0 SHCTX "${PRODUCT_KEY}" "Expansion"
  ${If} $0 == $INSTDIR
    DeleteRegValue SHCTX "${PRODUCT_KEY}" "Expansion"
  ${EndIf}
  DeleteRegKey /ifempty SHCTX "${VERSION_KEY}"
  DeleteRegKey /ifempty SHCTX "${PRODUCT_KEY}"
  DeleteRegKey /ifempty SHCTX "Software\Tarnwell"
FunctionEnd

Function WriteAppsEntry
  !insertmacro UseAppsView
  WriteRegStr SHCTX "${APPS_ENTRY}" "DisplayName" "${PRODUCT}"
  WriteRegStr SHCTX "${APPS_ENTRY}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${APPS_ENTRY}" "Publisher" "${PUBLISHER}"
  WriteRegStr SHCTX "${APPS_ENTRY}" "DisplayIcon" "$INSTDIR\uninstall.exe"
  WriteRegStr SHCTX "${APPS_ENTRY}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${APPS_ENTRY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr SHCTX "${APPS_ENTRY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD SHCTX "${APPS_ENTRY}" "NoModify" 1
  WriteRegDWORD SHCTX "${APPS_ENTRY}" "NoRepair" 1
  SetRegView 32
FunctionEnd

Function un.RemoveAppsEntry
  !insertmacro UseAppsView
  DeleteRegKey SHCTX "${APPS_ENTRY}"
  ${If} $ForEverybody != 1
    DeleteRegKey /ifempty HKCU "${APPS}"
  ${EndIf}
  SetRegView 32
FunctionEnd

Function WriteSize
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  !insertmacro UseAppsView
  WriteRegDWORD SHCTX "${APPS_ENTRY}" "EstimatedSize" $0
  SetRegView 32
FunctionEnd
