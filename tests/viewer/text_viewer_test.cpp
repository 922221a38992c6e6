#include "panel_fixture.h"
#include "platform/runtime_error.h"
#include "printing.h"
#include "shell/dispatch.h"
#include "viewer/text_viewer.h"

#include <gmock/gmock.h>

#include <new>

using namespace Qt::StringLiterals;
using platform::Buttons;
using platform::CommandText;
using platform::ErrorNumber;
using platform::Icon;
using platform::MessageBox;
using platform::OpenFileRequest;
using platform::RuntimeError;
using platform::Show;
using platform::Start;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const MessageBox AlreadyOpen{u"Error trying to open file.  It may be already opened."_s, Icon::Exclamation,
                             Buttons::OKOnly, u"Text Viewer"_s};
const MessageBox NotFound{u"Error finding file."_s, Icon::Exclamation, Buttons::OKOnly, u"Text Viewer"_s};

} // namespace

class TextViewer : public support::PanelFixture
{
protected:
    void SetUp() override { load(); }

    void showFile(const QString &file)
    {
        kinovra.ViewerFile = file;
        shell::dispatch(panel, [this] { viewer.show(); });
    }

    void showContent(const QByteArray &content)
    {
        addFile(u"C:\\DATA\\a.txt"_s, content);
        showFile(u"C:\\DATA\\a.txt"_s);
    }

    QString text() const { return viewer.txtViewer.Text.value(); }

    // The numbers of the sizes that are checked.
    QString checkedSizes() const
    {
        QString result;
        for (size_t i = 0; i < viewer.mnuFontSizesItem.size(); ++i) {
            if (viewer.mnuFontSizesItem[i].Checked)
                result += QString::number(i);
        }
        return result;
    }

    static Start notepad(const char *file)
    {
        return {QString(), u"notepad.exe"_s, u" "_s + CommandText::document(QLatin1String(file)),
                u"C:\\DATA"_s, Show::Normal};
    }

    void expectGivenToNotepad()
    {
        EXPECT_FALSE(viewer.Visible);
        EXPECT_THAT(machine.programs.started, ElementsAre(notepad("C:\\DATA\\a.txt")));
        EXPECT_THAT(messages(), IsEmpty());
    }
};

TEST_F(TextViewer, has_its_texts)
{
    EXPECT_EQ(viewer.Caption.value(), u"Text Viewer"_s);
    EXPECT_EQ(viewer.mnuFile.Caption.value(), u"&File"_s);
    EXPECT_EQ(viewer.mnuOpen.Caption.value(), u"&Open"_s);
    EXPECT_EQ(viewer.mnuExit.Caption.value(), u"E&xit"_s);
    EXPECT_EQ(viewer.mnuColour.Caption.value(), u"&Colours"_s);
    EXPECT_EQ(viewer.mnuColours[0].Caption.value(), u"&Background"_s);
    EXPECT_EQ(viewer.mnuColours[1].Caption.value(), u"&Foreground"_s);
    EXPECT_EQ(viewer.mnuColours[2].Caption.value(), u"&Reset"_s);
    EXPECT_EQ(viewer.mnuFonts.Caption.value(), u"&Font"_s);
    const char *sizes[]{"&tiny", "&small", "&normal", "&large", "&very large", "default"};
    for (size_t i = 0; i < 6; ++i)
        EXPECT_EQ(viewer.mnuFontSizesItem[i].Caption.value(), QLatin1String(sizes[i]));
}

TEST_F(TextViewer, is_centred_before_it_is_widened)
{
    panel.screen = {20000, 12000};
    viewer.Width = 9000;
    viewer.Height = 8000;
    showContent("ab");
    EXPECT_EQ(viewer.Top.value(), 2000);
    EXPECT_EQ(viewer.Left.value(), 5500);
    EXPECT_EQ(viewer.Width.value(), 10500);
    EXPECT_EQ(viewer.Height.value(), 8000);
}

