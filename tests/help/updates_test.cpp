#include "panel_fixture.h"
#include "printing.h"
#include "shell/dispatch.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using platform::Buttons;
using platform::Icon;
using platform::MessageBox;
using platform::Show;
using platform::Start;
using platform::Target;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

Start opening(const char *address)
{
    return {.verb = u"Open"_s,
            .file = QLatin1String(address),
            .directory = u"C:\\KINOVRA"_s,
            .show = Show::Shown,
            .owner = 4711,
            .target = Target::Address};
}

} // namespace

class Updates : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        load();
        kinovra.WebHome = u"https://maker.example/soft/kinovra.htm"_s;
        kinovra.VersionText = u"3.05 (build 012)"_s;
        machine.programs.whileStarting = [this] { taskDuringStart = kinovra.TaskId; };
    }

    // From the menu, or by the button of the about window.
    void update(bool fromMenu) { fromMenu ? click(frm.mnuAbout[2]) : click(about.cmdUpgrade); }

    double taskDuringStart = -1;

    const MessageBox menuQuestion{u"The current version of KVwin98.exe is 3.05 (build 012).\r\n\r\nDo you "
                                  u"want download a new version?\r\n\r\n"
                                  "Press Yes to download now or No to continue using the current version."_s,
                                  Icon::Question, Buttons::YesNo, u"Update KVwin98.exe Yes/No?"_s};
    const MessageBox menuExit{
        u"To use the new version you must exit and reload KVwin98.exe.\r\n\r\nDo you want to exit now?"_s,
        Icon::Question, Buttons::YesNo, u"Exit?"_s};
    const MessageBox buttonQuestion{u"Do you want download a new version from the web?\r\n\r\nPress OK to "
                                    u"download now or press Cancel to "
                                    "continue using this version [3.05 (build 012)]."_s,
                                    Icon::Question, Buttons::OKCancel, u"Exit or Continue?"_s};
    const MessageBox buttonExit{
        u"To use the new version you must exit and reload KVwin98.exe.\r\n\r\nDo you want to exit now?"_s,
        Icon::Question, Buttons::YesNo, u"Exit Program?"_s};
};

TEST_F(Updates, from_the_menu_are_left_on_no)
{
    mark();
    kinovra.ProgName = u"KVwin98.exe"_s;
    machine.dialogs.answers = {platform::No};
    update(true);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(menuQuestion));
    EXPECT_EQ(kinovra.TaskId, 7);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_FALSE(machine.environment.ended);
}

TEST_F(Updates, from_the_button_are_left_on_cancel)
{
    machine.dialogs.answers = {platform::Cancel};
    update(false);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(buttonQuestion));
    EXPECT_EQ(kinovra.TaskId, 2);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_FALSE(machine.environment.ended);
}

TEST_F(Updates, open_the_download_address_and_go_on)
{
    for (const bool fromMenu : {true, false}) {
        forget();
        machine.dialogs.answers = {fromMenu ? platform::Yes : platform::OK, platform::No};
        update(fromMenu);
        EXPECT_THAT(machine.dialogs.messages,
                    ElementsAre(fromMenu ? menuQuestion : buttonQuestion, fromMenu ? menuExit : buttonExit));
        EXPECT_THAT(machine.programs.started, ElementsAre(opening("https://maker.example/soft/KVwin98.exe")));
        EXPECT_EQ(taskDuringStart, 7);
        EXPECT_EQ(kinovra.TaskId, 42);
        EXPECT_FALSE(machine.environment.ended);
        EXPECT_FALSE(panel.unloading);
    }
}

TEST_F(Updates, end_the_program_at_once_and_save_nothing)
{
    machine.files.addDirectory(u"C:\\ELSEWHERE"_s);
    machine.files.changeDirectory(u"C:\\ELSEWHERE"_s);
    machine.dialogs.answers = {platform::Yes, platform::Yes};
    update(true);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(menuQuestion, menuExit));
    EXPECT_THAT(machine.programs.started, ElementsAre(opening("https://maker.example/soft/KVwin98.exe")));
    EXPECT_EQ(taskDuringStart, 6);
    EXPECT_TRUE(machine.environment.ended);
    EXPECT_THAT(machine.settings.written, IsEmpty());
    EXPECT_EQ(machine.files.currentDirectory(), u"C:\\DATA"_s) << "the directory of the start";
}

TEST_F(Updates, end_the_program_from_the_button_as_well)
{
    machine.dialogs.answers = {platform::OK, platform::Yes};
    update(false);
    EXPECT_EQ(machine.programs.started.size(), 1U);
    EXPECT_TRUE(machine.environment.ended);
    EXPECT_THAT(machine.settings.written, IsEmpty());
}

TEST_F(Updates, end_the_program_even_where_no_browser_is_there)
{
    machine.programs.failure = u"it was not found"_s;
    machine.dialogs.answers = {platform::Yes, platform::Yes};
    update(true);
    EXPECT_EQ(kinovra.TaskId, 2);
    EXPECT_EQ(messages().size(), 2);
    EXPECT_TRUE(machine.environment.ended);
}

TEST_F(Updates, name_the_program_that_was_run_last)
{
    kinovra.ProgName = u"Kinemati"_s;
    machine.dialogs.answers = {platform::Yes, platform::No};
    update(true);
    ASSERT_EQ(machine.dialogs.messages.size(), 2U);
    EXPECT_EQ(machine.dialogs.messages[0].title, u"Update Kinemati Yes/No?"_s);
    EXPECT_TRUE(machine.dialogs.messages[0].text.startsWith(u"The current version of Kinemati is 3.05 "));
    EXPECT_TRUE(
        machine.dialogs.messages[1].text.endsWith(u"reload Kinemati.\r\n\r\nDo you want to exit now?"));
    EXPECT_THAT(machine.programs.started, ElementsAre(opening("https://maker.example/soft/Kinemati")));
    EXPECT_EQ(kinovra.ProgName, u"Kinemati"_s);
}

TEST_F(Updates, put_nothing_but_a_file_name_into_the_address)
{
    const std::pair<const char *, const char *> names[]{
        {"C:\\TOOLS\\My tool.exe", "https://maker.example/soft/My%20tool.exe"},
        {"..\\..\\x.exe", "https://maker.example/soft/x.exe"},
        {"..", "https://maker.example/soft/"},
        {".", "https://maker.example/soft/"},
        {"", "https://maker.example/soft/"},
        {"../x", "https://maker.example/soft/..%2Fx"},
        {"x?y#z&\"%", "https://maker.example/soft/x%3Fy%23z%26%22%25"},
        {"//evil.example", "https://maker.example/soft/%2F%2Fevil.example"},
        {"@evil.example:80", "https://maker.example/soft/%40evil.example%3A80"},
    };
    for (const auto &[name, address] : names) {
        forget();
        kinovra.ProgName = QLatin1String(name);
        machine.dialogs.answers = {platform::OK, platform::No};
        update(false);
        EXPECT_THAT(machine.programs.started, ElementsAre(opening(address)));
    }
}

TEST_F(Updates, name_the_panel_right_after_the_start)
{
    EXPECT_EQ(kinovra.ProgName, u"KVwin98.exe"_s);
}
