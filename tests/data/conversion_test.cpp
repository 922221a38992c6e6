#include "data/conversion.h"
#include "panel_fixture.h"
#include "printing.h"
#include "shell/dispatch.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using platform::Buttons;
using platform::CommandText;
using platform::Icon;
using platform::MessageBox;
using platform::Show;
using platform::Start;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct ApasType
{
    size_t item;
    const char *file;
    const char *arguments;
};

constexpr ApasType ApasTypes[]{
    {0, "kick.3d", " /A kick.3d"}, {1, "kick.1t", " /A kick.1t"}, {2, "kick.2t", " /A kick.2t"},
    {3, "kick.3t", " /A kick.3t"}, {4, "kick.4t", " /A kick.4t"}, {5, "kick.5t", " /A kick.5t"},
    {6, "kick.6t", " /A kick.6t"}, {7, "kick.7t", " /A kick.7t"}, {8, "kick.8t", " /A kick.8t"},
    {9, "kick.9t", " /A kick.9t"},
};

} // namespace

class Conversion : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        load();
        kinovra.CurrentTrial = u"kick"_s;
        kinovra.CurrentExtension = u"txt"_s;
        // The listing device is no matter of the converters.
        click(frm.mnuListing[1]);
        mark();
    }

    Start direct(const char *program, const CommandText &parameters) const
    {
        return {QString(), u"C:\\KINOVRA\\"_s + QLatin1String(program) + u".exe"_s, parameters, u"C:\\DATA"_s,
                Show::Shown};
    }
};

TEST_F(Conversion, of_peak_performance_data)
{
    click(frm.mnuConvert[3]);
    EXPECT_THAT(machine.programs.started,
                ElementsAre(direct("Skelvo", u" /A "_s + CommandText::document(u"kick.cda"_s))));
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\KINOVRA\\Skelvo.exe /A kick.cda"_s);
    EXPECT_EQ(kinovra.ProgName, u"Skelvo"_s);
    EXPECT_EQ(kinovra.TaskId, 51);
    expectMarkedBut({u"ProgName"_s, u"TaskId"_s});
    EXPECT_THAT(machine.files.tested, IsEmpty());
}

TEST_F(Conversion, of_a_text_file)
{
    click(frm.mnuConvert[5]);
    EXPECT_THAT(machine.programs.started,
                ElementsAre(direct("Conv2DG", u" "_s + CommandText::document(u"kick.txt"_s))));
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\KINOVRA\\Conv2DG.exe kick.txt"_s);
    EXPECT_EQ(kinovra.ProgName, u"Conv2DG"_s);
    EXPECT_EQ(kinovra.TaskId, 51);
    expectMarkedBut({u"ProgName"_s, u"TaskId"_s});
}

TEST_F(Conversion, takes_the_extension_as_it_is)
{
    kinovra.CurrentExtension.clear();
    click(frm.mnuConvert[5]);
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\KINOVRA\\Conv2DG.exe kick."_s);
}

TEST_F(Conversion, of_other_systems_is_not_there_yet)
{
    for (int item : {0, 1, 2, 4})
        click(frm.mnuConvert[static_cast<size_t>(item)]);
    shell::dispatch(panel, [this] { data::mnuConvert_Click(panel, 7); });
    shell::dispatch(panel, [this] { data::mnuConvert_Click(panel, -1); });
    const MessageBox notYet{u"Not yet implemented!"_s, Icon::Exclamation, Buttons::OKOnly, u"Skelvo"_s};
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(notYet, notYet, notYet, notYet, notYet, notYet));
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(Conversion, of_vicon_data_does_nothing_at_all)
{
    click(frm.mnuConvert[6]);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_THAT(machine.programs.started, IsEmpty());
    expectMarkedBut({});
}

