#include "views/main_window.h"

#include "platform/display_text.h"
#include "shell/menu_tree.h"
#include "views/captions.h"
#include "views/chosen_frame.h"
#include "views/directory_list_view.h"
#include "views/drive_box.h"
#include "views/elided_label.h"
#include "views/file_drops.h"
#include "views/file_list_view.h"
#include "views/fitted_font.h"
#include "views/key_preview.h"
#include "views/main_window_spacing.h"
#include "views/menus.h"
#include "views/shared_place.h"
#include "views/twips.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStatusBar>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr int DirectoryColumn = 170;
/// In twips.
constexpr int UsualHeight = 9000;
/// What a desktop puts around a window, in pixels.
constexpr int TitleHeight = 40;
/// A click that brings the window back aims at what it showed before; what has changed follows after it.
constexpr std::chrono::milliseconds AimsAtOldPicture{300};

// Of the window at first, in twips: a small screen leaves no room for its usual height below the title.
int firstHeight()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    const int room = screen ? toTwips(screen->availableSize().height() - TitleHeight) : UsualHeight;
    return std::clamp(room, shell::MainWindowLeastHeight, UsualHeight);
}

ElidedLabel *makeValue(Qt::TextElideMode mode)
{
    return new ElidedLabel(mode);
}

std::vector<MenuLine> menuLines(shell::frmKinovra &frm)
{
    std::vector<MenuLine> lines;
    for (const shell::MenuRow &row : shell::menuTree())
        lines.push_back({row.depth, row.isSeparator() ? nullptr : &row.item(frm)});
    return lines;
}

} // namespace

MainWindow::MainWindow(EventRunner &events, platform::HostPaths &paths)
    : events_(events), frm_(events.panel().frm), activation_(this, [this] { activated(); })
{
    returned_.setSingleShot(true);
    returned_.setInterval(AimsAtOldPicture);
    returned_.callOnTimeout(this, [this] { events_.run(frm_.Returned); });
    setMenuBar(new QMenuBar);
    // The desktop's own bar could not close its menus before a question and open them again.
    menuBar()->setNativeMenuBar(false);
    menus_ = new Menus(menuBar(), events_, menuLines(frm_));
    setCentralWidget(makeCentre());
    makeStatusBar();
    leaveAccessKeysToMenus();
    new KeyPreview(this, events_);
    new FileDrops(this, events_, paths);
    fitFont();
    bindWindow();
    datafiles_->setFocus();
}

void MainWindow::load()
{
    activation_.beginLoading();
    events_.run(frm_.Load);
    activation_.endLoading();
}

QWidget *MainWindow::makeCentre()
{
    auto *centre = new QWidget;
    auto *rows = new QVBoxLayout(centre);
    rows->setContentsMargins(Margin, Gap, Margin, Gap);
    rows->setSpacing(Gap);
    rows->addLayout(makeWhereAmI());
    rows->addLayout(makeBrowser());
    rows->addStretch();
    rows->addWidget(new ChosenFrame(frm_));
    rows->addStretch();
    rows->addLayout(makeButtons());
    // The window decides on its size; the font is fitted to it.
    rows->setSizeConstraint(QLayout::SetNoConstraint);
    return centre;
}

QLayout *MainWindow::makeWhereAmI()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(Gap * 2);
    auto *drives = new DriveBox(frm_.drvDrives, events_);
    drives->setAccessibleName(u"Drive"_s);
    drives->setFixedWidth(DirectoryColumn);
    auto *path = makeValue(Qt::ElideMiddle);
    bindings_.bind(path, frm_.lblPath);
    row->addWidget(drives);
    row->addWidget(makeCaption(u"Current path:"_s, path));
    row->addWidget(path, 1);
    return row;
}

QLayout *MainWindow::makeBrowser()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(Gap * 2);
    auto *directories = new DirectoryListView(frm_.dirSelect, events_);
    directories->setAccessibleName(u"Directory"_s);
    directories->setFixedWidth(DirectoryColumn);
    row->addWidget(directories);

    auto *lists = new QGridLayout;
    lists->setHorizontalSpacing(Gap * 2);
    lists->setVerticalSpacing(0);
    const auto makeList = [this](controls::FileList &list, FileListManners manners = {}) {
        return new FileListView(list, events_, manners);
    };
    datafiles_ = makeList(frm_.filDatafiles);
    addList(lists, 0, 0, datafiles_, frm_.lblDatafiles);
    addList(lists, 0, 1, makeList(frm_.filModels), frm_.lblModels);
    addList(lists, 0, 2, makeList(frm_.filBinaries, {.blankClears = true}), frm_.lblBinaries);
    addList(lists, 3, 0, makeList(frm_.filOutputs), frm_.lblOutputs);
    addList(lists, 3, 1, makeList(frm_.filPlots), frm_.lblPlots);
    lists->addWidget(makeGraphPlace(), 3, 2, 2, 1);
    lists->setRowMinimumHeight(2, Gap);
    for (int column = 0; column < 3; ++column)
        lists->setColumnStretch(column, 1);
    lists->setRowStretch(1, 1);
    lists->setRowStretch(4, 1);
    row->addLayout(lists, 1);
    return row;
}

void MainWindow::addList(QGridLayout *grid, int row, int column, FileListView *view, controls::Label &caption)
{
    auto *label = new QLabel;
    bindings_.bind(label, caption);
    view->setAccessibleName(spoken(caption.Caption));
    grid->addWidget(label, row, column);
    grid->addWidget(view, row + 1, column);
}

