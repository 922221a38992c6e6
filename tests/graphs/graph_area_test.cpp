#include "graph_menu_fixture.h"
#include "printing.h"
#include "shell/dispatch.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using graph_tests::GraphMenu;
using platform::MessageBox;
using testing::IsEmpty;

class GraphBoxes : public GraphMenu
{
protected:
    /// What a command finds.
    using Found = std::function<void()>;

    const Found everything = [] {};
    const Found noCurrentTrial = [this] { kinovra.CurrentTrial.clear(); };
    const Found noCurrentType = [this] { frm.CurrentGRA.clear(); };
    const Found noSelection = [this] { frm.filPlots.ListIndex = -1; };
    const Found aSelection = [this] { click(frm.filPlots, u"Walk1.plt"_s); };
    const Found noProgram = [this] { machine.files.remove(u"C:\\KINOVRA\\Graph.exe"_s); };
    const Found noBinaryFiles = [this] { removeBinaries(); };
    const Found noGraphs = [this] { removePlots(); };
    const Found noGraphTypes = [this] { removeTypes(); };
    const Found noTypesFolder = [this] { removeGraphsFolder(); };
    const Found noDirectory = [this] { removeDataDirectory(); };
};

TEST_F(GraphBoxes, end_their_command_when_the_window_is_closed)
{
    struct Box
    {
        Item item;
        const Found &found;
        const MessageBox &box;
    };
    using platform::No;
    const Box boxes[]{
        {Create, noCurrentTrial, noTrial},           {Create, noCurrentType, typeQuestion},
        {SelectBinary, everything, clickBinary},     {SelectBinary, noDirectory, noDataDirectory},
        {SelectType, everything, clickType},         {SelectType, noGraphTypes, noTypes},
        {SelectType, noTypesFolder, noGraphsFolder}, {Display, noSelection, clickPlot},
        {DisplayFullScreen, noSelection, clickPlot}, {Display, noGraphs, noPlots},
        {DisplayFullScreen, noGraphs, noPlots},
    };
    const MessageBox *shown = nullptr;
    machine.dialogs.whileShown = [&](const MessageBox &box) {
        EXPECT_EQ(box, *shown);
        shell::dispatch(panel, frm.Unload);
    };
    for (const auto &[item, found, box] : boxes) {
        SCOPED_TRACE(box.text.toStdString());
        shown = &box;
        panel.unloading = false;
        machine.environment.ended = false;
        kinovra.CurrentTrial = u"Run1"_s;
        frm.CurrentGRA = u"Stick.gra"_s;
        found();
        machine.dialogs.answers = {No};
        machine.clock.pendingRuns = 0;
        forget();
        mark();
        const QStringList before = choices();
        choose(item);
        EXPECT_EQ(machine.dialogs.messages.size(), 1U);
        EXPECT_TRUE(machine.environment.ended);
        EXPECT_THAT(machine.programs.started, IsEmpty());
        EXPECT_EQ(machine.clock.pendingRuns, 0);
        expectMarkedBut({});
        EXPECT_EQ(choices(), before);
    }
}

class GraphArea : public GraphBoxes
{
protected:
    void showAll(bool visible)
    {
        for (auto *control : area())
            control->Visible = visible;
    }

    // Data files, models, binaries, graph types, plots, outputs; their labels; create, select type, edit
    // type.
    std::array<controls::Control *, 15> area()
    {
        return {&frm.filDatafiles, &frm.filModels,    &frm.filBinaries, &frm.filGraFiles,  &frm.filPlots,
                &frm.filOutputs,   &frm.lblDatafiles, &frm.lblModels,   &frm.lblBinaries,  &frm.lblGraFiles,
                &frm.lblPlots,     &frm.lblOutputs,   &frm.cmdGraph,    &frm.cmdSelectGra, &frm.cmdEditGra};
    }

    QString visible()
    {
        QString result;
        for (auto *control : area()) {
            if (result.size() == 6 || result.size() == 13)
                result += u' ';
            result += control->Visible ? u'x' : u'-';
        }
        return result;
    }

    const Found noTypeOrTypes = [this] {
        noCurrentType();
        removeTypes();
    };
    const Found noTypeOrFolder = [this] {
        noCurrentType();
        removeGraphsFolder();
    };

    struct Row
    {
        const char *what;
        controls::MenuItem &item;
        const Found &found;
        platform::Answer answer; ///< to a question
        const char *whereAllWasShown;
        const char *whereNothingWas;
    };
};

