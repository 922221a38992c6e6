#include "launcher/presence_check.h"
#include "panel_fixture.h"
#include "printing.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using platform::Icon;
using platform::MessageBox;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const MessageBox NotInstalled{u"KINOVRA programs were not found in the 'program' directory.\n"
                              "KINOVRA programs and KVWIN must be in the same directory.\n"
                              "The KINOVRA software needs to be reinstalled."_s,
                              Icon::Critical};

} // namespace

class PresenceCheck : public support::PanelFixture
{
protected:
    void SetUp() override { load(); }

    void check()
    {
        forget();
        launcher::checkPresence(panel);
    }

    QString visibleItems() const
    {
        QString result;
        for (const auto &item : frm.mnuProg)
            result += item.Visible ? u'x' : u'-';
        return result;
    }
};

TEST_F(PresenceCheck, tests_the_package_in_order)
{
    check();
    EXPECT_EQ(machine.files.tested,
              (QStringList{
                  u"C:\\KINOVRA\\REFILA.EXE"_s, u"C:\\KINOVRA\\ERRCHECK.EXE"_s, u"C:\\KINOVRA\\FOURIER.EXE"_s,
                  u"C:\\KINOVRA\\NOISE.EXE"_s, u"C:\\KINOVRA\\KINEMATI.EXE"_s, u"C:\\KINOVRA\\MOMENTUM.EXE"_s,
                  u"C:\\KINOVRA\\MUSCLE.EXE"_s, u"C:\\KINOVRA\\ENERGY.EXE"_s, u"C:\\KINOVRA\\TORQUE.EXE"_s,
                  u"C:\\KINOVRA\\FORCE.EXE"_s, u"C:\\KINOVRA\\POWERS.EXE"_s, u"C:\\KINOVRA\\INTERACT.EXE"_s,
                  u"C:\\KINOVRA\\SIMULATE.EXE"_s}));
}

TEST_F(PresenceCheck, of_a_complete_package_is_silent)
{
    check();
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_EQ(visibleItems(), u"xxxxxxxxxxxxx"_s);
    EXPECT_EQ(kinovra.Answer, 0);
}

TEST_F(PresenceCheck, of_an_empty_directory_tells_once_and_hides_all_but_the_last_item)
{
    machine.files.remove(u"C:\\KINOVRA"_s);
    machine.files.addDirectory(u"C:\\KINOVRA"_s);
    check();
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(NotInstalled));
    EXPECT_EQ(visibleItems(), u"------------x"_s);
    EXPECT_EQ(kinovra.Answer, 53);
}

TEST_F(PresenceCheck, of_a_missing_scaler_tells_and_goes_on)
{
    machine.files.remove(u"C:\\KINOVRA\\refila.exe"_s);
    check();
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(NotInstalled));
    EXPECT_EQ(visibleItems(), u"xxxxxxxxxxxxx"_s);
}

TEST_F(PresenceCheck, hides_exactly_the_item_of_each_missing_program)
{
    const std::pair<const char *, const char *> table[]{
        {"errcheck.exe", "-xxxxxxxxxxxx"}, {"fourier.exe", "x-xxxxxxxxxxx"},
        {"noise.exe", "xx-xxxxxxxxxx"},    {"kinemati.exe", "xxx-xxxxxxxxx"},
        {"momentum.exe", "xxxx-xxxxxxxx"}, {"muscle.exe", "xxxxx-xxxxxxx"},
        {"energy.exe", "xxxxxx-xxxxxx"},   {"torque.exe", "xxxxxxx-xxxxx"},
        {"force.exe", "xxxxxxxx-xxxx"},    {"powers.exe", "xxxxxxxxx-xxx"},
        {"interact.exe", "xxxxxxxxxx-xx"}, {"simulate.exe", "xxxxxxxxxxx-x"},
    };
    for (const auto &[file, visible] : table) {
        const QString path = u"C:\\KINOVRA\\"_s + QLatin1String(file);
        machine.files.remove(path);
        check();
        EXPECT_THAT(machine.dialogs.messages, IsEmpty());
        EXPECT_EQ(visibleItems(), QString(QLatin1String(visible))) << file;
        machine.files.addFile(path);
    }
}

TEST_F(PresenceCheck, shows_again_what_has_come_back)
{
    frm.mnuProg[3].Visible = false;
    check();
    EXPECT_TRUE(frm.mnuProg[3].Visible);
}

TEST_F(PresenceCheck, is_not_repeated_later)
{
    const QString before = visibleItems();
    machine.files.remove(u"C:\\KINOVRA\\noise.exe"_s);
    machine.files.remove(u"C:\\KINOVRA\\refila.exe"_s);
    forget();
    click(frm.cmdRefresh);
    addData({"one.cfb", "two.cfb"});
    click(frm.cmdRefresh);
    openMenu(frm.mnuProgs);
    open(u"C:\\"_s);
    EXPECT_EQ(visibleItems(), before);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}
