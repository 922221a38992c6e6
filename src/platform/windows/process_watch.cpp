#include "platform/windows/process_watch.h"

#include <QObject>
#include <QWinEventNotifier>

#include <utility>

using namespace Qt::StringLiterals;

namespace platform::host {

Ending endingOf(quint32 exitCode)
{
    // With such codes the system and the runtimes of languages end a process; those behind them are the small
    // negative numbers with which programs end themselves.
    constexpr quint32 FirstOfSystem = 0x80000000;
    constexpr quint32 BehindSystem = 0xF0000000;
    constexpr quint32 LibraryNotFound = 0xC0000135;
    constexpr quint32 EntryNotFound = 0xC0000139;
    constexpr quint32 Interrupted = 0xC000013A;
    const auto code = static_cast<int>(exitCode);
    switch (exitCode) {
    case LibraryNotFound:
    case EntryNotFound:
        return {Ending::Kind::Crashed, code, u"a library that it needs was not found"_s};
    case Interrupted:
        return {Ending::Kind::Crashed, code, u"it was interrupted"_s};
    default:
        break;
    }
    if (exitCode >= FirstOfSystem && exitCode < BehindSystem)
        return {Ending::Kind::Crashed, code, u"0x"_s + QString::number(exitCode, 16).toUpper()};
    return {Ending::Kind::Exited, code};
}

ProcessWatch::ProcessWatch() = default;

ProcessWatch::~ProcessWatch() = default;

void ProcessWatch::watch(Handle process, std::function<void(const Ending &)> ended)
{
    const int number = ++lastNumber_;
    auto notifier = std::make_unique<QWinEventNotifier>(process.get());
    QObject::connect(notifier.get(), &QWinEventNotifier::activated, [this, number] { hasEnded(number); });
    children_.emplace(number, Child{std::move(process), std::move(notifier), std::move(ended)});
}

void ProcessWatch::hasEnded(int number)
{
    const auto found = children_.find(number);
    if (found == children_.end())
        return;
    Child child = std::move(found->second);
    children_.erase(found);
    child.notifier->setEnabled(false);
    // The notifier is still delivering the event that led here.
    child.notifier.release()->deleteLater();
    DWORD exitCode = 0;
    ::GetExitCodeProcess(child.process.get(), &exitCode);
    child.ended(endingOf(exitCode));
}

} // namespace platform::host
