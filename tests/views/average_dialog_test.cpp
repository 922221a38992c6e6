#include "view_fixture.h"
#include "views/read_only_field.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QTest>

using namespace Qt::StringLiterals;

class AverageDialogView : public support::ViewFixture
{
protected:
    void SetUp() override
    {
        addData({"TRIAL1.DG", "other.pj"});
        addFile(u"C:\\KINOVRA\\average.exe"_s);
        show();
        frm.mnuPrompt.Checked = false;
        click(frm.filDatafiles, u"TRIAL1.DG"_s);
    }

    void showFor(const QString &binaryFile)
    {
        kinovra.BinaryFile = binaryFile;
        newAverage.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog()));
        settle();
    }

    views::AverageDialog &dialog() const { return *windows->averageDialog(); }

    template <typename Widget>
    Widget *withText(const QString &text) const
    {
        const auto widgets = dialog().findChildren<Widget *>();
        for (Widget *widget : widgets) {
            if (widget->text() == text)
                return widget;
        }
        return nullptr;
    }

    QPushButton *push(const char *text) const { return withText<QPushButton>(QLatin1String(text)); }
    QCheckBox *check(const char *text) const { return withText<QCheckBox>(QLatin1String(text)); }
    QRadioButton *level(const char *text) const { return withText<QRadioButton>(QLatin1String(text)); }
    views::ReadOnlyField *file() const { return dialog().findChild<views::ReadOnlyField *>(); }
    QComboBox *list() const { return dialog().findChild<QComboBox *>(); }

    // The texts that Tab leads to, from the field of the file on.
    QStringList tabbed() const
    {
        file()->setFocus();
        QStringList result;
        for (int i = 0; i < 30; ++i) {
            QWidget *focus = QApplication::focusWidget();
            const QString text = focus->property("text").toString();
            const QString name = qobject_cast<QComboBox *>(focus) != nullptr ? u"(list)"_s : text;
            if (result.contains(name))
                break;
            result.append(name);
            QTest::keyClick(focus, Qt::Key_Tab);
        }
        return result;
    }
};

TEST_F(AverageDialogView, is_made_when_it_is_first_shown)
{
    EXPECT_EQ(windows->averageDialog(), nullptr);
    showFor(u"other.pj"_s);
    EXPECT_TRUE(dialog().isVisible());
    EXPECT_FALSE(dialog().isModal());
    EXPECT_EQ(dialog().windowTitle(), u"Ensemble Averaging Options"_s);
}

TEST_F(AverageDialogView, hides_its_lower_part_while_it_is_compact)
{
    showFor(u"other.pj"_s);
    EXPECT_EQ(dialog().height(), 240);
    for (QWidget *widget : std::initializer_list<QWidget *>{
             push("Compute &Ensemble Averages"), level("1 x s.d."),
             check("Print results in &Row-wise fashion"), dialog().findChild<QGroupBox *>()})
        EXPECT_FALSE(widget->isVisible());
    EXPECT_TRUE(push("O&K")->isEnabled());
    EXPECT_EQ(tabbed(),
              (QStringList{u"other.pj"_s, u"(list)"_s, u"Normalize &All records (don't prompt)"_s,
                           u"Normalize timebase to &Percentages"_s, u"Normalize amplitudes to body &Mass"_s,
                           u"&Echo raw and normalized data to output file"_s,
                           u"&Wait (pause program) after each added file"_s, u"O&K"_s, u"&Defaults"_s,
                           u"&Help"_s, u"&Cancel"_s}));
}

TEST_F(AverageDialogView, shows_its_lower_part_while_it_is_tall)
{
    showFor(QString());
    EXPECT_EQ(dialog().height(), 360);
    for (QWidget *widget : std::initializer_list<QWidget *>{
             push("Compute &Ensemble Averages"), level("1 x s.d."),
             check("Print results in &Row-wise fashion"), dialog().findChild<QGroupBox *>()}) {
        EXPECT_TRUE(widget->isVisible());
        EXPECT_TRUE(dialog().rect().contains(QRect(widget->mapTo(&dialog(), QPoint()), widget->size())));
    }
    EXPECT_FALSE(push("O&K")->isEnabled());
    EXPECT_EQ(file()->text(), u"Average.av"_s);
    EXPECT_EQ(list()->currentText(), u"Not Available"_s);
    EXPECT_EQ(tabbed(),
              (QStringList{u"Average.av"_s, u"(list)"_s, u"Normalize &All records (don't prompt)"_s,
                           u"Normalize timebase to &Percentages"_s, u"Normalize amplitudes to body &Mass"_s,
                           u"&Echo raw and normalized data to output file"_s,
                           u"&Wait (pause program) after each added file"_s, u"&Defaults"_s, u"&Help"_s,
                           u"&Cancel"_s, u"95% = s.d. x 1.96"_s, u"Print results in &Row-wise fashion"_s,
                           u"Compute &Ensemble Averages"_s}));
}

