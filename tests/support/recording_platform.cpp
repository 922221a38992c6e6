#include "recording_platform.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace support {

namespace {

QString address(const QString &application, const QString &section, const QString &key)
{
    return application + u'/' + section + u'/' + key;
}

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

void RecordingClock::duringPause(double after, std::function<void()> event)
{
    events_.push_back({after, std::move(event)});
}

} // namespace support
