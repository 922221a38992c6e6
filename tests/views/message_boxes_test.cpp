#include "printing.h"
#include "scratch_directory.h"
#include "view_fixture.h"
#include "views/message_boxes.h"

#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using platform::Buttons;
using platform::Icon;

namespace {

class MessageBoxViews : public support::ViewFixture
{
protected:
    template <typename Window>
    void whenShown(std::function<void(Window &)> look)
    {
        QTimer::singleShot(0, [this, look] {
            auto *window = qobject_cast<Window *>(QApplication::activeModalWidget());
            if (window == nullptr) {
                whenShown(look);
                return;
            }
            look(*window);
        });
    }

    platform::Answer answer(const platform::MessageBox &box, QMessageBox::StandardButton button)
    {
        whenShown<QMessageBox>([button](QMessageBox &window) { window.button(button)->click(); });
        return boxes.message(box);
    }

    void showViewer()
    {
        addFile(u"C:\\DATA\\a.txt"_s, "one\n");
        kinovra.ViewerFile = u"C:\\DATA\\a.txt"_s;
        viewer.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(windows->textViewer()));
        settle();
    }

    const QWidget *ownerOfBox()
    {
        const QWidget *owner = nullptr;
        whenShown<QMessageBox>([&owner](QMessageBox &box) {
            owner = box.parentWidget();
            box.accept();
        });
        boxes.message({u"text"_s});
        return owner;
    }

    views::MessageBoxes boxes{paths};
};

} // namespace

TEST_F(MessageBoxViews, belong_to_the_active_window)
{
    show();
    showViewer();
    EXPECT_EQ(ownerOfBox(), windows->textViewer());
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    EXPECT_EQ(ownerOfBox(), &window());
}

TEST_F(MessageBoxViews, belong_to_the_main_window_while_another_program_is_the_active_one)
{
    show();
    showViewer();
    QApplication::setActiveWindow(nullptr);
    EXPECT_EQ(ownerOfBox(), &window());
}

TEST_F(MessageBoxViews, belong_to_the_main_window_where_the_active_one_is_minimized)
{
    show();
    showViewer();
    windows->textViewer()->showMinimized();
    QApplication::setActiveWindow(windows->textViewer());
    EXPECT_EQ(ownerOfBox(), &window());
}

TEST_F(MessageBoxViews, show_every_character_of_their_title)
{
    whenShown<QMessageBox>([](QMessageBox &box) {
        EXPECT_EQ(box.windowHandle()->title(), u"Update walk[*].txt Yes/No?"_s);
        box.accept();
    });
    boxes.message({.text = u"text"_s, .title = u"Update walk[*].txt Yes/No?"_s});
}

TEST_F(MessageBoxViews, show_every_character_of_an_input_boxs_title)
{
    show();
    whenShown<QInputDialog>([](QInputDialog &dialog) {
        EXPECT_EQ(dialog.windowHandle()->title(), u"walk[*].txt"_s);
        dialog.reject();
    });
    boxes.input({u"Name?"_s, u"walk[*].txt"_s});
}

TEST_F(MessageBoxViews, let_the_user_choose_a_colour)
{
    whenShown<QColorDialog>([](QColorDialog &dialog) {
        EXPECT_EQ(dialog.currentColor(), QColor(0x12, 0x34, 0x56));
        dialog.setCurrentColor(QColor(0xFE, 0xDC, 0x01));
        dialog.accept();
    });
    EXPECT_EQ(boxes.chooseColour(0x123456), 0xFEDC01U);
    whenShown<QColorDialog>([](QColorDialog &dialog) {
        dialog.setCurrentColor(QColor(0xFE, 0xDC, 0x01));
        dialog.reject();
    });
    EXPECT_EQ(boxes.chooseColour(0x123456), std::nullopt);
}

