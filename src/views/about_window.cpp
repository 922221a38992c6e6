#include "views/about_window.h"

#include "platform/display_text.h"
#include "views/fitted_font.h"
#include "views/frame_line.h"
#include "views/stride_picture.h"
#include "views/twips.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QFrame>
#include <QGuiApplication>
#include <QImageReader>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QScreen>

#include <optional>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr int Escape = 27;
constexpr int Margin = 12;
constexpr int Gap = 8;
constexpr int PhotographWidth = 150;
constexpr int LeastFigureHeight = 140;
constexpr qreal HeadingSize = 1.5; ///< where the other texts have 1

// Where one was built in.
constexpr char16_t PhotographFile[] = u":/about/photograph";

// The banner's lines keep their blanks, but not the empty lines around them.
QString bannerLines(const QString &banner)
{
    QString lines = platform::displayLines(banner);
    while (lines.startsWith(u'\n'))
        lines.remove(0, 1);
    return lines;
}

// Its neighbours stay where they are, and it counts when the font is fitted, while it is hidden.
void keepPlace(QWidget *widget)
{
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}

/// The stride, above what lies at the frame's foot.
class StrideFrame : public QFrame
{
public:
    explicit StrideFrame(QWidget *foot) : foot_(foot)
    {
        setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
        auto *rows = new QVBoxLayout(this);
        rows->setContentsMargins(0, 0, 0, 0);
        rows->setSpacing(0);
        rows->addSpacing(LeastFigureHeight);
        rows->addStretch();
        rows->addWidget(foot);
    }

protected:
    // The stride takes the room that the foot leaves: where that has changed, all of it is drawn anew.
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::LayoutRequest)
            update();
        return QFrame::event(event);
    }

    void paintEvent(QPaintEvent *event) override
    {
        QRect field = contentsRect();
        if (foot_->isVisible())
            field.setBottom(foot_->geometry().top() - 1);
        QPainter painter(this);
        painter.fillRect(contentsRect(), palette().base());
        drawStride(painter, field, palette());
        painter.end();
        QFrame::paintEvent(event);
        drawFrameLine(*this);
    }

private:
    QWidget *foot_;
};

/// The place of the photograph, which is read when it is first shown.
class PhotographPlace : public QWidget
{
protected:
    void paintEvent(QPaintEvent *) override
    {
        const QImage &photograph = image();
        if (photograph.isNull())
            return;
        QRect field(QPoint(), photograph.size().scaled(size(), Qt::KeepAspectRatio));
        field.moveTop((height() - field.height()) / 2);
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(field, scaled(field.size() * devicePixelRatioF()));
    }

private:
    const QImage &image()
    {
        if (!image_) {
            QImageReader reader(QString::fromUtf16(PhotographFile));
            reader.setAutoTransform(true);
            image_ = reader.read();
        }
        return *image_;
    }

    // Painting alone would leave a much larger photograph rough.
    const QImage &scaled(const QSize &size)
    {
        if (scaled_.size() != size)
            scaled_ = image().scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        return scaled_;
    }

    std::optional<QImage> image_;
    QImage scaled_;
};

} // namespace

AboutWindow::AboutWindow(EventRunner &events, QWidget *mainWindow)
    : QDialog(mainWindow)
    , events_(events)
    , about_(events.panel().about)
    , activation_(this, [this] { events_.run(about_.Activate); })
    , aboutPlace_(new QWidget(this))
    , contactPlace_(new QWidget(this))
{
    aboutPlace_->resize(toPixels(about_.Width), toPixels(about_.Height));
    // Below the window's end until the window grows.
    contactPlace_->setGeometry(0, aboutPlace_->height(), aboutPlace_->width(),
                               toPixels(shell::ContactHeight));
    makeAbout();
    makeContact();
    bindTexts();
    bindWindow();
}

AboutWindow::~AboutWindow()
{
    about_.ToFront = nullptr;
}

void AboutWindow::makeAbout()
{
    auto *rows = new QVBoxLayout(aboutPlace_);
    rows->setContentsMargins(Margin, Margin, Margin, Margin);
    rows->setSpacing(Gap);
    heading_ = new QLabel;
    rows->addWidget(heading_);
    bindings_.bind(heading_, about_.lblAbout);
    bindings_.bindClick(heading_, about_.lblAbout.Click, events_);
    banner_ = new QLabel;
    banner_->setTextFormat(Qt::PlainText);
    banner_->setForegroundRole(QPalette::Text);
    banner_->setMargin(Gap);
    auto *picture = new StrideFrame(banner_);
    picture->setAccessibleName(u"Stick figure of a walking stride"_s);
    rows->addWidget(picture, 1);
    bindings_.bind(static_cast<QWidget *>(banner_), about_.lblHeader);
    bindings_.bind(picture, about_.picAbout);
    bindings_.bindClick(picture, about_.picAbout.Click, events_);
    rows->addLayout(makeButtons());
}