TEST_F(TextViewer, begins_with_small_letters_in_the_desktops_colours)
{
    panel.screen.PageColour = 0x202122;
    panel.screen.TextColour = 0xEFEEED;
    showContent("ab");
    EXPECT_EQ(viewer.txtViewer.FontSize.value(), 10);
    EXPECT_FALSE(viewer.txtViewer.FontBold);
    EXPECT_EQ(checkedSizes(), u"1"_s);
    EXPECT_EQ(viewer.txtViewer.BackColor.value(), 0x202122U);
    EXPECT_EQ(viewer.txtViewer.ForeColor.value(), 0xEFEEEDU);
}

TEST_F(TextViewer, keeps_place_size_and_look_while_it_is_hidden)
{
    showContent("ab");
    click(viewer.mnuFontSizesItem[4]);
    viewer.Left = 11;
    viewer.Width = 5000;
    viewer.txtViewer.BackColor = 0x000080;
    click(viewer.mnuExit);
    showContent("cd");
    EXPECT_EQ(viewer.Left.value(), 11);
    EXPECT_EQ(viewer.Width.value(), 5000);
    EXPECT_EQ(viewer.txtViewer.FontSize.value(), 18);
    EXPECT_TRUE(viewer.txtViewer.FontBold);
    EXPECT_EQ(viewer.txtViewer.BackColor.value(), 0x000080U);
    EXPECT_EQ(checkedSizes(), u"4"_s);
}

