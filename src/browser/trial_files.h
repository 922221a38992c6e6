#pragma once

#include "shell/panel.h"

namespace browser {

using shell::Panel;

/// Asks silently, for one moment, which files of the data directory the current trial has.
class TrialFiles
{
public:
    explicit TrialFiles(Panel &panel);

    /// Whether the trial's file with this extension, dot included, can be opened.
    bool has(const char *extension);

    /// The same; the test's result stays in `Answer`.
    bool hasByAnswer(const char *extension);

    /// Whether one of two can. Both are tested, whatever the first says.
    bool hasEither(const char *extension, const char *other);

    /// Why the file that was tested last cannot be used, for the user; empty where it can.
    QString hindrance() const;

private:
    qint16 test(const char *extension);

    Panel &panel_;
    QString name_; ///< the trial's name, with room for an extension
    qsizetype length_;
    qint16 error_ = 0; ///< of the last test
};

} // namespace browser
