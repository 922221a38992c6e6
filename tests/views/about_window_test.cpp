#include "view_fixture.h"
#include "views/stride_picture.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;
using support::waitUntil;

class AboutWindowView : public support::ViewFixture
{
protected:
    void SetUp() override
    {
        show();
        showAbout();
    }

    void showAbout()
    {
        panel.about.show();
        ASSERT_TRUE(waitUntil([this] { return windows->aboutWindow() != nullptr && about().isVisible(); }));
        about().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&about()));
        settle();
    }

    void showContact()
    {
        aboutButton("&Contact")->click();
        settle();
        ASSERT_TRUE(contact()->isVisible());
    }

    views::AboutWindow &about() const { return *windows->aboutWindow(); }

    QLabel *labelWith(const QString &text) const
    {
        const auto labels = about().findChildren<QLabel *>();
        for (QLabel *label : labels) {
            if (label->text().contains(text))
                return label;
        }
        return nullptr;
    }

    QLabel *heading() const { return labelWith(u"About Kinovra for Windows"_s); }
    QLabel *banner() const { return labelWith(u"KvWin98"_s); }
    QLabel *contact() const { return labelWith(u"Email:"_s); }

    QWidget *called(const QString &accessibleName) const
    {
        const auto widgets = about().findChildren<QWidget *>();
        for (QWidget *widget : widgets) {
            if (widget->accessibleName() == accessibleName)
                return widget;
        }
        return nullptr;
    }

    QWidget *picture() const { return called(u"Stick figure of a walking stride"_s); }
    QWidget *photograph() const { return called(u"Photograph"_s); }

    QPushButton *aboutButton(const char *caption) const
    {
        const auto buttons = about().findChildren<QPushButton *>();
        for (QPushButton *candidate : buttons) {
            if (candidate->text() == QLatin1String(caption))
                return candidate;
        }
        return nullptr;
    }

    QRect placeOf(const QWidget *widget) const { return {widget->mapTo(&about(), QPoint()), widget->size()}; }

    bool isClosed() const { return !panel.about.Visible && !about().isVisible(); }
};

TEST_F(AboutWindowView, is_a_window_of_its_own_with_a_fixed_size)
{
    EXPECT_EQ(about().windowTitle(), u"About Kinovra Motion Analysis System"_s);
    EXPECT_FALSE(about().isModal());
    EXPECT_EQ(about().parentWidget(), &window());
    EXPECT_EQ(about().size(), QSize(540, 440));
    EXPECT_EQ(about().minimumSize(), about().maximumSize());
}

TEST_F(AboutWindowView, is_in_the_middle_of_the_screen_each_time)
{
    const QPoint middle((panel.about.Left + 7) / 15, (panel.about.Top + 7) / 15);
    EXPECT_EQ(panel.about.Left.value(), (panel.screen.Width - 8100) / 2);
    EXPECT_EQ(about().pos(), middle);
    about().move(5, 7);
    QTest::keyClick(&about(), Qt::Key_Escape);
    showAbout();
    EXPECT_EQ(about().pos(), middle);
}

TEST_F(AboutWindowView, shows_heading_picture_banner_and_buttons_in_this_order)
{
    const QList<QWidget *> order{heading(), picture(), aboutButton("System Information")};
    for (int i = 0; i < order.size(); ++i) {
        ASSERT_NE(order[i], nullptr) << i;
        EXPECT_TRUE(order[i]->isVisible()) << i;
        EXPECT_TRUE(QRect(0, 0, 540, 440).contains(placeOf(order[i]))) << i;
        if (i > 0) {
            EXPECT_LT(placeOf(order[i - 1]).bottom(), placeOf(order[i]).top()) << i;
        }
    }
    EXPECT_EQ(banner()->parentWidget(), picture());
    EXPECT_TRUE(placeOf(picture()).contains(placeOf(banner())));
    EXPECT_GT(heading()->font().pointSizeF(), banner()->font().pointSizeF());
    EXPECT_FALSE(contact()->isVisible());
    EXPECT_FALSE(photograph()->isVisible());
}

