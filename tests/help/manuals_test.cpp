#include "help/manuals.h"
#include "panel_fixture.h"
#include "printing.h"
#include "shell/dispatch.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using platform::CommandText;
using platform::Ending;
using platform::Show;
using platform::Start;
using platform::Target;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct Manual
{
    const char *caption;
    const char *tested;
    const char *opened;
};

// Of the second and the fifth another file is tested than the one that is opened.
constexpr Manual Manuals[]{
    {"&Kinovra User's Manual", "kinovra.pdf", "kinovra.pdf"},
    {"&Control file example", "modlex.pdf", "cfbfile.pdf"},
    {"&Graph User's Manual", "graph.pdf", "graph.pdf"},
    {"&Skelvo User's Manual", "skelvo.pdf", "skelvo.pdf"},
    {"Kinovra &Quick Reference Guide", "kv_qrg.pdf", "kv_win.pdf"},
    {"Ondex&1 User's Manual", "ondex.pdf", "ondex.pdf"},
    {"Ondex&2 Quick Reference Guide", "ox2_qrg.pdf", "ox2_qrg.pdf"},
    {"&Simulate User's Manual", "simulate.pdf", "simulate.pdf"},
    {"Kinovra Channel &Ordering ", "binaries.pdf", "binaries.pdf"},
    {"Select &A Manual", "", ""},
};

Start opening(const char *manual)
{
    return {.verb = u"open"_s,
            .file = QLatin1String(manual),
            .directory = u"C:\\KINOVRA\\manuals\\"_s,
            .show = Show::Normal,
            .owner = 4711,
            .target = Target::Document};
}

} // namespace

class ManualsMenu : public support::PanelFixture
{
protected:
    void SetUp() override { load(); }

    static QString manual(const char *name) { return u"C:\\KINOVRA\\manuals\\"_s + QLatin1String(name); }
};

TEST_F(ManualsMenu, greys_out_exactly_the_manuals_whose_tested_file_is_missing)
{
    for (size_t present = 0; present < 9; ++present) {
        addFile(manual(Manuals[present].tested));
        openMenu(frm.mnuManuals);
        for (size_t item = 0; item < 9; ++item)
            EXPECT_EQ(frm.mnuManual[item].Enabled, item == present) << item;
        machine.files.remove(manual(Manuals[present].tested));
    }
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(ManualsMenu, greys_out_by_the_tested_file_and_not_by_the_one_it_opens)
{
    addFile(manual("cfbfile.pdf"));
    addFile(manual("kv_win.pdf"));
    openMenu(frm.mnuManuals);
    EXPECT_EQ(enabledOf(frm.mnuManual), u"xxxxxxxxx9"_s);
}

TEST_F(ManualsMenu, never_touches_select_a_manual)
{
    openMenu(frm.mnuManuals);
    EXPECT_TRUE(frm.mnuManual[9].Enabled);
    frm.mnuManual[9].Enabled = false;
    openMenu(frm.mnuManuals);
    EXPECT_FALSE(frm.mnuManual[9].Enabled);
}

TEST_F(ManualsMenu, tests_with_a_leading_backslash_and_keeps_the_last_result)
{
    addFile(manual("binaries.pdf"));
    mark();
    openMenu(frm.mnuManuals);
    EXPECT_THAT(machine.files.tested,
                ElementsAre(uR"(C:\KINOVRA\MANUALS\\\KINOVRA.PDF)"_s, uR"(C:\KINOVRA\MANUALS\\\MODLEX.PDF)"_s,
                            uR"(C:\KINOVRA\MANUALS\\\GRAPH.PDF)"_s, uR"(C:\KINOVRA\MANUALS\\\SKELVO.PDF)"_s,
                            uR"(C:\KINOVRA\MANUALS\\\KV_QRG.PDF)"_s, uR"(C:\KINOVRA\MANUALS\\\ONDEX.PDF)"_s,
                            uR"(C:\KINOVRA\MANUALS\\\OX2_QRG.PDF)"_s,
                            uR"(C:\KINOVRA\MANUALS\\\SIMULATE.PDF)"_s,
                            uR"(C:\KINOVRA\MANUALS\\\BINARIES.PDF)"_s));
    EXPECT_EQ(kinovra.Answer, 0);
    expectMarkedBut({u"Answer"_s});
}

TEST_F(ManualsMenu, opens_each_manual_without_testing_it)
{
    for (size_t item = 0; item < 10; ++item) {
        EXPECT_EQ(frm.mnuManual[item].Caption.value(), QLatin1String(Manuals[item].caption));
        forget();
        mark();
        click(frm.mnuManual[item]);
        EXPECT_THAT(machine.programs.started, ElementsAre(opening(Manuals[item].opened))) << item;
        EXPECT_EQ(kinovra.ManualFile, QLatin1String(Manuals[item].opened));
        EXPECT_EQ(kinovra.TaskId, 42);
        EXPECT_THAT(machine.files.tested, IsEmpty());
        EXPECT_THAT(messages(), IsEmpty());
        expectMarkedBut({u"ManualFile"_s, u"TaskId"_s});
    }
}

TEST_F(ManualsMenu, an_unknown_manual_has_no_name)
{
    for (const int index : {-1, 10}) {
        forget();
        shell::dispatch(panel, [&] { help::mnuManual_Click(panel, index); });
        EXPECT_THAT(machine.programs.started, ElementsAre(opening("")));
        EXPECT_EQ(kinovra.ManualFile, QString());
    }
}

TEST_F(ManualsMenu, a_manual_that_cannot_be_opened_is_told_in_the_status_bar_alone)
{
    machine.programs.failure = u"it was not found"_s;
    click(frm.mnuManual[1]);
    EXPECT_EQ(kinovra.TaskId, 2);
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"cfbfile.pdf was not opened: it was not found."_s);
    click(frm.mnuManual[9]);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"manuals was not opened: it was not found."_s);
}

