// What a greyed menu item says of why it is greyed.

#include "panel_fixture.h"
#include "platform/runtime_error.h"
#include "printing.h"
#include "shell/menu_tree.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using platform::ErrorNumber;

namespace {

class GreyedItems : public support::PanelFixture
{
protected:
    void begin(std::initializer_list<const char *> files)
    {
        addData(files);
        load();
    }

    void chooseTrial(const char *file) { click(frm.filDatafiles, QLatin1String(file)); }

    // Every item below `menu` says why it is greyed exactly when it is.
    void expectThatAllSayWhy(const char *when)
    {
        for (const shell::MenuRow &row : shell::menuTree()) {
            if (row.isSeparator())
                continue;
            const controls::MenuItem &item = row.item(frm);
            EXPECT_EQ(item.Enabled.value(), item.Hindrance.value().isEmpty())
                << row.name.toStdString() << '(' << row.index << ") " << when;
        }
    }

    void openAllMenus()
    {
        for (const controls::MenuItem *menu :
             {&frm.mnuDatafiles, &frm.mnuConverts, &frm.mnuModels, &frm.mnuProgs, &frm.mnuViews,
              &frm.mnuTextViewers, &frm.mnuManuals, &frm.mnuHelp})
            openMenu(*menu);
    }

    static QString why(const controls::MenuItem &item) { return item.Hindrance.value(); }
};

} // namespace

TEST_F(GreyedItems, name_the_file_that_is_needed_and_what_makes_it)
{
    begin({"walk1.dg", "walk1.cfb", "run.cfb"});
    chooseTrial("walk1.dg");
    openAllMenus();
    for (size_t i = 0; i < 4; ++i)
        EXPECT_EQ(why(frm.mnuProg[i]), u"Needs WALK1.CN: convert or refine the data first"_s) << i;
    for (size_t i = 4; i < 10; ++i)
        EXPECT_EQ(why(frm.mnuProg[i]), u"Needs WALK1.KM: run Kinematics first"_s) << i;
    for (size_t i = 10; i < 12; ++i)
        EXPECT_EQ(why(frm.mnuProg[i]), u"Needs WALK1.SIM: create a new simulation first"_s) << i;
    EXPECT_EQ(why(frm.mnuDatafile[1]), u"Needs WALK1.CN: convert or refine the data first"_s);
    EXPECT_EQ(why(frm.mnuDatafile[4]), u"Needs WALK1.REN"_s);
    EXPECT_EQ(why(frm.mnuConvert[3]), u"Needs WALK1.CDA"_s);
    EXPECT_EQ(why(frm.mnuArielType[0]), u"Needs WALK1.3D"_s);
    EXPECT_EQ(why(frm.mnuArielType[9]), u"Needs WALK1.9T"_s);
    EXPECT_EQ(why(frm.mnuModel[2]), u"Needs WALK1.RF: reduce the trial's force data first"_s);
    EXPECT_EQ(why(frm.mnuModel[5]), u"Needs WALK1.RF2"_s);
    EXPECT_EQ(why(frm.mnuForce[0]), u"Needs WALK1.RF: reduce the trial's force data first"_s);
    EXPECT_EQ(why(frm.mnuAverage[0]), u"Needs a binary file: click on one in the list"_s);
    EXPECT_EQ(why(frm.mnuAverage[1]), u"Needs a binary file: click on one in the list"_s);
    EXPECT_EQ(why(frm.mnuAverage[2]), u"Needs an average: begin a new one first"_s);
    EXPECT_EQ(why(frm.mnuAverage[3]), u"Needs a binary file: click on one in the list"_s);
    EXPECT_EQ(why(frm.mnuHelpItem[5]), u"force.txt is not in the program directory"_s);
    EXPECT_EQ(why(frm.mnuManual[1]), u"modlex.pdf is not in the manuals directory"_s);
    EXPECT_EQ(why(frm.mnuTextViewer[0]), u"notepad.exe is not in the program directory"_s);
    expectThatAllSayWhy("with a trial");
}

TEST_F(GreyedItems, name_two_files_where_one_is_enough)
{
    begin({"walk1.dg", "walk1.cfb", "run.cfb", "walk1.cn", "walk1.km"});
    chooseTrial("walk1.dg");
    openMenu(frm.mnuProgs);
    EXPECT_EQ(why(frm.mnuProg[9]), u"Needs WALK1.FO or WALK1.JP: run Force first"_s);
    EXPECT_EQ(why(frm.mnuProg[8]), QString());
    addData({"walk1.jp"});
    openMenu(frm.mnuProgs);
    EXPECT_EQ(why(frm.mnuProg[9]), QString());
    EXPECT_TRUE(frm.mnuProg[9].Enabled);
}

TEST_F(GreyedItems, name_the_data_before_what_comes_of_it)
{
    begin({"walk1.1t", "run.cfb", "jump.cfb"});
    chooseTrial("walk1.1t");
    openAllMenus();
    for (size_t i = 1; i < 5; ++i)
        EXPECT_EQ(why(frm.mnuDatafile[i]), u"Needs WALK1.DG: choose or convert digitized data first"_s) << i;
    for (size_t i = 1; i < 6; ++i)
        EXPECT_EQ(why(frm.mnuModel[i]), u"Needs WALK1.CFB: create the model first"_s) << i;
    for (size_t i = 0; i < 12; ++i)
        EXPECT_EQ(why(frm.mnuProg[i]), u"Needs WALK1.CFB: create the model first"_s) << i;
    EXPECT_EQ(why(frm.mnuOptions), u"Needs WALK1.CFB: create the model first"_s);
    EXPECT_EQ(why(frm.mnuProg[12]), QString());
    expectThatAllSayWhy("without data");
}

