#include "view_fixture.h"
#include "views/chosen_frame.h"
#include "views/classic_list.h"

#include <QPainter>

#include <cmath>

using namespace Qt::StringLiterals;

class FrameLines : public support::ViewFixture
{
protected:
    void SetUp() override
    {
        addData({"walk1.dg", "one.cfb", "two.cfb"});
        show();
    }

    QImage pictureAt(double scale) const
    {
        QImage picture(window().size() * scale, QImage::Format_RGB32);
        picture.setDevicePixelRatio(scale);
        window().render(&picture);
        return picture;
    }

    // Whether one of the three pixels across an edge has neither the colour of the window
    // nor that of a list.
    bool isDrawn(const QImage &picture, QPointF middle, QPoint across) const
    {
        const QPoint edge(static_cast<int>(std::lround(middle.x())),
                          static_cast<int>(std::lround(middle.y())));
        for (int i = -1; i <= 1; ++i) {
            const QColor colour = picture.pixelColor(edge + i * across);
            if (colour != window().palette().color(QPalette::Window)
                && colour != window().palette().color(QPalette::Base))
                return true;
        }
        return false;
    }

    // The sides of `framed` that are drawn.
    QStringList sides(const QWidget *framed, const QImage &picture) const
    {
        const double scale = picture.devicePixelRatio();
        const QRectF at(QPointF(framed->mapTo(&window(), QPoint())) * scale, QSizeF(framed->size()) * scale);
        QStringList drawn;
        if (isDrawn(picture, {at.center().x(), at.top()}, {0, 1}))
            drawn += u"top"_s;
        if (isDrawn(picture, {at.center().x(), at.bottom() - 1}, {0, 1}))
            drawn += u"bottom"_s;
        if (isDrawn(picture, {at.left(), at.center().y()}, {1, 0}))
            drawn += u"left"_s;
        if (isDrawn(picture, {at.right() - 1, at.center().y()}, {1, 0}))
            drawn += u"right"_s;
        return drawn;
    }
};

TEST_F(FrameLines, are_whole_at_every_scale_and_place)
{
    QWidgetList framed{window().findChild<views::ChosenFrame *>()};
    for (views::ClassicList *list : window().findChildren<views::ClassicList *>())
        framed.append(list);
    const QStringList all{u"top"_s, u"bottom"_s, u"left"_s, u"right"_s};
    int seen = 0;
    for (double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        const QImage picture = pictureAt(scale);
        for (const QWidget *widget : framed) {
            if (!widget->isVisible())
                continue;
            ++seen;
            EXPECT_EQ(sides(widget, picture), all)
                << scale << " " << widget->accessibleName().toStdString() << widget->y();
        }
    }
    // Five lists of files, that of directories and what is chosen.
    EXPECT_EQ(seen, 7 * 5);
}

TEST_F(FrameLines, have_the_colour_of_the_selection_where_the_keyboard_is)
{
    const QColor blue(0x10, 0x20, 0xC0);
    auto *list = window().findChildren<views::ClassicList *>().value(1);
    QPalette palette = list->palette();
    palette.setColor(QPalette::Highlight, blue);
    list->setPalette(palette);
    list->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(list->grab().toImage().pixelColor(0, list->height() / 2), blue);
    list->clearFocus();
    EXPECT_NE(list->grab().toImage().pixelColor(0, list->height() / 2), blue);
}
