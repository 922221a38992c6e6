#pragma once

#include <QString>

#include <array>

namespace shell {

/// The application's title: that of the main window, and of every message box without one of its own.
inline constexpr char ApplicationTitle[] = "Kinovra Motion Analysis System";

/// The state that all commands share. Whole numbers are 16 bits wide; directories have no trailing backslash
/// but where a line says so.
struct Kinovra
{
    QString ProgDir;      ///< program directory; set at start, never afterwards
    QString DataDir;      ///< data directory; of a root it holds the drive's text
    QString LastFile;     ///< read from the settings at start; nothing uses it, and that is meant
    QString SelectedFile; ///< file last selected in a list or given on the command line, without directory
    QString CurrentTrial; ///< trial name: the selected file without its extension
    QString CurrentExtension;    ///< extension of the selected file, without the dot
    QString BinaryFile;          ///< binary result file chosen in filBinaries; empty when none is
    qint16 UserLevel = 0;        ///< 0 Novice, 1 Expert
    QString TextViewer;          ///< program that shows text files
    QString WindowsDir;          ///< the Windows directory with its trailing backslash, or empty
    QString ManualsDir;          ///< folder of the PDF manuals with its trailing backslash
    QString ListingDevice;       ///< where listings go: "DISK FILE", "SCREEN", "PRINTER", "NONE"
    QString GraphicsDevice;      ///< where graphics go: "SCREEN", "PRINTER", "PLOTTER", "DISK FILE"
    QString ListingSwitch;       ///< "/L ", "/N ", "/T " or empty; stands in front of a command's arguments
    QString ProgName;            ///< program about to be run; at start the panel's own file name
    double TaskId = 0;           ///< value of the last program start; some commands keep an answer here
    qint16 Answer = 0;           ///< last message-box answer, TestFile result or runner result
    QString VersionText;         ///< such as "3.05 (build 012)"
    QString HeaderText;          ///< banner that the about window shows
    QString WebHome;             ///< address of the package's home page
    qint64 MainWindowHandle = 0; ///< owner of the requests to the operating system
    /// What the text viewer shows next: a full path, "0" for nothing, "1" to "10" for a how-to topic.
    QString ViewerFile;
    std::array<QString, 11> HowToText; ///< texts of the how-to topics, from 1
    QString ManualFile;                ///< name of the manual last opened; empty for their folder
};

} // namespace shell