QLayout *AboutWindow::makeButtons()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(Gap);
    for (controls::Button *button :
         {&about_.cmdSysinfo, &about_.cmdUpgrade, &about_.cmdWebsite, &about_.cmdAuthor}) {
        auto *widget = new QPushButton;
        // None is the default one: Enter presses the button that has the focus and no other.
        widget->setAutoDefault(false);
        row->addWidget(widget, 1);
        bindings_.bind(widget, *button, events_);
    }
    return row;
}

void AboutWindow::makeContact()
{
    auto *row = new QHBoxLayout(contactPlace_);
    row->setContentsMargins(Margin, 0, Margin, Margin);
    row->setSpacing(Gap);
    auto *photograph = new PhotographPlace;
    photograph->setAccessibleName(u"Photograph"_s);
    photograph->setFixedWidth(PhotographWidth);
    keepPlace(photograph);
    row->addWidget(photograph);
    bindings_.bind(photograph, about_.picRell);
    bindings_.bindClick(photograph, about_.picRell.Click, events_);
    contact_ = new QLabel;
    contact_->setTextFormat(Qt::PlainText);
    keepPlace(contact_);
    row->addWidget(contact_, 1);
    bindings_.bind(static_cast<QWidget *>(contact_), about_.lblRell);
    bindings_.bindClick(contact_, about_.lblRell.Click, events_);
}

void AboutWindow::bindTexts()
{
    const auto showText = [this](QLabel *label, const QString &text) {
        label->setText(text);
        // The layout around would hear of its size too late for the fitting.
        label->parentWidget()->updateGeometry();
        fitFont();
    };
    bindings_.follow(about_.lblHeader.Caption,
                     [this, showText] { showText(banner_, bannerLines(about_.lblHeader.Caption)); });
    bindings_.follow(about_.lblRell.Caption, [this, showText] {
        showText(contact_, platform::displayLines(about_.lblRell.Caption));
    });
}

void AboutWindow::bindWindow()
{
    const auto followSize = [this] { setFixedSize(toPixels(about_.Width), toPixels(about_.Height)); };
    bindings_.follow(about_.Width, followSize);
    bindings_.follow(about_.Height, followSize);
    bindings_.follow(about_.Left, [this] { place(); });
    bindings_.follow(about_.Top, [this] { place(); });
    bindings_.follow(about_.Caption, [this] { setWindowTitle(about_.Caption); });
    bindings_.follow(about_.Visible, [this] { followVisible(); });
    about_.ToFront = [this] { activation_.showAgain(); };
}

void AboutWindow::place()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    const QPoint origin = screen ? screen->geometry().topLeft() : QPoint();
    move(origin + QPoint(toPixels(about_.Left), toPixels(about_.Top)));
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

void AboutWindow::fitFont()
{
    useFittedFont([this](const QFont &font) { useFont(font); }, [this] { return fits(); });
}

void AboutWindow::useFont(const QFont &font)
{
    setFont(font);
    QFont prominent = this->font();
    prominent.setBold(true);
    prominent.setPointSizeF(QFontInfo(prominent).pointSizeF() * HeadingSize);
    heading_->setFont(prominent);
}

bool AboutWindow::fits() const
{
    const auto isLargeEnough = [](const QWidget *place) {
        const QSize needed = place->layout()->totalMinimumSize();
        return needed.width() <= place->width() && needed.height() <= place->height();
    };
    return isLargeEnough(aboutPlace_) && isLargeEnough(contactPlace_);
}

bool AboutWindow::event(QEvent *event)
{
    const bool handled = QDialog::event(event);
    if (event->type() == QEvent::ApplicationFontChange)
        fitFont();
    return handled;
}

void AboutWindow::closeEvent(QCloseEvent *event)
{
    event->ignore();
    events_.run(about_.Unload);
}

void AboutWindow::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        events_.run([this] { about_.KeyPress(Escape); });
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (auto *button = qobject_cast<QPushButton *>(focusWidget()); button && !event->isAutoRepeat())
            button->click();
        break;
    default:
        break;
    }
}

void AboutWindow::showEvent(QShowEvent *event)
{
    if (!event->spontaneous()) {
        // The user may have moved the window when it was shown before.
        place();
        // No button has the focus at first, so that Enter does nothing by surprise.
        setFocus();
    }
    QDialog::showEvent(event);
}

} // namespace views
