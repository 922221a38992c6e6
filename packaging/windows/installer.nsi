; The setup program. It installs for one user, without an administrator's rights. The script "assemble" calls makensis
; on it, with the lists of what is installed (installed_files.nsh) that it has made from the staged folder.
;
;     Kinovra-<version>-setup.exe [/S] [/DG=1|/DG=0] [/D=<folder>]
;     Uninstall.exe [/S] [/ALL=1] [_?=<folder>]
;
;     /S       asks and shows nothing
;     /DG      whether .dg files open with the panel; else as it is, and not in a first installation
;     /D       another folder; the last argument, without quotes
;     /ALL=1   removes the user's trials and changes, too
;     _?=      its own folder; the last argument, without quotes. Then it does not go on in a copy of itself: one can
;              wait for it, but it cannot remove its own file
;
; Exit codes: 0 done, 1 cancelled by the user, 2 not completed; and of Windows' own 32 a program is running,
; 87 wrong argument, 183 there is an installation in another folder, 1150 Windows is too old.
;
; What the practice package brings is there to be changed: a trial is worked on, a real program takes the place of a
; practice program, a graph type is edited. So the setup program writes down the digest of each file it has installed,
; and neither an update nor the removal touches one of the package that is no longer what it was, unless told to.

Target amd64-unicode
ManifestDPIAware true
ManifestLongPathAware true
ManifestSupportedOS Win10
RequestExecutionLevel user
SetCompressor /SOLID lzma
; A file that cannot be written ends the installation, or is tried again.
AllowSkipFiles off

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include WinVer.nsh
!include "${LISTS}"

!define PRODUCT "Kinovra Motion Analysis System"
!define PROGRAM "KVwin98.exe"
!define UNINSTALL_PARENT "Software\Microsoft\Windows\CurrentVersion\Uninstall"
!define UNINSTALL_KEY "${UNINSTALL_PARENT}\Kinovra"
; Of each installed file, the build that has installed it and its digest.
!define RECORD_KEY "${UNINSTALL_KEY}\Files"
!define SETTINGS_PARENT "Software\VB and VBA Program Settings"
!define CLASSES "Software\Classes"
!define FILE_CLASS "Kinovra.DigitizedData"
!define DEFAULT_FOLDER "$LOCALAPPDATA\Programs\Kinovra"

Name "Kinovra"
Caption "Kinovra ${VERSION} Setup"
OutFile "${OUTPUT}"
InstallDir "${DEFAULT_FOLDER}"
BrandingText "${PRODUCT} ${VERSION}"

VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
VIAddVersionKey CompanyName "${PUBLISHER}"
VIAddVersionKey FileDescription "Kinovra Setup"
VIAddVersionKey FileVersion "${VERSION}.0"
VIAddVersionKey LegalCopyright "Copyright © ${PUBLISHER}"
VIAddVersionKey OriginalFilename "Kinovra-${VERSION}-setup.exe"
VIAddVersionKey ProductName "${PRODUCT}"
VIAddVersionKey ProductVersion "${VERSION}.0"

!define MUI_ICON "${PICTURES}/kinovra.ico"
!define MUI_UNICON "${PICTURES}/kinovra.ico"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${PICTURES}/setup.bmp"
!define MUI_COMPONENTSPAGE_SMALLDESC
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_TEXT "Start Kinovra with the practice trials"
!define MUI_FINISHPAGE_RUN_FUNCTION StartPanel
!define MUI_PAGE_CUSTOMFUNCTION_SHOW ShowComponents
!insertmacro MUI_PAGE_COMPONENTS
!define MUI_PAGE_CUSTOMFUNCTION_PRE SkipInUpdate
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

Var IsUpdate
Var HasUsersFiles

; ---- For the setup program and Uninstall.exe alike

!macro SharedFunctions UN

; $1 is the SHA-256 of the file $0, or empty where it cannot be read. Changes $2 to $6.
Function ${UN}Digest
  StrCpy $1 ""
  ClearErrors
  FileOpen $2 "$0" r
  ${If} ${Errors}
    Return
  ${EndIf}
  FileSeek $2 0 END $3
  FileSeek $2 0 SET
  IntOp $4 $3 + 1
  System::Alloc $4
  Pop $4
  System::Alloc 32
  Pop $5
  ${If} $4 P<> 0
  ${AndIf} $5 P<> 0
    System::Call 'kernel32::ReadFile(p r2, p r4, i r3, *i .r6, p 0) i'
    ${If} $6 = $3
      ; 0x41 stands for SHA-256, 0x4000000C for digits without spaces and line ends.
      System::Call 'bcrypt::BCryptHash(p 0x41, p 0, i 0, p r4, i r3, p r5, i 32) i .r6'
      ${If} $6 = 0
        System::Call 'crypt32::CryptBinaryToStringW(p r5, i 32, i 0x4000000C, t .r1, *i 65)'
      ${EndIf}
    ${EndIf}
  ${EndIf}
  System::Free $4
  System::Free $5
  FileClose $2
