#include "views/chosen_frame.h"

#include "platform/display_text.h"
#include "views/captions.h"
#include "views/copyable_text.h"
#include "views/elided_label.h"
#include "views/frame_line.h"
#include "views/main_window_spacing.h"

#include <QGridLayout>

using namespace Qt::StringLiterals;

namespace views {

ChosenFrame::ChosenFrame(shell::frmKinovra &frm)
{
    setFrameStyle(QFrame::StyledPanel);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(Margin, Gap, Margin, Gap);
    grid->setHorizontalSpacing(Gap * 2);
    grid->setVerticalSpacing(2);
    QWidget *trial = addValue(grid, 0, 0, u"Current trial:"_s, frm.lblTrial);
    QFont prominent = trial->font();
    prominent.setBold(true);
    trial->setFont(prominent);
    addValue(grid, 1, 0, u"Title:"_s, frm.lblTitle);
    addCommand(grid, 2, 0, frm.lblCommand);
    addValue(grid, 0, 2, u"GRA(ph) file:"_s, frm.lblGraphics[0]);
    addValue(grid, 1, 2, u"Listing to:"_s, frm.lblOutput);
    addValue(grid, 2, 2, u"Graphics to:"_s, frm.lblGraphics[1]);
    grid->setColumnStretch(1, 3);
    grid->setColumnStretch(3, 1);
}

void ChosenFrame::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    drawFrameLine(*this);
}

QWidget *ChosenFrame::addValue(QGridLayout *grid, int row, int column, const QString &caption,
                               controls::Label &value)
{
    auto *widget = new ElidedLabel(Qt::ElideRight);
    bindings_.bind(widget, value);
    grid->addWidget(makeCaption(caption, widget), row, column);
    grid->addWidget(widget, row, column + 1);
    return widget;
}

// Users paste the command line into a terminal or a report.
void ChosenFrame::addCommand(QGridLayout *grid, int row, int column, controls::Label &command)
{
    auto *widget = new CopyableText;
    widget->setAccessibleName(u"Command line"_s);
    bindings_.bind(static_cast<QWidget *>(widget), command);
    bindings_.follow(command.Caption,
                     [widget, &command] { widget->show(platform::displayText(command.Caption)); });
    grid->addWidget(makeCaption(u"Command line:"_s, widget), row, column);
    grid->addWidget(widget, row, column + 1);
}

} // namespace views
