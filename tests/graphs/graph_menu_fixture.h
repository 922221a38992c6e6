#pragma once

#include "panel_fixture.h"

namespace graph_tests {

using namespace Qt::StringLiterals;
using platform::Buttons;
using platform::Icon;
using platform::MessageBox;

/// A name of a file and the argument that it becomes in upper case.
struct NameRow
{
    const char16_t *name;
    const char16_t *argument;
};

inline constexpr NameRow OddNames[]{
    {u"-walk", u"-WALK"},
    {u"/T", u"/T"},
    {u"my left walk", u"MY LEFT WALK"},
    {u" walk ", u" WALK "},
    {u"say \"hi\" to 'me'", u"SAY \"HI\" TO 'ME'"},
    {u"a&b;c|d>e", u"A&B;C|D>E"},
    {u"$home `id` %path%", u"$HOME `ID` %PATH%"},
    {u"größe", u"GRÖßE"},
};

/// A trial with binaries and plots, two graph types of which STICK.GRA is chosen, and the graph program.
class GraphMenu : public support::PanelFixture
{
protected:
    enum Item { SelectBinary, SelectType, Create, Display, DisplayFullScreen, RunDisplay, Options };

    void SetUp() override
    {
        addFile(u"C:\\KINOVRA\\Graph.exe"_s);
        addFile(u"C:\\KINOVRA\\graphs\\Stick.gra"_s);
        addData({"Run1.dg", "run2.dg", "Run1.pj", "run2.km", "Walk1.plt", "walk2.plt"});
        load();
        click(frm.filDatafiles, u"Run1.dg"_s);
        click(frm.filGraFiles, u"Stick.gra"_s);
        forget();
        machine.clock.pendingRuns = 0;
    }

    static QString text(const char *latin) { return QLatin1String(latin); }

    void choose(Item item) { click(frm.mnuGraph[item]); }

    void removeBinaries()
    {
        machine.files.remove(u"C:\\DATA\\Run1.pj"_s);
        machine.files.remove(u"C:\\DATA\\run2.km"_s);
        click(frm.cmdRefresh);
    }

    void removeTypes()
    {
        machine.files.remove(u"C:\\KINOVRA\\graphs\\RUN.GRA"_s);
        machine.files.remove(u"C:\\KINOVRA\\graphs\\Stick.gra"_s);
    }

    void removePlots()
    {
        machine.files.remove(u"C:\\DATA\\Walk1.plt"_s);
        machine.files.remove(u"C:\\DATA\\walk2.plt"_s);
        click(frm.cmdRefresh);
    }

    void removeGraphsFolder() { machine.files.remove(u"C:\\KINOVRA\\graphs"_s); }
    void removeDataDirectory() { machine.files.remove(u"C:\\DATA"_s); }

    // What is chosen, beside what mark() has marked.
    QStringList choices() const
    {
        return {kinovra.DataDir,           kinovra.CurrentTrial,  kinovra.CurrentExtension,
                kinovra.BinaryFile,        frm.CurrentGRA,        frm.SelectedPlot,
                kinovra.ListingSwitch,     kinovra.ListingDevice, frm.GraphicsSwitch,
                kinovra.GraphicsDevice,    frm.lblTrial.Caption,  frm.lblGraphics[0].Caption,
                frm.lblGraphics[1].Caption};
    }

    QString said() const { return frm.StatusBar1.Panel1.value(); }

    void failToStart() { machine.programs.failure = u"it was not found"_s; }

    const MessageBox typeQuestion{u"Warning.  No .GRA file was selected.\n"
                                  "Press Yes to select one from the GRAph menu or \n"
                                  "Press No to select one during program execution."_s,
                                  Icon::Question, Buttons::YesNoCancel};
    const MessageBox noDataDirectory{u"The data directory was not found."_s, Icon::Exclamation};
    const MessageBox noBinaries{u"No binary files in this directory."_s, Icon::Exclamation};
    const MessageBox clickBinary{u"Click on a binary file (usually .PJ) from the 'Binary files' list."_s,
                                 Icon::Information};
    const MessageBox noGraphsFolder{u"The \\GRAPHS subdirectory was not found."_s, Icon::Exclamation};
    const MessageBox noTypes{u"No .GRA files were found in the program directory."_s, Icon::Exclamation};
    const MessageBox clickType{u"Click on a .GRA file from the 'Graph (.GRA) types' list."_s,
                               Icon::Information};
    const MessageBox noTrial{u"Select a trial from the Data or Model menus first."_s, Icon::Exclamation};
    const MessageBox noPlots{u"No graphs in this directory."_s, Icon::Exclamation};
    const MessageBox clickPlot{
        u"Click or double-click on a graph (.PLT) from the 'Graphs' file list first."_s, Icon::Information};
};

} // namespace graph_tests