FunctionEnd

; $4 is the digest in the record of the file $0, a path below the folder; $3 the build. Empty where there is none.
Function ${UN}ReadRecord
  ReadRegStr $4 HKCU "${RECORD_KEY}" "$0"
  StrCpy $3 $4 16
  StrCpy $4 $4 "" 17
FunctionEnd

; Ends the run where the program file $0 is in use. Changes $1 to $3.
Function ${UN}EndIfRunning
  StrCpy $3 0
  again:
    ; Open for writing, shared with nobody: Windows refuses that while a program runs.
    System::Call "kernel32::CreateFile(t r0, i 0x40000000, i 0, p 0, i 3, i 0, p 0) p .r1 ? e"
    Pop $2
    ${If} $1 P<> -1
      System::Call "kernel32::CloseHandle(p r1)"
      Return
    ${EndIf}
    ${If} $2 <> 32
      Return
    ${EndIf}
    ; Something else may have had it open for a moment.
    ${If} $3 < 3
      IntOp $3 $3 + 1
      Sleep 500
      Goto again
    ${EndIf}
    ${GetFileName} "$0" $1
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
      "$1 is running, so it cannot be replaced or removed.$\n$\nClose all windows of Kinovra and try again." \
      /SD IDCANCEL IDRETRY again
  SetErrorLevel 32
  Abort "$1 is running."
FunctionEnd

Function ${UN}EndIfAnyIsRunning
  !insertmacro ForEachProgram EndIfRunning${UN}
FunctionEnd

; Gives .dg back to what had it before, if it is still the panel's.
Function ${UN}RemoveAssociation
  ReadRegStr $0 HKCU "${CLASSES}\${FILE_CLASS}" ""
  ${If} $0 == ""
    Return
  ${EndIf}
  ReadRegStr $0 HKCU "${CLASSES}\.dg" ""
  ${If} $0 == "${FILE_CLASS}"
    ReadRegStr $1 HKCU "${UNINSTALL_KEY}" EarlierAssociation
    ${If} $1 == ""
      DeleteRegValue HKCU "${CLASSES}\.dg" ""
    ${Else}
      WriteRegStr HKCU "${CLASSES}\.dg" "" "$1"
    ${EndIf}
  ${EndIf}
  DeleteRegValue HKCU "${UNINSTALL_KEY}" EarlierAssociation
  DeleteRegValue HKCU "${CLASSES}\.dg\OpenWithProgids" "${FILE_CLASS}"
  DeleteRegKey /ifempty HKCU "${CLASSES}\.dg\OpenWithProgids"
  DeleteRegKey /ifempty HKCU "${CLASSES}\.dg"
  DeleteRegKey HKCU "${CLASSES}\${FILE_CLASS}"
  Call ${UN}TellOfAssociations
FunctionEnd

Function ${UN}TellOfAssociations
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
FunctionEnd

!macroend

!macro EndIfRunning FOLDER NAME SOURCE DIGEST
  StrCpy $0 "$INSTDIR\${FOLDER}${NAME}"
  Call EndIfRunning
!macroend

!macro EndIfRunningun. FOLDER NAME SOURCE DIGEST
  StrCpy $0 "$INSTDIR\${FOLDER}${NAME}"
  Call un.EndIfRunning
!macroend

!insertmacro SharedFunctions ""
!insertmacro SharedFunctions "un."

; ---- Installing

; The panel, and what belongs to it, is replaced in any case.
!macro Write FOLDER NAME SOURCE DIGEST
  SetOutPath "$INSTDIR\${FOLDER}"
  File "${STAGED}/${SOURCE}"
  WriteRegStr HKCU "${RECORD_KEY}" "${FOLDER}${NAME}" "${BUILD} ${DIGEST}"
!macroend

