#include "view_fixture.h"
#include "views/find_bar.h"
#include "views/text_page.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTimer>

using namespace Qt::StringLiterals;
using support::waitUntil;

class TextViewerView : public support::ViewFixture
{
protected:
    void SetUp() override
    {
        show();
        frm.mnuPrompt.Checked = false;
    }

    void showContent(const QByteArray &content)
    {
        addFile(u"C:\\DATA\\a.txt"_s, content);
        kinovra.ViewerFile = u"C:\\DATA\\a.txt"_s;
        viewer.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&reader()));
        settle();
    }

    views::TextViewerWindow &reader() const { return *windows->textViewer(); }
    views::TextPage *page() const { return reader().findChild<views::TextPage *>(); }
    views::FindBar *findBar() const { return reader().findChild<views::FindBar *>(); }
    QLineEdit *wanted() const { return findBar()->findChild<QLineEdit *>(); }

    QString result() const
    {
        const auto labels = findBar()->findChildren<QLabel *>();
        return labels.back()->text();
    }

    QAction *action(const QString &menu, const QString &text) const
    {
        for (QAction *head : reader().menuBar()->actions()) {
            if (head->text() != menu)
                continue;
            Q_EMIT head->menu()->aboutToShow();
            for (QAction *candidate : head->menu()->actions()) {
                if (candidate->text() == text)
                    return candidate;
            }
        }
        return nullptr;
    }

    QPushButton *findButton(const QString &text) const
    {
        for (QPushButton *candidate : findBar()->findChildren<QPushButton *>()) {
            if (candidate->text() == text)
                return candidate;
        }
        return nullptr;
    }

    void openFind(const QString &text)
    {
        QTest::keyClick(page(), Qt::Key_F, Qt::ControlModifier);
        ASSERT_TRUE(findBar()->isVisible());
        wanted()->clear();
        QTest::keyClicks(wanted(), text);
    }

    int selectionStart() const { return page()->textCursor().selectionStart(); }
};

TEST_F(TextViewerView, is_made_when_it_is_first_shown)
{
    EXPECT_EQ(windows->textViewer(), nullptr);
    showContent("one\ntwo\n");
    EXPECT_TRUE(reader().isVisible());
    EXPECT_EQ(page()->toPlainText(), u"one\ntwo"_s);
    EXPECT_EQ(reader().windowTitle(), u"Text Viewer: C:\\DATA\\a.txt"_s);
    EXPECT_TRUE(page()->hasFocus());
    EXPECT_TRUE(page()->isReadOnly());
    EXPECT_EQ(page()->lineWrapMode(), QPlainTextEdit::NoWrap);
}

TEST_F(TextViewerView, has_its_size_and_its_text_fills_it)
{
    showContent("one\n");
    EXPECT_EQ(viewer.Width.value(), 10500);
    EXPECT_EQ(viewer.Height.value(), 7800);
    EXPECT_EQ(page()->mapTo(&reader(), QPoint()), QPoint(0, reader().menuBar()->height()));
    EXPECT_EQ(page()->size(), QSize(690, 470));
    EXPECT_EQ(reader().centralWidget()->size(), QSize(690, 470));
    reader().resize(900, 700);
    settle();
    EXPECT_EQ(viewer.Width.value(), 910 * 15);
    EXPECT_EQ(page()->size(), reader().centralWidget()->size());
}

TEST_F(TextViewerView, keeps_its_size_while_it_is_hidden)
{
    showContent("one\n");
    reader().resize(900, 700);
    settle();
    click(viewer.mnuExit);
    EXPECT_FALSE(reader().isVisible());
    showContent("two\n");
    EXPECT_EQ(reader().size(), QSize(900, 700));
}

