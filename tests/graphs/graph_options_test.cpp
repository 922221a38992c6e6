#include "graphs/graph_options.h"
#include "panel_fixture.h"
#include "printing.h"
#include "shell/connect_rooms.h"
#include "shell/dispatch.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::IsEmpty;

namespace {

/// The check marks of the two colour schemes before and after a click on one of them.
struct SchemeRow
{
    size_t clicked;
    const char *before;
    const char *after;
};

constexpr SchemeRow ColourSchemes[]{
    {0, "--", "x-"}, {0, "x-", "--"}, {0, "-x", "x-"}, {0, "xx", "-x"},
    {1, "--", "-x"}, {1, "-x", "--"}, {1, "x-", "-x"}, {1, "xx", "x-"},
};

/// The check marks of the first five options before and after a click on one of the last three.
struct OptionRow
{
    size_t clicked;
    const char *before;
    const char *after;
};

constexpr OptionRow OtherOptions[]{
    {2, "-----", "--x--"}, {2, "--x--", "-----"}, {2, "x--xx", "x-xxx"}, {2, "-xxxx", "-x-xx"},
    {2, "xx---", "xxx--"}, {2, "xxxxx", "xx-xx"}, {3, "-----", "---x-"}, {3, "---x-", "-----"},
    {3, "x-x-x", "x-xxx"}, {3, "-xxxx", "-xx-x"}, {3, "xx---", "xx-x-"}, {3, "xxxxx", "xxx-x"},
    {4, "-----", "----x"}, {4, "----x", "-----"}, {4, "x-xx-", "x-xxx"}, {4, "-xxxx", "-xxx-"},
    {4, "xx---", "xx--x"}, {4, "xxxxx", "xxxx-"},
};

/// What the last three options may be like when something else is clicked.
constexpr const char *OthersStates[]{"---", "--x", "-x-", "-xx", "x--", "x-x", "xx-", "xxx"};

} // namespace

class GraphOptions : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        addData({"Walk1.plt", "Walk1.acd"});
        load();
    }

    QString checked() const
    {
        QString result;
        for (const auto &item : frm.mnuGraphOptions)
            result += item.Checked ? u'x' : u'-';
        return result;
    }

    // From the first option on; the others stay.
    void check(const QString &marks)
    {
        for (qsizetype i = 0; i < marks.size(); ++i)
            frm.mnuGraphOptions[static_cast<size_t>(i)].Checked = marks[i] == u'x';
    }
};

TEST_F(GraphOptions, begin_unchecked)
{
    EXPECT_EQ(checked(), u"------"_s);
}

TEST_F(GraphOptions, of_colour_exclude_each_other_and_the_last_choice_wins)
{
    for (const SchemeRow &row : ColourSchemes) {
        for (const char *others : OthersStates) {
            check(QLatin1String(row.before) + QLatin1String(others));
            click(frm.mnuGraphOptions[row.clicked]);
            EXPECT_EQ(checked(), QLatin1String(row.after) + QLatin1String(others) + u'-')
                << row.clicked << " at " << row.before << others;
        }
    }
}

TEST_F(GraphOptions, beside_the_colours_toggle_alone)
{
    for (const OptionRow &row : OtherOptions) {
        check(QLatin1String(row.before));
        click(frm.mnuGraphOptions[row.clicked]);
        EXPECT_EQ(checked(), QLatin1String(row.after) + u'-') << row.clicked << " at " << row.before;
    }
}

TEST_F(GraphOptions, go_back_to_their_defaults_from_every_state)
{
    for (const char *scheme : {"--", "x-", "-x", "xx"}) {
        for (const char *others : OthersStates) {
            check(QLatin1String(scheme) + QLatin1String(others));
            click(frm.mnuGraphOptions[5]);
            EXPECT_EQ(checked(), u"------"_s) << scheme << others;
        }
    }
}

TEST_F(GraphOptions, go_back_to_their_defaults_in_menu_order)
{
    check(u"xxxxx"_s);
    QString order;
    std::vector<QPropertyChangeHandler<std::function<void()>>> watches;
    for (size_t i = 0; i < 6; ++i)
        watches.push_back(frm.mnuGraphOptions[i].Checked.onValueChanged(
            std::function<void()>([&order, i] { order += QString::number(i); })));
    click(frm.mnuGraphOptions[5]);
    EXPECT_EQ(order, u"01234"_s);
}

TEST_F(GraphOptions, know_no_other_item)
{
    for (const QString &state : {u"-----"_s, u"xxxxx"_s, u"x-x-x"_s}) {
        check(state);
        for (int index : {-1, 6, 7, 100})
            shell::dispatch(panel, [this, index] { graphs::mnuGraphOptions_Click(panel, index); });
        EXPECT_EQ(checked(), state + u'-');
    }
}

TEST_F(GraphOptions, change_nothing_else)
{
    mark();
    frm.StatusBar1.Panel1 = u"(before)"_s;
    for (auto &item : frm.mnuGraphOptions) {
        for (int i = 0; i < 3; ++i)
            click(item);
    }
    expectMarkedBut({});
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"(before)"_s);
    EXPECT_EQ(frm.GraphicsSwitch, u"/A /Z "_s);
    EXPECT_EQ(kinovra.ListingSwitch, QString());
    EXPECT_THAT(machine.settings.written, IsEmpty());
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(GraphOptions, are_not_kept_for_the_next_run)
{
    for (size_t i : {0U, 2U, 3U, 4U})
        click(frm.mnuGraphOptions[i]);
    click(frm.cmdExit);

    shell::Panel next(machine.platform);
    shell::connectRooms(next);
    shell::dispatch(next, next.frm.Load);
    for (const auto &item : next.frm.mnuGraphOptions)
        EXPECT_FALSE(item.Checked);
}

TEST_F(GraphOptions, decide_which_display_a_double_click_starts)
{
    const auto startedOn = [this](const QString &plot) {
        forget();
        doubleClick(frm.filPlots, plot);
        return machine.programs.started.size() == 1 ? machine.programs.started[0].text() : u"(other)"_s;
    };
    for (size_t other : {0U, 3U, 4U})
        click(frm.mnuGraphOptions[other]);
    EXPECT_EQ(startedOn(u"Walk1.plt"_s), u"C:\\KINOVRA\\grafow.exe /1 Walk1.plt"_s);
    click(frm.mnuGraphOptions[2]);
    EXPECT_EQ(startedOn(u"Walk1.plt"_s), u"C:\\KINOVRA\\grafod.exe /1 Walk1.plt"_s);
    EXPECT_EQ(startedOn(u"Walk1.acd"_s), u"C:\\KINOVRA\\acrospin.exe Walk1.acd"_s);
    click(frm.mnuGraphOptions[5]);
    EXPECT_EQ(startedOn(u"Walk1.plt"_s), u"C:\\KINOVRA\\grafow.exe /1 Walk1.plt"_s);
}