TEST_F(AboutWindowView, shows_the_banner_without_the_empty_lines_around_it)
{
    EXPECT_TRUE(banner()->text().startsWith(u"     KvWin98, version 1.00 (build 001)\n\n     Kinovra "_s));
    EXPECT_FALSE(banner()->text().contains(u'\r'));
}

TEST_F(AboutWindowView, shows_text_as_text)
{
    panel.about.lblHeader.Caption = u"KvWin98 <b>\u001B</b>\r\n\u202Esecond"_s;
    EXPECT_EQ(banner()->text(), u"KvWin98 <b>\u241B</b>\n\uFFFDsecond"_s);
    EXPECT_EQ(banner()->textFormat(), Qt::PlainText);
    panel.about.lblRell.Caption = u"  Email: <i>\u0007\n  next"_s;
    EXPECT_EQ(contact()->text(), u"  Email: <i>\u2407\n  next"_s);
    EXPECT_EQ(contact()->textFormat(), Qt::PlainText);
}

TEST_F(AboutWindowView, has_tool_tips)
{
    EXPECT_EQ(picture()->toolTip(), u"Click here to return to main window."_s);
    EXPECT_EQ(contact()->toolTip(), u"Contact information."_s);
    EXPECT_EQ(aboutButton("&Update")->toolTip(),
              u"Click here to download latest version from the internet."_s);
    EXPECT_EQ(aboutButton("&Website")->toolTip(), u"Click here to access software website."_s);
}

TEST_F(AboutWindowView, is_closed_by_a_click_on_its_heading)
{
    QTest::mouseClick(heading(), Qt::LeftButton);
    EXPECT_TRUE(isClosed());
}

