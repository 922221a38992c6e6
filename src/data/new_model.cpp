#include "data/new_model.h"

#include "browser/current_trial.h"
#include "browser/file_lists.h"
#include "platform/path_language.h"
#include "platform/runtime_error.h"
#include "shell/dispatch.h"
#include "shell/file_names.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

using platform::ErrorNumber;
using platform::Icon;
using platform::Replacing;
using platform::RuntimeError;
using shell::MsgBox;
using shell::Panel;

bool isOneFile(platform::FileSystem &files, const QString &one, const QString &other)
{
    const auto stampOfOne = files.stamp(one);
    const auto stampOfOther = files.stamp(other);
    return stampOfOne && stampOfOther && stampOfOne->isOfSameFile(*stampOfOther);
}

bool mayReplace(Panel &panel, const QString &path, bool hasChanged)
{
    const QString &lineBreak = panel.frm.LineBreak;
    const QString found =
        hasChanged ? u"This model has changed meanwhile:"_s : u"This model is there already:"_s;
    const platform::Answer answer =
        MsgBox(panel, {.text = found + lineBreak + path + lineBreak + u"Do you want to replace it?"_s,
                       .icon = Icon::Question,
                       .buttons = platform::Buttons::YesNo,
                       .noByDefault = true});
    panel.kinovra.Answer = answer;
    return answer == platform::Yes;
}

void sayReady(Panel &panel, const QString &model)
{
    shell::say(panel, u"%1 is ready."_s.arg(platform::nameOf(model)));
}

// The user has agreed that `existing` is replaced. While the question was shown it may have become another
// file: then that is what must be asked about.
bool isStillThere(platform::FileSystem &files, const QString &destination, const QString &existing,
                  const std::optional<platform::FileStamp> &asked)
{
    return files.existingFile(destination) == existing && files.stamp(existing) == asked;
}

// False where the user keeps the model that is there. Raises what the copy raises.
bool copyModel(Panel &panel, const QString &source, const QString &destination)
{
    platform::FileSystem &files = panel.platform.files;
    bool hasChanged = false;
    while (const auto existing = files.existingFile(destination)) {
        if (isOneFile(files, source, *existing)) {
            shell::say(panel,
                       u"%1 is that model itself: it stays as it is."_s.arg(platform::nameOf(*existing)));
            return true;
        }
        const auto asked = files.stamp(*existing);
        if (!mayReplace(panel, *existing, hasChanged))
            return false;
        if (isStillThere(files, destination, *existing, asked)) {
            files.copyFile(source, *existing, Replacing::Agreed);
            sayReady(panel, *existing);
            return true;
        }
        hasChanged = true;
    }
    files.copyFile(source, destination, Replacing::Refused);
    sayReady(panel, destination);
    return true;
}

void tellCopyProblem(Panel &panel, const RuntimeError &error)
{
    if (error.Number == static_cast<qint16>(ErrorNumber::FileAlreadyOpen))
        MsgBox(panel, {u"Cannot copy an open file.  Close it and try again."_s, Icon::Exclamation});
    else
        MsgBox(panel, {u"Error "_s + QString::number(error.Number)
                           + u".  You must specify a complete destination file name."_s + panel.frm.LineBreak
                           + error.Description,
                       Icon::Exclamation});
}

} // namespace

void mnuNewModel_Click(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    const QString anyModel = u"*.cfb"_s;
    const auto source = shell::askForFile(panel, {.initialDirectory = frm.dlgOpen.InitDir,
                                                  .fileName = anyModel,
                                                  .filter = anyModel,
                                                  .title = u"Select a model file (.CFB)"_s,
                                                  .mustExist = true});
    if (!source)
        return;
    platform.files.changeDirectory(kinovra.DataDir);
    const auto chosen = shell::askForNewFile(
        panel, {.initialDirectory = kinovra.DataDir, .filter = anyModel, .title = u"Save as"_s});
    if (!chosen)
        return;
    const QString name = shell::StripExtension(platform::nameOf(*chosen)) + u".CFB"_s;
    // What was said of an earlier copy is no longer so.
    shell::say(panel, QString());
    try {
        if (!copyModel(panel, *source, kinovra.DataDir + u'\\' + name))
            return;
    } catch (const RuntimeError &error) {
        tellCopyProblem(panel, error);
        return;
    }
    browser::chooseTrialOf(panel, name);
    browser::refresh(panel, {&frm.filModels});
    frm.filModels.Visible = true;
}

} // namespace data
