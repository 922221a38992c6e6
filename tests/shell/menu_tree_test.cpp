#include "panel_fixture.h"
#include "printing.h"
#include "shell/menu_tree.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using shell::MenuRow;
using shell::menuTree;

namespace {

// A line an entry, four blanks a level: name, index in its array, caption between bars; "-" is a separator.
constexpr const char *Tree = R"(
mnuFiles |&File|
    mnuOpen(0) |&Open a directory|
    mnuOpen(1) |&Make a new subdirectory|
    mnuOpen(2) |&Remove currect subdirectory|
    mnuOpen(3) |Explore current directory|
    -
    mnuUsers |&User level...|
        mnuUser(0) |Novice|
        mnuUser(1) |Expert|
    -
    mnuDOS(0) |&Calculator|
    mnuDOS(1) |&DOS prompt|
    mnuDOS(2) |&Explorer|
    mnuDOS(3) |&Notepad|
    mnuRun |&Run a program|
    -
    mnuPrint |&Print|
    mnuPrintSetup |Printer Set&up|
    -
    mnuExit |&Exit|
mnuDatafiles |&Data|
    mnuDatafile(0) |&Select digitized data|
    mnuDatafile(1) |&Scale/Refine data (Refila)|
    mnuDatafile(2) |&Graph/Animate data|
    mnuDatafile(3) |&View/Edit data with Notepad|
    mnuDatafile(4) |Re&number data|
    -
    mnuConverts |&Convert data ...|
        mnuAriel |&Ariel Dynamics ...|
            mnuArielType(0) |3&D|
            mnuArielType(1) |&1T|
            mnuArielType(2) |&2T|
            mnuArielType(3) |&3T|
            mnuArielType(4) |&4T|
            mnuArielType(5) |&5T|
            mnuArielType(6) |&6T|
            mnuArielType(7) |&7T|
            mnuArielType(8) |&8T|
            mnuArielType(9) |&9T|
        mnuConvert(0) |&Elite|
        mnuConvert(1) |&Motion Analysis|
        mnuConvert(2) |&Northern Digital|
        mnuConvert(3) |&Peak Performance|
        mnuConvert(4) |&Qualisys|
        mnuConvert(5) |ASCII &text file|
        mnuConvert(6) |&Vicon|
mnuModels |&Model|
    mnuModel(0) |&Select model (.CFB)|
    mnuModel(1) |&Copy data to model|
    mnuModel(2) |Add &forces to model|
    mnuModel(3) |&Edit with CFB Editor|
    mnuModel(4) |&View/Edit model with Notepad|
    mnuModel(5) |&Merge second force to model|
    -
    mnuNewModel |&New model|
mnuProgs |&Programs|
    mnuProg(0) |&Error Check|
    mnuProg(1) |Fourier &analysis|
    mnuProg(2) |&Noise analysis|
    mnuProg(3) |&Kinematics|
    mnuProg(4) |&Momentum|
    mnuProg(5) |M&uscle kinematics|
    mnuProg(6) |&Work-energy|
    mnuProg(7) |&Torque|
    mnuProg(8) |&Force (inverse dynamics)|
    mnuProg(9) |&Powers|
    mnuProg(10) |&Interact|
    mnuProg(11) |&Simulate|
    mnuProg(12) |Interact (&Create A New Simulation)|
    -
    mnuOptions |Control &Options|
mnuAverages |&Average ...|
    mnuAverage(0) |&New average|
    mnuAverage(1) |&Add trial to average|
    mnuAverage(2) |Compute or &Recompute averages|
    mnuAverage(3) |&Subtract trial from average|
    mnuAverage(4) |&Help on averaging|
    mnuAverage(5) |&Program options|
mnuImages |&Animate|
    mnuSkelvo(0) |&Digitized data (.DG)|
    mnuSkelvo(1) |&Refined data (.CN)|
    mnuSkelvo(2) |&Filtered data (.KM)|
    mnuSkelvo(3) |&Simulated data (.SN)|
mnuGraphs |&Graph|
    mnuGraph(0) |Select &binary file|
    mnuGraph(1) |Select &type of graph|
    mnuGraph(2) |&Create graph(s)|
    mnuGraph(3) |&Display graph (GrafoW)|
    mnuGraph(4) |&Full-screen display (GrafoD)|
    mnuGraph(5) |&Run GrafoW|
    mnuGraph(6) |&Options|
        mnuGraphOptions(0) |&Black on White (for WP or Word)|
        mnuGraphOptions(1) |&White on Black (for PowerPoint)|
        mnuGraphOptions(2) |&Full-screen preview (GrafoD)|
        mnuGraphOptions(3) |&Include debugging information in output file|
        mnuGraphOptions(4) |&Permit batch mode|
        mnuGraphOptions(5) |&Reset defaults|
    mnuGraphPrints |&Print graph ...|
        mnuGraphPrint(0) |to &Laserjet 4/5/6 && Lexmark (2)|
        mnuGraphPrint(1) |to &Colour HP Deskjet (3)|
        mnuGraphPrint(2) |to HP &Laserjet III (4)|
        mnuGraphPrint(3) |to &B&&W HP Deskjet (5)|
        mnuGraphPrint(4) |&Select printer|
mnuViews |&View|
    mnuForces |&Forces ...|
        mnuForce(0) |&Analyze|
        mnuForce(1) |&Histories|
        mnuForce(2) |&Vectors|
        mnuForce(3) |&3D vectors|
    -
    mnuView(0) |&Binary output files|
    mnuView(1) |&Plot files|
    mnuView(2) |&GRAph files|
    mnuView(3) |&Output files|
    mnuView(4) |&AVI && MPEG files|
mnuSettings |&Settings  |
    mnuReset |&Reset|
    mnuOutDev |&Listing device|
        mnuListing(0) |&Disk file (default)|
        mnuListing(1) |&Screen|
        mnuListing(2) |&Printer (PRN)|
        mnuListing(3) |&None|
    mnuOutGraphs |&Graphics device|
        mnuGraphics(0) |&Screen (default)|
        mnuGraphics(1) |&Graphics printer|
        mnuGraphics(2) |&Plotter|
        mnuGraphics(3) |&Disk file|
    mnuTextViewers |&Text viewer|
        mnuTextViewer(0) |&Notepad+|
        mnuTextViewer(1) |&Windows Notepad|
        mnuTextViewer(2) |&Select viewer (Wordpad etc.)|
    mnuPause |Pause after running DOS program|
    mnuPrompt |Prompt to View Output|
mnuManuals |&Manuals|
    mnuManual(0) |&Kinovra User's Manual|
    mnuManual(1) |&Control file example|
    mnuManual(2) |&Graph User's Manual|
    mnuManual(3) |&Skelvo User's Manual|
    mnuManual(4) |Kinovra &Quick Reference Guide|
    mnuManual(5) |Ondex&1 User's Manual|
    mnuManual(6) |Ondex&2 Quick Reference Guide|
    mnuManual(7) |&Simulate User's Manual|
    mnuManual(8) |Kinovra Channel &Ordering |
    mnuManual(9) |Select &A Manual|
mnuHelp |&Help|
    mnuHelpItem(0) |Over&view|
    mnuHelpItem(1) |&Average (ensemble)|
    mnuHelpItem(2) |&Ondex|
    mnuHelpItem(3) |&Refila|
    mnuHelpItem(4) |&DG file format|
    mnuHelpItem(5) |&Energy|
    mnuHelpItem(6) |&Force (inverse dynamics)|
    mnuHelpItem(7) |&Ground reactions|
    mnuHelpItem(8) |&Skelvo|
    mnuHelpItem(9) |&Kinematics|
    mnuHelpItem(10) |Musc&le|
    mnuHelpItem(11) |&Momentum|
    mnuHelpItem(12) |&Options|
    mnuHelpItem(13) |&Powers|
    mnuHelpItem(14) |Installation &Readme|
    mnuHelpItem(15) |&Simulate|
    mnuHelpItem(16) |&Torque|
    mnuHelpItem(17) |&Updates|
    mnuHelpItem(18) |&Work|
    -
    mnuProgHelp |Command line &help|
    -
    mnuAbout(0) |&About Kinovra for Windows|
    mnuAbout(1) |Windows &Help|
    mnuAbout(2) |&Update from Internet|
    mnuAbout(3) |&Website|
)";