TEST_F(TextViewer, shows_a_file_without_its_last_character)
{
    showContent("one\r\ntwo\r\n");
    EXPECT_TRUE(viewer.Visible);
    EXPECT_EQ(viewer.Caption.value(), u"Text Viewer: C:\\DATA\\a.txt"_s);
    EXPECT_EQ(text(), u"one\ntwo"_s);
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(TextViewer, closes_every_file)
{
    showContent("one\n");
    EXPECT_EQ(machine.files.filesOpen, 0);
    showContent("");
    expectGivenToNotepad();
    EXPECT_EQ(machine.files.filesOpen, 0);
}

TEST_F(TextViewer, cuts_the_last_character_whatever_it_is)
{
    showContent("one");
    EXPECT_EQ(text(), u"on"_s);
    showContent("one\n\n");
    EXPECT_EQ(text(), u"one\n"_s);
    showContent("one\r\n\x1A");
    EXPECT_EQ(text(), u"one\n"_s);
    showContent("one\r");
    EXPECT_EQ(text(), u"one"_s);
}

TEST_F(TextViewer, a_file_of_one_character_is_an_empty_text)
{
    showContent("ab");
    showContent("x");
    EXPECT_EQ(text(), QString());
    EXPECT_TRUE(viewer.Visible);
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(TextViewer, counts_decoded_characters)
{
    showContent("µé");
    EXPECT_EQ(text(), u"µ"_s);
    showContent("a\xF0\x9F\x9A\xB6"); // a walking man, one character
    EXPECT_EQ(text(), u"a"_s);
    showContent("\xF0\x9F\x9A\xB6");
    EXPECT_EQ(text(), QString());
    showContent("\xEF\xBB\xBF"
                "ab"); // a byte order mark is none
    EXPECT_EQ(text(), u"a"_s);
}

TEST_F(TextViewer, takes_what_is_no_utf8_for_the_windows_code_page)
{
    showContent("L\xE4nge \x95 \x80 5 \xB5m\r\n");
    EXPECT_EQ(text(), u"Länge • € 5 µm"_s);
    showContent("L\xC3\xA4nge \xE4\r\n"); // one wrong byte: all of it
    EXPECT_EQ(text(), u"LÃ¤nge ä"_s);
}

TEST_F(TextViewer, shows_line_ends_of_every_kind_and_form_feeds)
{
    showContent("one\rtwo\nthree\r\n\ffour\x1B\n");
    EXPECT_EQ(text(), u"one\ntwo\nthree\nfour\u241B"_s);
}

TEST_F(TextViewer, an_empty_file_name_leaves_everything)
{
    showContent("ab");
    kinovra.ViewerFile.clear();
    comeBack(viewer);
    EXPECT_EQ(text(), u"a"_s);
    EXPECT_EQ(viewer.Caption.value(), u"Text Viewer: C:\\DATA\\a.txt"_s);
    EXPECT_TRUE(viewer.Visible);
}

TEST_F(TextViewer, zero_asks_for_an_empty_text)
{
    showContent("ab");
    showFile(u"0"_s);
    EXPECT_EQ(text(), QString());
    EXPECT_EQ(viewer.Caption.value(), u"Text Viewer: C:\\DATA\\a.txt"_s);
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(TextViewer, one_to_ten_are_how_to_topics)
{
    const char *captions[]{
        "",
        "How to read ASCII files.",
        "How to ensemble average data files.",
        "How to read KinCom data file.",
        "How to determine thresholds.",
        "How to perform event tracking.",
        "How to find EMG onsets.",
        "How to create and save events and intervals.",
        "How to calculate maximums (MVCs) from EMG or similar data for amplitude normalization.",
        "How to normalize and create linear envelope EMG signals.",
        "How to merge channels from separate data files.",
    };
    addFile(u"C:\\KINOVRA\\howto03.txt"_s, "Read it\r\nso.");
    addFile(u"C:\\KINOVRA\\HOWTO10.TXT"_s, "Merge them.");
    addFile(u"C:\\KINOVRA\\howto11.txt"_s, "none");
    for (int topic = 1; topic <= 10; ++topic) {
        showFile(QString::number(topic));
        EXPECT_EQ(viewer.Caption.value(), QLatin1String(captions[topic]));
        EXPECT_EQ(text(), topic == 3 ? u"Read it\nso."_s : topic == 10 ? u"Merge them."_s : QString());
        EXPECT_TRUE(viewer.Visible);
    }
    EXPECT_EQ(kinovra.HowToText[3], u"Read it\nso."_s);
    EXPECT_EQ(kinovra.HowToText[1], QString());
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(TextViewer, other_numbers_are_names_of_files)
{
    for (const char *name : {"11", "01", " 1", "00", "-1"}) {
        forget();
        showFile(QLatin1String(name));
        EXPECT_THAT(machine.dialogs.messages, ElementsAre(NotFound)) << name;
        EXPECT_EQ(viewer.Caption.value(), u"Text Viewer: "_s + QLatin1String(name));
    }
}

TEST_F(TextViewer, a_missing_file_is_told_of_and_hides_the_window)
{
    for (const char *file : {"C:\\DATA\\gone.txt", "C:\\GONE\\a.txt", "Q:\\a.txt"}) {
        showContent("ab");
        forget();
        machine.dialogs.whileShown = [this](const MessageBox &) { EXPECT_TRUE(viewer.Visible); };
        showFile(QLatin1String(file));
        EXPECT_THAT(machine.dialogs.messages, ElementsAre(NotFound)) << file;
        EXPECT_FALSE(viewer.Visible);
        EXPECT_EQ(text(), u"a"_s);
        EXPECT_EQ(viewer.Caption.value(), u"Text Viewer: "_s + QLatin1String(file));
        EXPECT_THAT(machine.programs.started, IsEmpty());
    }
}

TEST_F(TextViewer, no_more_open_files_is_told_of_in_its_own_words)
{
    addFile(u"C:\\DATA\\a.txt"_s);
    machine.files.forbid(u"C:\\DATA\\a.txt"_s, ErrorNumber::TooManyFiles);
    showFile(u"C:\\DATA\\a.txt"_s);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(AlreadyOpen));
    EXPECT_FALSE(viewer.Visible);
}

TEST_F(TextViewer, every_other_error_of_opening_is_a_file_not_found)
{
    addFile(u"C:\\DATA\\a.txt"_s);
    for (const ErrorNumber error : {ErrorNumber::PermissionDenied, ErrorNumber::FileAlreadyOpen,
                                    ErrorNumber::PathFileAccess, ErrorNumber::DeviceError}) {
        forget();
        machine.files.forbid(u"C:\\DATA\\a.txt"_s, error);
        showFile(u"C:\\DATA\\a.txt"_s);
        EXPECT_THAT(machine.dialogs.messages, ElementsAre(NotFound));
        EXPECT_FALSE(viewer.Visible);
    }
}

TEST_F(TextViewer, reports_have_their_words_and_hide_the_window)
{
    const MessageBox boxes[]{
        AlreadyOpen,
        NotFound,
        {u"Error reading from file.  File may be too large."_s, Icon::Exclamation, Buttons::OKOnly,
         u"Text Viewer"_s},
        {u"Error.  No filename was given."_s, Icon::Information, Buttons::OKOnly, u"Text Viewer"_s},
        {u"Program error."_s, Icon::Exclamation, Buttons::OKOnly, u"Text Viewer"_s},
    };
    for (qint16 index = 0; index < 5; ++index) {
        viewer.Visible = true;
        forget();
        shell::dispatch(panel, [&] { viewer::ReportViewerError(panel, index); });
        EXPECT_THAT(machine.dialogs.messages, ElementsAre(boxes[index]));
        EXPECT_FALSE(viewer.Visible);
    }
    forget();
    shell::dispatch(panel, [&] { viewer::ReportViewerError(panel, -1); });
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(boxes[4]));
}

TEST_F(TextViewer, an_empty_file_goes_to_notepad)
{
    mark();
    showContent("");
    expectGivenToNotepad();
    EXPECT_EQ(viewer.Caption.value(), u"Text Viewer: C:\\DATA\\a.txt"_s);
    expectMarkedBut({u"ViewerFile"_s});
}

TEST_F(TextViewer, a_file_of_a_byte_order_mark_alone_is_empty)
{
    showContent("\xEF\xBB\xBF");
    expectGivenToNotepad();
}

TEST_F(TextViewer, a_file_with_a_zero_goes_to_notepad)
{
    showContent(QByteArray("ab\0cd\n", 6));
    expectGivenToNotepad();
}

TEST_F(TextViewer, a_zero_is_found_at_the_very_end)
{
    showContent(QByteArray(100'000, 'x') + '\0');
    expectGivenToNotepad();
}

TEST_F(TextViewer, is_hidden_when_notepad_starts)
{
    machine.programs.whileStarting = [this] { EXPECT_FALSE(viewer.Visible); };
    showContent("");
    EXPECT_EQ(machine.programs.started.size(), 1U);
}

TEST_F(TextViewer, what_does_not_fit_into_memory_goes_to_notepad)
{
    machine.files.beforeCall = [](const QString &call) {
        if (call == u"read")
            throw std::bad_alloc();
    };
    showContent("ab");
    expectGivenToNotepad();
}

TEST_F(TextViewer, sixteen_mebibytes_are_shown_and_no_more)
{
    constexpr qsizetype Capacity = 16'777'216;
    showContent(QByteArray(Capacity, 'x'));
    EXPECT_TRUE(viewer.Visible);
    EXPECT_EQ(text().size(), 16'777'215);
    EXPECT_THAT(machine.programs.started, IsEmpty());
    showContent(QByteArray(Capacity + 1, 'x'));
    expectGivenToNotepad();
}

TEST_F(TextViewer, what_fails_while_reading_goes_to_notepad)
{
    machine.files.beforeCall = [](const QString &call) {
        if (call == u"read")
            throw RuntimeError(ErrorNumber::DeviceError);
    };
    showContent("ab");
    expectGivenToNotepad();
}

TEST_F(TextViewer, notepad_that_does_not_start_is_told_in_the_status_bar)
{
    machine.programs.failure = u"it was not found"_s;
    showContent("");
    EXPECT_FALSE(viewer.Visible);
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"notepad.exe was not started: it was not found."_s);
}

TEST_F(TextViewer, reads_the_file_again_when_it_comes_back)
{
    showContent("first\n");
    addFile(u"C:\\DATA\\a.txt"_s, "second\n");
    EXPECT_EQ(text(), u"first"_s);
    comeBack(viewer);
    EXPECT_EQ(text(), u"second"_s);
    machine.files.remove(u"C:\\DATA\\a.txt"_s);
    comeBack(viewer);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(NotFound));
    EXPECT_FALSE(viewer.Visible);
}

TEST_F(TextViewer, an_unchanged_file_does_not_change_the_text)
{
    showContent("first\n");
    int changes = 0;
    const auto watch = viewer.txtViewer.Text.addNotifier([&] { ++changes; });
    comeBack(viewer);
    EXPECT_EQ(changes, 0);
}

TEST_F(TextViewer, fits_the_text_into_the_window)
{
    struct Case
    {
        int width, height, textWidth, textHeight;
    };
    for (const Case &c : {Case{10500, 7800, 10350, 7050}, Case{201, 801, 51, 51}, Case{200, 800, 7, 8},
                          Case{200, 2000, 7, 1250}, Case{2000, 800, 1850, 8}, Case{0, 0, 7, 8}}) {
        viewer.txtViewer.Top = 99;
        viewer.txtViewer.Width = 7;
        viewer.txtViewer.Height = 8;
        viewer.Width = c.width;
        viewer.Height = c.height;
        shell::dispatch(panel, viewer.Resize);
        EXPECT_EQ(viewer.txtViewer.Top.value(), 0);
        EXPECT_EQ(viewer.txtViewer.Width.value(), c.textWidth) << c.width;
        EXPECT_EQ(viewer.txtViewer.Height.value(), c.textHeight) << c.height;
    }
}

TEST_F(TextViewer, leaves_the_text_while_it_is_minimized)
{
    viewer.txtViewer.Top = 99;
    viewer.txtViewer.Width = 7;
    viewer.Minimized = true;
    shell::dispatch(panel, viewer.Resize);
    EXPECT_EQ(viewer.txtViewer.Top.value(), 99);
    EXPECT_EQ(viewer.txtViewer.Width.value(), 7);
}

TEST_F(TextViewer, opens_another_file)
{
    showContent("ab");
    addFile(u"C:\\other\\b.lst"_s, "bbb\n");
    machine.dialogs.chosenFiles = {u"C:\\other\\b.lst"_s};
    mark();
    click(viewer.mnuOpen);
    EXPECT_THAT(
        machine.dialogs.requests,
        ElementsAre(OpenFileRequest{
            .initialDirectory = u"C:\\DATA"_s,
            .filter =
                u"Text file (.txt)|*.txt|Output file (.out)|*.out|Listing (.lst)|*.lst|All files (*.*)|*.*"_s,
            .filterIndex = 1}));
    EXPECT_EQ(kinovra.ViewerFile, u"C:\\other\\b.lst"_s);
    EXPECT_EQ(viewer.Caption.value(), u"Text Viewer: C:\\other\\b.lst"_s);
    EXPECT_EQ(text(), u"bbb"_s);
    EXPECT_TRUE(viewer.Visible);
    expectMarkedBut({u"ViewerFile"_s});
}

TEST_F(TextViewer, opens_where_it_opened_before)
{
    addFile(u"C:\\other\\b.lst"_s, "bbb\n");
    machine.dialogs.chosenFiles = {u"C:\\other\\b.lst"_s};
    click(viewer.mnuOpen);
    forget();
    click(viewer.mnuOpen);
    ASSERT_EQ(machine.dialogs.requests.size(), 1U);
    EXPECT_EQ(machine.dialogs.requests[0].initialDirectory, u"C:\\other"_s);
    EXPECT_EQ(machine.dialogs.requests[0].fileName, QString());
}

TEST_F(TextViewer, a_cancelled_open_leaves_everything)
{
    showContent("ab");
    addFile(u"C:\\DATA\\a.txt"_s, "changed\n");
    click(viewer.mnuOpen);
    EXPECT_EQ(machine.dialogs.requests.size(), 1U);
    EXPECT_EQ(kinovra.ViewerFile, u"C:\\DATA\\a.txt"_s);
    EXPECT_EQ(text(), u"a"_s);
    EXPECT_TRUE(viewer.Visible);
}

TEST_F(TextViewer, opening_a_file_that_is_not_there_is_told_of)
{
    showContent("ab");
    machine.dialogs.chosenFiles = {u"C:\\DATA\\gone.txt"_s};
    click(viewer.mnuOpen);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(NotFound));
    EXPECT_FALSE(viewer.Visible);
}

TEST_F(TextViewer, exit_hides_it_and_goes_back_to_the_data_directory)
{
    machine.files.addDirectory(u"C:\\ELSEWHERE"_s);
    for (const auto &exit : {&viewer.mnuExit.Click, &viewer.Unload}) {
        showContent("ab");
        machine.files.changeDirectory(u"C:\\ELSEWHERE"_s);
        shell::dispatch(panel, *exit);
        EXPECT_FALSE(viewer.Visible);
        EXPECT_EQ(machine.files.currentDirectory(), u"C:\\DATA"_s);
    }
}

TEST_F(TextViewer, exit_hides_it_even_where_the_data_directory_is_gone)
{
    showContent("ab");
    machine.files.remove(u"C:\\DATA"_s);
    click(viewer.mnuExit);
    EXPECT_FALSE(viewer.Visible);
    EXPECT_EQ(messages(), QStringList{u"Path not found"_s});
}

TEST_F(TextViewer, sizes_are_those_of_the_menu_and_bold)
{
    struct Case
    {
        size_t item;
        int points;
        const char *checked;
    };
    for (const Case &c : {Case{0, 8, "0"}, Case{1, 10, "1"}, Case{2, 12, "2"}, Case{3, 14, "3"},
                          Case{4, 18, "4"}, Case{5, 12, "2"}}) {
        viewer.txtViewer.FontBold = false;
        click(viewer.mnuFontSizesItem[c.item]);
        EXPECT_EQ(viewer.txtViewer.FontSize.value(), c.points);
        EXPECT_TRUE(viewer.txtViewer.FontBold);
        EXPECT_EQ(checkedSizes(), QLatin1String(c.checked));
    }
}

TEST_F(TextViewer, a_background_is_chosen)
{
    viewer.txtViewer.BackColor = 0xFFFFFF;
    viewer.txtViewer.ForeColor = 0x102030;
    machine.dialogs.chosenColours = {0x102031};
    click(viewer.mnuColours[0]);
    EXPECT_EQ(machine.dialogs.shownColours, std::vector<platform::Colour>{0xFFFFFF});
    EXPECT_EQ(viewer.txtViewer.BackColor.value(), 0x102031U);
    EXPECT_EQ(viewer.txtViewer.ForeColor.value(), 0x102030U);
}

TEST_F(TextViewer, a_foreground_is_chosen)
{
    viewer.txtViewer.BackColor = 0xFFFFFF;
    viewer.txtViewer.ForeColor = 0x102030;
    machine.dialogs.chosenColours = {0xFFFFFE};
    click(viewer.mnuColours[1]);
    EXPECT_EQ(machine.dialogs.shownColours, std::vector<platform::Colour>{0x102030});
    EXPECT_EQ(viewer.txtViewer.BackColor.value(), 0xFFFFFFU);
    EXPECT_EQ(viewer.txtViewer.ForeColor.value(), 0xFFFFFEU);
}

TEST_F(TextViewer, a_colour_in_which_the_text_would_vanish_is_refused)
{
    viewer.txtViewer.BackColor = 0xFFFFFF;
    viewer.txtViewer.ForeColor = 0x102030;
    machine.dialogs.chosenColours = {0x102030};
    click(viewer.mnuColours[0]);
    EXPECT_EQ(viewer.txtViewer.BackColor.value(), 0xFFFFFFU);
    machine.dialogs.chosenColours = {0xFFFFFF};
    click(viewer.mnuColours[1]);
    EXPECT_EQ(viewer.txtViewer.ForeColor.value(), 0x102030U);
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(TextViewer, a_cancelled_colour_changes_nothing)
{
    viewer.txtViewer.BackColor = 0xFFFFFF;
    viewer.txtViewer.ForeColor = 0x102030;
    click(viewer.mnuColours[0]);
    click(viewer.mnuColours[1]);
    EXPECT_EQ(viewer.txtViewer.BackColor.value(), 0xFFFFFFU);
    EXPECT_EQ(viewer.txtViewer.ForeColor.value(), 0x102030U);
}

TEST_F(TextViewer, reset_is_black_on_white)
{
    viewer.txtViewer.BackColor = 0x000000;
    viewer.txtViewer.ForeColor = 0xFFFFFF;
    click(viewer.mnuColours[2]);
    EXPECT_EQ(viewer.txtViewer.BackColor.value(), 0xFFFFFFU);
    EXPECT_EQ(viewer.txtViewer.ForeColor.value(), 0x000000U);
    EXPECT_THAT(machine.dialogs.shownColours, IsEmpty());
}

TEST_F(TextViewer, opens_in_the_current_directory_at_first)
{
    machine.files.addDirectory(u"C:\\ELSEWHERE"_s);
    machine.files.changeDirectory(u"C:\\ELSEWHERE"_s);
    click(viewer.mnuOpen);
    ASSERT_EQ(machine.dialogs.requests.size(), 1U);
    EXPECT_EQ(machine.dialogs.requests[0].initialDirectory, u"C:\\ELSEWHERE"_s);
}

TEST_F(TextViewer, opening_runs_the_activation_and_does_not_show_the_window)
{
    addFile(u"C:\\DATA\\b.txt"_s, "bbb\n");
    machine.dialogs.chosenFiles = {u"C:\\DATA\\b.txt"_s};
    viewer.Visible = false;
    click(viewer.mnuOpen);
    EXPECT_EQ(text(), u"bbb"_s);
    EXPECT_FALSE(viewer.Visible);
}

TEST_F(TextViewer, exit_goes_back_to_the_data_directorys_drive)
{
    machine.files.addDrive(u"d:"_s);
    showContent("ab");
    machine.files.changeDrive(u"D:"_s);
    click(viewer.mnuExit);
    EXPECT_EQ(machine.files.currentDirectory(), u"C:\\DATA"_s);
}

TEST_F(TextViewer, an_unknown_size_makes_it_bold_and_checks_none)
{
    showContent("ab");
    for (const int index : {-1, 6}) {
        viewer.txtViewer.FontBold = false;
        shell::dispatch(panel, [&] { viewer::mnuFontSizesItem_Click(panel, index); });
        EXPECT_TRUE(viewer.txtViewer.FontBold);
        EXPECT_EQ(viewer.txtViewer.FontSize.value(), 10);
        EXPECT_EQ(checkedSizes(), QString());
    }
}

TEST_F(TextViewer, an_unknown_colour_changes_nothing)
{
    viewer.txtViewer.BackColor = 0x112233;
    viewer.txtViewer.ForeColor = 0x445566;
    for (const int index : {-1, 3})
        shell::dispatch(panel, [&] { viewer::mnuColours_Click(panel, index); });
    EXPECT_EQ(viewer.txtViewer.BackColor.value(), 0x112233U);
    EXPECT_EQ(viewer.txtViewer.ForeColor.value(), 0x445566U);
    EXPECT_THAT(machine.dialogs.shownColours, IsEmpty());
}

TEST_F(TextViewer, colours_are_compared_with_what_they_were_when_the_dialog_was_asked_for)
{
    viewer.txtViewer.BackColor = 0xFFFFFF;
    viewer.txtViewer.ForeColor = 0x102030;
    machine.dialogs.whileChoosing = [this] { viewer.txtViewer.ForeColor = 0x000001; };
    machine.dialogs.chosenColours = {0x102030};
    click(viewer.mnuColours[0]);
    EXPECT_EQ(viewer.txtViewer.BackColor.value(), 0xFFFFFFU);
}

TEST_F(TextViewer, reset_does_not_ask_the_desktop)
{
    panel.screen.PageColour = 0x202122;
    panel.screen.TextColour = 0xEFEEED;
    showContent("ab");
    click(viewer.mnuColours[2]);
    EXPECT_EQ(viewer.txtViewer.BackColor.value(), 0xFFFFFFU);
    EXPECT_EQ(viewer.txtViewer.ForeColor.value(), 0x000000U);
}

TEST_F(TextViewer, a_colour_that_is_chosen_while_the_panel_ends_is_not_taken)
{
    viewer.txtViewer.BackColor = 0xFFFFFF;
    machine.dialogs.whileChoosing = [this] { shell::dispatch(panel, frm.Unload); };
    machine.dialogs.chosenColours = {0x000080};
    click(viewer.mnuColours[0]);
    EXPECT_EQ(viewer.txtViewer.BackColor.value(), 0xFFFFFFU);
    EXPECT_TRUE(machine.environment.ended);
}

TEST_F(TextViewer, finds_the_how_to_topics_in_a_directory_of_any_name)
{
    kinovra.ProgDir = u"C:\\100%1 %2"_s;
    addFile(u"C:\\100%1 %2\\howto01.txt"_s, "Read.");
    showFile(u"1"_s);
    EXPECT_EQ(text(), u"Read."_s);
}
