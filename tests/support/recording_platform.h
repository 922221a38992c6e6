#pragma once

#include "memory_file_system.h"
#include "platform/platform.h"

#include <QMap>

#include <deque>
#include <set>
#include <vector>

namespace support {

/// Settings in memory. What was written is recorded in order.
class RecordingSettings : public platform::Settings
{
public:
    struct Written
    {
        QString application, section, key, value;
        bool operator==(const Written &) const = default;
    };

    QString read(const QString &application, const QString &section, const QString &key,
                 const QString &fallback) override;
    void write(const QString &application, const QString &section, const QString &key,
               const QString &value) override;

    /// Stores a value of the panel's own start-up section without recording it.
    void stored(const QString &key, const QString &value);

    QMap<QString, QString> values; ///< by "application/section/key"
    std::vector<Written> written;
    QStringList readKeys;
};

class RecordingEnvironment : public platform::Environment
{
public:
    QString commandLine() override { return line; }
    QString variable(const QString &name) override { return variables.value(name); }
    QString programFolder() override { return folder; }
    void endProgram() override
    {
        if (whileEnding)
            whileEnding();
        ended = true;
    }

    std::function<void()> whileEnding;

    QString line;
    QMap<QString, QString> variables;
    QString folder = QLatin1String("C:\\KINOVRA");
    bool ended = false;
};

/// Starts nothing and records what would have been started.
class RecordingPrograms : public platform::Programs
{
public:
    platform::StartResult start(const platform::Start &start) override;

    std::vector<platform::Start> started;
    std::function<void()> whileStarting;
    QString failure;      ///< set: every start fails for this reason
    double nextTask = 51; ///< value of the next direct start
    double openValue = 42;
};

/// Answers boxes from a list that the test prepares, and records what they said.
class RecordingDialogs : public platform::Dialogs
{
public:
    platform::Answer message(const platform::MessageBox &box) override;
    std::optional<QString> input(const platform::InputBox &box) override;
    std::optional<QString> openFile(const platform::OpenFileRequest &request) override;
    std::optional<QString> saveFile(const platform::SaveFileRequest &request) override;
    std::optional<platform::Colour> chooseColour(platform::Colour initial) override;
    bool setUpPrinter() override;

    std::vector<platform::MessageBox> messages;
    std::vector<platform::OpenFileRequest> requests;
    std::vector<platform::SaveFileRequest> saveRequests;
    std::deque<platform::Answer> answers;
    std::vector<platform::InputBox> inputs;
    std::deque<std::optional<QString>> typed; ///< into the input boxes, in their order
    int printerSetUps = 0;                    ///< how often its box was asked for
    bool hasPrinter = true;
    std::deque<std::optional<QString>> chosenFiles; ///< for file dialogs of both kinds, in their order
    std::vector<platform::Colour> shownColours;     ///< what each colour dialog showed first
    std::deque<std::optional<platform::Colour>> chosenColours;
    std::function<void()> whileChoosing;
    std::function<void(const platform::MessageBox &)> whileShown;

private:
    std::optional<QString> nextChosen();
};

/// A clock that stands still but in pauses. What the test has put off runs during them.
class RecordingClock : public platform::Clock
{
public:
    double seconds() override { return now; }
    void letEventsRunUntil(double until) override;
    void letPendingEventsRun() override;

    /// Runs `event` during the next pause, `after` seconds from its start.
    void duringPause(double after, std::function<void()> event);

    double now = 100;
    std::vector<double> pauses; ///< lengths in seconds
    int pendingRuns = 0;
    std::function<void()> whilePending; ///< run as an event that is pending, each time such are let run

private:
    struct Event
    {
        double after;
        std::function<void()> run;
    };
    std::deque<Event> events_;
};

/// A registry in memory. What was asked of it is recorded.
class RecordingRegistry : public platform::Registry
{
public:
    std::unique_ptr<platform::RegistryKey> open(platform::RegistryRoot root, const QString &name,
                                                quint32 access) override;

    /// Stores a value under the local machine's root.
    void store(const QString &key, const QString &name, const platform::RegistryValue &value);

    std::set<quint32> denied; ///< masks that are not granted
    QStringList calls;        ///< such as "open 80000002 SOFTWARE\\Key 2003f", "value PATH 1024", "close"

private:
    QMap<QString, QMap<QString, platform::RegistryValue>> keys_;
};

/// The recording platform: a complete machine in memory that says what was done to it.
struct RecordingPlatform
{
    RecordingSettings settings;
    RecordingEnvironment environment;
    MemoryFileSystem files;
    RecordingPrograms programs;
    RecordingDialogs dialogs;
    RecordingClock clock;
    RecordingRegistry registry;
    platform::Platform platform{settings, environment, files, programs, dialogs, clock, registry};
};

} // namespace support