QString render(const MenuRow &row)
{
    const QString indent(qsizetype(row.depth) * 4, u' ');
    if (row.isSeparator())
        return indent + u'-';
    const QString index = row.index < 0 ? QString() : u"(%1)"_s.arg(row.index);
    return indent + row.name + index + u" |"_s + row.caption + u'|';
}

QChar accessKey(const QString &caption)
{
    for (qsizetype i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != u'&')
            continue;
        if (caption[i + 1] != u'&')
            return caption[i + 1].toUpper();
        ++i;
    }
    return {};
}

} // namespace

TEST(MenuTree, is_as_it_was_laid_out)
{
    QStringList lines;
    for (const MenuRow &row : menuTree())
        lines.append(render(row));
    const QStringList expected = QString::fromUtf8(Tree).split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), expected.size());
    for (qsizetype i = 0; i < lines.size(); ++i)
        EXPECT_EQ(lines[i], expected[i]);
}

TEST(MenuTree, gives_every_item_its_caption)
{
    shell::frmKinovra frm;
    for (const MenuRow &row : menuTree()) {
        if (!row.isSeparator()) {
            EXPECT_EQ(row.item(frm).Caption.value(), row.caption);
        }
    }
}

TEST(MenuTree, names_every_item_once)
{
    shell::frmKinovra frm;
    std::vector<const controls::MenuItem *> items;
    for (const MenuRow &row : menuTree()) {
        if (!row.isSeparator())
            items.push_back(&row.item(frm));
    }
    EXPECT_EQ(items.size(), 161U);
    std::sort(items.begin(), items.end());
    EXPECT_EQ(std::adjacent_find(items.begin(), items.end()), items.end());
}

