#include "echo_fixture.h"

#include "printing.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>

using namespace Qt::StringLiterals;
using platform::CommandText;
using platform::Ending;
using platform::Start;
using platform::Target;

namespace platform_tests {

namespace {

constexpr int FieldsOfRecord = 5;

} // namespace

WindowsStarts::WindowsStarts()
{
    scratch.makeDirectory("Program Files");
    scratch.makeDirectory("bin");
    install(u"Program Files\\Kinemati.exe"_s);
    programs.ended = [this](double value, const Ending &ending) { ends.push_back({value, ending}); };
}

void WindowsStarts::install(const QString &name, const QString &program) const
{
    support::copy(support::testDirectory() + u'\\' + program, at(name));
}

Start WindowsStarts::open(const QString &file, const CommandText &parameters) const
{
    return {.verb = u"open"_s, .file = file, .parameters = parameters, .directory = base};
}

Start WindowsStarts::direct(const QString &file, const CommandText &parameters) const
{
    return {.file = file, .parameters = parameters, .directory = base};
}

Start WindowsStarts::document(const QString &name) const
{
    return {.verb = u"open"_s, .file = name, .directory = base, .target = Target::Document};
}

platform::StartResult WindowsStarts::startUnlessLost(const Start &start)
{
    constexpr int MostLost = 10;
    platform::StartResult started = programs.start(start);
    while (support::isWine() && started.failure == u"Internal error" && ++lost <= MostLost)
        started = programs.start(start);
    return started;
}

Echo WindowsStarts::run(const Start &start)
{
    const size_t before = records().size();
    const size_t endsBefore = ends.size();
    result = startUnlessLost(start);
    EXPECT_EQ(result.failure, QString());
    if (!result.failure.isEmpty())
        return {};
    waitForEnds(endsBefore + 1);
    const std::vector<Echo> all = records();
    EXPECT_EQ(all.size(), before + 1);
    return all.size() > before ? all.back() : Echo();
}

void WindowsStarts::waitForEnds(size_t count)
{
    QDeadlineTimer deadline(60'000);
    while (ends.size() < count && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 100);
    ASSERT_GE(ends.size(), count) << "the program did not end";
}

std::vector<Echo> WindowsStarts::records() const
{
    const QByteArray bytes = scratch.read("record");
    const QString text(reinterpret_cast<const QChar *>(bytes.constData()),
                       bytes.size() / qsizetype(sizeof(QChar)));
    const QStringList fields = text.split(QChar(u'\0'));
    std::vector<Echo> all;
    for (qsizetype i = 0; i + FieldsOfRecord < fields.size(); i += FieldsOfRecord)
        all.push_back({fields[i], fields[i + 1], fields[i + 2], fields[i + 3], fields[i + 4] == u"console"});
    return all;
}

void WindowsStarts::expectFailure(const Start &start, const QString &why, double value)
{
    const size_t before = records().size();
    result = startUnlessLost(start);
    EXPECT_EQ(result.failure, why) << start.file.toStdString();
    EXPECT_EQ(result.value, value) << start.file.toStdString();
    EXPECT_EQ(records().size(), before) << start.file.toStdString();
}

} // namespace platform_tests
