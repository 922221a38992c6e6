#include "views/text_viewer_window.h"

#include "platform/display_text.h"
#include "views/find_bar.h"
#include "views/menus.h"
#include "views/plain_text.h"
#include "views/text_page.h"
#include "views/twips.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace views {

namespace {

// What the window has over its text box, in logical pixels.
constexpr int WidthBesideText = 10;
constexpr int HeightBesideText = 50;

std::vector<MenuLine> menuLines(shell::frmViewer &frm)
{
    std::vector<MenuLine> lines{{0, &frm.mnuFile}, {1, &frm.mnuOpen}, {1, &frm.mnuExit}, {0, &frm.mnuColour}};
    for (controls::MenuItem &item : frm.mnuColours)
        lines.push_back({1, &item});
    lines.push_back({0, &frm.mnuFonts});
    for (controls::MenuItem &item : frm.mnuFontSizesItem)
        lines.push_back({1, &item});
    return lines;
}

} // namespace

TextViewerWindow::TextViewerWindow(EventRunner &events)
    : events_(events)
    , frm_(events.panel().viewer)
    , activation_(this, [this] { events_.run(frm_.Activate); })
    , area_(new QWidget)
    , textBox_(new QWidget(area_))
    , page_(new TextPage)
    , findBar_(new FindBar(page_))
{
    auto *rows = new QVBoxLayout(textBox_);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(page_, 1);
    rows->addWidget(findBar_);
    page_->setAccessibleName(u"Text"_s);
    area_->installEventFilter(this);
    setCentralWidget(area_);
    makeMenus();
    makeKeys();
    bindText();
    bindWindow();
}

TextViewerWindow::~TextViewerWindow()
{
    frm_.ToFront = nullptr;
}

void TextViewerWindow::makeMenus()
{
    setMenuBar(new QMenuBar);
    menuBar()->setNativeMenuBar(false);
    new Menus(menuBar(), events_, menuLines(frm_));
}

void TextViewerWindow::makeKeys()
{
    const auto onKey = [this](const QKeySequence &key, const std::function<void()> &action) {
        auto *shortcut = new QShortcut(key, this);
        connect(shortcut, &QShortcut::activated, this, action);
        return shortcut;
    };
    onKey(Qt::CTRL | Qt::Key_F, [this] { findBar_->open(); });
    onKey(Qt::Key_F3, [this] { findBar_->goOn(false); });
    onKey(Qt::SHIFT | Qt::Key_F3, [this] { findBar_->goOn(true); });
    // Held too long for the find bar, it must not close the window as well.
    onKey(Qt::Key_Escape, [this] {
        if (findBar_->isVisible())
            findBar_->close();
        else
            events_.run(frm_.mnuExit.Click);
    })->setAutoRepeat(false);
}

void TextViewerWindow::bindText()
{
    auto &text = frm_.txtViewer;
    bindings_.follow(text.Text, [this, &text] {
        page_->showText(text.Text);
        findBar_->forget();
    });
    bindings_.follow(text.FontSize, [this] { useFont(); });
    bindings_.follow(text.FontBold, [this] { useFont(); });
    bindings_.follow(text.BackColor, [this] { useColours(); });
    bindings_.follow(text.ForeColor, [this] { useColours(); });
    const auto place = [this, &text] {
        textBox_->setGeometry(0, toPixels(text.Top), toPixels(text.Width), toPixels(text.Height));
    };
    for (QProperty<int> *value : {&text.Top, &text.Width, &text.Height})
        bindings_.follow(*value, place);
}

void TextViewerWindow::bindWindow()
{
    bindings_.follow(frm_.Caption,
                     [this] { setWindowTitle(plainTitle(platform::displayText(frm_.Caption))); });
    const auto place = [this] {
        const QScreen *screen = QGuiApplication::primaryScreen();
        const QPoint origin = screen ? screen->geometry().topLeft() : QPoint();
        move(origin + QPoint(toPixels(frm_.Left), toPixels(frm_.Top)));
    };
    bindings_.follow(frm_.Left, place);
    bindings_.follow(frm_.Top, place);
    bindings_.follow(frm_.Width, [this] { followSize(); });
    bindings_.follow(frm_.Height, [this] { followSize(); });
    bindings_.follow(frm_.Visible, [this] {
        // The next text begins without what was looked for in this one.
        if (frm_.Visible)
            page_->setFocus();
        else
            findBar_->close();
        setVisible(frm_.Visible);
    });
    frm_.ToFront = [this] { activation_.showAgain(); };
}

void TextViewerWindow::followSize()
{
    const QSize size(toPixels(frm_.Width) - WidthBesideText,
                     toPixels(frm_.Height) - HeightBesideText + menuBar()->sizeHint().height());
    const QScopedValueRollback placing(placing_, true);
    if (size != this->size())
        resize(size);
}

void TextViewerWindow::useFont()
{
    QFont font(u"Courier New"_s, frm_.txtViewer.FontSize);
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    font.setBold(frm_.txtViewer.FontBold);
    page_->useFont(font);
}

void TextViewerWindow::useColours()
{
    QPalette palette = page_->palette();
    palette.setColor(QPalette::Base, QColor::fromRgb(frm_.txtViewer.BackColor));
    palette.setColor(QPalette::Text, QColor::fromRgb(frm_.txtViewer.ForeColor));
    page_->setPalette(palette);
}

void TextViewerWindow::tellSize()
{
    if (!placing_) {
        frm_.Width = toTwips(area_->width() + WidthBesideText);
        frm_.Height = toTwips(area_->height() + HeightBesideText);
    }
    events_.run(frm_.Resize);
}

bool TextViewerWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == area_ && event->type() == QEvent::Resize)
        tellSize();
    return QMainWindow::eventFilter(watched, event);
}

void TextViewerWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) {
        frm_.Minimized = isMinimized();
        tellSize();
    }
}

void TextViewerWindow::closeEvent(QCloseEvent *event)
{
    event->ignore();
    events_.run(frm_.Unload);
}

} // namespace views
