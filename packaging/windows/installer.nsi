; The installer for Windows: per machine, in Spanish.
;
;   VERSION, NUMBERS   the version as text, and as four numbers
;   STAGE              the program's folder as `cmake --install` made it, its data within datos\
;   LISTS              remove-program.nsh and remove-data.nsh, which name what the uninstaller removes
;   ICON, SIDE         its icon, and the picture at the side of its first and last page
;   OUTPUT             the installer to write
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma

!include MUI2.nsh
!include FileFunc.nsh

; Where the program reads its tables and its manual.
!define DATA "C:\Caudalera"
!define KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Caudalera"

Name "Caudalera"
OutFile "${OUTPUT}"
InstallDir "$PROGRAMFILES64\Caudalera"
RequestExecutionLevel admin
ManifestDPIAware true
BrandingText "Caudalera ${VERSION}"

VIProductVersion "${NUMBERS}"
VIAddVersionKey /LANG=3082 "ProductName" "Caudalera"
VIAddVersionKey /LANG=3082 "CompanyName" "Caudalera"
VIAddVersionKey /LANG=3082 "FileDescription" "Instalador de Caudalera"
VIAddVersionKey /LANG=3082 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=3082 "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=3082 "LegalCopyright" "GPL-3.0-or-later"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${SIDE}"
!define MUI_ABORTWARNING
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_LICENSE "${STAGE}\LICENCIA.txt"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "SpanishInternational"

; A program that runs holds its file: nothing is touched until it is closed.
!macro WaitUntilClosed UN
Function ${UN}waitUntilClosed
    again:
    IfFileExists "$INSTDIR\caudalera.exe" 0 closed
    ClearErrors
    FileOpen $0 "$INSTDIR\caudalera.exe" a
    IfErrors open
    FileClose $0
    IfFileExists "${DATA}\hh.exe" 0 closed
    ClearErrors
    FileOpen $0 "${DATA}\hh.exe" a
    IfErrors open
    FileClose $0
    Goto closed
    open:
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
        "Caudalera o su ayuda está abierta. Ciérrela para continuar." /SD IDCANCEL IDRETRY again
    SetErrorLevel 2
    Abort
    closed:
FunctionEnd
!macroend
!insertmacro WaitUntilClosed ""
!insertmacro WaitUntilClosed "un."

Function .onInit
    SetRegView 64
    SetShellVarContext all
    ; An older version goes first, from where it was put; this one takes its place there.
    ReadRegStr $R0 HKLM "${KEY}" "InstallLocation"
    ${If} $R0 != ""
        StrCpy $INSTDIR $R0
    ${EndIf}
FunctionEnd

Function un.onInit
    SetRegView 64
    SetShellVarContext all
FunctionEnd

Section "Caudalera"
    Call waitUntilClosed
    ReadRegStr $R0 HKLM "${KEY}" "InstallLocation"
    ${If} $R0 != ""
    ${AndIf} ${FileExists} "$R0\desinstalar.exe"
        ExecWait '"$R0\desinstalar.exe" /S _?=$R0' $R1
        ${If} $R1 != 0
            MessageBox MB_OK|MB_ICONSTOP "No se pudo quitar la versión anterior de Caudalera." /SD IDOK
            SetErrorLevel 2
            Abort
        ${EndIf}
        Delete "$R0\desinstalar.exe"
        RMDir "$R0"
    ${EndIf}

    SetOutPath "$INSTDIR"
    File /r /x datos "${STAGE}\*"
    SetOutPath "${DATA}"
    File /r "${STAGE}\datos\*"

    SetOutPath "$INSTDIR"
    CreateShortCut "$SMPROGRAMS\Caudalera.lnk" "$INSTDIR\caudalera.exe" "" "" "" SW_SHOWNORMAL "" \
        "Cálculos hidrológicos y estadísticos aplicados a la hidrología"
    WriteUninstaller "$INSTDIR\desinstalar.exe"

    WriteRegStr HKLM "${KEY}" "DisplayName" "Caudalera"
    WriteRegStr HKLM "${KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKLM "${KEY}" "DisplayIcon" "$INSTDIR\caudalera.exe"
    WriteRegStr HKLM "${KEY}" "Publisher" "Caudalera"
    WriteRegStr HKLM "${KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKLM "${KEY}" "UninstallString" '"$INSTDIR\desinstalar.exe"'
    WriteRegStr HKLM "${KEY}" "QuietUninstallString" '"$INSTDIR\desinstalar.exe" /S'
    WriteRegDWORD HKLM "${KEY}" "NoModify" 1
    WriteRegDWORD HKLM "${KEY}" "NoRepair" 1
    SectionGetSize 0 $0
    WriteRegDWORD HKLM "${KEY}" "EstimatedSize" $0
SectionEnd

Section "Uninstall"
    Call un.waitUntilClosed
    ; Only what was installed: what users have put beside it stays.
    !include "${LISTS}/remove-program.nsh"
    !include "${LISTS}/remove-data.nsh"
    Delete "$SMPROGRAMS\Caudalera.lnk"
    Delete "$INSTDIR\desinstalar.exe"
    RMDir "$INSTDIR"
    RMDir "${DATA}"
    DeleteRegKey HKLM "${KEY}"
SectionEnd