; Programs, texts, graph types and manuals of the practice package.
!macro InstallPracticeFile FOLDER NAME SOURCE DIGEST
  StrCpy $0 "${FOLDER}${NAME}"
  StrCpy $7 "${DIGEST}"
  Call IsUsers
  ${If} $8 = 0
    !insertmacro Write "${FOLDER}" "${NAME}" "${SOURCE}" "${DIGEST}"
  ${Else}
    WriteRegStr HKCU "${RECORD_KEY}" "${FOLDER}${NAME}" "${BUILD} ${DIGEST}"
  ${EndIf}
!macroend

; A trial is its user's as soon as it is there.
!macro InstallTrial FOLDER NAME SOURCE DIGEST
  StrCpy $0 "${FOLDER}${NAME}"
  StrCpy $7 "${DIGEST}"
  ${If} ${FileExists} "$INSTDIR\$0"
    Call KeepTrial
  ${Else}
    !insertmacro Write "${FOLDER}" "${NAME}" "${SOURCE}" "${DIGEST}"
  ${EndIf}
!macroend

; $8 is 1 where the file $0, a path below the folder, is there and is neither what an earlier setup program has
; installed nor what this one installs, which has the digest $7. Changes $1 to $6.
Function IsUsers
  StrCpy $8 0
  ${IfNot} ${FileExists} "$INSTDIR\$0"
    Return
  ${EndIf}
  Push $0
  StrCpy $0 "$INSTDIR\$0"
  Call Digest
  Pop $0
  Call ReadRecord
  ${If} $1 != $7
    ${If} $1 == ""
    ${OrIf} $1 != $4
      StrCpy $8 1
    ${EndIf}
  ${EndIf}
FunctionEnd

; The record of a trial that stays: its own digest if it is what was installed once, so that it goes in the end.
Function KeepTrial
  Call IsUsers
  ${If} $8 = 0
    StrCpy $7 $1
  ${EndIf}
  WriteRegStr HKCU "${RECORD_KEY}" "$0" "${BUILD} $7"
FunctionEnd

; Removes what an earlier setup program has installed and this one does not know, unless it was changed. Trials stay
; and are written down again, so that they go in the end.
Function RemoveFormerFiles
  StrCpy $9 0
  next:
    EnumRegValue $0 HKCU "${RECORD_KEY}" $9
    StrCmp $0 "" done
    Call ReadRecord
    ${If} $3 == "${BUILD}"
      IntOp $9 $9 + 1
      Goto next
    ${EndIf}
    StrCpy $1 $0 7
    ${If} $1 == "trials\"
      WriteRegStr HKCU "${RECORD_KEY}" "$0" "${BUILD} $4"
      Goto next
    ${EndIf}
    StrCpy $7 $0
    StrCpy $8 $4
    StrCpy $0 "$INSTDIR\$7"
    Call Digest
    ${If} $1 != ""
    ${AndIf} $1 == $8
      Delete "$INSTDIR\$7"
      ${GetParent} "$INSTDIR\$7" $1
      RMDir "$1"
    ${EndIf}
    DeleteRegValue HKCU "${RECORD_KEY}" "$7"
    Goto next
  done:
FunctionEnd

Section "The panel and the practice package" PanelSection
  SectionIn RO
  Call EndIfAnyIsRunning
  ${If} $IsUpdate = 0
    ; A record that is left of an installation that is not there any more.
    DeleteRegKey HKCU "${RECORD_KEY}"
  ${EndIf}

  SetOutPath "$INSTDIR"
  ClearErrors
  WriteUninstaller "$INSTDIR\Uninstall.exe"
  ${If} ${Errors}
    MessageBox MB_OK|MB_ICONSTOP "Nothing can be written into$\n$INSTDIR" /SD IDOK
    SetErrorLevel 2
    Abort "Nothing can be written into $INSTDIR."
  ${EndIf}
  ; From here on it can be removed, even if it is not completed.
  WriteRegStr HKCU "${UNINSTALL_KEY}" DisplayName "${PRODUCT}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" DisplayVersion "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" Publisher "${PUBLISHER}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" DisplayIcon "$INSTDIR\${PROGRAM}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" InstallLocation "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" UninstallString '"$INSTDIR\Uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" QuietUninstallString '"$INSTDIR\Uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" EstimatedSize ${SIZE}
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" NoModify 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" NoRepair 1

  !insertmacro ForEachPanelFile Write
  !insertmacro ForEachPracticeFile InstallPracticeFile
  !insertmacro ForEachTrial InstallTrial
  Call RemoveFormerFiles

  ; Without a file the panel begins with the directory it is started in.
  SetOutPath "$INSTDIR\trials"
  CreateShortcut "$SMPROGRAMS\Kinovra.lnk" "$INSTDIR\${PROGRAM}" "" "" "" "" "" "${PRODUCT}"
  !ifdef GUIDE
    CreateShortcut "$SMPROGRAMS\Kinovra Guide.lnk" "$INSTDIR\${GUIDE}"
  !else
    Delete "$SMPROGRAMS\Kinovra Guide.lnk"
  !endif