TEST_F(TextViewerView, has_a_fixed_pitch_of_the_chosen_size)
{
#ifdef _WIN32
    // Where the fonts are but files of a directory, no other takes its place.
    if (!QFontDatabase::hasFamily(u"Courier New"_s))
        GTEST_SKIP() << "this machine has no Courier New";
#endif
    showContent("iiii\nWWWW\n");
    EXPECT_EQ(page()->font().pointSize(), 10);
    const QFontMetricsF metrics(page()->font());
    EXPECT_EQ(metrics.horizontalAdvance(u"iiii"_s), metrics.horizontalAdvance(u"WWWW"_s));
    EXPECT_EQ(page()->tabStopDistance(), 8 * metrics.horizontalAdvance(u' '));
    action(u"&Font"_s, u"&very large"_s)->trigger();
    EXPECT_EQ(page()->font().pointSize(), 18);
    EXPECT_TRUE(page()->font().bold());
    EXPECT_TRUE(action(u"&Font"_s, u"&very large"_s)->isChecked());
    EXPECT_FALSE(action(u"&Font"_s, u"&small"_s)->isChecked());
    const QFontMetricsF bold(page()->font());
    EXPECT_EQ(bold.horizontalAdvance(u"iiii"_s), bold.horizontalAdvance(u"WWWW"_s));
    EXPECT_EQ(page()->tabStopDistance(), 8 * bold.horizontalAdvance(u' '));
}

TEST_F(TextViewerView, has_exactly_its_menus)
{
    showContent("one\n");
    QStringList texts;
    for (QAction *head : reader().menuBar()->actions()) {
        texts.append(head->text());
        Q_EMIT head->menu()->aboutToShow();
        for (QAction *item : head->menu()->actions())
            texts.append(item->text());
    }
    EXPECT_EQ(texts, (QStringList{u"&File"_s, u"&Open"_s, u"E&xit"_s, u"&Colours"_s, u"&Background"_s,
                                  u"&Foreground"_s, u"&Reset"_s, u"&Font"_s, u"&tiny"_s, u"&small"_s,
                                  u"&normal"_s, u"&large"_s, u"&very large"_s, u"default"_s}));
}

TEST_F(TextViewerView, shows_its_colours)
{
    showContent("one\n");
    machine.dialogs.chosenColours = {0x000080, 0xFFFF00};
    action(u"&Colours"_s, u"&Background"_s)->trigger();
    action(u"&Colours"_s, u"&Foreground"_s)->trigger();
    EXPECT_EQ(page()->palette().color(QPalette::Base), QColor(0, 0, 0x80));
    EXPECT_EQ(page()->palette().color(QPalette::Text), QColor(0xFF, 0xFF, 0));
    action(u"&Colours"_s, u"&Reset"_s)->trigger();
    EXPECT_EQ(page()->palette().color(QPalette::Base), QColor(Qt::white));
    EXPECT_EQ(page()->palette().color(QPalette::Text), QColor(Qt::black));
}

TEST_F(TextViewerView, begins_in_the_desktops_colours)
{
    const QPalette before = QApplication::palette();
    windows.reset();
    QPalette dark = before;
    dark.setColor(QPalette::Base, QColor(0x20, 0x21, 0x22));
    dark.setColor(QPalette::Text, QColor(0xEE, 0xED, 0xEC));
    QApplication::setPalette(dark);
    show();
    showContent("one\n");
    EXPECT_EQ(viewer.txtViewer.BackColor.value(), 0x202122U);
    EXPECT_EQ(viewer.txtViewer.ForeColor.value(), 0xEEEDECU);
    EXPECT_EQ(page()->palette().color(QPalette::Base), QColor(0x20, 0x21, 0x22));
    windows.reset();
    QApplication::setPalette(before);
}

TEST_F(TextViewerView, esc_and_the_close_box_exit)
{
    showContent("one\n");
    QTest::keyClick(page(), Qt::Key_Escape);
    EXPECT_FALSE(viewer.Visible);
    EXPECT_FALSE(reader().isVisible());
    showContent("one\n");
    reader().close();
    EXPECT_FALSE(viewer.Visible);
    EXPECT_FALSE(reader().isVisible());
}

TEST_F(TextViewerView, esc_closes_the_find_bar_first)
{
    showContent("one\n");
    openFind(u"o"_s);
    QTest::keyClick(wanted(), Qt::Key_Escape);
    EXPECT_FALSE(findBar()->isVisible());
    EXPECT_TRUE(page()->hasFocus());
    EXPECT_TRUE(viewer.Visible);
    QTest::keyClick(page(), Qt::Key_Escape);
    EXPECT_FALSE(viewer.Visible);
}