TEST_F(AverageDialogView, says_what_its_fields_are)
{
    showFor(QString());
    const auto caption = [this](const QWidget *field) {
        for (const QLabel *label : dialog().findChildren<QLabel *>()) {
            if (label->buddy() == field)
                return label->text();
        }
        return QString();
    };
    EXPECT_EQ(caption(file()), u"Binary data file:"_s);
    EXPECT_EQ(caption(list()), u"List of filenames:"_s);
    EXPECT_EQ(dialog().findChild<QGroupBox *>()->title(), u"Confidence Levels"_s);
    EXPECT_EQ(file()->toolTip(), u"Name of selected binary data file"_s);
}

TEST_F(AverageDialogView, changes_its_height_while_it_is_shown)
{
    showFor(QString());
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    click(frm.filBinaries, u"other.pj"_s);
    dialog().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog()));
    settle();
    EXPECT_EQ(dialog().height(), 240);
    EXPECT_FALSE(push("Compute &Ensemble Averages")->isVisible());
    EXPECT_EQ(file()->text(), u"other.pj"_s);
}

TEST_F(AverageDialogView, shows_and_takes_the_options)
{
    showFor(QString());
    EXPECT_TRUE(check("Normalize &All records (don't prompt)")->isChecked());
    EXPECT_FALSE(check("&Echo raw and normalized data to output file")->isChecked());
    EXPECT_TRUE(level("95% = s.d. x 1.96")->isChecked());
    check("Normalize &All records (don't prompt)")->click();
    check("&Echo raw and normalized data to output file")->click();
    check("Print results in &Row-wise fashion")->click();
    level("2 x s.d.")->click();
    EXPECT_FALSE(newAverage.chkAVall.Value);
    EXPECT_TRUE(newAverage.chkAVecho.Value);
    EXPECT_TRUE(newAverage.chkAVrow.Value);
    EXPECT_FALSE(newAverage.optCI[0].Value);
    EXPECT_TRUE(newAverage.optCI[3].Value);
    push("&Defaults")->click();
    EXPECT_TRUE(check("Normalize &All records (don't prompt)")->isChecked());
    EXPECT_FALSE(check("&Echo raw and normalized data to output file")->isChecked());
    EXPECT_FALSE(check("Print results in &Row-wise fashion")->isChecked());
    EXPECT_TRUE(level("95% = s.d. x 1.96")->isChecked());
    EXPECT_FALSE(level("2 x s.d.")->isChecked());
    EXPECT_FALSE(newAverage.optCI[3].Value);
}

TEST_F(AverageDialogView, shows_the_list_of_files)
{
    showFor(u"other.pj"_s);
    ASSERT_EQ(list()->count(), 2);
    EXPECT_EQ(list()->itemText(0), u"Click to View"_s);
    EXPECT_EQ(list()->itemText(1), u"other.pj"_s);
    EXPECT_EQ(list()->currentIndex(), 0);
    QTest::keyClick(list(), Qt::Key_Down);
    EXPECT_EQ(newAverage.comFilenames.ListIndex.value(), 1);
    click(frm.mnuAverage[1]);
    EXPECT_EQ(list()->count(), 3);
    EXPECT_EQ(list()->currentIndex(), 1);
}

TEST_F(AverageDialogView, runs_by_keyboard)
{
    showFor(u"other.pj"_s);
    QTest::keyClick(&dialog(), Qt::Key_Return);
    ASSERT_EQ(machine.programs.started.size(), 1U);
    EXPECT_EQ(machine.programs.started[0].parameters.text(), u"/I /A /M /P /W OTHER.PJ"_s);
    EXPECT_FALSE(dialog().isVisible());
    showFor(QString());
    level("1 x s.d.")->setFocus();
    QTest::keyClick(level("1 x s.d."), Qt::Key_Space);
    QTest::keyClick(level("1 x s.d."), Qt::Key_Return);
    ASSERT_EQ(machine.programs.started.size(), 2U);
    EXPECT_EQ(machine.programs.started[1].parameters.text(), u" /C/1 "_s);
    EXPECT_FALSE(dialog().isVisible());
}

TEST_F(AverageDialogView, enter_begins_what_it_was_opened_for_whatever_was_pressed_before)
{
    showFor(u"other.pj"_s);
    push("O&K")->setFocus();
    QTest::keyClick(push("O&K"), Qt::Key_Space);
    EXPECT_EQ(machine.programs.started.size(), 1U);
    showFor(QString());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    ASSERT_EQ(machine.programs.started.size(), 2U);
    EXPECT_EQ(machine.programs.started[1].parameters.text(), u" /C/5 "_s);
}