SectionEnd

Section /o "Open .dg files with the panel" AssociationSection
  ReadRegStr $0 HKCU "${CLASSES}\.dg" ""
  ${If} $0 != "${FILE_CLASS}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" EarlierAssociation "$0"
  ${EndIf}
  WriteRegStr HKCU "${CLASSES}\${FILE_CLASS}" "" "Digitized data"
  WriteRegStr HKCU "${CLASSES}\${FILE_CLASS}\DefaultIcon" "" "$INSTDIR\${PROGRAM},0"
  WriteRegStr HKCU "${CLASSES}\${FILE_CLASS}\shell\open\command" "" '"$INSTDIR\${PROGRAM}" "%1"'
  WriteRegStr HKCU "${CLASSES}\.dg" "" "${FILE_CLASS}"
  WriteRegStr HKCU "${CLASSES}\.dg\OpenWithProgids" "${FILE_CLASS}" ""
  Call TellOfAssociations
SectionEnd

Section -NoAssociation
  ${IfNot} ${SectionIsSelected} ${AssociationSection}
    Call RemoveAssociation
  ${EndIf}
SectionEnd

Function .onInit
  ${IfNot} ${AtLeastWin10}
    MessageBox MB_OK|MB_ICONSTOP "Kinovra needs Windows 10 or later." /SD IDOK
    SetErrorLevel 1150
    Abort
  ${EndIf}

  StrCpy $IsUpdate 0
  ReadRegStr $0 HKCU "${UNINSTALL_KEY}" InstallLocation
  ${If} $0 != ""
  ${AndIf} ${FileExists} "$0\${PROGRAM}"
    ${If} $INSTDIR != "${DEFAULT_FOLDER}"
    ${AndIf} $INSTDIR != $0
      MessageBox MB_OK|MB_ICONSTOP "Kinovra is installed in$\n$0$\n$\nUninstall it there first." /SD IDOK
      SetErrorLevel 183
      Abort
    ${EndIf}
    StrCpy $INSTDIR $0
    StrCpy $IsUpdate 1
  ${EndIf}

  ReadRegStr $0 HKCU "${CLASSES}\.dg" ""
  ${If} $0 == "${FILE_CLASS}"
    !insertmacro SelectSection ${AssociationSection}
  ${EndIf}
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/DG=" $1
  ${IfNot} ${Errors}
    ${If} $1 == "1"
      !insertmacro SelectSection ${AssociationSection}
    ${ElseIf} $1 == "0"
      !insertmacro UnselectSection ${AssociationSection}
    ${Else}
      MessageBox MB_OK|MB_ICONSTOP "/DG=$1 is neither /DG=1 nor /DG=0." /SD IDOK
      SetErrorLevel 87
      Abort
    ${EndIf}
  ${EndIf}
FunctionEnd

; In an update the next page is the installation already.
Function ShowComponents
  ${If} $IsUpdate = 1
    GetDlgItem $0 $HWNDPARENT 1
    SendMessage $0 ${WM_SETTEXT} 0 "STR:$(^InstallBtn)"
  ${EndIf}
FunctionEnd

Function SkipInUpdate
  ${If} $IsUpdate = 1
    Abort
  ${EndIf}
FunctionEnd

Function StartPanel
  SetOutPath "$INSTDIR\trials"
  Exec '"$INSTDIR\${PROGRAM}"'
FunctionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${PanelSection} \
    "The control panel, with practice programs and sample trials to try it on."
  !insertmacro MUI_DESCRIPTION_TEXT ${AssociationSection} \
    "A double-click on a digitized-data file starts the panel with that trial."
!insertmacro MUI_FUNCTION_DESCRIPTION_END

; ---- Removing

!macro RemovePanelFile FOLDER NAME SOURCE DIGEST
  Delete "$INSTDIR\${FOLDER}${NAME}"
!macroend

!macro RemovePracticeFile FOLDER NAME SOURCE DIGEST
  StrCpy $0 "${FOLDER}${NAME}"
  StrCpy $7 "${DIGEST}"
  Call un.RemoveUnchanged
!macroend

