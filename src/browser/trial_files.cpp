#include "browser/trial_files.h"

#include "browser/hindrances.h"
#include "browser/test_file.h"

namespace browser {

namespace {

constexpr qsizetype RoomForExtension = 8;

} // namespace

TrialFiles::TrialFiles(Panel &panel) : panel_(panel), length_(panel.kinovra.CurrentTrial.size())
{
    name_.reserve(length_ + RoomForExtension);
    name_ += panel.kinovra.CurrentTrial;
}

bool TrialFiles::has(const char *extension)
{
    return test(extension) == 0;
}

bool TrialFiles::hasByAnswer(const char *extension)
{
    panel_.kinovra.Answer = test(extension);
    return panel_.kinovra.Answer == 0;
}

qint16 TrialFiles::test(const char *extension)
{
    name_.truncate(length_);
    name_ += QLatin1String(extension);
    error_ = TestFile(panel_, panel_.kinovra.DataDir, name_, Silent);
    return error_;
}

QString TrialFiles::hindrance() const
{
    return trialFileHindrance(panel_, name_.mid(length_), error_);
}

bool TrialFiles::hasEither(const char *extension, const char *other)
{
    const bool first = has(extension);
    return has(other) || first;
}

} // namespace browser