TEST_F(Conversion, of_every_apas_type)
{
    addData({"kick.cf"});
    for (const ApasType &type : ApasTypes) {
        addData({type.file});
        forget();
        mark();
        click(frm.mnuArielType[type.item]);
        EXPECT_THAT(
            machine.programs.started,
            ElementsAre(direct("Skelvo", u" /A "_s + CommandText::document(QLatin1String(type.file)))));
        EXPECT_EQ(frm.lblCommand.Caption.value(),
                  u"C:\\KINOVRA\\Skelvo.exe"_s + QLatin1String(type.arguments));
        EXPECT_TRUE(frm.lblCommand.Visible);
        EXPECT_EQ(kinovra.ProgName, u"Skelvo"_s);
        EXPECT_EQ(kinovra.TaskId, 51.0 + static_cast<double>(type.item));
        EXPECT_EQ(kinovra.Answer, 0);
        EXPECT_THAT(machine.dialogs.messages, IsEmpty());
        EXPECT_THAT(machine.files.tested, ElementsAre(u"C:\\DATA\\KICK.CF"_s));
        expectMarkedBut({u"ProgName"_s, u"TaskId"_s, u"Answer"_s, u"lblCommand"_s});
    }
}

TEST_F(Conversion, of_apas_data_needs_the_common_file)
{
    kinovra.CurrentTrial = u"straße"_s;
    addFile(u"C:\\DATA\\straße.3d"_s);
    click(frm.mnuArielType[0]);
    EXPECT_THAT(machine.dialogs.messages,
                ElementsAre(MessageBox{u"The Common File 'STRAßE.CF' is missing."_s, Icon::Exclamation}))
        << "one character stays one";
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_EQ(kinovra.Answer, 53);
    expectMarkedBut({u"Answer"_s});
}

TEST_F(Conversion, passes_the_short_name_of_a_long_one_and_says_so)
{
    kinovra.CurrentTrial = u"long kick.left"_s;
    addData({"long kick.left.cf", "long kick.left.3d"});
    machine.files.setShortName(u"C:\\DATA\\long kick.left.3d"_s, u"LONGKI~1.3D"_s);
    click(frm.mnuArielType[0]);
    EXPECT_THAT(machine.dialogs.messages,
                ElementsAre(MessageBox{
                    u"Warning.  The converted file will have a different filename then the original.\n\n"
                    "The converted file will use the short filename (8.3 format): LONGKI~1.DG\n"
                    "The original filename was: long kick.left.3d"_s,
                    Icon::Exclamation, Buttons::OKOnly, u"Change of Filename"_s}));
    EXPECT_THAT(machine.programs.started,
                ElementsAre(direct("Skelvo", u" /A "_s + CommandText::document(u"LONGKI~1.DG"_s))));
    EXPECT_EQ(frm.lblCommand.Caption.value(), u"C:\\KINOVRA\\Skelvo.exe /A LONGKI~1.DG"_s);
}

TEST_F(Conversion, passes_a_short_name_that_differs_in_case_alone_without_a_message)
{
    addData({"kick.cf", "kick.1t"});
    machine.files.setShortName(u"C:\\DATA\\kick.1t"_s, u"KICK.1T"_s);
    click(frm.mnuArielType[1]);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\KINOVRA\\Skelvo.exe /A KICK.1T"_s);
}

TEST_F(Conversion, passes_an_empty_name_for_a_file_that_is_gone)
{
    addData({"kick.cf"});
    click(frm.mnuArielType[2]);
    EXPECT_EQ(
        messages(),
        QStringList{u"Warning.  The converted file will have a different filename then the original.\n\n"
                    "The converted file will use the short filename (8.3 format): .DG\n"
                    "The original filename was: kick.2t"_s});
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\KINOVRA\\Skelvo.exe /A .DG"_s);
}

TEST_F(Conversion, looks_for_the_apas_file_in_the_data_directory)
{
    addData({"kick.cf", "kick.3d"});
    machine.files.addDirectory(u"C:\\ELSEWHERE"_s);
    machine.files.changeDirectory(u"C:\\ELSEWHERE"_s);
    click(frm.mnuArielType[0]);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_EQ(machine.programs.started[0].directory, u"C:\\DATA"_s);
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\KINOVRA\\Skelvo.exe /A kick.3d"_s);
}