TEST_F(AverageDialogView, enter_runs_nothing_where_nothing_can_run)
{
    showFor(QString());
    push("&Cancel")->click();
    showFor(u"other.pj"_s);
    check("Normalize &All records (don't prompt)")->setFocus();
    QTest::keyClick(check("Normalize &All records (don't prompt)"), Qt::Key_Return);
    EXPECT_TRUE(machine.programs.started.empty());
    EXPECT_TRUE(dialog().isVisible());
}

TEST_F(AverageDialogView, esc_and_the_close_box_cancel)
{
    showFor(u"other.pj"_s);
    QTest::keyClick(&dialog(), Qt::Key_Escape);
    EXPECT_FALSE(newAverage.Visible);
    EXPECT_FALSE(dialog().isVisible());
    showFor(u"other.pj"_s);
    dialog().close();
    EXPECT_FALSE(newAverage.Visible);
    EXPECT_FALSE(dialog().isVisible());
    EXPECT_TRUE(machine.programs.started.empty());
}

TEST_F(AverageDialogView, the_files_name_cannot_be_changed)
{
    showFor(u"other.pj"_s);
    QTest::mouseClick(file(), Qt::LeftButton);
    EXPECT_EQ(messages().size(), 1);
    QTest::keyClicks(file(), u"x"_s);
    EXPECT_EQ(messages().size(), 2);
    EXPECT_TRUE(messages()[1].startsWith(u"To change the input data file press the Cancel button"));
    QTest::keyClick(file(), Qt::Key_Right);
    QTest::keyClick(file(), Qt::Key_Z, Qt::AltModifier);
    QTest::keyClick(file(), Qt::Key_C, Qt::ControlModifier);
    QTest::mousePress(file(), Qt::LeftButton);
    QTest::mouseRelease(file(), Qt::LeftButton, Qt::NoModifier, QPoint(-20, 5));
    EXPECT_EQ(messages().size(), 2);
    EXPECT_EQ(file()->text(), u"other.pj"_s);
}

TEST_F(AverageDialogView, all_texts_fit)
{
    const QFont before = QApplication::font();
    for (const int points : {8, 10, 13, 18}) {
        QFont font = before;
        font.setPointSize(points);
        windows.reset();
        newAverage.Visible = false;
        QApplication::setFont(font);
        show();
        showFor(QString());
        for (QWidget *widget : dialog().findChildren<QWidget *>()) {
            if (qobject_cast<QLabel *>(widget) != nullptr
                || qobject_cast<QAbstractButton *>(widget) != nullptr) {
                EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << points;
                EXPECT_GE(widget->height(), widget->minimumSizeHint().height()) << points;
                EXPECT_TRUE(
                    dialog().rect().contains(QRect(widget->mapTo(&dialog(), QPoint()), widget->size())))
                    << points;
            }
        }
        EXPECT_LE(push("&Cancel")->mapTo(&dialog(), QPoint(0, push("&Cancel")->height())).y(), 240) << points;
    }
    windows.reset();
    QApplication::setFont(before);
}

TEST_F(AverageDialogView, follows_the_desktops_font)
{
    showFor(QString());
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPointSize(18);
    QApplication::setFont(large);
    settle();
    for (QAbstractButton *widget : dialog().findChildren<QAbstractButton *>())
        EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << widget->text().toStdString();
    QApplication::setFont(before);
}

TEST_F(AverageDialogView, comes_to_the_front_and_is_activated_again)
{
    showFor(u"other.pj"_s);
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    kinovra.BinaryFile = u"x.km"_s;
    click(frm.mnuAverage[0]);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog()));
    settle();
    EXPECT_EQ(file()->text(), u"x.km"_s);
}

TEST_F(AverageDialogView, hides_nothing_in_the_files_name)
{
    showFor(u"a\u202Eb.pj"_s);
    EXPECT_EQ(file()->text(), u"a\uFFFDb.pj"_s);
    EXPECT_EQ(list()->itemText(1), u"a\uFFFDb.pj"_s);
}

TEST_F(AverageDialogView, a_box_hears_of_its_access_key_before_what_comes_next)
{
    showFor(u"other.pj"_s);
    QTest::keyClick(&dialog(), Qt::Key_W, Qt::AltModifier);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    ASSERT_EQ(machine.programs.started.size(), 1U);
    EXPECT_EQ(machine.programs.started[0].parameters.text(), u"/I /A /M /P OTHER.PJ"_s);
}
