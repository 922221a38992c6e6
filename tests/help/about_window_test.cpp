#include "help/about_window.h"
#include "panel_fixture.h"
#include "printing.h"
#include "shell/build_values.h"
#include "shell/dispatch.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::IsEmpty;

class AboutWindow : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        load();
        kinovra.WebHome = u"https://maker.example/soft/kinovra.htm"_s;
    }

    void show() { click(frm.mnuAbout[0]); }
    bool contactShown() const { return about.picRell.Visible && about.lblRell.Visible; }
    bool contactHidden() const { return !about.picRell.Visible && !about.lblRell.Visible; }
};

TEST_F(AboutWindow, has_its_texts)
{
    const shell::frmAbout made;
    EXPECT_EQ(made.Caption.value(), u"About the Kinovra Motion Analysis System"_s);
    EXPECT_EQ(made.lblAbout.Caption.value(), u"About Kinovra for Windows"_s);
    EXPECT_EQ(made.picAbout.ToolTip, u"Click here to return to main window."_s);
    EXPECT_EQ(made.lblRell.ToolTip, u"Contact information."_s);
    EXPECT_EQ(made.cmdSysinfo.Caption.value(), u"System Information"_s);
    EXPECT_EQ(made.cmdSysinfo.ToolTip, QString());
    EXPECT_EQ(made.cmdUpgrade.Caption.value(), u"&Update"_s);
    EXPECT_EQ(made.cmdUpgrade.ToolTip, u"Click here to download latest version from the internet."_s);
    EXPECT_EQ(made.cmdWebsite.Caption.value(), u"&Website"_s);
    EXPECT_EQ(made.cmdWebsite.ToolTip, u"Click here to access software website."_s);
    EXPECT_EQ(made.cmdAuthor.Caption.value(), u"&Contact"_s);
    EXPECT_EQ(made.cmdAuthor.ToolTip, u"Click here for contact information and website."_s);
    EXPECT_FALSE(made.picRell.Visible);
    EXPECT_FALSE(made.lblRell.Visible);
    EXPECT_FALSE(made.ContactShown);
}

TEST_F(AboutWindow, is_titled_and_centred_when_it_is_loaded)
{
    panel.screen = {20000, 12000};
    about.Width = 8000;
    about.Height = 6000;
    about.unload();
    show();
    EXPECT_EQ(about.Caption.value(), u"About Kinovra Motion Analysis System"_s);
    EXPECT_EQ(about.Left.value(), 6000);
    EXPECT_EQ(about.Top.value(), 3000);
}

TEST_F(AboutWindow, shows_the_banner_and_fills_in_the_contact_details)
{
    frm.LineBreak = u"|"_s;
    show();
    EXPECT_EQ(about.lblHeader.Caption.value(), kinovra.HeaderText);
    const QStringList lines = about.lblRell.Caption.value().split(u'|');
    ASSERT_EQ(lines.size(), 7);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(lines[i], u"  "_s + QString::fromUtf16(shell::build::Contact[i]));
    EXPECT_EQ(lines[5], u"  Email: "_s + QString::fromUtf16(shell::build::ContactEmail));
    EXPECT_EQ(lines[6], u"  https://maker.example/soft/kinovra.htm"_s);
    EXPECT_TRUE(contactHidden());
}

TEST_F(AboutWindow, contact_grows_the_window_and_shrinks_it_again)
{
    show();
    const int height = about.Height;
    click(about.cmdAuthor);
    EXPECT_TRUE(about.ContactShown);
    EXPECT_TRUE(contactShown());
    EXPECT_EQ(about.Height.value(), height + 3000);
    click(about.cmdAuthor);
    EXPECT_FALSE(about.ContactShown);
    EXPECT_TRUE(contactHidden());
    EXPECT_EQ(about.Height.value(), height);
}

TEST_F(AboutWindow, keeps_the_contact_details_when_it_comes_back)
{
    show();
    click(about.cmdAuthor);
    comeBack(about);
    EXPECT_TRUE(contactShown());
    click(about.cmdAuthor);
    comeBack(about);
    EXPECT_TRUE(contactHidden());
}

TEST_F(AboutWindow, a_click_on_the_photograph_hides_it_alone)
{
    show();
    click(about.cmdAuthor);
    const int height = about.Height;
    shell::dispatch(panel, about.picRell.Click);
    EXPECT_FALSE(about.picRell.Visible);
    EXPECT_TRUE(about.lblRell.Visible);
    EXPECT_TRUE(about.Visible);
    EXPECT_TRUE(about.ContactShown);
    EXPECT_EQ(about.Height.value(), height);
}

TEST_F(AboutWindow, shows_the_photograph_again_when_it_comes_back)
{
    show();
    click(about.cmdAuthor);
    shell::dispatch(panel, about.picRell.Click);
    comeBack(about);
    EXPECT_TRUE(contactShown());
}

TEST_F(AboutWindow, closing_without_the_contact_leaves_its_height)
{
    show();
    const int height = about.Height;
    shell::dispatch(panel, about.Unload);
    EXPECT_EQ(about.Height.value(), height);
}

TEST_F(AboutWindow, tells_of_a_website_that_cannot_be_opened)
{
    show();
    machine.programs.failure = u"this desktop has nothing to open it with"_s;
    click(about.cmdWebsite);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(),
              u"https://maker.example/soft/kinovra.htm was not opened: this desktop "
              "has nothing to open it with."_s);
    EXPECT_THAT(messages(), IsEmpty());
    machine.programs.failure.clear();
    click(about.cmdWebsite);
    machine.programs.ended(42, {platform::Ending::Kind::Exited, 4});
    EXPECT_EQ(frm.StatusBar1.Panel1.value(),
              u"https://maker.example/soft/kinovra.htm could not be opened."_s);
}

TEST_F(AboutWindow, closes_on_each_of_its_ways_and_forgets_the_contact)
{
    show();
    const int height = about.Height;
    const std::pair<const char *, controls::Event> ways[]{
        {"lblAbout", about.lblAbout.Click}, {"lblRell", about.lblRell.Click},
        {"picAbout", about.picAbout.Click}, {"Esc", [this] { about.KeyPress(27); }},
        {"close box", about.Unload},
    };
    for (const auto &[name, close] : ways) {
        show();
        click(about.cmdAuthor);
        shell::dispatch(panel, close);
        EXPECT_FALSE(about.Visible) << name;
        EXPECT_FALSE(about.ContactShown) << name;
        EXPECT_EQ(about.Height.value(), height) << name;
        about.Left = -1;
        show();
        EXPECT_TRUE(contactHidden()) << name;
        EXPECT_NE(about.Left.value(), -1) << name << ": it is loaded again";
    }
}

TEST_F(AboutWindow, other_keys_do_nothing)
{
    show();
    for (const int character : {13, 32, 26, 28, 113})
        shell::dispatch(panel, [&] { about.KeyPress(character); });
    EXPECT_TRUE(about.Visible);
}

TEST_F(AboutWindow, opens_the_website)
{
    show();
    click(about.cmdWebsite);
    ASSERT_EQ(machine.programs.started.size(), 1U);
    EXPECT_EQ(machine.programs.started[0],
              (platform::Start{.verb = u"Open"_s,
                               .file = u"https://maker.example/soft/kinovra.htm"_s,
                               .show = platform::Show::Shown,
                               .owner = 4711,
                               .target = platform::Target::Address}));
    EXPECT_EQ(kinovra.TaskId, 42);
    EXPECT_TRUE(about.Visible);
    EXPECT_THAT(messages(), IsEmpty());
}
