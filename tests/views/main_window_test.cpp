#include "printing.h"
#include "view_fixture.h"
#include "views/elided_label.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QElapsedTimer>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMimeData>
#include <QSet>
#include <QStatusBar>
#include <QTest>
#include <QToolTip>
#include <QUrl>

using namespace Qt::StringLiterals;
using support::waitUntil;

class MainWindowView : public support::ViewFixture
{
protected:
    void SetUp() override
    {
        addData({"walk1.dg", "one.cfb", "two.cfb"});
        show();
    }

    QLabel *labelThatReads(const QString &text) const
    {
        const auto labels = window().findChildren<QLabel *>();
        for (QLabel *label : labels) {
            if (label->text() == text)
                return label;
        }
        return nullptr;
    }

    // What stands beside a fixed caption.
    QLabel *value(const QString &caption) const
    {
        return qobject_cast<QLabel *>(labelThatReads(caption)->buddy());
    }

    QLineEdit *commandLine() const
    {
        return qobject_cast<QLineEdit *>(labelThatReads(u"Command line:"_s)->buddy());
    }

    // Whether the window takes what is dropped.
    bool drop(const QList<QUrl> &addresses)
    {
        QMimeData data;
        data.setUrls(addresses);
        // With Shift a move is asked for.
        QDragEnterEvent entering(QPoint(300, 200), Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton,
                                 Qt::ShiftModifier);
        entering.ignore();
        QApplication::sendEvent(&window(), &entering);
        if (!entering.isAccepted())
            return false;
        EXPECT_EQ(entering.dropAction(), Qt::CopyAction);
        QDropEvent dropping(QPoint(300, 200), Qt::MoveAction | Qt::CopyAction, &data, Qt::LeftButton,
                            Qt::ShiftModifier);
        QApplication::sendEvent(&window(), &dropping);
        EXPECT_EQ(dropping.dropAction(), Qt::CopyAction) << "the file stays where it is";
        return dropping.isAccepted();
    }

    static QString toolTipAt(QWidget *widget, const QPoint &position)
    {
        QToolTip::hideText();
        QHelpEvent event(QEvent::ToolTip, position, widget->mapToGlobal(position));
        QApplication::sendEvent(widget, &event);
        return QToolTip::text();
    }

    void pressAndRelease(Qt::Key key, Qt::KeyboardModifiers modifiers)
    {
        QTest::keyPress(window().windowHandle(), key, modifiers);
        QTest::keyRelease(window().windowHandle(), key, modifiers);
        settle();
    }
};

namespace {

/// Notes which windows appear.
class WindowWatch : public QObject
{
public:
    WindowWatch() { qApp->installEventFilter(this); }

    QSet<QObject *> appeared;

private:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show && watched->isWidgetType()
            && static_cast<QWidget *>(watched)->isWindow())
            appeared.insert(watched);
        return false;
    }
};

} // namespace

using StartView = support::ViewFixture;

TEST_F(StartView, makes_the_main_window_appear_and_no_control_beside_it)
{
    WindowWatch watch;
    windows = std::make_unique<views::PanelWindows>(panel, paths);
    EXPECT_TRUE(watch.appeared.isEmpty());
    windows->load();
    settle();
    EXPECT_EQ(watch.appeared, QSet<QObject *>{&window()});
}

TEST_F(MainWindowView, has_its_size)
{
    EXPECT_EQ(window().width(), 673);
    EXPECT_GE(window().height(), 487);
    EXPECT_EQ(window().minimumWidth(), 673);
    EXPECT_EQ(window().maximumWidth(), 673);
    EXPECT_EQ(window().windowTitle(), u"Kinovra Motion Analysis System"_s);
    EXPECT_EQ(window().y(), 20);
    EXPECT_EQ(window().x(), (frm.Left + 7) / 15);
    EXPECT_EQ(frm.Left.value(), (panel.screen.Width - 10100) / 2);
}

