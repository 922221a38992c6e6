#include "views/about_window.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace views {

namespace {

constexpr int Escape = 27;
constexpr int Margin = 24;

// The banner's lines keep their blanks, but not the empty lines around them.
QString bannerLines(QString banner)
{
    banner.remove(u'\r');
    while (banner.startsWith(u'\n'))
        banner.remove(0, 1);
    return banner;
}

} // namespace

AboutWindow::AboutWindow(EventRunner &events, QWidget *mainWindow)
    : QDialog(mainWindow)
    , events_(events)
    , about_(events.panel().about)
    , activation_(this, [this] { events_.run(about_.Activate); })
{
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(Margin, Margin, Margin, Margin);
    auto *header = new QLabel;
    header->setTextFormat(Qt::PlainText);
    rows->addWidget(header);
    bindings_.follow(about_.lblHeader.Caption,
                     [this, header] { header->setText(bannerLines(about_.lblHeader.Caption)); });
    bindings_.follow(about_.Caption, [this] { setWindowTitle(about_.Caption); });
    bindings_.follow(about_.Visible, [this] { followVisible(); });
    about_.ToFront = [this] { activation_.showAgain(); };
}

// It appears after the main window where both are shown at once, so that it lies above it.
void AboutWindow::followVisible()
{
    if (!about_.Visible)
        hide();
    else
        QMetaObject::invokeMethod(
            this, [this] { setVisible(about_.Visible); }, Qt::QueuedConnection);
}

void AboutWindow::showEvent(QShowEvent *event)
{
    adjustSize();
    QDialog::showEvent(event);
}

void AboutWindow::closeEvent(QCloseEvent *event)
{
    event->ignore();
    events_.run(about_.Unload);
}

void AboutWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        events_.run([this] { about_.KeyPress(Escape); });
}

void AboutWindow::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        events_.run(about_.picAbout.Click);
}

} // namespace views
