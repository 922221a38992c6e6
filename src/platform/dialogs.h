#pragma once

#include "platform/colour.h"

#include <QString>

#include <optional>

namespace platform {

/// The answers of a message box.
enum Answer : qint16 { OK = 1, Cancel = 2, Abort = 3, Retry = 4, Ignore = 5, Yes = 6, No = 7 };

enum class Icon { None, Information, Exclamation, Question, Critical };

enum class Buttons { OKOnly, OKCancel, YesNo, YesNoCancel };

/// What a message box says. An empty title stands for the application's title.
struct MessageBox
{
    QString text;
    Icon icon = Icon::None;
    Buttons buttons = Buttons::OKOnly;
    QString title = {};
    bool noByDefault = false; ///< Enter answers No: a Yes would lose something

    bool operator==(const MessageBox &other) const = default;
};

/// A complete request for a file: nothing of an earlier dialog is carried over but what the command puts in
/// here.
struct OpenFileRequest
{
    QString initialDirectory = {};
    QString fileName = {}; ///< proposed name, or a pattern such as "*.exe"
    QString filter = {};   ///< "Text|*.txt|All|*.*"; without "|" it is both text and pattern
    QString title = {};
    int filterIndex = 1; ///< of the pairs, from 1
    bool mustExist = false;
    bool hideReadOnly = false;

    bool operator==(const OpenFileRequest &other) const = default;
};

/// A complete request for the name of a file to be written. The dialog itself never asks about a file that is
/// there: that is the command's to do, which alone knows what it will write.
struct SaveFileRequest
{
    QString initialDirectory = {};
    QString fileName = {}; ///< proposed name
    QString filter = {};   ///< as in OpenFileRequest
    QString title = {};

    bool operator==(const SaveFileRequest &other) const = default;
};

/// What a box asks the user to type.
struct InputBox
{
    QString prompt;
    QString title = {};

    bool operator==(const InputBox &other) const = default;
};

/// Boxes that wait for the user. A box closes all open menus first. When the program ends while a box is
/// open, the box answers as if it had been cancelled.
class Dialogs
{
public:
    virtual ~Dialogs() = default;

    virtual Answer message(const MessageBox &box) = 0;

    /// The text that was typed, as it stands; nothing when the box was cancelled.
    virtual std::optional<QString> input(const InputBox &box) = 0;

    /// The full path of the chosen file; nothing when the dialog was cancelled.
    virtual std::optional<QString> openFile(const OpenFileRequest &request) = 0;

    /// The full path of the file to be written; nothing when the dialog was cancelled.
    virtual std::optional<QString> saveFile(const SaveFileRequest &request) = 0;

    /// The chosen colour; nothing when the dialog was cancelled. `initial` is the one that is shown first.
    virtual std::optional<Colour> chooseColour(Colour initial) = 0;

    /// Shows the box in which a printer is chosen and set up; false where the machine has no printer.
    virtual bool setUpPrinter() = 0;
};

} // namespace platform