TEST_F(GraphArea, shows_and_hides_what_each_command_says)
{
    using platform::Cancel;
    using platform::No;
    using platform::OK;
    using platform::Yes;
    controls::MenuItem selectGra;
    selectGra.Click = frm.cmdSelectGra.Click;
    const char *all = "xxxxxx xxxxxx xxx";
    const char *none = "------ ------ ---";
    const Row rows[]{
        {"binaries", frm.mnuGraph[SelectBinary], everything, OK, all, "--x--- --x--- ---"},
        {"binaries, gone", frm.mnuGraph[SelectBinary], noDirectory, OK, all, none},
        {"binaries, none", frm.mnuGraph[SelectBinary], noBinaryFiles, OK, all, none},
        {"types", frm.mnuGraph[SelectType], everything, OK, "xxxxxx xxxxxx ---", "---x-- ---x-- ---"},
        {"types, none", frm.mnuGraph[SelectType], noGraphTypes, OK, "xxx-xx xxx-xx ---", none},
        {"types, gone", frm.mnuGraph[SelectType], noTypesFolder, OK, "xxxxxx xxxxxx ---", none},
        {"button", selectGra, everything, OK, "xxxxxx xxxxxx ---", "---x-- ---x-- ---"},
        {"button, none", selectGra, noGraphTypes, OK, "xxxxxx xxxxxx ---", "---x-- ---x-- ---"},
        {"button, gone", selectGra, noTypesFolder, OK, "xxxxxx xxxxxx ---", "---x-- ---x-- ---"},
        {"create", frm.mnuGraph[Create], everything, OK, all, none},
        {"create, no program", frm.mnuGraph[Create], noProgram, OK, all, none},
        {"create, no trial", frm.mnuGraph[Create], noCurrentTrial, OK, all, "xx---- xx---- ---"},
        {"create, no", frm.mnuGraph[Create], noCurrentType, No, all, none},
        {"create, cancel", frm.mnuGraph[Create], noCurrentType, Cancel, all, none},
        {"create, yes", frm.mnuGraph[Create], noCurrentType, Yes, "xxxxxx xxxxxx ---", "---x-- ---x-- ---"},
        {"create, yes, none", frm.mnuGraph[Create], noTypeOrTypes, Yes, "xxx-xx xxx-xx ---", none},
        {"create, yes, gone", frm.mnuGraph[Create], noTypeOrFolder, Yes, all, none},
        {"display", frm.mnuGraph[Display], aSelection, OK, all, none},
        {"display, unselected", frm.mnuGraph[Display], noSelection, OK, all, none},
        {"display, none", frm.mnuGraph[Display], noGraphs, OK, all, none},
        {"full screen", frm.mnuGraph[DisplayFullScreen], aSelection, OK, all, none},
        {"full screen, none", frm.mnuGraph[DisplayFullScreen], noGraphs, OK, all, none},
        {"run", frm.mnuGraph[RunDisplay], everything, OK, all, none},
        {"options", frm.mnuGraph[Options], everything, OK, all, none},
        {"black", frm.mnuGraphOptions[0], everything, OK, all, none},
        {"white", frm.mnuGraphOptions[1], everything, OK, all, none},
        {"preview", frm.mnuGraphOptions[2], everything, OK, all, none},
        {"debugging", frm.mnuGraphOptions[3], everything, OK, all, none},
        {"batch", frm.mnuGraphOptions[4], everything, OK, all, none},
        {"defaults", frm.mnuGraphOptions[5], everything, OK, all, none},
        {"print", frm.mnuGraphPrint[0], aSelection, OK, all, "----x- ----x- ---"},
        {"print, unselected", frm.mnuGraphPrint[1], everything, OK, all, "----x- ----x- ---"},
        {"print, none", frm.mnuGraphPrint[2], noGraphs, OK, "xxxx-x xxxx-x xxx", none},
        {"select printer", frm.mnuGraphPrint[4], aSelection, OK, all, "----x- ----x- ---"},
        {"listing", frm.mnuListing[1], everything, OK, all, none},
        {"graphics", frm.mnuGraphics[1], everything, OK, all, none},
        {"notepad", frm.mnuPrint, everything, OK, all, none},
        {"set-up", frm.mnuPrintSetup, everything, OK, all, none},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.what);
        for (const auto &[shown, expected] :
             {std::pair{true, row.whereAllWasShown}, {false, row.whereNothingWas}}) {
            for (const char *file : {"Run1.dg", "Run1.pj", "run2.km", "Walk1.plt", "walk2.plt"})
                addFile(u"C:\\DATA\\"_s + text(file));
            for (const char *file : {"Graph.exe", "graphs\\RUN.GRA", "graphs\\Stick.gra"})
                addFile(u"C:\\KINOVRA\\"_s + text(file));
            click(frm.cmdRefresh);
            kinovra.CurrentTrial = u"Run1"_s;
            frm.CurrentGRA = u"Stick.gra"_s;
            frm.SelectedPlot.clear();
            frm.filPlots.ListIndex = -1;
            row.found();
            showAll(shown);
            frm.drvDrives.Visible = false;
            frm.dirSelect.Visible = false;
            machine.dialogs.answers = {row.answer, platform::OK};
            click(row.item);
            EXPECT_EQ(visible(), text(expected)) << (shown ? "all was shown" : "nothing was shown");
            const bool leadsToTrials = kinovra.CurrentTrial.isEmpty();
            EXPECT_EQ(frm.drvDrives.Visible.value(), leadsToTrials);
            EXPECT_EQ(frm.dirSelect.Visible.value(), leadsToTrials);
        }
    }
}
