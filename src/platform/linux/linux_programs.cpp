#include "platform/linux/linux_programs.h"

#include "platform/argument_forms.h"
#include "platform/letter_case.h"
#include "platform/linux/host_names.h"
#include "platform/linux/program_file.h"
#include "platform/runtime_error.h"
#include "platform/start_rules.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace platform::host {

namespace {

// A native program's header does not tell whether it opens windows of its own; these of the package do.
constexpr std::array<const char *, 8> WindowedPrograms{"grafow",   "grafod", "acrospin", "skelvo",
                                                       "skelvo98", "ondex2", "forces",   "modlex"};

bool opensWindows(const QByteArray &program)
{
    const QByteArray name = program.mid(program.lastIndexOf('/') + 1).toLower();
    const QByteArray base = name.endsWith(".exe") ? name.chopped(4) : name;
    return std::any_of(WindowedPrograms.begin(), WindowedPrograms.end(),
                       [&base](const char *windowed) { return base == windowed; });
}

QByteArray directoryOf(const QByteArray &path)
{
    return path.left(std::max<qsizetype>(path.lastIndexOf('/'), 1));
}

QList<QByteArray> encoded(const QStringList &arguments)
{
    QList<QByteArray> result;
    for (const QString &argument : arguments)
        result.append(toHostName(argument));
    return result;
}

QString decoded(const QByteArray &path)
{
    return fromHostName(path);
}

QString notInstalled(const QString &accessory)
{
    return u"this desktop has no %1 installed"_s.arg(accessoryKind(accessory));
}

QString reason(int systemError)
{
    switch (systemError) {
    case EACCES:
    case EPERM:
        return u"it may not be executed"_s;
    case ENOENT:
        return u"something that it needs to run was not found"_s;
    case ENOEXEC:
        return u"it is not a program of this system"_s;
    default:
        return QString::fromLocal8Bit(
            std::strerror(systemError)); // NOLINT(concurrency-mt-unsafe): one thread
    }
}

} // namespace

/// What is to be started on the host, or why nothing can be.
struct LinuxPrograms::Command
{
    QList<QByteArray> arguments = {};
    bool inTerminal = false;
    QString failure = {};
    double failureValue = open_failure::NotFound;
};

LinuxPrograms::LinuxPrograms(LinuxFileSystem &files, QByteArray consoleHelper)
    : files_(files)
    , consoleHelper_(std::move(consoleHelper))
    , reports_([this](int number, const Ending &ending) {
        if (inTerminals_.removeOne(number))
            tell(number, ending);
    })
{}

StartResult LinuxPrograms::start(const Start &start)
{
    const auto failed = [&start](double value, const QString &why) {
        return StartResult{start.verb.isEmpty() ? 0 : value, why};
    };
    try {
        const bool anywhere = start.target == Target::Address && start.directory.isEmpty();
        // The root: a browser that stays must not keep a data directory busy.
        const auto directory = anywhere ? QByteArray("/") : files_.hostDirectory(start.directory);
        if (!directory)
            return failed(open_failure::NotFound, u"the directory %1 is gone"_s.arg(start.directory));
        if (::faccessat(AT_FDCWD, directory->constData(), X_OK, AT_EACCESS) != 0)
            return failed(open_failure::AccessDenied,
                          u"the directory %1 may not be entered"_s.arg(start.directory));
        const Command command = commandFor(start, *directory);
        if (!command.failure.isEmpty())
            return failed(command.failureValue, command.failure);

        const double value = ++lastValue_;
        const QByteArray terminal = command.inTerminal ? findTerminal() : QByteArray();
        const bool inWindow = !terminal.isEmpty();
        const int error = starter_.start(inWindow ? inTerminal(command.arguments, value) : command.arguments,
                                         *directory, [this, value, inWindow](const Ending &ending) {
                                             if (inWindow)
                                                 terminalEnded(value, ending);
                                             else
                                                 tell(value, ending);
                                         });
        if (error != 0)
            return failed(error == EACCES    ? open_failure::AccessDenied
                          : error == ENOEXEC ? open_failure::BadFormat
                                             : open_failure::NotFound,
                          reason(error));
        if (inWindow)
            inTerminals_.append(value);
        return {value, QString()};
    } catch (const RuntimeError &error) {
        const bool denied = start.target != Target::Program
                            && error.Number == static_cast<qint16>(ErrorNumber::PermissionDenied);
        return failed(denied ? open_failure::AccessDenied : open_failure::NotFound,
                      error.Description.left(1).toLower() + error.Description.mid(1));
    }
}

