#include "browser/hindrances.h"

#include "platform/letter_case.h"
#include "platform/runtime_error.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace browser {

namespace {

using platform::ErrorNumber;
using platform::UCase;

struct Advice
{
    const char *extension;
    const char *text;
};

// What to do for a file that is not there, where a command of the panel leads to it.
constexpr std::array<Advice, 8> Advices{{
    {".DG", "choose or convert digitized data first"},
    {".CN", "convert or refine the data first"},
    {".CFB", "create the model first"},
    {".KM", "run Kinematics first"},
    {".FO", "run Force first"},
    {".SIM", "create a new simulation first"},
    {".SN", "run Simulate first"},
    {".RF", "reduce the trial's force data first"},
}};

QString withAdvice(const QString &need, const QString &extension)
{
    const auto *const found =
        std::find_if(Advices.begin(), Advices.end(), [&extension](const Advice &advice) {
            return extension == QLatin1String(advice.extension);
        });
    return found == Advices.end() ? need : need + u": "_s + QLatin1String(found->text);
}

bool isMissing(qint16 error)
{
    return ErrorNumber(error) == ErrorNumber::FileNotFound || ErrorNumber(error) == ErrorNumber::PathNotFound;
}

QString cannotBeOpened(const QString &file, qint16 error)
{
    return u"%1 cannot be opened: %2"_s.arg(file,
                                            platform::withinSentence(platform::describe(ErrorNumber(error))));
}

} // namespace

QString needsTrial()
{
    return u"Needs a current trial: click on a data file or a model first"_s;
}

QString trialFileHindrance(const Panel &panel, const QString &extension, qint16 error)
{
    if (error == 0)
        return {};
    const QString &trial = panel.kinovra.CurrentTrial;
    if (trial.isEmpty())
        return needsTrial();
    const QString file = UCase(trial + extension);
    return isMissing(error) ? withAdvice(u"Needs "_s + file, UCase(extension)) : cannotBeOpened(file, error);
}

QString trialFilesHindrance(const Panel &panel, const QString &extension, const QString &other)
{
    const QString &trial = panel.kinovra.CurrentTrial;
    return trial.isEmpty()
               ? needsTrial()
               : withAdvice(u"Needs %1 or %2"_s.arg(UCase(trial + extension), UCase(trial + other)),
                            UCase(extension));
}

QString fileHindrance(const QString &file, const QString &place, qint16 error)
{
    if (error == 0)
        return {};
    return isMissing(error) ? u"%1 is not in %2"_s.arg(file, place) : cannotBeOpened(file, error);
}

} // namespace browser