TEST_F(MainWindowView, snaps_back_to_its_width_and_its_least_height)
{
    window().resize(900, 300);
    settle();
    EXPECT_EQ(window().size(), QSize(673, 487));
    EXPECT_EQ(frm.Width.value(), 10100);
    EXPECT_EQ(frm.dirSelect.Height.value(), frm.Height - 3800);
}

TEST_F(MainWindowView, gives_the_directory_list_what_height_is_left)
{
    window().resize(673, 700);
    settle();
    EXPECT_EQ(frm.Height.value(), 10500);
    EXPECT_EQ(list(u"Directory"_s)->height(), (10500 - 3800 + 7) / 15);
    window().resize(673, 487);
    settle();
    EXPECT_EQ(frm.dirSelect.Height.value(), frm.Height - 3800);
    EXPECT_EQ(window().height(), 487);
}

TEST_F(MainWindowView, shows_the_state)
{
    click(frm.filDatafiles, u"walk1.dg"_s);
    EXPECT_EQ(value(u"Current trial:"_s)->text(), u"WALK1.dg"_s);
    EXPECT_EQ(value(u"Title:"_s)->text(), u"x "_s);
    EXPECT_EQ(value(u"Current path:"_s)->text(), u"c:\\data"_s);
    EXPECT_EQ(value(u"GRA(ph) file:"_s)->text(), u"RUN.GRA"_s);
    EXPECT_EQ(value(u"Listing to:"_s)->text(), u"DISK FILE"_s);
    EXPECT_EQ(value(u"Graphics to:"_s)->text(), u"SCREEN"_s);
    frm.lblCommand.Caption = u"c:\\kinovra\\kinemati.exe walk1"_s;
    EXPECT_EQ(commandLine()->text(), u"c:\\kinovra\\kinemati.exe walk1"_s);
    frm.lblCommand.Visible = false;
    EXPECT_FALSE(commandLine()->isVisible());
}

