#include "real_panel.h"

#include "platform/linux/host_names.h"
#include "shell/connect_rooms.h"
#include "shell/dispatch.h"
#include "shell/menu_tree.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>

using namespace Qt::StringLiterals;

namespace launcher_tests {

namespace {

constexpr int LongestRun = 60'000; ///< milliseconds; far beyond what any program of a test takes

template <typename Control>
bool canBeUsed(const Control &control)
{
    return control.Enabled && control.Visible;
}

} // namespace

platform::StartResult KeptPrograms::start(const platform::Start &start)
{
    results.push_back(LinuxPrograms::start(start));
    return results.back();
}

RealPanel::RealPanel(const QList<QByteArray> &commandLine) : environment(commandLine, files)
{
    panel.screen = {1024 * 15, 768 * 15};
    shell::connectRooms(panel);
    // What the windows do where they are shown.
    for (controls::Window *window :
         std::initializer_list<controls::Window *>{&panel.about, &panel.viewer, &panel.newAverage})
        window->ToFront = [this, window] { shell::dispatch(panel, window->Activate); };
    shell::dispatch(panel, panel.frm.Load);
    panel.kinovra.WebHome = u"https://example.org/kinovra/kinovra.htm"_s;
    dialogs.messages.clear();
}

void RealPanel::act(const QString &sentence)
{
    const QString verb = sentence.section(u' ', 0, 0);
    const QString what = sentence.section(u' ', 1);
    const auto name = [&what] { return what.section(u" in "_s, 0, -2); };
    const auto list = [&what] { return what.section(u" in "_s, -1); };
    if (verb == u"choose")
        choose(what.split(u" > "_s));
    else if (verb == u"look")
        shell::dispatch(panel, openTheWayTo({what.section(u' ', 1)})->Opening);
    else if (verb == u"press")
        press(what);
    else if (verb == u"tick" || verb == u"clear")
        tick(what, verb == u"tick");
    else if (verb == u"click")
        click(name(), list());
    else if (verb == u"double-click")
        doubleClick(name(), list());
    else if (verb == u"open")
        open(what);
    else
        ADD_FAILURE() << "cannot do: " << sentence.toStdString();
}

void RealPanel::click(const QString &name, const QString &list)
{
    if (const auto *selected = select(name, list))
        shell::dispatch(panel, selected->Click);
}

void RealPanel::doubleClick(const QString &name, const QString &list)
{
    if (const auto *selected = select(name, list)) {
        shell::dispatch(panel, selected->Click);
        shell::dispatch(panel, selected->DblClick);
    }
}

void RealPanel::open(const QString &directory)
{
    auto &list = panel.frm.dirSelect;
    for (int row = 0; row < list.RowCount(); ++row) {
        if (list.RowPath(row) == panel.kinovra.DataDir + u'\\' + directory) {
            list.ListIndex = row;
            shell::dispatch(panel, [&] { list.OpenRow(row); });
            return;
        }
    }
    ADD_FAILURE() << "no directory " << directory.toStdString();
}

void RealPanel::willChoose(const QByteArray &directory, const QByteArray &name)
{
    dialogs.chosenFiles.emplace_back(files.adopt(directory) + u'\\' + platform::host::fromHostName(name));
}

void RealPanel::waitForEnds() const
{
    const QDeadlineTimer deadline(LongestRun);
    while (!panel.running.empty() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 100);
    EXPECT_EQ(panel.running.size(), 0U) << "a program did not end";
}

// The last of these items; the menus that lead to it are opened, as by a pointer on its way.
const controls::MenuItem *RealPanel::openTheWayTo(const QStringList &captions)
{
    static const controls::MenuItem none;
    const auto &rows = shell::menuTree();
    auto row = rows.begin();
    const controls::MenuItem *item = nullptr;
    for (int depth = 0; depth < captions.size(); ++depth) {
        if (item != nullptr)
            shell::dispatch(panel, item->Opening);
        row = std::find_if(row, rows.end(), [&](const shell::MenuRow &candidate) {
            return candidate.depth == depth && candidate.caption.trimmed() == captions[depth];
        });
        if (row == rows.end()) {
            ADD_FAILURE() << "no menu item " << captions.join(u" > "_s).toStdString();
            return &none;
        }
        item = &row->item(panel.frm);
        EXPECT_TRUE(canBeUsed(*item)) << captions[depth].toStdString();
    }
    return item;
}

void RealPanel::choose(const QStringList &captions)
{
    shell::dispatch(panel, openTheWayTo(captions)->Click);
}

void RealPanel::press(const QString &caption)
{
    const auto &frm = panel.frm;
    const auto &dialog = panel.newAverage;
    const auto &about = panel.about;
    for (const controls::Button *button :
         {&frm.cmdEditGra, &frm.cmdSelectGra, &frm.cmdGraph, &frm.cmdForces, &frm.cmdGuide, &frm.cmdSkelvo,
          &frm.cmdOndex, &frm.cmdEditor, &frm.cmdManual, &dialog.cmdOK, &dialog.cmdAverage,
          &dialog.cmdDefault, &about.cmdSysinfo, &about.cmdUpgrade, &about.cmdWebsite}) {
        if (button->Caption.value() == caption) {
            EXPECT_TRUE(canBeUsed(*button)) << caption.toStdString();
            shell::dispatch(panel, button->Click);
            return;
        }
    }
    ADD_FAILURE() << "no button " << caption.toStdString();
}

void RealPanel::tick(const QString &caption, bool value)
{
    auto &dialog = panel.newAverage;
    for (controls::CheckBox *box : {&dialog.chkAVall, &dialog.chkAVpercentage, &dialog.chkAVtoMass,
                                    &dialog.chkAVecho, &dialog.chkAVwait, &dialog.chkAVrow}) {
        if (box->Caption.value() == caption) {
            EXPECT_NE(box->Value, value) << caption.toStdString();
            box->Value = value;
            return;
        }
    }
    for (size_t i = 0; i < dialog.optCI.size(); ++i) {
        if (dialog.optCI[i].Caption.value() == caption) {
            controls::choose(dialog.optCI, i);
            return;
        }
    }
    ADD_FAILURE() << "no box " << caption.toStdString();
}

controls::FileList *RealPanel::select(const QString &name, const QString &list)
{
    auto &frm = panel.frm;
    const std::pair<const controls::Label *, controls::FileList *> lists[]{
        {&frm.lblPlots, &frm.filPlots},         {&frm.lblOutputs, &frm.filOutputs},
        {&frm.lblBinaries, &frm.filBinaries},   {&frm.lblGraFiles, &frm.filGraFiles},
        {&frm.lblDatafiles, &frm.filDatafiles},
    };
    for (const auto &[label, shown] : lists) {
        if (label->Caption.value() != list)
            continue;
        const int row = shown->Names.value().indexOf(name);
        EXPECT_GE(row, 0) << name.toStdString() << " is not shown";
        EXPECT_TRUE(canBeUsed(*shown)) << list.toStdString();
        shown->ListIndex = row;
        return row < 0 ? nullptr : shown;
    }
    ADD_FAILURE() << "no list " << list.toStdString();
    return nullptr;
}

} // namespace launcher_tests
