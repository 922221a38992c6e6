#pragma once

#include "platform/environment.h"

#include <QString>

namespace platform::host {

/// What stands behind the program's own name in the text with which a process was started.
QString textBehindProgram(QStringView commandLine);

/// The process's environment.
class WindowsEnvironment : public Environment
{
public:
    QString commandLine() override;
    QString variable(const QString &name) override;
    QString programFolder() override;
    void endProgram() override;
};

} // namespace platform::host