QWidget *MainWindow::makeGraphPlace()
{
    auto *place = new SharedPlace;
    auto *rows = new QVBoxLayout(place);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    auto *label = new QLabel;
    bindings_.bind(label, frm_.lblGraFiles);
    auto *types = new FileListView(frm_.filGraFiles, events_, {.choosing = true});
    types->setAccessibleName(spoken(frm_.lblGraFiles.Caption));
    rows->addWidget(label);
    rows->addWidget(types, 1);
    place->share(types);
    rows->addStretch();
    for (controls::Button *button : {&frm_.cmdSelectGra, &frm_.cmdGraph, &frm_.cmdEditGra}) {
        QPushButton *widget = makeButton(*button);
        rows->addWidget(widget);
        rows->addSpacing(Gap);
        place->share(widget);
    }
    rows->addStretch();
    return place;
}

QLayout *MainWindow::makeButtons()
{
    auto *grid = new QGridLayout;
    grid->setSpacing(Gap);
    const QList<controls::Button *> order{&frm_.cmdRefresh, &frm_.cmdEditor, &frm_.cmdForces, &frm_.cmdSkelvo,
                                          &frm_.cmdOndex,   &frm_.cmdGuide,  &frm_.cmdManual, &frm_.cmdExit};
    constexpr int Columns = 4;
    for (int i = 0; i < order.size(); ++i)
        grid->addWidget(makeButton(*order[i]), i / Columns, i % Columns);
    for (int column = 0; column < Columns; ++column)
        grid->setColumnStretch(column, 1);
    return grid;
}

QPushButton *MainWindow::makeButton(controls::Button &button)
{
    auto *widget = new QPushButton;
    widget->setAutoDefault(true);
    bindings_.bind(widget, button, events_);
    widget->setAccessibleName(spoken(button.Caption));
    buttons_.append(widget);
    return widget;
}

void MainWindow::makeStatusBar()
{
    auto *voice = makeValue(Qt::ElideRight);
    auto *version = new QLabel;
    version->setTextFormat(Qt::PlainText);
    auto &bar = frm_.StatusBar1;
    statusBar()->addWidget(voice, 1);
    statusBar()->addPermanentWidget(version);
    bindings_.follow(bar.Panel1, [voice, &bar] { voice->setText(platform::displayText(bar.Panel1)); });
    bindings_.follow(bar.Panel2, [version, &bar] { version->setText(platform::displayText(bar.Panel2)); });
}

// Where a menu and a button share an access key, the menu wins.
void MainWindow::leaveAccessKeysToMenus()
{
    for (QPushButton *button : std::as_const(buttons_)) {
        const QKeySequence key = button->shortcut();
        if (!key.isEmpty() && menus_->accessKeys().contains(QChar(key[0].key())))
            button->setShortcut(QKeySequence());
    }
}

void MainWindow::bindWindow()
{
    setFixedWidth(toPixels(shell::MainWindowWidth));
    setMinimumHeight(toPixels(shell::MainWindowLeastHeight));
    frm_.Height = firstHeight();
    resize(width(), toPixels(frm_.Height));
    frm_.hWnd = static_cast<qint64>(winId());

    bindings_.follow(frm_.Caption, [this] { setWindowTitle(frm_.Caption); });
    const auto place = [this] {
        const QScreen *screen = QGuiApplication::primaryScreen();
        const QPoint origin = screen ? screen->geometry().topLeft() : QPoint();
        move(origin + QPoint(toPixels(frm_.Left), toPixels(frm_.Top)));
    };
    bindings_.follow(frm_.Left, place);
    bindings_.follow(frm_.Top, place);
    bindings_.follow(frm_.Height, [this] {
        const QScopedValueRollback placing(placing_, true);
        if (height() != toPixels(frm_.Height))
            resize(width(), toPixels(frm_.Height));
    });
    bindings_.follow(frm_.Visible, [this] { setVisible(frm_.Visible); });
}

void MainWindow::fitFont()
{
    useFittedFont([this](const QFont &font) { useFont(font); }, [this] { return fits(); });
}

void MainWindow::useFont(const QFont &font)
{
    setFont(font);
    menuBar()->setFont(font);
    statusBar()->setFont(font);
}

bool MainWindow::fits() const
{
    const int width = toPixels(shell::MainWindowWidth);
    const int height = toPixels(shell::MainWindowLeastHeight);
    const int directories = toPixels(shell::MainWindowLeastHeight - shell::HeightBesideDirectoryList);
    QSize centre = centralWidget()->layout()->totalMinimumSize();
    centre.setHeight(std::max(centre.height(), 0) - toPixels(frm_.dirSelect.Height) + directories);
    const bool buttonsFit = std::all_of(buttons_.begin(), buttons_.end(), [](const QPushButton *button) {
        return button->sizeHint().width() <= (toPixels(shell::MainWindowWidth) - 2 * Margin - 3 * Gap) / 4;
    });
    return buttonsFit && centre.width() <= width && menuBar()->sizeHint().width() <= width
           && centre.height() + menuBar()->sizeHint().height() + statusBar()->sizeHint().height() <= height;
}

bool MainWindow::event(QEvent *event)
{
    const bool handled = QMainWindow::event(event);
    if (event->type() == QEvent::ApplicationFontChange)
        fitFont();
    return handled;
}

void MainWindow::activated()
{
    events_.run(frm_.Activate);
    if (std::exchange(wasActive_, true))
        returned_.start();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->ignore();
    events_.run(frm_.Unload);
}

void MainWindow::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QPoint position = centralWidget()->mapFrom(this, event->position().toPoint());
    const bool isBackground =
        centralWidget()->rect().contains(position) && !centralWidget()->childAt(position);
    if (event->button() == Qt::LeftButton && isBackground)
        events_.run(frm_.DblClick);
}

void MainWindow::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    if (!placing_)
        frm_.Height = toTwips(height());
    events_.run(frm_.Resize);
}

} // namespace views