!macro RemoveFolder FOLDER
  RMDir "$INSTDIR\${FOLDER}"
!macroend

; Removes the file $0, a path below the folder, if it is what was installed: what the record says, or, without one,
; of the digest $7. Changes $1 to $6.
Function un.RemoveUnchanged
  ${IfNot} ${FileExists} "$INSTDIR\$0"
    Return
  ${EndIf}
  Push $0
  StrCpy $0 "$INSTDIR\$0"
  Call un.Digest
  Pop $0
  Call un.ReadRecord
  ${If} $4 == ""
    StrCpy $4 $7
  ${EndIf}
  ${If} $1 != ""
  ${AndIf} $1 == $4
    Delete "$INSTDIR\$0"
  ${Else}
    StrCpy $HasUsersFiles 1
  ${EndIf}
FunctionEnd

; The same for all files of the record, some of which may be of an earlier setup program.
Function un.RemoveRecordedFiles
  StrCpy $9 0
  next:
    EnumRegValue $0 HKCU "${RECORD_KEY}" $9
    StrCmp $0 "" done
    Call un.RemoveUnchanged
    ${GetParent} "$INSTDIR\$0" $1
    RMDir "$1"
    IntOp $9 $9 + 1
    Goto next
  done:
FunctionEnd

; Removes the folder $0 with all that is in it. Of a link to another folder it removes the link only. Changes $3.
Function un.RemoveTree
  Push $1
  Push $2
  FindFirst $1 $2 "$0\*"
  ${DoUntil} $2 == ""
    ${If} $2 != "."
    ${AndIf} $2 != ".."
      System::Call 'kernel32::GetFileAttributes(t "$0\$2") i .r3'
      IntOp $3 $3 & 0x410 ; folder or link
      ${If} $3 = 0x10
        Push $0
        StrCpy $0 "$0\$2"
        Call un.RemoveTree
        Pop $0
      ${ElseIf} $3 = 0x410
        RMDir "$0\$2"
      ${Else}
        Delete "$0\$2"
      ${EndIf}
    ${EndIf}
    FindNext $1 $2
  ${Loop}
  FindClose $1
  RMDir "$0"
  Pop $2
  Pop $1
FunctionEnd

; Whether the user's files go, too: $0 is 1.
Function un.AskForUsersFiles
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/ALL=" $1
  ${IfNot} ${Errors}
  ${AndIf} $1 == "1"
    StrCpy $0 1
    Return
  ${EndIf}
  StrCpy $0 0
  MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 \
    "There are files of yours in$\n$INSTDIR$\n$\n\
    They are trials and results in its folder $\"trials$\", or files that have taken the place of those of the \
    practice package.$\n$\nDo you want to delete them, too?" /SD IDNO IDNO keep
  StrCpy $0 1
  keep:
FunctionEnd

Section Uninstall
  Call un.EndIfAnyIsRunning
  StrCpy $HasUsersFiles 0

  !insertmacro ForEachPanelFile RemovePanelFile
  !insertmacro ForEachPracticeFile RemovePracticeFile
  !insertmacro ForEachTrial RemovePracticeFile
  Call un.RemoveRecordedFiles
  !insertmacro ForEachFolder RemoveFolder
  ${If} ${FileExists} "$INSTDIR\trials\*.*"
    StrCpy $HasUsersFiles 1
  ${EndIf}
  ${If} $HasUsersFiles = 1
    Call un.AskForUsersFiles
    ${If} $0 = 1
      !insertmacro ForEachPracticeFile RemovePanelFile
      StrCpy $0 "$INSTDIR\trials"
      Call un.RemoveTree
    ${EndIf}
  ${EndIf}
  !insertmacro ForEachFolder RemoveFolder

  Delete "$SMPROGRAMS\Kinovra.lnk"
  Delete "$SMPROGRAMS\Kinovra Guide.lnk"
  Call un.RemoveAssociation
  DeleteRegKey HKCU "${SETTINGS_PARENT}\Kinovra"
  DeleteRegKey /ifempty HKCU "${SETTINGS_PARENT}"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  DeleteRegKey /ifempty HKCU "${UNINSTALL_PARENT}"

  Delete "$INSTDIR\Uninstall.exe"
  ; The current directory of a program cannot be removed.
  SetOutPath "$TEMP"
  RMDir "$INSTDIR"
  ${If} $INSTDIR == "${DEFAULT_FOLDER}"
    RMDir "$LOCALAPPDATA\Programs"
  ${EndIf}
SectionEnd