TEST_F(AboutWindowView, is_closed_by_a_click_on_its_picture)
{
    QTest::mouseClick(picture(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
    EXPECT_TRUE(isClosed());
}

TEST_F(AboutWindowView, is_closed_by_a_click_on_its_banner)
{
    QTest::mouseClick(banner(), Qt::LeftButton);
    EXPECT_TRUE(isClosed());
}

TEST_F(AboutWindowView, is_closed_by_a_click_on_the_contact_details)
{
    showContact();
    QTest::mouseClick(contact(), Qt::LeftButton);
    EXPECT_TRUE(isClosed());
}

TEST_F(AboutWindowView, is_not_closed_by_other_buttons_places_or_releases_outside)
{
    QTest::mouseClick(picture(), Qt::RightButton);
    QTest::mouseClick(heading(), Qt::MiddleButton);
    QTest::mouseClick(&about(), Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
    QTest::mousePress(heading(), Qt::LeftButton);
    QTest::mouseRelease(heading(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 300));
    EXPECT_FALSE(isClosed());
}

TEST_F(AboutWindowView, hides_the_photograph_alone_by_a_click_on_its_place)
{
    showContact();
    const QRect place = contact()->geometry();
    EXPECT_TRUE(photograph()->isVisible());
    QTest::mouseClick(photograph(), Qt::LeftButton);
    settle();
    EXPECT_FALSE(panel.about.picRell.Visible);
    EXPECT_FALSE(photograph()->isVisible());
    EXPECT_TRUE(contact()->isVisible());
    EXPECT_EQ(contact()->geometry(), place);
    EXPECT_EQ(about().height(), 640);
}

TEST_F(AboutWindowView, is_closed_by_the_close_box)
{
    about().close();
    EXPECT_TRUE(isClosed());
    EXPECT_TRUE(window().isVisible());
    EXPECT_FALSE(machine.environment.ended);
}

TEST_F(AboutWindowView, goes_away_on_esc_and_nothing_else_happens)
{
    QTest::keyClick(&about(), Qt::Key_A);
    EXPECT_FALSE(isClosed());
    QTest::keyClick(&about(), Qt::Key_Escape);
    EXPECT_TRUE(isClosed());
    EXPECT_TRUE(window().isVisible());
    EXPECT_FALSE(machine.environment.ended);
}

TEST_F(AboutWindowView, goes_away_on_esc_wherever_the_focus_is)
{
    for (int tabs = 0; tabs < 5; ++tabs) {
        for (int i = 0; i < tabs; ++i)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        EXPECT_TRUE(isClosed()) << tabs;
        showAbout();
    }
}

TEST_F(AboutWindowView, grows_for_the_contact_details_and_shrinks_again)
{
    showContact();
    EXPECT_EQ(about().size(), QSize(540, 640));
    const QRect below(0, 440, 540, 200);
    EXPECT_TRUE(below.contains(placeOf(photograph())));
    EXPECT_TRUE(below.contains(placeOf(contact())));
    EXPECT_LT(placeOf(photograph()).right(), placeOf(contact()).left());
    EXPECT_EQ(contact()->text(), u"  The Kinovra developers\n  School of Movement Science\n"
                                 "  Faculty of Science\n  Example University\n  Example City 00000\n"
                                 "  Email: kinovra@example.org\n  https://example.org/kinovra/kinovra.htm"_s);
    aboutButton("&Contact")->click();
    settle();
    EXPECT_EQ(about().size(), QSize(540, 440));
    EXPECT_FALSE(contact()->isVisible());
    EXPECT_FALSE(photograph()->isVisible());
}

TEST_F(AboutWindowView, forgets_the_contact_details_when_it_is_closed)
{
    showContact();
    QTest::keyClick(&about(), Qt::Key_Escape);
    showAbout();
    EXPECT_EQ(about().size(), QSize(540, 440));
    EXPECT_FALSE(contact()->isVisible());
    EXPECT_FALSE(photograph()->isVisible());
}

TEST_F(AboutWindowView, lets_its_buttons_be_reached_by_tab_from_none)
{
    EXPECT_EQ(QApplication::focusWidget(), &about());
    QStringList reached;
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        const auto *reachedButton = qobject_cast<QPushButton *>(QApplication::focusWidget());
        ASSERT_NE(reachedButton, nullptr) << i;
        reached.append(reachedButton->text());
    }
    EXPECT_EQ(reached, (QStringList{u"System Information"_s, u"&Update"_s, u"&Website"_s, u"&Contact"_s,
                                    u"System Information"_s}));
}

TEST_F(AboutWindowView, has_no_default_button)
{
    const auto buttons = about().findChildren<QPushButton *>();
    EXPECT_EQ(buttons.size(), 4);
    for (QPushButton *candidate : buttons) {
        EXPECT_FALSE(candidate->isDefault()) << candidate->text().toStdString();
        EXPECT_FALSE(candidate->autoDefault()) << candidate->text().toStdString();
    }
}

class AboutWindowButtons : public AboutWindowView
{
protected:
    void SetUp() override
    {
        AboutWindowView::SetUp();
        const std::pair<const char *, controls::Button *> buttons[]{
            {"System Information", &panel.about.cmdSysinfo},
            {"&Update", &panel.about.cmdUpgrade},
            {"&Website", &panel.about.cmdWebsite},
            {"&Contact", &panel.about.cmdAuthor}};
        for (const auto &[caption, state] : buttons)
            state->Click = [this, name = QLatin1String(caption)] { clicked.append(name); };
    }

    QStringList clicked;
    const QStringList all{u"System Information"_s, u"&Update"_s, u"&Website"_s, u"&Contact"_s};
};

TEST_F(AboutWindowButtons, run_their_click)
{
    for (const QString &caption : all)
        QTest::mouseClick(aboutButton(caption.toLatin1().constData()), Qt::LeftButton);
    EXPECT_EQ(clicked, all);
    EXPECT_FALSE(isClosed());
}

TEST_F(AboutWindowButtons, are_pressed_by_space_and_enter_where_they_have_the_focus)
{
    for (Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        clicked.clear();
        for (const QString &caption : all) {
            aboutButton(caption.toLatin1().constData())->setFocus();
            QTest::keyClick(QApplication::focusWidget(), key);
        }
        EXPECT_EQ(clicked, all) << key;
    }
}

TEST_F(AboutWindowButtons, are_not_pressed_by_enter_at_first)
{
    for (Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter})
        QTest::keyClick(QApplication::focusWidget(), key);
    EXPECT_EQ(clicked, QStringList());
    // Nor is the one that had the focus when the window was closed.
    aboutButton("&Update")->setFocus();
    about().close();
    showAbout();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(clicked, QStringList());
}

TEST_F(AboutWindowButtons, have_access_keys)
{
    for (Qt::Key key : {Qt::Key_U, Qt::Key_W, Qt::Key_C})
        QTest::keyClick(&about(), key, Qt::AltModifier);
    EXPECT_TRUE(waitUntil([this] { return clicked.size() == 3; }));
    EXPECT_EQ(clicked, (QStringList{u"&Update"_s, u"&Website"_s, u"&Contact"_s}));
}

TEST_F(AboutWindowButtons, survive_the_end_of_the_panel)
{
    window().close();
    for (const QString &caption : all)
        aboutButton(caption.toLatin1().constData())->click();
    QTest::mouseClick(heading(), Qt::LeftButton);
    EXPECT_EQ(clicked, QStringList());
}

class AboutWindowFonts : public AboutWindowView
{
protected:
    void TearDown() override { QApplication::setFont(before); }

    void expectThatTextsFit()
    {
        EXPECT_EQ(about().size(), QSize(540, 640));
        QList<QWidget *> texts{heading(), banner(), contact()};
        for (const char *caption : {"System Information", "&Update", "&Website", "&Contact"})
            texts.append(aboutButton(caption));
        for (const QWidget *text : std::as_const(texts)) {
            EXPECT_LE(text->sizeHint().width(), text->width());
            EXPECT_LE(text->sizeHint().height(), text->height());
            EXPECT_TRUE(about().rect().contains(placeOf(text)));
        }
        EXPECT_LT(placeOf(picture()).bottom(), placeOf(aboutButton("&Update")).top());
        // The figure keeps a place above the banner.
        EXPECT_GE(banner()->y(), 120);
    }

    const QFont before = QApplication::font();
};

TEST_F(AboutWindowFonts, of_any_size_let_all_texts_fit)
{
    showContact();
    for (double size : {8.0, 10.0, 13.0, 14.0, 20.0, 8.0}) {
        SCOPED_TRACE(size);
        QFont font = before;
        font.setPointSizeF(size);
        QApplication::setFont(font);
        settle();
        expectThatTextsFit();
        EXPECT_LE(about().font().pointSizeF(), size);
    }
    EXPECT_EQ(about().font().pointSizeF(), 8);
    EXPECT_EQ(aboutButton("&Update")->font().pointSizeF(), 8);
}

TEST_F(AboutWindowFonts, fit_texts_that_come_later)
{
    showContact();
    panel.about.lblHeader.Caption = u"KvWin98 "_s + QString(90, u'x');
    settle();
    expectThatTextsFit();
    panel.about.lblRell.Caption = u"  Email: "_s + QString(60, u'x');
    settle();
    expectThatTextsFit();
}

TEST_F(AboutWindowFonts, fit_contact_details_that_are_still_hidden)
{
    panel.about.lblRell.Caption = u"  Email: "_s + QString(60, u'x');
    const qreal size = about().font().pointSizeF();
    EXPECT_LT(size, before.pointSizeF());
    QApplication::setFont(before);
    panel.about.ContactShown = true;
    panel.about.Height = panel.about.Height + shell::ContactHeight;
    panel.about.lblRell.Visible = true;
    settle();
    expectThatTextsFit();
    EXPECT_EQ(about().font().pointSizeF(), size);
}

namespace {

QPalette palette(const QColor &page, const QColor &text, const QColor &highlight)
{
    QPalette result;
    result.setColor(QPalette::Base, page);
    result.setColor(QPalette::Text, text);
    result.setColor(QPalette::Highlight, highlight);
    return result;
}

/// How many pixels in the upper `part` of the stride differ clearly from the page.
int drawnPixels(const QPalette &colours, const QSize &size, double part = 1)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    views::drawStride(painter, image.rect(), colours);
    painter.end();
    const int page = qGray(colours.color(QPalette::Base).rgb());
    int drawn = 0;
    for (int y = 0; y < image.height() * part; ++y) {
        for (int x = 0; x < image.width(); ++x) {
            EXPECT_NE(image.pixel(x, y), QColor(Qt::magenta).rgb());
            drawn += std::abs(qGray(image.pixel(x, y)) - page) > 80 ? 1 : 0;
        }
    }
    return drawn;
}

} // namespace

