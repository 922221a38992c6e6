#include "panel_fixture.h"

#include "shell/connect_rooms.h"
#include "shell/dispatch.h"
#include "shell/start_up.h"

using namespace Qt::StringLiterals;

namespace support {

namespace {

// The files of a complete package that the panel looks for at start.
constexpr const char *PackageFiles[]{
    "refila.exe",   "errcheck.exe", "fourier.exe",  "noise.exe",       "kinemati.exe",
    "momentum.exe", "muscle.exe",   "energy.exe",   "torque.exe",      "force.exe",
    "powers.exe",   "interact.exe", "simulate.exe", "graphs\\RUN.GRA",
};

} // namespace

PanelFixture::PanelFixture()
{
    for (const char *file : PackageFiles)
        machine.files.addFile(u"C:\\KINOVRA\\"_s + QLatin1String(file));
    machine.files.addDirectory(u"C:\\DATA"_s);
    machine.files.changeDirectory(u"C:\\DATA"_s);
    panel.screen = {1024 * 15, 768 * 15};
    frm.hWnd = 4711;
    shell::connectRooms(panel);
    // What a view does where a window is shown, though not at once as here but from the event loop.
    for (controls::Window *window : std::initializer_list<controls::Window *>{&about, &viewer, &newAverage})
        window->ToFront = [this, window] { shell::dispatch(panel, window->Activate); };
}

void PanelFixture::start(const QString &commandLine)
{
    machine.environment.line = commandLine;
    shell::dispatch(panel, frm.Load);
}

void PanelFixture::load(const QString &commandLine)
{
    start(commandLine);
    forget();
}

void PanelFixture::addData(std::initializer_list<const char *> names)
{
    for (const char *name : names)
        machine.files.addFile(u"C:\\DATA\\"_s + QLatin1String(name));
}

void PanelFixture::open(const QString &path)
{
    auto &list = frm.dirSelect;
    for (int row = 0; row < list.RowCount(); ++row) {
        if (list.RowPath(row) == path) {
            list.ListIndex = row;
            shell::dispatch(panel, [&] { list.OpenRow(row); });
            return;
        }
    }
    ADD_FAILURE() << "no row for " << path.toStdString();
}

void PanelFixture::click(controls::FileList &list, const QString &name)
{
    const int row = list.Names.value().indexOf(name);
    ASSERT_GE(row, 0) << name.toStdString() << " is not shown";
    list.ListIndex = row;
    shell::dispatch(panel, list.Click);
}

void PanelFixture::doubleClick(controls::FileList &list, const QString &name)
{
    click(list, name);
    shell::dispatch(panel, list.DblClick);
}

void PanelFixture::click(const controls::Button &button)
{
    shell::dispatch(panel, button.Click);
}

void PanelFixture::click(const controls::MenuItem &item)
{
    shell::dispatch(panel, item.Click);
}

void PanelFixture::openMenu(const controls::MenuItem &menu)
{
    shell::dispatch(panel, menu.Opening);
}

void PanelFixture::comeBack(const controls::Window &window)
{
    shell::dispatch(panel, window.Activate);
}

void PanelFixture::mark()
{
    kinovra.ProgName = u"(before)"_s;
    kinovra.SelectedFile = u"(before)"_s;
    kinovra.ViewerFile = u"(before)"_s;
    kinovra.ManualFile = u"(before)"_s;
    kinovra.TaskId = -1;
    kinovra.Answer = -1;
    frm.ProgPath = u"(before)"_s;
    frm.Comm = u"(before)"_s;
    frm.lblCommand.Caption = u"(before)"_s;
    frm.lblCommand.Visible = false;
}

void PanelFixture::expectMarkedBut(const QStringList &changed)
{
    const std::pair<const char *, bool> marked[]{
        {"ProgName", kinovra.ProgName == u"(before)"},
        {"SelectedFile", kinovra.SelectedFile == u"(before)"},
        {"ViewerFile", kinovra.ViewerFile == u"(before)"},
        {"ManualFile", kinovra.ManualFile == u"(before)"},
        {"TaskId", kinovra.TaskId == -1},
        {"Answer", kinovra.Answer == -1},
        {"ProgPath", frm.ProgPath == u"(before)"},
        {"Comm", frm.Comm.text() == u"(before)"},
        {"lblCommand", frm.lblCommand.Caption.value() == u"(before)" && !frm.lblCommand.Visible},
    };
    for (const auto &[name, isMarked] : marked)
        EXPECT_EQ(isMarked, !changed.contains(QLatin1String(name))) << name;
}

void PanelFixture::haveOnly(const QString &trial, const char *all, const char *present)
{
    const auto files = [&trial](const char *extensions) {
        QStringList result = QString(QLatin1String(extensions)).split(u' ', Qt::SkipEmptyParts);
        for (QString &name : result)
            name = u"C:\\DATA\\"_s + trial + name;
        return result;
    };
    for (const QString &path : files(all))
        machine.files.remove(path);
    for (const QString &path : files(present))
        addFile(path);
}

void PanelFixture::forget()
{
    machine.dialogs.messages.clear();
    machine.dialogs.requests.clear();
    machine.dialogs.saveRequests.clear();
    machine.dialogs.shownColours.clear();
    machine.dialogs.inputs.clear();
    machine.dialogs.printerSetUps = 0;
    machine.registry.calls.clear();
    machine.programs.started.clear();
    machine.settings.written.clear();
    machine.clock.pauses.clear();
    machine.files.tested.clear();
    machine.files.directoriesRead = 0;
}

QStringList PanelFixture::messages() const
{
    QStringList texts;
    for (const auto &box : machine.dialogs.messages)
        texts.append(box.text);
    return texts;
}

} // namespace support
