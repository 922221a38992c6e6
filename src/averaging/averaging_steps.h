#pragma once

#include "shell/panel.h"

// What the averaging menu and the options dialog have in common.

namespace averaging {

using shell::Panel;

/// Name of the help text on averaging, in the program directory.
inline constexpr char16_t HelpText[] = u"average.txt";

/// Whether the help text on averaging is there; the user is told where it is not. The result stays in
/// `Answer`.
bool hasHelpText(Panel &panel);

/// Makes the binary file list visible, where the user chooses another file.
void showBinaryFiles(Panel &panel);

/// Makes Average the program about to be run; its full path.
QString chooseAverage(Panel &panel);

/// Makes sure, as long as a command runs, that there is a binary file: the trial's own where none is chosen.
/// The status bar names that one when the command is done, since every start speaks there; not where the user
/// has chosen another file meanwhile.
class DefaultBinaryFile
{
public:
    explicit DefaultBinaryFile(Panel &panel);

    /// The command is done.
    void tell() const;

private:
    Panel &panel_;
    QString taken_; ///< the file that was taken, empty where one was chosen already
};

} // namespace averaging
