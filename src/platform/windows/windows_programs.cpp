#include "platform/windows/windows_programs.h"

#include "platform/argument_forms.h"
#include "platform/path_language.h"
#include "platform/runtime_error.h"
#include "platform/start_rules.h"
#include "platform/windows/host_files.h"
#include "platform/windows/program_search.h"

#include <utility>

#include <objbase.h>

using namespace Qt::StringLiterals;

namespace platform::host {

namespace {

// The system starts nothing in a directory whose path is longer, and most programs open nothing.
constexpr qsizetype LongestPath = MAX_PATH - 2;

// A path as it can be handed on: the short form of one that is too long. Raises BadFileName where it has
// none.
QString handedOn(const QString &path)
{
    if (path.size() <= LongestPath)
        return path;
    const std::wstring name = systemPath(path);
    const QString prefix = u"\\\\?\\"_s;
    const QString form = textOf(
        [&name](wchar_t *buffer, DWORD size) { return ::GetShortPathNameW(name.c_str(), buffer, size); });
    QString plain = form.startsWith(prefix) ? form.mid(prefix.size()) : form;
    if (plain.isEmpty() || plain.size() > LongestPath)
        throw RuntimeError(ErrorNumber::BadFileName,
                           u"the path of %1 is too long for a program"_s.arg(shortFormOf(path)));
    return plain;
}

} // namespace

WindowsPrograms::WindowsPrograms(WindowsFileSystem &files)
    : files_(files)
    , leavesSystemParts_(
          SUCCEEDED(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE)))
{}

WindowsPrograms::~WindowsPrograms()
{
    if (leavesSystemParts_)
        ::CoUninitialize();
}

StartResult WindowsPrograms::start(const Start &start)
{
    const auto failure = [&start](double value, const QString &why) {
        return StartResult{start.verb.isEmpty() ? 0 : value, why};
    };
    try {
        const QuietDrives quiet;
        Started outcome = begin(start);
        if (!outcome.failure.isEmpty())
            return failure(outcome.failureValue, outcome.failure);
        const double value = ++lastValue_;
        if (outcome.process.isValid())
            watch_.watch(std::move(outcome.process), [this, value](const Ending &ending) {
                if (ended)
                    ended(value, ending);
            });
        return {value, QString()};
    } catch (const RuntimeError &error) {
        const bool denied = error.Number == static_cast<qint16>(ErrorNumber::PermissionDenied);
        return failure(denied ? open_failure::AccessDenied : open_failure::NotFound,
                       error.Description.left(1).toLower() + error.Description.mid(1));
    }
}

Started WindowsPrograms::begin(const Start &start)
{
    if (start.target == Target::Address) {
        if (!isWebAddress(start.file))
            return {.failure = u"it is not an https address"_s};
        // A browser that stays must not keep a data directory busy.
        return openBySystem(start, start.file, QString(), QString());
    }
    const auto directory = files_.existingDirectory(start.directory);
    if (!directory)
        return {.failure = u"the directory %1 is gone"_s.arg(start.directory)};
    return start.target == Target::Document ? openDocument(start, *directory)
                                            : startProgram(start, *directory);
}

Started WindowsPrograms::startProgram(const Start &start, const QString &directory) const
{
    QString program =
        isBareName(start.file) ? findProgram(start.file, directory) : files_.absolute(start.file);
    QString commandLine = windowsCommandLine(start);
    if (program.isEmpty()) {
        if (showsFilms(start.file))
            return openFilm(start, directory);
        program = successorOf(start.file);
        if (program.isEmpty())
            return {.failure = u"it was not found"_s};
        Start successor = start;
        successor.file = program;
        commandLine = windowsCommandLine(successor);
    }
    const DWORD attributes = attributesOf(program);
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return notStarted(::GetLastError());
    const ProgramKind kind = isDirectory(attributes) ? ProgramKind::None : programKind(program);
    if (kind == ProgramKind::None)
        return {.failure = u"it is not a program"_s, .failureValue = open_failure::BadFormat};
    if (kind == ProgramKind::OtherSystem)
        return notStarted(ERROR_BAD_EXE_FORMAT);
    if (start.verb.isEmpty())
        return createProcess(handedOn(program), commandLine, handedOn(directory), start.show);
    return openBySystem(start, handedOn(program), windowsParameters(start), handedOn(directory));
}

// The file is looked at before it is handed on, and only a document is: what is a program is not started by
// the way.
Started WindowsPrograms::openDocument(const Start &start, const QString &directory) const
{
    if (start.file.isEmpty())
        return openBySystem(start, handedOn(directory), QString(), handedOn(directory));
    if (!isPlainName(start.file))
        return {.failure = u"it was not found"_s};
    const QString path = joinPath(directory, withoutEndOfName(start.file));
    const DWORD attributes = attributesOf(path);
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return notStarted(::GetLastError());
    if (isDirectory(attributes))
        return {.failure = u"it is not a file"_s};
    if (isDangerousToOpen(path))
        return {.failure = u"it is a program, not a document"_s, .failureValue = open_failure::AccessDenied};
    openForReading(path);
    return openBySystem(start, handedOn(path), QString(), handedOn(directory));
}

// Whatever program is associated with the film shows it.
Started WindowsPrograms::openFilm(const Start &start, const QString &directory) const
{
    const QStringList films = start.parameters.arguments();
    if (films.isEmpty())
        return {.failure = u"it was not found"_s};
    const QString film =
        isBareName(films.first()) ? joinPath(directory, films.first()) : files_.absolute(films.first());
    Start document = start;
    document.file = nameOf(film);
    return openDocument(document, parentOf(film));
}

} // namespace platform::host