TEST(MenuTree, shares_access_keys_only_where_the_captions_themselves_do)
{
    QStringList shared;
    const auto &rows = menuTree();
    for (size_t i = 0; i < rows.size(); ++i) {
        for (size_t j = i + 1; j < rows.size() && rows[j].depth >= rows[i].depth; ++j) {
            const QChar key = accessKey(rows[i].caption);
            if (rows[j].depth == rows[i].depth && !key.isNull() && key == accessKey(rows[j].caption))
                shared.append(rows[i].caption + u" = "_s + rows[j].caption);
        }
    }
    EXPECT_EQ(shared, (QStringList{
                          u"&Remove currect subdirectory = &Run a program"_s,
                          u"&User level... = Printer Set&up"_s,
                          u"&Explorer = &Exit"_s,
                          u"&Select digitized data = &Scale/Refine data (Refila)"_s,
                          u"&Model = &Manuals"_s,
                          u"&Average ... = &Animate"_s,
                          u"to &Laserjet 4/5/6 && Lexmark (2) = to HP &Laserjet III (4)"_s,
                          u"&Skelvo User's Manual = &Simulate User's Manual"_s,
                          u"&Average (ensemble) = &About Kinovra for Windows"_s,
                          u"&Ondex = &Options"_s,
                          u"&Refila = Installation &Readme"_s,
                          u"&Skelvo = &Simulate"_s,
                          u"&Updates = &Update from Internet"_s,
                          u"&Work = &Website"_s,
                          u"Command line &help = Windows &Help"_s,
                      }));
}

TEST(MenuItems, begin_as_the_window_defines_them)
{
    shell::frmKinovra frm;
    for (size_t i = 0; i < 12; ++i)
        EXPECT_FALSE(frm.mnuProg[i].Enabled) << i;
    EXPECT_TRUE(frm.mnuProg[12].Enabled);
    EXPECT_FALSE(frm.mnuOptions.Enabled);
    EXPECT_TRUE(frm.mnuListing[0].Checked);
    EXPECT_TRUE(frm.mnuGraphics[0].Checked);
    EXPECT_FALSE(frm.mnuPause.Checked);
    EXPECT_TRUE(frm.mnuPrompt.Checked);
    for (const auto &item : frm.mnuGraphOptions)
        EXPECT_FALSE(item.Checked);
}

class MenuCommands : public support::PanelFixture
{};

// A menu's own row has no command.
TEST_F(MenuCommands, are_behind_every_item)
{
    const auto &rows = menuTree();
    for (size_t i = 0; i < rows.size(); ++i) {
        const bool isMenu = i + 1 < rows.size() && rows[i + 1].depth > rows[i].depth;
        if (!isMenu && !rows[i].isSeparator()) {
            EXPECT_TRUE(rows[i].item(frm).Click) << rows[i].name.toStdString() << ' ' << rows[i].index;
        }
    }
}

TEST_F(MenuCommands, are_behind_every_button)
{
    for (const auto *button :
         {&frm.cmdEditGra, &frm.cmdSelectGra, &frm.cmdGraph, &frm.cmdForces, &frm.cmdGuide, &frm.cmdSkelvo,
          &frm.cmdOndex, &frm.cmdEditor, &frm.cmdRefresh, &frm.cmdExit, &frm.cmdManual})
        EXPECT_TRUE(button->Click) << button->Caption.value().toStdString();
}
