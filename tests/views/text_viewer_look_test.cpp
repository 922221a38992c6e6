#include "view_fixture.h"
#include "views/text_page.h"

#include <QTest>
#include <QWindow>

using namespace Qt::StringLiterals;

class TextViewerLook : public support::ViewFixture
{
protected:
    void SetUp() override { show(); }

    void showFile(const QString &file)
    {
        addFile(file, "one\n");
        kinovra.ViewerFile = file;
        viewer.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&reader()));
        settle();
    }

    views::TextViewerWindow &reader() const { return *windows->textViewer(); }
};

TEST_F(TextViewerLook, is_that_of_a_typewriter)
{
    showFile(u"C:\\DATA\\a.txt"_s);
    const QFont font = reader().findChild<views::TextPage *>()->font();
    EXPECT_EQ(font.family(), u"Courier New"_s);
    EXPECT_EQ(font.pointSize(), 10);
    EXPECT_FALSE(font.bold());
}

TEST_F(TextViewerLook, puts_the_window_into_the_middle_of_the_screen)
{
    // In twips, 15 to a pixel; the window is widened only when it has its place.
    panel.screen.Width = 24000;
    panel.screen.Height = 15000;
    viewer.Width = 9000;
    viewer.Height = 7500;
    showFile(u"C:\\DATA\\a.txt"_s);
    EXPECT_EQ(reader().pos(), QPoint(500, 250));
    EXPECT_EQ(viewer.Width.value(), 10500);
}

TEST_F(TextViewerLook, keeps_every_character_of_a_files_name_in_the_title)
{
    showFile(u"C:\\DATA\\walk[*].txt"_s);
    EXPECT_EQ(reader().windowHandle()->title(), u"Text Viewer: C:\\DATA\\walk[*].txt"_s);
}