TEST_F(GreyedItems, of_a_model_name_the_data_to_copy)
{
    begin({"walk1.cfb", "run.cfb"});
    click(frm.filModels, u"walk1.cfb"_s);
    openAllMenus();
    EXPECT_EQ(why(frm.mnuModel[1]), u"Needs WALK1.DG: choose or convert digitized data first"_s);
    expectThatAllSayWhy("without data");
}

TEST_F(GreyedItems, ask_for_a_trial_where_there_is_none)
{
    begin({"walk1.dg", "walk1.cfb", "run.cfb"});
    openAllMenus();
    const QString needed = u"Needs a current trial: click on a data file or a model first"_s;
    for (const controls::MenuItem *item :
         {&frm.mnuDatafile[1], &frm.mnuModel[4], &frm.mnuProg[0], &frm.mnuProg[11], &frm.mnuForce[3]})
        EXPECT_EQ(why(*item), needed);
    frm.mnuImages.Passed();
    for (const controls::MenuItem &item : frm.mnuSkelvo)
        EXPECT_EQ(why(item), needed);
    expectThatAllSayWhy("without a trial");
}

// Files whose name is nothing but the extension are no trial.
TEST_F(GreyedItems, ask_for_a_trial_where_files_have_no_name)
{
    begin({".cfb", ".cn", ".km", "walk1.cfb"});
    openMenu(frm.mnuProgs);
    EXPECT_EQ(why(frm.mnuProg[9]), u"Needs a current trial: click on a data file or a model first"_s);
    expectThatAllSayWhy("without a name");
}

TEST_F(GreyedItems, say_what_keeps_a_file_from_being_opened)
{
    begin({"walk1.dg", "walk1.cfb", "run.cfb", "walk1.cn"});
    chooseTrial("walk1.dg");
    machine.files.forbid(u"C:\\DATA\\walk1.cn"_s, ErrorNumber::PermissionDenied);
    addFile(u"C:\\KINOVRA\\force.txt"_s);
    machine.files.forbid(u"C:\\KINOVRA\\force.txt"_s, ErrorNumber::DeviceError);
    openAllMenus();
    EXPECT_EQ(why(frm.mnuProg[0]), u"WALK1.CN cannot be opened: permission denied"_s);
    EXPECT_EQ(why(frm.mnuHelpItem[5]), u"force.txt cannot be opened: device I/O error"_s);
    EXPECT_FALSE(frm.mnuProg[0].Enabled);
    EXPECT_FALSE(frm.mnuHelpItem[5].Enabled);
}

TEST_F(GreyedItems, forget_the_reason_once_they_can_run)
{
    begin({"walk1.dg", "walk1.cfb", "run.cfb"});
    chooseTrial("walk1.dg");
    openAllMenus();
    addData({"walk1.cn", "walk1.km", "walk1.fo", "walk1.sim", "walk1.ren", "walk1.cda", "walk1.rf",
             "walk1.rf2", "average.sss"});
    addFile(u"C:\\KINOVRA\\force.txt"_s);
    kinovra.BinaryFile = u"walk1.km"_s;
    openAllMenus();
    for (const controls::MenuItem &item : frm.mnuProg)
        EXPECT_EQ(why(item), QString());
    for (const controls::MenuItem &item : frm.mnuAverage)
        EXPECT_EQ(why(item), QString());
    for (const controls::MenuItem &item : frm.mnuModel)
        EXPECT_EQ(why(item), QString());
    EXPECT_EQ(why(frm.mnuHelpItem[5]), QString());
    EXPECT_EQ(enabledOf(frm.mnuDatafile), u"01234"_s);
    expectThatAllSayWhy("with all files");
}

TEST_F(GreyedItems, of_Programs_need_a_model_where_the_directory_has_none)
{
    addFile(u"C:\\Empty\\notes.txt"_s);
    begin({"walk1.dg", "walk1.cfb", "run.cfb"});
    const QString needed = u"Needs a model (.CFB file) in this directory"_s;
    // Before the menu has ever opened.
    frm.mnuProgs.Passed();
    EXPECT_EQ(why(frm.mnuProg[0]), needed);
    EXPECT_EQ(why(frm.mnuOptions), needed);
    chooseTrial("walk1.dg");
    openMenu(frm.mnuProgs);
    EXPECT_EQ(why(frm.mnuProg[4]), u"Needs WALK1.KM: run Kinematics first"_s);
    open(u"C:\\"_s);
    open(u"C:\\Empty"_s);
    frm.mnuProgs.Passed();
    EXPECT_EQ(why(frm.mnuProg[4]), needed);
    EXPECT_EQ(why(frm.mnuProg[12]), QString()) << "it is never greyed";
    EXPECT_EQ(why(frm.mnuOptions), QString()) << "it has kept its state";
    EXPECT_TRUE(frm.mnuOptions.Enabled);
    frm.mnuProg[4].Hindrance = QString();
    machine.dialogs.answers = {platform::No};
    openMenu(frm.mnuProgs);
    EXPECT_EQ(why(frm.mnuProg[4]), needed) << "no model is wanted";
}

TEST_F(GreyedItems, of_Animate_name_what_they_show)
{
    begin({"walk1.dg", "walk1.cfb", "run.cfb"});
    chooseTrial("walk1.dg");
    openMenu(frm.mnuImages);
    EXPECT_EQ(why(frm.mnuSkelvo[0]), QString());
    EXPECT_EQ(why(frm.mnuSkelvo[1]), u"Needs WALK1.CN: convert or refine the data first"_s);
    EXPECT_EQ(why(frm.mnuSkelvo[2]), u"Needs WALK1.KM: run Kinematics first"_s);
    EXPECT_EQ(why(frm.mnuSkelvo[3]), u"Needs WALK1.SN: run Simulate first"_s);
}
