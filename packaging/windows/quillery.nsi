; SPDX-License-Identifier: GPL-3.0-or-later
; The setup: for the user alone, without administrator rights. Made by packaging/windows/build, which says with -D: VERSION,
; PAYLOAD (what is installed), FILES (what the uninstaller deletes), SETUP (the file to make), ICON.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true

!include MUI2.nsh
!include LogicLib.nsh

!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Quillery"
!define RUNNING "Quillery is running in the folder $INSTDIR.$\r$\nClose it, then start this again. Nothing was changed."

Name "Quillery"
OutFile "${SETUP}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\Quillery"
InstallDirRegKey HKCU "${ENTRY}" "InstallLocation"
BrandingText "Quillery ${VERSION}"

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Quillery"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "CompanyName" "Tessaly"
VIAddVersionKey "FileDescription" "Setup of Quillery"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "GPL-3.0-or-later"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\quillery.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Start Quillery"
!define MUI_UNCONFIRMPAGE_TEXT_TOP "The program is removed. Every record that lies in its folder stays there."
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; Ends the setup when a program holds the folder: its lock file can then be opened by nobody for writing.
!macro RefuseWhileRunning
    ${If} ${FileExists} "$INSTDIR\Quillery.lock"
        ClearErrors
        FileOpen $0 "$INSTDIR\Quillery.lock" a
        ${If} ${Errors}
            MessageBox MB_OK|MB_ICONEXCLAMATION "${RUNNING}" /SD IDOK
            SetErrorLevel 3
            Quit
        ${EndIf}
        FileClose $0
    ${EndIf}
!macroend

Section
    !insertmacro RefuseWhileRunning
    ; An older version may have had other libraries.
    Delete "$INSTDIR\*.dll"
    SetOutPath "$INSTDIR"
    File /r /x WP*.jpg "${PAYLOAD}/*"
    ; A household that was brought here may have backgrounds of its own.
    SetOverwrite off
    File "${PAYLOAD}/WP*.jpg"
    SetOverwrite on
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortcut "$SMPROGRAMS\Quillery.lnk" "$INSTDIR\quillery.exe"
    WriteRegStr HKCU "${ENTRY}" "DisplayName" "Quillery"
    WriteRegStr HKCU "${ENTRY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${ENTRY}" "Publisher" "Tessaly"
    WriteRegStr HKCU "${ENTRY}" "DisplayIcon" "$INSTDIR\quillery.exe"
    WriteRegStr HKCU "${ENTRY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${ENTRY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${ENTRY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${ENTRY}" "NoModify" 1
    WriteRegDWORD HKCU "${ENTRY}" "NoRepair" 1
SectionEnd

Section "Uninstall"
    !insertmacro RefuseWhileRunning
    !include "${FILES}"
    Delete "$INSTDIR\uninstall.exe"
    Delete "$SMPROGRAMS\Quillery.lnk"
    DeleteRegKey HKCU "${ENTRY}"
    ; Goes only when nothing is left in it.
    RMDir "$INSTDIR"
    ${If} ${FileExists} "$INSTDIR\*.*"
        MessageBox MB_OK|MB_ICONINFORMATION "Quillery is removed. What you have entered is kept in the folder $INSTDIR." /SD IDOK
    ${EndIf}
SectionEnd