TEST_F(Conversion, enables_the_apas_types_that_the_trial_has)
{
    // Every combination of the ten files, by both menus that lead there.
    for (unsigned present = 0; present < 1024; ++present) {
        QString expected;
        for (const ApasType &type : ApasTypes) {
            const bool has = ((present >> type.item) & 1U) != 0;
            const QString path = u"C:\\DATA\\"_s + QLatin1String(type.file);
            if (has)
                addFile(path);
            else
                machine.files.remove(path);
            expected += has ? QChar(u'0' + int(type.item)) : u'x';
            frm.mnuArielType[type.item].Enabled = !has;
        }
        openMenu(frm.mnuConverts);
        EXPECT_EQ(enabledOf(frm.mnuArielType), expected);
        for (const ApasType &type : ApasTypes)
            frm.mnuArielType[type.item].Enabled = !frm.mnuArielType[type.item].Enabled;
        frm.filDatafiles.Visible = false;
        frm.lblDatafiles.Visible = false;
        openMenu(frm.mnuAriel);
        EXPECT_EQ(enabledOf(frm.mnuArielType), expected);
        EXPECT_EQ(messages().size(), present == 0 ? 1 : 0);
        EXPECT_EQ(frm.filDatafiles.Visible, present == 0);
        EXPECT_EQ(frm.lblDatafiles.Visible, present == 0);
        EXPECT_EQ(frm.mnuAriel.AsksOnOpening(), present == 0) << present;
        forget();
    }
}

TEST_F(Conversion, tests_all_ten_files_in_order)
{
    const QStringList ten{u"C:\\DATA\\KICK.3D"_s, u"C:\\DATA\\KICK.1T"_s, u"C:\\DATA\\KICK.2T"_s,
                          u"C:\\DATA\\KICK.3T"_s, u"C:\\DATA\\KICK.4T"_s, u"C:\\DATA\\KICK.5T"_s,
                          u"C:\\DATA\\KICK.6T"_s, u"C:\\DATA\\KICK.7T"_s, u"C:\\DATA\\KICK.8T"_s,
                          u"C:\\DATA\\KICK.9T"_s};
    addData({"kick.1t"});
    openMenu(frm.mnuConverts);
    EXPECT_EQ(machine.files.tested, ten);
    EXPECT_EQ(kinovra.Answer, 53);
    forget();
    addData({"kick.9t"});
    openMenu(frm.mnuAriel);
    EXPECT_EQ(machine.files.tested, ten);
    EXPECT_EQ(kinovra.Answer, 0);
}

TEST_F(Conversion, hints_at_the_data_files_where_the_trial_has_no_apas_file)
{
    addData({"kick.dg"});
    frm.filDatafiles.Visible = false;
    frm.lblDatafiles.Visible = false;
    EXPECT_TRUE(frm.mnuAriel.AsksOnOpening());
    expectMarkedBut({});
    EXPECT_FALSE(frm.mnuAriel.OpensAfterAsking);
    machine.dialogs.whileShown = [this](const MessageBox &) {
        EXPECT_FALSE(frm.filDatafiles.Visible || frm.lblDatafiles.Visible) << "the message comes first";
    };
    openMenu(frm.mnuAriel);
    EXPECT_THAT(
        machine.dialogs.messages,
        ElementsAre(MessageBox{u"Select an APAS file (.1T/.3D) from Data menu first."_s, Icon::Exclamation}));
    EXPECT_TRUE(frm.filDatafiles.Visible);
    EXPECT_TRUE(frm.lblDatafiles.Visible);
    EXPECT_EQ(enabledOf(frm.mnuArielType), u"xxxxxxxxxx"_s);
}

TEST_F(Conversion, asks_for_a_trial_first)
{
    kinovra.CurrentTrial.clear();
    std::vector<controls::Control *> browsing{&frm.filDatafiles, &frm.lblDatafiles, &frm.filModels,
                                              &frm.lblModels,    &frm.drvDrives,    &frm.dirSelect};
    for (controls::Control *control : browsing)
        control->Visible = false;
    frm.mnuArielType[4].Enabled = true;
    EXPECT_TRUE(frm.mnuAriel.AsksOnOpening());
    openMenu(frm.mnuAriel);
    EXPECT_THAT(
        machine.dialogs.messages,
        ElementsAre(MessageBox{u"Select a trial from the Data or Model menus first."_s, Icon::Exclamation}));
    for (controls::Control *control : browsing)
        EXPECT_TRUE(control->Visible);
    EXPECT_THAT(machine.files.tested, IsEmpty());
    EXPECT_TRUE(frm.mnuArielType[4].Enabled) << "it has stopped";
}

TEST_F(Conversion, does_not_ask_for_a_trial_where_the_menu_above_opens)
{
    kinovra.CurrentTrial.clear();
    openMenu(frm.mnuConverts);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_EQ(enabledOf(frm.mnuArielType), u"xxxxxxxxxx"_s);
    EXPECT_FALSE(frm.mnuConverts.AsksOnOpening);
}
