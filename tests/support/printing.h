#pragma once

#include "platform/command_text.h"
#include "platform/dialogs.h"

#include <QString>

#include <ostream>

// How GoogleTest prints the panel's values when an expectation fails.

void PrintTo(const QString &text, std::ostream *out);

namespace platform {

void PrintTo(const Start &start, std::ostream *out);
void PrintTo(const MessageBox &box, std::ostream *out);
void PrintTo(const InputBox &box, std::ostream *out);
void PrintTo(const OpenFileRequest &request, std::ostream *out);
void PrintTo(const SaveFileRequest &request, std::ostream *out);

} // namespace platform
