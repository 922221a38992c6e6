#include "printing.h"
#include "views/message_boxes.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using platform::Buttons;
using platform::Icon;

namespace {

/// Takes the host's paths for the panel's, with another separator.
class PlainPaths : public platform::HostPaths
{
public:
    QString hostForm(const QString &directory) override
    {
        return QString(directory).mid(2).replace(u'\\', u'/');
    }
    QString panelForm(const QString &hostFile) override
    {
        return u"Z:"_s + QString(hostFile).replace(u'/', u'\\');
    }
};

class MessageBoxViews : public testing::Test
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

    PlainPaths paths;
    views::MessageBoxes boxes{paths};
};

} // namespace

TEST_F(MessageBoxViews, belong_to_the_main_window_while_another_program_is_the_active_one)
{
    QMainWindow mainWindow;
    mainWindow.show();
    QApplication::setActiveWindow(nullptr);
    const QWidget *owner = nullptr;
    whenShown<QMessageBox>([&owner](QMessageBox &window) {
        owner = window.parentWidget();
        window.accept();
    });
    boxes.message({u"text"_s});
    EXPECT_EQ(owner, &mainWindow);
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

    QString panelDirectory() const { return u"Z:"_s + directory.path().replace(u'/', u'\\'); }

    QTemporaryDir directory;
};

TEST_F(FileDialogViews, ask_for_a_file)
{
    whenShown<QFileDialog>([this](QFileDialog &dialog) {
        EXPECT_EQ(dialog.windowTitle(), u"Select a program to view its help."_s);
        EXPECT_EQ(dialog.directory().path(), directory.path());
        EXPECT_EQ(dialog.nameFilters(), QStringList{u"*.exe"_s});
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
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
        EXPECT_EQ(dialog.nameFilters(),
                  (QStringList{u"Plotter files (*.plt)"_s, u"AVI & MPEG files (*.avi *.mpg)"_s}));
        EXPECT_EQ(dialog.selectedNameFilter(), u"AVI & MPEG files (*.avi *.mpg)"_s);
        dialog.reject();
    });
    boxes.openFile({.initialDirectory = panelDirectory(),
                    .filter = u"Plotter files (*.plt)|*.plt|AVI && MPEG files (*.avi;*.mpg)|*.avi;*.mpg"_s,
                    .filterIndex = 2});
}