TEST_F(MainWindowView, lets_the_command_line_be_copied)
{
    frm.lblCommand.Caption = u"c:\\kinovra\\kinemati.exe /t walk1"_s;
    QTest::mouseDClick(commandLine(), Qt::LeftButton, {}, QPoint(2, commandLine()->height() / 2));
    QTest::keyClick(commandLine(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(commandLine(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), u"c:\\kinovra\\kinemati.exe /t walk1"_s);
    QTest::keyClicks(commandLine(), u"x"_s);
    QTest::keyClick(commandLine(), Qt::Key_Delete);
    EXPECT_EQ(commandLine()->text(), u"c:\\kinovra\\kinemati.exe /t walk1"_s) << "it is not changed";
}

TEST_F(MainWindowView, shows_the_end_of_a_long_command_line_as_well)
{
    const QString program = u"c:\\"_s + QString(300, u'w');
    const auto picture = [this](const QString &command) {
        frm.lblCommand.Caption = command;
        return commandLine()->grab().toImage();
    };
    const QImage first = picture(program + u" WALK1"_s);
    EXPECT_NE(picture(program + u" WALK2"_s), first);
    EXPECT_NE(picture(u"d"_s + program.mid(1) + u" WALK1"_s), first) << "and its beginning";
    EXPECT_EQ(picture(program + u" WALK1"_s), first);

    commandLine()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(commandLine(), Qt::Key_End);
    EXPECT_NE(commandLine()->cursorPosition(), 0);
    button(u"Exit"_s)->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(commandLine()->cursorPosition(), 0);
}

TEST_F(MainWindowView, shows_what_is_read_and_chosen_in_a_long_command_line)
{
    frm.lblCommand.Caption = u"c:\\"_s + QString(300, u'w') + u" WALK1"_s;
    commandLine()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(commandLine(), Qt::Key_Home);
    const QImage beginning = commandLine()->grab().toImage();
    QTest::keyClick(commandLine(), Qt::Key_End);
    EXPECT_NE(commandLine()->grab().toImage(), beginning);

    QTest::keyClick(commandLine(), Qt::Key_A, Qt::ControlModifier);
    QWidget other;
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    ASSERT_FALSE(commandLine()->hasFocus());
    EXPECT_TRUE(commandLine()->hasSelectedText());
    const QImage chosen = commandLine()->grab().toImage();
    commandLine()->deselect();
    EXPECT_NE(commandLine()->grab().toImage(), chosen);
}

TEST_F(MainWindowView, passes_by_an_empty_command_line)
{
    frm.lblCommand.Caption = QString();
    EXPECT_EQ(commandLine()->focusPolicy(), Qt::NoFocus);
    frm.lblCommand.Caption = u"x"_s;
    EXPECT_EQ(commandLine()->focusPolicy(), Qt::StrongFocus);
}

TEST_F(MainWindowView, measures_no_long_title)
{
    frm.lblTitle.Caption = QString(60'000, QChar(0x0301));
    const auto labels = window().findChildren<views::ElidedLabel *>();
    EXPECT_GE(labels.size(), 6);
    for (const views::ElidedLabel *label : labels)
        EXPECT_EQ(label->sizeHint(), QSize(0, label->fontMetrics().height())) << label->text().size();
}

TEST_F(MainWindowView, shows_a_long_command_line_from_its_beginning)
{
    frm.lblCommand.Caption = u"short"_s;
    EXPECT_EQ(toolTipAt(commandLine(), QPoint(5, 5)), QString());
    frm.lblCommand.Caption = u"c:\\kinovra\\kinemati.exe "_s + QString(300, u'w');
    EXPECT_EQ(commandLine()->cursorPosition(), 0);
    EXPECT_TRUE(toolTipAt(commandLine(), QPoint(5, 5)).contains(QString(300, u'w')));
    frm.lblCommand.Caption = u"c:\\<b>\\kinemati.exe "_s + QString(300, u'w');
    EXPECT_TRUE(toolTipAt(commandLine(), QPoint(5, 5)).contains(u"c:\\&lt;b&gt;\\"_s)) << "no mark-up";
}

TEST_F(MainWindowView, chooses_a_file_that_is_dropped)
{
    addFile(u"Z:\\Trials\\jump1.dg"_s, "A jump\n");
    machine.files.addDrive(u"z:"_s);
    EXPECT_TRUE(drop({QUrl(u"https://example.org/a.dg"_s), QUrl::fromLocalFile(u"/Trials/jump1.dg"_s)}));
    EXPECT_EQ(kinovra.CurrentTrial, QString()) << "not before the drop is over";
    settle();
    EXPECT_EQ(kinovra.CurrentTrial, u"jump1"_s);
    EXPECT_EQ(kinovra.DataDir, u"Z:\\Trials"_s);
    EXPECT_EQ(value(u"Title:"_s)->text(), u"A jump "_s);
}

TEST_F(MainWindowView, takes_nothing_but_files_of_this_computer)
{
    EXPECT_FALSE(drop({}));
    EXPECT_FALSE(drop({QUrl(u"https://example.org/a.dg"_s)}));
    EXPECT_FALSE(commandLine()->acceptDrops());
}

TEST_F(MainWindowView, reads_again_what_has_changed_once_the_user_is_back)
{
    click(frm.filDatafiles, u"walk1.dg"_s);
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    addData({"jump1.dg", "jump1.km"});
    QElapsedTimer away;
    away.start();
    window().activateWindow();
    EXPECT_TRUE(waitUntil([this] { return frm.filDatafiles.ListCount() == 2; }));
    EXPECT_GE(away.elapsed(), 250) << "a click that is on its way aims at the old picture";
    EXPECT_EQ(frm.filBinaries.ListCount(), 1);
    EXPECT_EQ(frm.filDatafiles.FileName(), u"walk1.dg"_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"walk1"_s);
}

TEST_F(MainWindowView, reads_once_what_has_changed_each_time_the_user_is_back)
{
    int returns = 0;
    frm.Returned = [&returns] { ++returns; };
    QTest::qWait(400);
    EXPECT_EQ(returns, 0) << "nobody has been away";
    QWidget other;
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    window().activateWindow();
    EXPECT_TRUE(waitUntil([&returns] { return returns > 0; }));
    QTest::qWait(400);
    EXPECT_EQ(returns, 1);
}

TEST_F(MainWindowView, shows_text_as_text)
{
    frm.lblTitle.Caption = u"<b>bold</b> & \u001B[31m"_s;
    EXPECT_EQ(value(u"Title:"_s)->text(), u"<b>bold</b> & \u241B[31m"_s);
    EXPECT_EQ(value(u"Title:"_s)->textFormat(), Qt::PlainText);
}

TEST_F(MainWindowView, is_not_widened_by_long_text)
{
    frm.lblTitle.Caption = QString(65536, u'W');
    frm.lblPath.Caption = QString(30000, u'W');
    frm.StatusBar1.Panel1 = QString(5000, u'W');
    settle();
    EXPECT_EQ(window().width(), 673);
    EXPECT_LE(value(u"Title:"_s)->geometry().right(), window().width());
}

TEST_F(MainWindowView, speaks_in_its_status_bar_plainly)
{
    frm.StatusBar1.Panel1 = u"e\u202Egd.exe\n<b>x</b>"_s;
    EXPECT_NE(labelThatReads(u"e\uFFFDgd.exe\u240A<b>x</b>"_s), nullptr);
}

TEST_F(MainWindowView, speaks_in_its_status_bar)
{
    frm.StatusBar1.Panel1 = u"Kinemati.out is ready."_s;
    const auto labels = window().statusBar()->findChildren<QLabel *>();
    QStringList texts;
    for (const QLabel *label : labels)
        texts.append(label->text());
    EXPECT_EQ(texts, (QStringList{u"Kinemati.out is ready."_s, u"Version 1.00 (build 001)"_s}));
}

TEST_F(MainWindowView, tells_assistive_technology_what_everything_is)
{
    for (const char *name : {"Data files", "Models (.CFB)", "Binary files", "Graph Types (.GRA)",
                             "Graphs (.PLT)", "Output files", "Directory"}) {
        ASSERT_NE(list(QLatin1String(name)), nullptr) << name;
    }
    for (const char *name :
         {"Edit .GRA File", "Select Type of  Graph", "Create Graph(s)", "Force Plate Analysis", "Guide",
          "Skelvo", "Ondex2", ".CFB Editor", "Refresh File Lists", "Exit", "Manual"}) {
        ASSERT_NE(button(QLatin1String(name)), nullptr) << name;
    }
    QAccessibleInterface *datafiles = QAccessible::queryAccessibleInterface(list(u"Data files"_s));
    EXPECT_EQ(datafiles->text(QAccessible::Name), u"Data files"_s);
    EXPECT_EQ(datafiles->role(), QAccessible::List);
    EXPECT_EQ(datafiles->childCount(), 1);
    EXPECT_EQ(datafiles->child(0)->text(QAccessible::Name), u"walk1.dg"_s);
    click(frm.filDatafiles, u"walk1.dg"_s);
    QAccessibleInterface *trial = QAccessible::queryAccessibleInterface(value(u"Current trial:"_s));
    EXPECT_EQ(trial->text(QAccessible::Name), u"WALK1.dg"_s);
    const auto relations = trial->relations(QAccessible::Label);
    ASSERT_EQ(relations.size(), 1);
    EXPECT_EQ(relations[0].first->text(QAccessible::Name), u"Current trial:"_s);
}

TEST_F(MainWindowView, says_what_each_value_and_each_list_is)
{
    for (const char *caption : {"Current path:", "Current trial:", "Title:", "Command line:", "GRA(ph) file:",
                                "Listing to:", "Graphics to:"}) {
        const QLabel *label = labelThatReads(QLatin1String(caption));
        ASSERT_NE(label, nullptr) << caption;
        ASSERT_NE(label->buddy(), nullptr) << caption;
        EXPECT_TRUE(label->isVisible()) << caption;
        EXPECT_LE(label->geometry().right(), label->buddy()->geometry().left()) << caption;
        EXPECT_EQ(label->geometry().center().y(), label->buddy()->geometry().center().y()) << caption;
    }
    for (const char *caption :
         {"Data files", "Models (.CFB)", "Binary files", "Output files", "Graphs (.PLT)"}) {
        const QLabel *label = labelThatReads(QLatin1String(caption));
        ASSERT_NE(label, nullptr) << caption;
        EXPECT_TRUE(label->isVisible()) << caption;
        const QListView *view = list(QLatin1String(caption));
        EXPECT_LE(label->geometry().bottom(), view->geometry().top()) << caption;
        EXPECT_EQ(label->geometry().left(), view->geometry().left()) << caption;
    }
}

TEST_F(MainWindowView, has_tool_tips)
{
    EXPECT_EQ(list(u"Data files"_s)->toolTip(), u"Click to select motion data"_s);
    EXPECT_EQ(list(u"Directory"_s)->toolTip(), u"Select the data directory"_s);
    EXPECT_EQ(button(u"Exit"_s)->toolTip(), u"Click to exit"_s);
    for (const char *name : {"Data files", "Directory"}) {
        QListView *view = list(QLatin1String(name));
        EXPECT_EQ(toolTipAt(view->viewport(), middleOf(view, 0)), view->toolTip())
            << "over a row of " << name;
    }
}

TEST_F(MainWindowView, shows_the_whole_name_of_a_row_that_is_cut)
{
    const QString name = u"<b>a & b "_s + QString(60, u'x') + u".dg"_s;
    addFile(u"C:\\DATA\\"_s + name);
    click(frm.cmdRefresh);
    QListView *view = list(u"Data files"_s);
    EXPECT_EQ(toolTipAt(view->viewport(), middleOf(view, 0)),
              u"<span>&lt;b&gt;a &amp; b "_s + QString(60, u'x') + u".dg</span>"_s);
    EXPECT_EQ(toolTipAt(view->viewport(), middleOf(view, 1)), u"Click to select motion data"_s);
}

TEST_F(MainWindowView, lets_everything_be_reached_by_tab)
{
    frm.lblCommand.Caption = u"kinemati.exe walk1"_s;
    list(u"Data files"_s)->setFocus();
    QStringList reached;
    for (int i = 0; i < 40; ++i) {
        const QString name = QApplication::focusWidget()->accessibleName();
        if (reached.contains(name))
            break;
        reached.append(name);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(reached, (QStringList{u"Data files"_s, u"Models (.CFB)"_s, u"Binary files"_s, u"Output files"_s,
                                    u"Graphs (.PLT)"_s, u"Select Type of  Graph"_s, u"Create Graph(s)"_s,
                                    u"Edit .GRA File"_s, u"Command line"_s, u"Refresh File Lists"_s,
                                    u".CFB Editor"_s, u"Force Plate Analysis"_s, u"Skelvo"_s, u"Ondex2"_s,
                                    u"Exit"_s, u"Drive"_s, u"Directory"_s}));
}

TEST_F(MainWindowView, begins_with_the_focus_on_the_data_files)
{
    EXPECT_TRUE(list(u"Data files"_s)->hasFocus());
}

TEST_F(MainWindowView, leaves_shared_access_keys_to_the_menus)
{
    // File, Data, Model, Programs, Average, Animate, Graph, View, Settings, Manuals, Help.
    for (const char *name :
         {"Select Type of  Graph", "Force Plate Analysis", "Guide", "Skelvo", "Refresh File Lists"})
        EXPECT_TRUE(button(QLatin1String(name))->shortcut().isEmpty()) << name;
    EXPECT_EQ(button(u"Exit"_s)->shortcut(), QKeySequence(Qt::ALT | Qt::Key_X));
    EXPECT_EQ(button(u"Create Graph(s)"_s)->shortcut(), QKeySequence(Qt::ALT | Qt::Key_C));
    EXPECT_EQ(button(u"Manual"_s)->shortcut(), QKeySequence(Qt::ALT | Qt::Key_U));
    EXPECT_EQ(button(u"Edit .GRA File"_s)->shortcut(), QKeySequence(Qt::ALT | Qt::Key_E));
}

TEST_F(MainWindowView, presses_buttons_by_keyboard)
{
    for (Qt::Key key : {Qt::Key_Space, Qt::Key_Return}) {
        forget();
        button(u"Skelvo"_s)->setFocus();
        QTest::keyClick(button(u"Skelvo"_s), key);
        EXPECT_EQ(machine.programs.started.size(), 1U) << key;
    }
}

TEST_F(MainWindowView, follows_its_controls)
{
    frm.cmdSkelvo.Enabled = false;
    EXPECT_FALSE(button(u"Skelvo"_s)->isEnabled());
    frm.cmdSkelvo.Visible = false;
    EXPECT_FALSE(button(u"Skelvo"_s)->isVisible());
    frm.Caption = u"Another"_s;
    EXPECT_EQ(window().windowTitle(), u"Another"_s);
}

TEST_F(MainWindowView, shows_the_about_window_on_f1_and_question_mark)
{
    pressAndRelease(Qt::Key_F1, Qt::NoModifier);
    EXPECT_TRUE(panel.about.Visible);
    EXPECT_TRUE(waitUntil(
        [this] { return windows->aboutWindow() != nullptr && windows->aboutWindow()->isVisible(); }));
    panel.about.Visible = false;
    pressAndRelease(Qt::Key_Question, Qt::ShiftModifier);
    EXPECT_TRUE(panel.about.Visible);
    panel.about.Visible = false;
    pressAndRelease(Qt::Key_Help, Qt::NoModifier);
    EXPECT_TRUE(panel.about.Visible);
    panel.about.Visible = false;
    pressAndRelease(Qt::Key_F1, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_TRUE(panel.about.Visible);
    panel.about.Visible = false;
    // A slash is no question mark, whether the keyboard has it with Shift or without.
    pressAndRelease(Qt::Key_Slash, Qt::NoModifier);
    pressAndRelease(Qt::Key_Slash, Qt::ShiftModifier);
    EXPECT_FALSE(panel.about.Visible);
}

TEST_F(MainWindowView, sees_no_keys_without_key_preview)
{
    frm.KeyPreview = false;
    pressAndRelease(Qt::Key_F1, Qt::NoModifier);
    EXPECT_FALSE(panel.about.Visible);
}

TEST_F(MainWindowView, knows_a_released_key_by_its_place_on_the_keyboard)
{
    const auto send = [this](QEvent::Type type, int key, Qt::KeyboardModifiers modifiers) {
        QKeyEvent event(type, key, modifiers, 61, 0, 0);
        QApplication::sendEvent(window().windowHandle(), &event);
    };
    // Shift is released before the key, which is then a slash.
    send(QEvent::KeyPress, Qt::Key_Question, Qt::ShiftModifier);
    send(QEvent::KeyRelease, Qt::Key_Slash, Qt::NoModifier);
    EXPECT_TRUE(panel.about.Visible);
}

TEST_F(MainWindowView, forgets_a_press_whose_release_went_elsewhere)
{
    addData({"new.dg"});
    QTest::keyPress(window().windowHandle(), Qt::Key_R, Qt::NoModifier);
    pressAndRelease(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(frm.filDatafiles.ListCount(), 2);
}

TEST_F(MainWindowView, refreshes_on_ctrl_r_with_the_modifiers_of_the_press)
{
    addData({"new.dg"});
    pressAndRelease(Qt::Key_R, Qt::NoModifier);
    EXPECT_EQ(frm.filDatafiles.ListCount(), 1);
    // Ctrl is released first.
    QTest::keyPress(window().windowHandle(), Qt::Key_R, Qt::ControlModifier);
    QTest::keyRelease(window().windowHandle(), Qt::Key_R, Qt::NoModifier);
    settle();
    EXPECT_EQ(frm.filDatafiles.ListCount(), 2);
    // Ctrl is pressed too late.
    addData({"newer.dg"});
    QTest::keyPress(window().windowHandle(), Qt::Key_R, Qt::NoModifier);
    QTest::keyRelease(window().windowHandle(), Qt::Key_R, Qt::ControlModifier);
    settle();
    EXPECT_EQ(frm.filDatafiles.ListCount(), 2);
}

TEST_F(MainWindowView, ignores_keys_that_were_pressed_elsewhere)
{
    QTest::keyRelease(window().windowHandle(), Qt::Key_F1, Qt::NoModifier);
    settle();
    EXPECT_FALSE(panel.about.Visible);
}

TEST_F(MainWindowView, shows_the_about_window_on_a_double_click_on_its_background)
{
    QWidget *centre = window().centralWidget();
    const QPoint margin(2, centre->height() / 2);
    ASSERT_EQ(centre->childAt(margin), nullptr);
    QTest::mouseDClick(centre, Qt::LeftButton, Qt::NoModifier, margin);
    EXPECT_TRUE(panel.about.Visible);
    panel.about.Visible = false;
    QTest::mouseDClick(value(u"Title:"_s), Qt::LeftButton);
    QTest::mouseDClick(window().statusBar(), Qt::LeftButton);
    EXPECT_FALSE(panel.about.Visible);
}

TEST_F(MainWindowView, unloads_when_it_is_closed)
{
    window().close();
    EXPECT_TRUE(machine.environment.ended);
    EXPECT_TRUE(panel.unloading);
    EXPECT_TRUE(machine.settings.written.empty());
}

TEST_F(MainWindowView, survives_everything_that_is_clicked_after_it_was_closed)
{
    window().close();
    for (QPushButton *candidate : window().findChildren<QPushButton *>())
        candidate->click();
    clickRow(list(u"Data files"_s), 0);
    EXPECT_TRUE(machine.programs.started.empty());
}

TEST_F(MainWindowView, is_activated)
{
    frm.KeyPreview = false;
    QEvent activation(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&window(), &activation);
    settle();
    EXPECT_TRUE(frm.KeyPreview);
}

class MainWindowFonts : public MainWindowView
{
protected:
    void TearDown() override { QApplication::setFont(before); }

    QFont inPoints(double size) const
    {
        QFont font = before;
        font.setPointSizeF(size);
        return font;
    }

    QFont inPixels(int size) const
    {
        QFont font = before;
        font.setPixelSize(size);
        return font;
    }

    void expectThatCaptionsFit(const QFont &font)
    {
        SCOPED_TRACE(font.toString().toStdString());
        window().resize(673, 487);
        settle();
        EXPECT_EQ(window().size(), QSize(673, 487));
        for (const QPushButton *candidate : window().findChildren<QPushButton *>()) {
            if (candidate->isVisible()) {
                EXPECT_GE(candidate->width(), candidate->sizeHint().width() - 8)
                    << candidate->text().toStdString();
                EXPECT_GE(candidate->height(), candidate->fontMetrics().height());
            }
        }
        EXPECT_LE(window().menuBar()->sizeHint().width(), 673);
        // Nothing overlaps: the last button ends above the status bar.
        const QPushButton *last = button(u"Exit"_s);
        EXPECT_LE(last->mapTo(&window(), QPoint(0, last->height())).y(), window().statusBar()->y());
    }

    const QFont before = QApplication::font();
};

TEST_F(MainWindowFonts, of_any_size_let_all_captions_fit)
{
    for (const QFont &font :
         {inPoints(7), inPoints(9), inPoints(11), inPoints(14), inPoints(20), inPixels(30)}) {
        QApplication::setFont(font);
        windows = nullptr;
        windows = std::make_unique<views::PanelWindows>(panel, paths);
        panel.frm.Visible = true;
        expectThatCaptionsFit(font);
    }
}

TEST_F(MainWindowFonts, are_followed_when_they_change)
{
    QApplication::setFont(inPoints(20));
    settle();
    expectThatCaptionsFit(inPoints(20));
    EXPECT_LT(window().font().pointSizeF(), 20);
    QApplication::setFont(inPoints(8));
    settle();
    expectThatCaptionsFit(inPoints(8));
    EXPECT_EQ(window().font().pointSizeF(), 8);
    EXPECT_EQ(button(u"Exit"_s)->font().pointSizeF(), 8);
}