TEST(StridePicture, shows_on_light_and_dark_desktops_in_any_size)
{
    const QPalette light = palette(Qt::white, Qt::black, QColor(0x30, 0x8c, 0xc6));
    const QPalette dark =
        palette(QColor(0x1e, 0x1e, 0x20), QColor(0xee, 0xee, 0xee), QColor(0x35, 0x84, 0xe4));
    // Such a highlight could not be told from the page.
    const QPalette pale = palette(Qt::white, Qt::black, QColor(0xf4, 0xf4, 0xff));
    for (const QPalette &colours : {light, dark, pale}) {
        // The heads, which have the highlight's colour.
        EXPECT_GT(drawnPixels(colours, QSize(514, 215), 0.2), 50);
        for (const QSize &size : {QSize(514, 215), QSize(514, 140), QSize(1028, 430), QSize(200, 300)})
            EXPECT_GT(drawnPixels(colours, size), size.width() * size.height() / 300) << size.width();
    }
}

TEST(ApplicationIcon, can_be_told_from_its_background_in_each_size)
{
    const QIcon icon = views::applicationIcon();
    EXPECT_FALSE(icon.isNull());
    QList<int> sizes;
    const auto available = icon.availableSizes();
    for (const QSize &size : available) {
        sizes.append(size.width());
        const QImage image = icon.pixmap(size).toImage();
        ASSERT_EQ(image.size(), size);
        int bright = 0;
        int dark = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor colour = image.pixelColor(x, y);
                bright += colour.alpha() == 255 && colour.lightness() > 200 ? 1 : 0;
                dark += colour.alpha() == 255 && colour.lightness() < 130 ? 1 : 0;
            }
        }
        EXPECT_GT(bright, image.width() * image.height() / 25) << size.width();
        EXPECT_GT(dark, image.width() * image.height() / 2) << size.width();
        EXPECT_LT(image.pixelColor(0, 0).alpha(), 64) << size.width();
    }
    EXPECT_EQ(sizes, (QList<int>{16, 24, 32, 48, 64, 128, 256}));
}

TEST_F(AboutWindowView, draws_the_stride_anew_where_the_banner_takes_more_room)
{
    QWidget *picture = called(u"Stick figure of a walking stride"_s);
    ASSERT_NE(picture, nullptr);
    /// What of the picture is painted.
    class Painted : public QObject
    {
    public:
        bool eventFilter(QObject *, QEvent *event) override
        {
            if (event->type() == QEvent::Paint)
                region += static_cast<QPaintEvent *>(event)->region();
            return false;
        }
        QRegion region;
    } painted;
    picture->installEventFilter(&painted);
    panel.about.lblHeader.Caption = kinovra.HeaderText + u"\n\nmore"_s;
    ASSERT_TRUE(waitUntil([&] { return painted.region.contains(QPoint(5, 5)); }));
}
