#include "browser/test_file.h"

#include "platform/letter_case.h"
#include "platform/runtime_error.h"
#include "shell/dispatch.h"

using namespace Qt::StringLiterals;

namespace browser {

qint16 TestFile(Panel &panel, const QString &path, const QString &file, qint16 showMsg)
{
    const QString name = path.isEmpty() ? platform::UCase(file) : platform::UCasePath(path, file);
    const qint16 error = panel.platform.files.testReading(name);
    if (error != 0 && showMsg != Silent) {
        shell::MsgBox(panel, {u"Error opening file: \"%1\"  (%2)"_s.arg(name, QString::number(error))
                                  + panel.frm.LineBreak + platform::describe(platform::ErrorNumber(error)),
                              platform::Icon::Exclamation});
    }
    return error;
}

} // namespace browser