TEST_F(TextViewerView, copies_what_is_selected)
{
    showContent("one\ntwo\n");
    QTest::keyClick(page(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(page(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), u"one\ntwo"_s);
    QTest::keyClick(page(), Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClick(page(), Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(page(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), u"o"_s);
}

TEST_F(TextViewerView, cannot_be_changed)
{
    showContent("one\n");
    QTest::keyClicks(page(), u"xyz"_s);
    QTest::keyClick(page(), Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(page(), Qt::Key_Delete);
    EXPECT_EQ(page()->toPlainText(), u"one"_s);
}

TEST_F(TextViewerView, finds_while_the_user_types)
{
    showContent("alpha\nBeta beta\nBETTER\n");
    openFind(u"bet"_s);
    EXPECT_EQ(selectionStart(), 6);
    EXPECT_EQ(page()->selectedText(), u"Bet"_s);
    QTest::keyClicks(wanted(), u"t"_s);
    EXPECT_EQ(selectionStart(), 16);
    EXPECT_EQ(page()->selectedText(), u"BETT"_s);
    EXPECT_EQ(result(), QString());
    QTest::keyClicks(wanted(), u"x"_s);
    EXPECT_EQ(result(), u"Not found"_s);
    QTest::keyClick(wanted(), Qt::Key_Backspace);
    EXPECT_EQ(result(), QString());
}

TEST_F(TextViewerView, goes_on_to_the_next_place_and_around)
{
    showContent("beta Beta\nBETA\n");
    openFind(u"beta"_s);
    EXPECT_EQ(selectionStart(), 0);
    QTest::keyClick(wanted(), Qt::Key_Return);
    EXPECT_EQ(selectionStart(), 5);
    QTest::keyClick(wanted(), Qt::Key_F3);
    EXPECT_EQ(selectionStart(), 10);
    findButton(u"Next"_s)->click();
    EXPECT_EQ(selectionStart(), 0);
    QTest::keyClick(wanted(), Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(selectionStart(), 10);
    findButton(u"Previous"_s)->click();
    EXPECT_EQ(selectionStart(), 5);
    findButton(u"Close"_s)->click();
    EXPECT_FALSE(findBar()->isVisible());
    QTest::keyClick(page(), Qt::Key_F3);
    EXPECT_EQ(selectionStart(), 10);
    EXPECT_FALSE(findBar()->isVisible());
}

TEST_F(TextViewerView, f3_asks_what_to_find_at_first)
{
    showContent("one\n");
    QTest::keyClick(page(), Qt::Key_F3);
    EXPECT_TRUE(findBar()->isVisible());
    EXPECT_TRUE(wanted()->hasFocus());
}

TEST_F(TextViewerView, proposes_what_is_selected)
{
    showContent("one two\n");
    openFind(u"two"_s);
    findButton(u"Close"_s)->click();
    wanted()->clear();
    QTest::keyClick(page(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(wanted()->text(), u"two"_s);
    EXPECT_EQ(wanted()->selectedText(), u"two"_s);
}

TEST_F(TextViewerView, an_unchanged_file_keeps_its_place_and_selection)
{
    showContent(QByteArray("line\n").repeated(500));
    QTextCursor cursor = page()->textCursor();
    cursor.setPosition(1000);
    cursor.setPosition(1010, QTextCursor::KeepAnchor);
    page()->setTextCursor(cursor);
    const int scrolled = page()->verticalScrollBar()->value();
    EXPECT_GT(scrolled, 0);
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    machine.files.tested.clear();
    reader().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&reader()));
    settle();
    EXPECT_EQ(page()->verticalScrollBar()->value(), scrolled);
    EXPECT_EQ(page()->selectedText(), u"line\nline\n"_s);
}

TEST_F(TextViewerView, shows_a_changed_file_when_the_user_comes_back)
{
    showContent("one\n");
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    addFile(u"C:\\DATA\\a.txt"_s, "two\n");
    settle();
    EXPECT_EQ(page()->toPlainText(), u"one"_s);
    reader().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&reader()));
    settle();
    EXPECT_EQ(page()->toPlainText(), u"two"_s);
}

TEST_F(TextViewerView, another_topic_takes_the_place_of_the_one_that_is_shown)
{
    showContent("one\n");
    addFile(u"C:\\KINOVRA\\Work.txt"_s, "work\n");
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    click(frm.mnuHelpItem[18]);
    settle();
    EXPECT_EQ(page()->toPlainText(), u"work"_s);
    EXPECT_EQ(reader().windowTitle(), u"Text Viewer: C:\\KINOVRA\\Work.txt"_s);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&reader()));
}

TEST_F(TextViewerView, a_missing_file_is_told_of_once_and_hides_it)
{
    showContent("one\n");
    machine.files.remove(u"C:\\DATA\\a.txt"_s);
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    reader().activateWindow();
    settle();
    EXPECT_EQ(messages(), QStringList{u"Error finding file."_s});
    EXPECT_FALSE(reader().isVisible());
    settle();
    EXPECT_EQ(messages().size(), 1);
}

TEST_F(TextViewerView, tells_when_it_is_minimized)
{
    showContent("one\n");
    reader().showMinimized();
    settle();
    EXPECT_TRUE(viewer.Minimized);
    reader().showNormal();
    settle();
    EXPECT_FALSE(viewer.Minimized);
}

TEST_F(TextViewerView, sixteen_mebibytes_are_there_at_once_and_whole_soon)
{
    QByteArray content =
        QByteArray("2345678 101 12.345 67.890 and so on, eighty characters to the line, 60 to a page\n")
            .repeated(16 * 1024 * 1024 / 81);
    content.append("the end\n");
    addFile(u"C:\\DATA\\a.txt"_s, content);
    kinovra.ViewerFile = u"C:\\DATA\\a.txt"_s;
    QElapsedTimer time;
    time.start();
    viewer.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&reader()));
    ASSERT_TRUE(waitUntil([this] { return page()->blockCount() > 100; }));
    EXPECT_LT(time.elapsed(), 10'000);
    RecordProperty("milliseconds", static_cast<int>(time.elapsed()));
    // What needs the whole text has it at once.
    openFind(u"the end"_s);
    EXPECT_EQ(page()->selectedText(), u"the end"_s);
    EXPECT_EQ(page()->document()->characterCount(), content.size());
    EXPECT_EQ(page()->toPlainText(), QString::fromLatin1(content.chopped(1)));
}

TEST_F(TextViewerView, a_long_text_arrives_whole_by_itself)
{
    const QByteArray content = QByteArray("12345678\n").repeated(200'000);
    showContent(content);
    ASSERT_TRUE(waitUntil([&] { return page()->document()->characterCount() == content.size(); }));
    EXPECT_EQ(page()->toPlainText(), QString::fromLatin1(content.chopped(1)));
    EXPECT_EQ(page()->textCursor().position(), 0);
    // Another text while one is still arriving.
    showContent(content);
    showContent("one\n");
    settle();
    EXPECT_EQ(page()->toPlainText(), u"one"_s);
}

TEST_F(TextViewerView, one_line_of_ten_megabytes_does_not_freeze_it)
{
    QByteArray content(10'000'000, 'x');
    content.replace(8190, 4, "walk");
    QElapsedTimer time;
    time.start();
    showContent(content);
    ASSERT_TRUE(waitUntil([this] { return page()->document()->characterCount() > 10'000'000; }));
    EXPECT_LT(time.elapsed(), 10'000);
    // Found and copied as it is in the file, across the place where the line is broken.
    openFind(u"walk"_s);
    EXPECT_EQ(page()->selectedText(), u"walk"_s);
    QTest::keyClick(page(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(page(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QString::fromLatin1(content.chopped(1)));
}

TEST_F(TextViewerView, sixteen_mebibytes_of_short_lines_do_not_freeze_it)
{
    const QByteArray content = QByteArray("1.234\n").repeated(16 * 1024 * 1024 / 6) + "x\n";
    addFile(u"C:\\DATA\\a.txt"_s, content);
    kinovra.ViewerFile = u"C:\\DATA\\a.txt"_s;
    QElapsedTimer time;
    time.start();
    viewer.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&reader()));
    settle();
    EXPECT_GT(page()->blockCount(), 1);
    QTest::keyClick(page(), Qt::Key_End, Qt::ControlModifier);
    EXPECT_LT(time.elapsed(), 10'000);
    EXPECT_EQ(page()->document()->characterCount(), content.size());
    EXPECT_EQ(page()->textCursor().position(), content.size() - 1);
    EXPECT_EQ(page()->document()->lineCount(), 16 * 1024 * 1024 / 6 + 1);
    EXPECT_NEAR(page()->verticalScrollBar()->value(), page()->verticalScrollBar()->maximum(), 1);
}

TEST_F(TextViewerView, scrolls_by_lines_however_they_are_kept)
{
    showContent(QByteArray("line\n").repeated(5000));
    ASSERT_TRUE(waitUntil([this] { return page()->document()->characterCount() == 25'000; }));
    EXPECT_LT(page()->blockCount(), 100);
    EXPECT_EQ(page()->document()->lineCount(), 5000);
    action(u"&Font"_s, u"&large"_s)->trigger();
    EXPECT_EQ(page()->document()->lineCount(), 5000);
    action(u"&Font"_s, u"&small"_s)->trigger();
    const int visible = page()->verticalScrollBar()->pageStep();
    EXPECT_NEAR(page()->verticalScrollBar()->maximum(), 5000 - visible, 2);
    QTest::keyClick(page(), Qt::Key_Down);
    EXPECT_EQ(page()->textCursor().position(), 5);
    QTest::keyClick(page(), Qt::Key_PageDown);
    EXPECT_GT(page()->textCursor().position(), 50);
    QTest::keyClick(page(), Qt::Key_Home);
    QTest::keyClick(page(), Qt::Key_End, Qt::ShiftModifier);
    EXPECT_EQ(page()->selectedText(), u"line"_s);
}

TEST_F(TextViewerView, a_third_click_selects_a_line)
{
    showContent("one\ntwo words\nthree\n");
    QTextCursor cursor = page()->textCursor();
    cursor.setPosition(6);
    const QPoint place = page()->cursorRect(cursor).center();
    doubleClickAt(page()->viewport(), place);
    EXPECT_EQ(page()->selectedText(), u"two"_s);
    QTest::mouseClick(page()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_EQ(page()->selectedText(), u"two words"_s);
}

TEST_F(TextViewerView, a_cursor_at_the_end_stays_while_the_text_arrives)
{
    const QByteArray content = QByteArray("12345678\n").repeated(200'000);
    addFile(u"C:\\DATA\\a.txt"_s, content);
    kinovra.ViewerFile = u"C:\\DATA\\a.txt"_s;
    viewer.show();
    settle();
    ASSERT_LT(page()->document()->characterCount(), content.size());
    QTextCursor cursor = page()->textCursor();
    cursor.setPosition(10);
    cursor.movePosition(QTextCursor::End, QTextCursor::KeepAnchor);
    const int end = cursor.position();
    page()->setTextCursor(cursor);
    ASSERT_TRUE(waitUntil([&] { return page()->document()->characterCount() == content.size(); }));
    EXPECT_EQ(page()->textCursor().anchor(), 10);
    EXPECT_EQ(page()->textCursor().position(), end);
}

TEST_F(TextViewerView, what_means_the_whole_text_has_it_while_it_arrives)
{
    const QByteArray content = QByteArray("12345678\n").repeated(200'000);
    const QString text = QString::fromLatin1(content.chopped(1));
    const auto showAnew = [&] {
        viewer.txtViewer.Text = QString();
        showContent(content);
        ASSERT_LT(page()->document()->characterCount(), content.size());
    };
    showAnew();
    QTest::keyClick(page(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(page()->selectedText(), text);
    showAnew();
    QTest::keyClick(page(), Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(page()->textCursor().position(), text.size());
    showAnew();
    QTest::keyClick(page(), Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(page()->selectedText(), text);
    showAnew();
    QTimer::singleShot(0, [] {
        if (QWidget *menu = QApplication::activePopupWidget())
            menu->close();
    });
    QContextMenuEvent menu(QContextMenuEvent::Keyboard, QPoint(5, 5), QPoint(5, 5));
    QCoreApplication::sendEvent(page()->viewport(), &menu);
    page()->selectAll();
    EXPECT_EQ(page()->selectedText(), text);
}

TEST_F(TextViewerView, backwards_finds_what_lies_in_front)
{
    showContent("aaaaa\n");
    openFind(u"aa"_s);
    EXPECT_EQ(selectionStart(), 0);
    QTest::keyClick(wanted(), Qt::Key_Return);
    EXPECT_EQ(selectionStart(), 2);
    QTest::keyClick(wanted(), Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(selectionStart(), 0);
    QTest::keyClick(wanted(), Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(selectionStart(), 3);
}

TEST_F(TextViewerView, says_that_nothing_is_found_where_the_bar_was_closed)
{
    showContent("one two\n");
    openFind(u"twx"_s);
    findButton(u"Close"_s)->click();
    QTest::keyClick(page(), Qt::Key_F3);
    EXPECT_TRUE(findBar()->isVisible());
    EXPECT_EQ(result(), u"Not found"_s);
}

TEST_F(TextViewerView, begins_each_text_without_the_find_bar_of_the_last)
{
    showContent("one\n");
    openFind(u"x"_s);
    EXPECT_EQ(result(), u"Not found"_s);
    reader().close();
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    showContent("x-ray\n");
    EXPECT_FALSE(findBar()->isVisible());
    EXPECT_EQ(QApplication::focusWidget(), page());
    EXPECT_EQ(result(), QString());
}

TEST_F(TextViewerView, proposes_no_lines_to_find)
{
    showContent("one\ntwo\n");
    QTest::keyClick(page(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(page(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(wanted()->text(), QString());
}

TEST_F(TextViewerView, the_buttons_of_the_find_bar_work_by_keyboard)
{
    showContent("one one one\n");
    openFind(u"one"_s);
    QTest::keyClick(wanted(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), findButton(u"Next"_s));
    QTest::keyClick(findButton(u"Next"_s), Qt::Key_Return);
    EXPECT_EQ(selectionStart(), 4);
    QTest::keyClick(findButton(u"Next"_s), Qt::Key_Tab);
    QTest::keyClick(findButton(u"Previous"_s), Qt::Key_Return);
    EXPECT_EQ(selectionStart(), 0);
    QTest::keyClick(findButton(u"Close"_s), Qt::Key_Return);
    EXPECT_FALSE(findBar()->isVisible());
    QTest::keyClick(page(), Qt::Key_F, Qt::ControlModifier);
    page()->setFocus();
    QTest::keyClick(page(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), wanted()) << "Tab leads from the page to the bar";
}

TEST_F(TextViewerView, hides_nothing_in_its_title)
{
    const QString name = u"C:\\DATA\\a\u202Eb.txt"_s;
    addFile(name, "one\n");
    kinovra.ViewerFile = name;
    viewer.show();
    settle();
    EXPECT_EQ(reader().windowTitle(), u"Text Viewer: C:\\DATA\\a\uFFFDb.txt"_s);
}

TEST_F(TextViewerView, is_one_window)
{
    showContent("one\n");
    const auto *first = windows->textViewer();
    click(viewer.mnuExit);
    showContent("two\n");
    EXPECT_EQ(windows->textViewer(), first);
}

TEST_F(TextViewerView, a_minimized_one_that_is_shown_again_is_there)
{
    showContent("one\n");
    reader().showMinimized();
    settle();
    showContent("two\n");
    EXPECT_FALSE(reader().isMinimized());
    EXPECT_EQ(page()->toPlainText(), u"two"_s);
}

TEST_F(TextViewerView, choosing_the_checked_size_again_makes_it_bold_and_leaves_the_mark)
{
    showContent("one\n");
    EXPECT_FALSE(page()->font().bold());
    QAction *small = action(u"&Font"_s, u"&small"_s);
    small->trigger();
    EXPECT_TRUE(page()->font().bold());
    EXPECT_TRUE(small->isChecked());
}

TEST_F(TextViewerView, follows_its_maximized_size)
{
    showContent("one\n");
    reader().showMaximized();
    settle();
    EXPECT_EQ(page()->size(), reader().centralWidget()->size());
    reader().showNormal();
    settle();
    EXPECT_EQ(page()->size(), reader().centralWidget()->size());
}