LinuxPrograms::Command LinuxPrograms::commandFor(const Start &start, const QByteArray &directory)
{
    if (start.target == Target::Document)
        return documentCommand(start, directory);
    if (start.target == Target::Address)
        return addressCommand(start);
    if (isBareName(start.file)) {
        if (isAccessory(start.file))
            return accessoryCommand(start);
        const QByteArray program = findInPath(toHostName(start.file));
        if (program.isEmpty())
            return {.failure = u"it was not found"_s};
        return programCommand(start, directory, program);
    }
    const auto program = files_.hostProgram(start.file);
    if (!program)
        return {.failure = u"it was not found"_s};
    return programCommand(start, directory, *program);
}

// The file is looked at before it is handed on: what an opener says about it is shown nowhere.
LinuxPrograms::Command LinuxPrograms::documentCommand(const Start &start, const QByteArray &directory)
{
    if (start.file.isEmpty())
        return sameIgnoringCase(start.verb, u"explore") ? folderCommand(directory) : openerCommand(directory);
    const auto found =
        isPlainName(start.file) ? files_.hostDocument(joinPath(start.directory, start.file)) : std::nullopt;
    struct stat status = {};
    if (!found || ::stat(found->constData(), &status) != 0)
        return {.failure = u"it was not found"_s};
    if (!S_ISREG(status.st_mode))
        return {.failure = u"it is not a file"_s};
    if (::faccessat(AT_FDCWD, found->constData(), R_OK, AT_EACCESS) != 0)
        return {.failure = u"permission was denied"_s, .failureValue = open_failure::AccessDenied};
    return openerCommand(*found);
}

LinuxPrograms::Command LinuxPrograms::folderCommand(const QByteArray &directory)
{
    const QString explorer = u"explorer.exe"_s;
    if (const auto fileManager = desktopProgram(explorer))
        return {.arguments = {fileManager->path, directory}};
    Command command = openerCommand(directory);
    if (!command.failure.isEmpty())
        command.failure = notInstalled(explorer);
    return command;
}

LinuxPrograms::Command LinuxPrograms::addressCommand(const Start &start)
{
    if (!isWebAddress(start.file))
        return {.failure = u"it is not an https address"_s};
    return openerCommand(start.file.toUtf8());
}

LinuxPrograms::Command LinuxPrograms::openerCommand(const QByteArray &argument)
{
    const QList<QByteArray> opener = desktopOpener();
    if (opener.isEmpty())
        return {.failure = u"this desktop has nothing to open it with"_s,
                .failureValue = open_failure::NoProgramForIt};
    return {.arguments = opener + QList{argument}};
}

LinuxPrograms::Command LinuxPrograms::accessoryCommand(const Start &start)
{
    const auto program = desktopProgram(start.file);
    if (!program)
        return {.failure = notInstalled(start.file)};
    QByteArray path = program->path;
    QStringList options;
    if (start.show == Show::Maximized) {
        // Only terminals are known by what lets them begin so.
        const QByteArray terminal = terminalItself(path);
        options = maximizedWindow(decoded(terminal));
        if (!options.isEmpty())
            path = terminal;
    }
    return {.arguments = QList<QByteArray>{path} + encoded(options + documentArguments(start)),
            .inTerminal = program->inTerminal};
}

