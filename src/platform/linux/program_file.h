#pragma once

#include <QByteArray>

namespace platform::host {

/// How a program runs, as its own header says.
enum class ProgramKind {
    Native,         ///< ELF, or a script with its interpreter
    WindowsConsole, ///< through Wine, in a terminal
    WindowsGui,     ///< through Wine
    Dos,            ///< through DOSBox
    Unknown
};

/// The kind of the program whose file begins with `start`, which should hold some KiB of it.
ProgramKind programKind(QByteArrayView start);

/// The kind of the program in the file `hostPath`; Unknown where it cannot be read.
ProgramKind programKindOf(const QByteArray &hostPath);

/// The interpreter that a script names in its first line; empty for what is no script.
QByteArray interpreterOf(const QByteArray &hostPath);

} // namespace platform::host
