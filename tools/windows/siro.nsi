; SPDX-License-Identifier: GPL-3.0-or-later
;
; The installer. VERSION, DE: folder of the installation that it packs; A: the file that it becomes; QUITA: the script that
; takes the files of DE away again, and nothing else.
; For one user, with no rights of an administrator: programs in the user's own folder of programs. A silent run takes /S and /D=FOLDER.

Target amd64-unicode
Unicode true
!include LogicLib.nsh
!include MUI2.nsh
!include FileFunc.nsh

!define CLAVE "Software\Microsoft\Windows\CurrentVersion\Uninstall\SIRO"
!define TIPO "SIRO.Proyecto"

Name "SIRO ${VERSION}"
OutFile "${A}"
InstallDir "$LOCALAPPDATA\Programs\SIRO"
InstallDirRegKey HKCU "${CLAVE}" "InstallLocation"
RequestExecutionLevel user
SetCompressor /SOLID lzma

VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "SIRO"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Instalador de SIRO"
VIAddVersionKey LegalCopyright "GPL-3.0-or-later"

!define MUI_ICON "${ICONO}"
!define MUI_UNICON "${ICONO}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\bin\siro.exe"

!insertmacro MUI_PAGE_LICENSE "${LICENCIA}"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Spanish"

; A program that runs holds its file, which could neither be replaced nor taken away.
!macro EXIGE_CERRADO
    ${If} ${FileExists} "$INSTDIR\bin\siro.exe"
        ClearErrors
        FileOpen $0 "$INSTDIR\bin\siro.exe" a
        ${If} ${Errors}
            MessageBox MB_OK|MB_ICONSTOP "SIRO está abierto. Ciérrelo y vuelva a empezar." /SD IDOK
            SetErrorLevel 2
            Abort
        ${EndIf}
        FileClose $0
    ${EndIf}
!macroend

; What an older version has left would mix with this one: it takes away what it has installed.
Section "SIRO"
    !insertmacro EXIGE_CERRADO
    ${If} ${FileExists} "$INSTDIR\desinstala.exe"
        ExecWait '"$INSTDIR\desinstala.exe" /S _?=$INSTDIR'
    ${EndIf}
    SetOutPath "$INSTDIR"
    File /r "${DE}/*"
    WriteUninstaller "$INSTDIR\desinstala.exe"

    CreateDirectory "$SMPROGRAMS\SIRO"
    CreateShortcut "$SMPROGRAMS\SIRO\SIRO.lnk" "$INSTDIR\bin\siro.exe"
    CreateShortcut "$SMPROGRAMS\SIRO\Desinstalar SIRO.lnk" "$INSTDIR\desinstala.exe"

    ; Windows knows a file by what follows its last point, so that every .vlm opens with SIRO, which refuses what is no project.
    WriteRegStr HKCU "Software\Classes\.vlm\OpenWithProgids" "${TIPO}" ""
    WriteRegStr HKCU "Software\Classes\.vlm" "" "${TIPO}"
    WriteRegStr HKCU "Software\Classes\${TIPO}" "" "Proyecto de SIRO"
    WriteRegStr HKCU "Software\Classes\${TIPO}\DefaultIcon" "" "$INSTDIR\bin\siro.exe,0"
    WriteRegStr HKCU "Software\Classes\${TIPO}\shell\open\command" "" '"$INSTDIR\bin\siro.exe" "%1"'
    System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'

    WriteRegStr HKCU "${CLAVE}" "DisplayName" "SIRO"
    WriteRegStr HKCU "${CLAVE}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${CLAVE}" "DisplayIcon" "$INSTDIR\bin\siro.exe"
    WriteRegStr HKCU "${CLAVE}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${CLAVE}" "UninstallString" '"$INSTDIR\desinstala.exe"'
    WriteRegStr HKCU "${CLAVE}" "QuietUninstallString" '"$INSTDIR\desinstala.exe" /S'
    WriteRegDWORD HKCU "${CLAVE}" "NoModify" 1
    WriteRegDWORD HKCU "${CLAVE}" "NoRepair" 1
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD HKCU "${CLAVE}" "EstimatedSize" "$0"
SectionEnd

; The user's projects stand in the user's data directory, and stay; what else the user has put among the programs stays too.
Section "Uninstall"
    !insertmacro EXIGE_CERRADO
    !include "${QUITA}"
    Delete "$INSTDIR\desinstala.exe"
    RMDir "$INSTDIR"
    RMDir /r "$SMPROGRAMS\SIRO"
    DeleteRegValue HKCU "Software\Classes\.vlm\OpenWithProgids" "${TIPO}"
    ReadRegStr $0 HKCU "Software\Classes\.vlm" ""
    StrCmp $0 "${TIPO}" 0 +2
    DeleteRegValue HKCU "Software\Classes\.vlm" ""
    DeleteRegKey HKCU "Software\Classes\${TIPO}"
    DeleteRegKey HKCU "${CLAVE}"
    System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
SectionEnd