TEST_F(MessageBoxViews, ask_for_a_text)
{
    show();
    whenShown<QInputDialog>([this](QInputDialog &dialog) {
        EXPECT_EQ(dialog.windowTitle(), u"Make a subdirectory."_s);
        EXPECT_EQ(dialog.findChild<QLabel *>()->text(), u"Name?"_s);
        EXPECT_EQ(dialog.textValue(), QString());
        EXPECT_EQ(dialog.parentWidget(), &window());
        QTest::keyClicks(dialog.findChild<QLineEdit *>(), u" my walks "_s);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    EXPECT_EQ(boxes.input({u"Name?"_s, u"Make a subdirectory."_s}), u" my walks "_s);
    whenShown<QInputDialog>([](QInputDialog &dialog) {
        QTest::keyClicks(dialog.findChild<QLineEdit *>(), u"walks"_s);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(boxes.input({u"Name?"_s}), std::nullopt);
}

TEST_F(MessageBoxViews, show_the_prompt_of_a_text_as_it_stands_in_a_box_that_fits)
{
    const QString directory = u"c:\\<b>&amp;\\"_s + QString(400, u'w');
    whenShown<QInputDialog>([&directory](QInputDialog &dialog) {
        const auto *prompt = dialog.findChild<QLabel *>();
        EXPECT_EQ(prompt->textFormat(), Qt::PlainText);
        EXPECT_TRUE(QKeySequence::mnemonic(prompt->text()).isEmpty());
        EXPECT_EQ(prompt->text().remove(QChar(0x200B)),
                  u"Enter a name for "_s + QString(directory).replace(u'&', u"&&"_s));
        EXPECT_LE(dialog.width(), 600);
        EXPECT_LE(prompt->sizeHint().width(), dialog.width());
        EXPECT_LE(prompt->heightForWidth(prompt->width()), prompt->height());
        dialog.reject();
    });
    boxes.input({u"Enter a name for "_s + directory});
}

TEST_F(MessageBoxViews, break_and_shorten_long_paths)
{
    const QString path = u"c:\\"_s + QString(8, u'a') + u'\\' + QString(130, u'b');
    whenShown<QMessageBox>([&path](QMessageBox &box) {
        const auto *label = box.findChild<QLabel *>(u"qt_msgbox_label"_s);
        ASSERT_NE(label, nullptr);
        EXPECT_EQ(box.text().remove(QChar(0x200B)), u"Remove "_s + path + u"?"_s);
        EXPECT_LE(label->sizeHint().width(), label->width());
        EXPECT_LE(label->heightForWidth(label->width()), label->height());
        EXPECT_LE(box.width(), 800);
        box.accept();
    });
    boxes.message({u"Remove "_s + path + u"?"_s});
    whenShown<QInputDialog>([](QInputDialog &dialog) {
        EXPECT_LE(dialog.height(), 400);
        EXPECT_TRUE(
            dialog.findChild<QLabel *>()->text().remove(QChar(0x200B)).endsWith(u"zzz\\end or Cancel"_s));
        dialog.reject();
    });
    boxes.input({u"Name in "_s + QString(3000, u'z') + u"\\end or Cancel"_s});
    // What is short enough to be copied stays as it is.
    whenShown<QMessageBox>([](QMessageBox &box) {
        EXPECT_EQ(box.text(), u"C:\\DATA\\WALK1.DG is there"_s);
        box.accept();
    });
    boxes.message({u"C:\\DATA\\WALK1.DG is there"_s});
}

TEST_F(MessageBoxViews, say_that_there_is_no_printer_to_set_up)
{
    const support::ScopedVariable noServer("CUPS_SERVER", "/nowhere");
    EXPECT_FALSE(boxes.setUpPrinter());
}

TEST_F(MessageBoxViews, break_lines_where_the_text_does)
{
    whenShown<QMessageBox>([](QMessageBox &window) {
        EXPECT_EQ(window.text(), u"one\n\ntwo\nthree"_s);
        window.accept();
    });
    boxes.message({u"one\r\n\r\ntwo\nthree"_s});
}

TEST_F(MessageBoxViews, have_the_applications_title_without_one_of_their_own)
{
    whenShown<QMessageBox>([](QMessageBox &window) {
        EXPECT_EQ(window.windowTitle(), u"Kinovra Motion Analysis System"_s);
        EXPECT_EQ(window.text(), u"text"_s);
        EXPECT_EQ(window.icon(), QMessageBox::NoIcon);
        EXPECT_EQ(window.standardButtons(), QMessageBox::Ok);
        window.accept();
    });
    EXPECT_EQ(boxes.message({u"text"_s}), platform::OK);
    whenShown<QMessageBox>([](QMessageBox &window) {
        EXPECT_EQ(window.windowTitle(), u"View output"_s);
        window.accept();
    });
    boxes.message({u"text"_s, Icon::None, Buttons::OKOnly, u"View output"_s});
}

TEST_F(MessageBoxViews, have_their_icons)
{
    const std::pair<Icon, QMessageBox::Icon> table[]{{Icon::Information, QMessageBox::Information},
                                                     {Icon::Exclamation, QMessageBox::Warning},
                                                     {Icon::Question, QMessageBox::Question},
                                                     {Icon::Critical, QMessageBox::Critical}};
    for (const auto &[icon, expected] : table) {
        whenShown<QMessageBox>([expected = expected](QMessageBox &window) {
            EXPECT_EQ(window.icon(), expected);
            window.accept();
        });
        boxes.message({u"text"_s, icon});
    }
}

TEST_F(MessageBoxViews, give_the_answers)
{
    EXPECT_EQ(answer({u"?"_s, Icon::Question, Buttons::YesNo}, QMessageBox::Yes), platform::Yes);
    EXPECT_EQ(answer({u"?"_s, Icon::Question, Buttons::YesNo}, QMessageBox::No), platform::No);
    EXPECT_EQ(answer({u"?"_s, Icon::Question, Buttons::OKCancel}, QMessageBox::Ok), platform::OK);
    EXPECT_EQ(answer({u"?"_s, Icon::Question, Buttons::OKCancel}, QMessageBox::Cancel), platform::Cancel);
    EXPECT_EQ(answer({u"?"_s, Icon::Question, Buttons::YesNoCancel}, QMessageBox::Yes), platform::Yes);
    EXPECT_EQ(answer({u"?"_s, Icon::Question, Buttons::YesNoCancel}, QMessageBox::No), platform::No);
    EXPECT_EQ(answer({u"?"_s, Icon::Question, Buttons::YesNoCancel}, QMessageBox::Cancel), platform::Cancel);
}

TEST_F(MessageBoxViews, that_are_closed_answer_what_changes_nothing)
{
    const std::pair<Buttons, platform::Answer> table[]{{Buttons::OKOnly, platform::OK},
                                                       {Buttons::OKCancel, platform::Cancel},
                                                       {Buttons::YesNo, platform::No},
                                                       {Buttons::YesNoCancel, platform::Cancel}};
    for (const auto &[buttons, expected] : table) {
        whenShown<QMessageBox>([](QMessageBox &window) { window.close(); });
        EXPECT_EQ(boxes.message({u"?"_s, Icon::Question, buttons}), expected);
        whenShown<QMessageBox>([](QMessageBox &window) { window.done(0); });
        EXPECT_EQ(boxes.message({u"?"_s, Icon::Question, buttons}), expected);
    }
}

TEST_F(MessageBoxViews, answer_no_by_default_where_yes_would_lose_something)
{
    whenShown<QMessageBox>([](QMessageBox &window) {
        EXPECT_EQ(window.defaultButton(), window.button(QMessageBox::No));
        window.defaultButton()->click();
    });
    EXPECT_EQ(boxes.message({.text = u"?"_s, .buttons = Buttons::YesNo, .noByDefault = true}), platform::No);
    whenShown<QMessageBox>([](QMessageBox &window) {
        EXPECT_NE(window.defaultButton(), window.button(QMessageBox::No));
        window.accept();
    });
    boxes.message({.text = u"?"_s, .buttons = Buttons::YesNo});
}

TEST_F(MessageBoxViews, show_text_as_text)
{
    whenShown<QMessageBox>([](QMessageBox &window) {
        EXPECT_EQ(window.text(),
                  u"<b>\"C:\\A & B\"</b>\nFile \u240A not found"_s.replace(u"\u240A"_s, u"\u241B"_s));
        EXPECT_EQ(window.textFormat(), Qt::PlainText);
        window.accept();
    });
    boxes.message({u"<b>\"C:\\A & B\"</b>\nFile \u001B not found"_s});
}

class FileDialogViews : public MessageBoxViews
{
protected:
    FileDialogViews()
    {
        QFile file(directory.filePath(u"noise.exe"_s));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
    }

    static QStringList shownFilters(const QFileDialog &dialog)
    {
        const auto *combo = dialog.findChild<QComboBox *>(u"fileTypeCombo"_s);
        QStringList shown;
        for (int i = 0; i < combo->count(); ++i)
            shown.append(combo->itemText(i).trimmed());
        return shown;
    }

    QString panelDirectory() const { return u"Z:"_s + directory.path().replace(u'/', u'\\'); }

    QTemporaryDir directory;
};

TEST_F(FileDialogViews, ask_for_a_file)
{
    whenShown<QFileDialog>([this](QFileDialog &dialog) {
        EXPECT_EQ(dialog.windowTitle(), u"Select a program to view its help."_s);
        EXPECT_EQ(dialog.directory().path(), directory.path());
        EXPECT_EQ(dialog.nameFilters(), QStringList{u"*.exe (*.[eE]x[eE])"_s});
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
        EXPECT_EQ(dialog.supportedSchemes(), QStringList{u"file"_s});
        EXPECT_EQ(dialog.findChild<QLineEdit *>()->text(), QString());
        dialog.findChild<QLineEdit *>()->setText(u"noise.exe"_s);
        dialog.findChild<QPushButton *>()->click();
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(boxes.openFile({.initialDirectory = panelDirectory(),
                              .fileName = u"*.exe"_s,
                              .filter = u"*.exe"_s,
                              .title = u"Select a program to view its help."_s,
                              .mustExist = true}),
              panelDirectory() + u"\\noise.exe"_s);
}

TEST_F(FileDialogViews, give_nothing_when_they_are_cancelled)
{
    whenShown<QFileDialog>([](QFileDialog &dialog) { dialog.reject(); });
    EXPECT_EQ(boxes.openFile({.initialDirectory = panelDirectory()}), std::nullopt);
}

TEST_F(FileDialogViews, know_classic_filters)
{
    whenShown<QFileDialog>([](QFileDialog &dialog) {
        EXPECT_EQ(dialog.nameFilters(), (QStringList{u"Plotter files (*.plt) (*.plt)"_s,
                                                     u"AVI && MPEG files (*.avi;*.mpg) (*.avi *.mpg)"_s}));
        EXPECT_EQ(shownFilters(dialog),
                  (QStringList{u"Plotter files (*.plt)"_s, u"AVI && MPEG files (*.avi;*.mpg)"_s}));
        EXPECT_EQ(dialog.findChild<QComboBox *>(u"fileTypeCombo"_s)->currentIndex(), 1);
        dialog.reject();
    });
    boxes.openFile({.initialDirectory = panelDirectory(),
                    .filter = u"Plotter files (*.plt)|*.plt|AVI && MPEG files (*.avi;*.mpg)|*.avi;*.mpg"_s,
                    .filterIndex = 2});
}

TEST_F(FileDialogViews, ask_for_the_name_of_a_file_to_be_written)
{
    whenShown<QFileDialog>([this](QFileDialog &dialog) {
        EXPECT_EQ(dialog.windowTitle(), u"Save as"_s);
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(dialog.directory().path(), directory.path());
        EXPECT_EQ(shownFilters(dialog), QStringList{u"*.exe"_s});
        EXPECT_EQ(dialog.findChild<QLineEdit *>()->text(), QString());
        dialog.findChild<QLineEdit *>()->setText(u"walk 3"_s);
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(
        boxes.saveFile({.initialDirectory = panelDirectory(), .filter = u"*.exe"_s, .title = u"Save as"_s}),
        panelDirectory() + u"\\walk 3"_s);
    whenShown<QFileDialog>([](QFileDialog &dialog) {
        EXPECT_EQ(dialog.findChild<QLineEdit *>()->text(), u"walk4.exe"_s);
        dialog.reject();
    });
    EXPECT_EQ(boxes.saveFile({.initialDirectory = panelDirectory(), .fileName = u"walk4.exe"_s}),
              std::nullopt);
}

// The command asks, which alone knows what it will write.
TEST_F(FileDialogViews, do_not_ask_about_a_file_that_is_there)
{
    whenShown<QFileDialog>([](QFileDialog &dialog) {
        dialog.findChild<QLineEdit *>()->setText(u"noise.exe"_s);
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(boxes.saveFile({.initialDirectory = panelDirectory(), .filter = u"*.exe"_s}),
              panelDirectory() + u"\\noise.exe"_s);
}

TEST_F(FileDialogViews, give_nothing_where_no_name_was_chosen)
{
    whenShown<QFileDialog>([](QFileDialog &dialog) {
        dialog.setFileMode(QFileDialog::ExistingFiles);
        static_cast<QDialog &>(dialog).done(QDialog::Accepted);
    });
    EXPECT_EQ(boxes.saveFile({.initialDirectory = panelDirectory()}), std::nullopt);
}