LinuxPrograms::Command LinuxPrograms::programCommand(const Start &start, const QByteArray &directory,
                                                     const QByteArray &program)
{
    switch (programKindOf(program)) {
    case ProgramKind::Native:
        return nativeCommand(start, directory, program);
    case ProgramKind::WindowsConsole:
    case ProgramKind::WindowsGui: {
        const QByteArray wine = findInPath("wine");
        if (wine.isEmpty())
            return {.failure = u"it is a Windows program, and Wine is not installed"_s};
        return {.arguments = encoded(wineArguments(decoded(wine), decoded(program), start)),
                .inTerminal = programKindOf(program) == ProgramKind::WindowsConsole};
    }
    case ProgramKind::Dos: {
        const QByteArray dosbox = findInPath("dosbox");
        if (dosbox.isEmpty())
            return {.failure = u"it is a DOS program, and DOSBox is not installed"_s};
        return {.arguments = encoded(dosboxArguments(decoded(dosbox), decoded(directoryOf(program)),
                                                     decoded(program.mid(program.lastIndexOf('/') + 1)),
                                                     decoded(directory), start))};
    }
    case ProgramKind::Unknown:
        break;
    }
    if (::faccessat(AT_FDCWD, program.constData(), R_OK, AT_EACCESS) != 0)
        return {.failure = u"permission was denied"_s, .failureValue = open_failure::AccessDenied};
    return {.failure = u"it is not a program"_s, .failureValue = open_failure::BadFormat};
}

LinuxPrograms::Command LinuxPrograms::nativeCommand(const Start &start, const QByteArray &directory,
                                                    const QByteArray &program)
{
    // A terminal would not tell.
    if (::access(program.constData(), X_OK) != 0)
        return {.failure = reason(EACCES), .failureValue = open_failure::AccessDenied};
    const QByteArray interpreter = interpreterOf(program);
    const QByteArray place = interpreter.startsWith('/') ? interpreter : directory + '/' + interpreter;
    if (!interpreter.isEmpty() && ::access(place.constData(), X_OK) != 0)
        return {.failure = reason(ENOENT)};
    if (start.isViewer)
        return {.arguments = QList<QByteArray>{program} + encoded(documentArguments(start)),
                .inTerminal = needsTerminal(program)};
    return {.arguments = encoded(nativeArguments(decoded(program), start)),
            .inTerminal = !opensWindows(program)};
}

// The desktop's own programs tell letter case apart: they get the real path of the document that was found.
QStringList LinuxPrograms::documentArguments(const Start &start)
{
    return start.parameters.arguments([&](const QString &document) {
        const QString path = isBareName(document) ? joinPath(start.directory, document) : document;
        const auto found = files_.hostDocument(path);
        return found ? decoded(*found) : document;
    });
}

QList<QByteArray> LinuxPrograms::inTerminal(const QList<QByteArray> &command, double value)
{
    QStringList arguments;
    if (!consoleHelper_.isEmpty() && ::access(consoleHelper_.constData(), X_OK) == 0)
        arguments = {decoded(consoleHelper_), decoded(reports_.address()), QString::number(value)};
    for (const QByteArray &argument : command)
        arguments.append(decoded(argument));
    return encoded(terminalArguments(decoded(findTerminal()), arguments));
}

// A terminal's own end says nothing about the program in it, unless it failed before anything was reported: a
// terminal that passes its window on to another process ends well and at once.
void LinuxPrograms::terminalEnded(double value, const Ending &ending)
{
    const bool hasFailed = ending.kind != Ending::Kind::Exited || ending.code != 0;
    reports_.receive();
    if (hasFailed && inTerminals_.removeOne(value))
        tell(value, {Ending::Kind::TerminalFailed});
}

void LinuxPrograms::tell(double value, const Ending &ending)
{
    if (ended)
        ended(value, ending);
}

} // namespace platform::host
