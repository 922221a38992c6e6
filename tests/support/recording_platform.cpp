#include "recording_platform.h"

#include "platform/runtime_error.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using platform::ErrorNumber;
using platform::RuntimeError;

namespace support {

namespace {

QString address(const QString &application, const QString &section, const QString &key)
{
    return application + u'/' + section + u'/' + key;
}

class OpenRegistryKey : public platform::RegistryKey
{
public:
    OpenRegistryKey(QMap<QString, platform::RegistryValue> values, QStringList &calls)
        : values_(std::move(values)), calls_(calls)
    {}
    ~OpenRegistryKey() override { calls_.append(u"close"_s); }
    OpenRegistryKey(const OpenRegistryKey &) = delete;
    OpenRegistryKey &operator=(const OpenRegistryKey &) = delete;

    platform::RegistryValue value(const QString &name, qsizetype most) override
    {
        calls_.append(u"value %1 %2"_s.arg(name).arg(most));
        if (!values_.contains(name))
            throw RuntimeError(ErrorNumber::FileNotFound);
        if (values_[name].data.size() > most)
            throw RuntimeError(ErrorNumber::InvalidProcedureCall);
        return values_[name];
    }

private:
    QMap<QString, platform::RegistryValue> values_;
    QStringList &calls_;
};

// What a user who just presses Enter would answer.
platform::Answer defaultAnswer(platform::Buttons buttons)
{
    switch (buttons) {
    case platform::Buttons::OKOnly:
    case platform::Buttons::OKCancel:
        return platform::OK;
    case platform::Buttons::YesNo:
    case platform::Buttons::YesNoCancel:
        return platform::Yes;
    }
    return platform::OK;
}

} // namespace

QString RecordingSettings::read(const QString &application, const QString &section, const QString &key,
                                const QString &fallback)
{
    readKeys.append(address(application, section, key));
    return values.value(address(application, section, key), fallback);
}

void RecordingSettings::write(const QString &application, const QString &section, const QString &key,
                              const QString &value)
{
    written.push_back({application, section, key, value});
    values[address(application, section, key)] = value;
}

void RecordingSettings::stored(const QString &key, const QString &value)
{
    values[address(u"Kinovra"_s, u"Startup"_s, key)] = value;
}

platform::StartResult RecordingPrograms::start(const platform::Start &start)
{
    if (whileStarting)
        whileStarting();
    started.push_back(start);
    if (!failure.isEmpty())
        return {start.verb.isEmpty() ? 0.0 : 2.0, failure};
    return {start.verb.isEmpty() ? nextTask++ : openValue, QString()};
}

platform::Answer RecordingDialogs::message(const platform::MessageBox &box)
{
    messages.push_back(box);
    if (whileShown)
        whileShown(box);
    if (answers.empty()) {
        // A question must have been foreseen by the test.
        if (box.buttons != platform::Buttons::OKOnly)
            ADD_FAILURE() << "no answer prepared for: " << box.text.toStdString();
        return defaultAnswer(box.buttons);
    }
    const platform::Answer answer = answers.front();
    answers.pop_front();
    return answer;
}

std::optional<QString> RecordingDialogs::openFile(const platform::OpenFileRequest &request)
{
    requests.push_back(request);
    return nextChosen();
}

std::optional<QString> RecordingDialogs::saveFile(const platform::SaveFileRequest &request)
{
    saveRequests.push_back(request);
    return nextChosen();
}

std::optional<QString> RecordingDialogs::nextChosen()
{
    if (whileChoosing)
        whileChoosing();
    if (chosenFiles.empty())
        return std::nullopt;
    std::optional<QString> chosen;
    chosen.swap(chosenFiles.front());
    chosenFiles.pop_front();
    return chosen;
}

std::optional<platform::Colour> RecordingDialogs::chooseColour(platform::Colour initial)
{
    shownColours.push_back(initial);
    if (whileChoosing)
        whileChoosing();
    if (chosenColours.empty())
        return std::nullopt;
    const auto chosen = chosenColours.front();
    chosenColours.pop_front();
    return chosen;
}

std::optional<QString> RecordingDialogs::input(const platform::InputBox &box)
{
    inputs.push_back(box);
    if (whileChoosing)
        whileChoosing();
    if (typed.empty())
        return std::nullopt;
    std::optional<QString> text;
    text.swap(typed.front());
    typed.pop_front();
    return text;
}

bool RecordingDialogs::setUpPrinter()
{
    ++printerSetUps;
    if (whileChoosing)
        whileChoosing();
    return hasPrinter;
}

void RecordingClock::letEventsRunUntil(double until)
{
    const double start = now;
    pauses.push_back(until - start);
    std::deque<Event> events;
    events.swap(events_);
    for (const Event &event : events) {
        now = start + event.after;
        event.run();
    }
    now = until;
}

void RecordingClock::letPendingEventsRun()
{
    ++pendingRuns;
    if (whilePending)
        whilePending();
}

void RecordingClock::duringPause(double after, std::function<void()> event)
{
    events_.push_back({after, std::move(event)});
}

std::unique_ptr<platform::RegistryKey> RecordingRegistry::open(platform::RegistryRoot root,
                                                               const QString &name, quint32 access)
{
    calls.append(u"open %1 %2 %3"_s.arg(QString::number(static_cast<quint32>(root), 16), name,
                                        QString::number(access, 16)));
    if (root != platform::RegistryRoot::LocalMachine || !keys_.contains(name))
        throw RuntimeError(ErrorNumber::FileNotFound);
    if (denied.contains(access))
        throw RuntimeError(ErrorNumber::PermissionDenied);
    return std::make_unique<OpenRegistryKey>(keys_[name], calls);
}

void RecordingRegistry::store(const QString &key, const QString &name, const platform::RegistryValue &value)
{
    keys_[key][name] = value;
}

} // namespace support