TEST_F(ManualsMenu, an_opener_that_fails_is_told_of)
{
    click(frm.mnuManual[0]);
    machine.programs.ended(42, {Ending::Kind::Exited, 3});
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"kinovra.pdf could not be opened."_s);
    click(frm.mnuManual[0]);
    machine.programs.ended(42, {Ending::Kind::Crashed, 11});
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"kinovra.pdf could not be opened."_s);
    click(frm.mnuManual[0]);
    machine.programs.ended(42, {Ending::Kind::Exited, 0});
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), QString());
}

TEST_F(ManualsMenu, the_guide_button_opens_the_quick_reference)
{
    mark();
    click(frm.cmdGuide);
    EXPECT_THAT(machine.programs.started, ElementsAre(opening("kv_win.pdf")));
    EXPECT_EQ(kinovra.ManualFile, u"kv_win.pdf"_s);
    EXPECT_EQ(kinovra.TaskId, 42);
    EXPECT_THAT(machine.files.tested, IsEmpty());
    expectMarkedBut({u"ManualFile"_s, u"TaskId"_s});
}

TEST_F(ManualsMenu, the_manual_button_opens_the_users_manual)
{
    addFile(manual("kinovra.pdf"));
    addFile(u"C:\\KINOVRA\\kinovra.txt"_s);
    mark();
    click(frm.cmdManual);
    EXPECT_THAT(machine.programs.started, ElementsAre(opening("kinovra.pdf")));
    EXPECT_EQ(kinovra.TaskId, 42);
    EXPECT_EQ(kinovra.Answer, 0);
    expectMarkedBut({u"TaskId"_s, u"Answer"_s});
}

TEST_F(ManualsMenu, the_manual_button_falls_back_on_the_text)
{
    addFile(u"C:\\KINOVRA\\kinovra.txt"_s);
    mark();
    click(frm.cmdManual);
    EXPECT_THAT(machine.programs.started,
                ElementsAre(Start{QString(), u"notepad.exe"_s,
                                  u" "_s + CommandText::document(u"C:\\KINOVRA\\kinovra.txt"_s),
                                  u"C:\\DATA"_s, Show::Normal}));
    EXPECT_EQ(kinovra.TaskId, 51);
    EXPECT_EQ(kinovra.Answer, 0);
    expectMarkedBut({u"TaskId"_s, u"Answer"_s});
}

TEST_F(ManualsMenu, the_manual_button_does_nothing_without_either)
{
    mark();
    click(frm.cmdManual);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ(kinovra.Answer, 53);
    expectMarkedBut({u"Answer"_s});
}
