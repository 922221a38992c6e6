#include "views/average_dialog.h"

#include "platform/display_text.h"
#include "views/fitted_font.h"
#include "views/read_only_field.h"
#include "views/twips.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

namespace views {

namespace {

constexpr int Margin = 10;
constexpr int Gap = 5;

} // namespace

AverageDialog::AverageDialog(EventRunner &events, QWidget *mainWindow)
    : QDialog(mainWindow)
    , events_(events)
    , frm_(events.panel().newAverage)
    , activation_(this, [this] { events_.run(frm_.Activate); })
    , upper_(makeUpperPart())
    , lower_(makeLowerPart())
{
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(Margin, Margin, Margin, Margin);
    rows->setSpacing(Gap);
    // The window decides on its size; the font is fitted to it.
    rows->setSizeConstraint(QLayout::SetNoConstraint);
    rows->addWidget(upper_);
    rows->addWidget(lower_);
    fitFont();
    bindWindow();
}

AverageDialog::~AverageDialog()
{
    frm_.ToFront = nullptr;
}

QWidget *AverageDialog::makeUpperPart()
{
    auto *part = new QWidget;
    auto *columns = new QHBoxLayout(part);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(Margin * 2);
    auto *left = new QVBoxLayout;
    left->setSpacing(Gap);
    left->addLayout(makeFile());
    left->addStretch();
    left->addLayout(makeBoxes());
    left->addStretch();
    columns->addLayout(left, 1);
    columns->addLayout(makeButtons());
    return part;
}

QLayout *AverageDialog::makeFile()
{
    auto *grid = new QGridLayout;
    grid->setSpacing(Gap);
    auto *caption = new QLabel;
    file_ = new ReadOnlyField;
    bindings_.bind(caption, frm_.lblBinary);
    bindings_.bind(static_cast<QWidget *>(file_), frm_.txtBinary);
    bindings_.follow(frm_.txtBinary.Text,
                     [this] { file_->setText(platform::displayText(frm_.txtBinary.Text)); });
    connect(file_, &ReadOnlyField::clicked, this, [this] { events_.run(frm_.txtBinary.Click); });
    caption->setBuddy(file_);
    auto *listCaption = new QLabel;
    auto *list = new QComboBox;
    bindings_.bind(listCaption, frm_.Label1);
    bindings_.bind(list, frm_.comFilenames);
    listCaption->setBuddy(list);
    grid->addWidget(caption, 0, 0);
    grid->addWidget(file_, 0, 1);
    grid->addWidget(listCaption, 1, 0);
    grid->addWidget(list, 1, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

QLayout *AverageDialog::makeBoxes()
{
    auto *rows = new QVBoxLayout;
    rows->setSpacing(Gap);
    for (controls::CheckBox *box :
         {&frm_.chkAVall, &frm_.chkAVpercentage, &frm_.chkAVtoMass, &frm_.chkAVecho, &frm_.chkAVwait}) {
        auto *widget = new QCheckBox;
        bindings_.bind(widget, *box);
        rows->addWidget(widget);
    }
    return rows;
}

QLayout *AverageDialog::makeButtons()
{
    auto *rows = new QVBoxLayout;
    rows->setSpacing(Gap);
    ok_ = makeButton(frm_.cmdOK);
    rows->addWidget(ok_);
    for (controls::Button *button : {&frm_.cmdDefault, &frm_.cmdHelp, &frm_.cmdCancel})
        rows->addWidget(makeButton(*button));
    rows->addStretch();
    return rows;
}

QWidget *AverageDialog::makeLowerPart()
{
    auto *part = new QWidget;
    auto *columns = new QHBoxLayout(part);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(Margin * 2);
    auto *levels = new QGroupBox;
    bindings_.bind(static_cast<QWidget *>(levels), frm_.fraCI);
    bindings_.follow(frm_.fraCI.Caption, [this, levels] { levels->setTitle(frm_.fraCI.Caption); });
    auto *grid = new QGridLayout(levels);
    grid->setSpacing(Gap);
    constexpr int LevelRows = 3;
    int place = 0;
    for (controls::OptionButton &level : frm_.optCI) {
        auto *widget = new QRadioButton;
        bindings_.bind(widget, level);
        grid->addWidget(widget, place % LevelRows, place / LevelRows);
        ++place;
    }
    auto *right = new QVBoxLayout;
    right->setSpacing(Gap);
    auto *rowWise = new QCheckBox;
    bindings_.bind(rowWise, frm_.chkAVrow);
    right->addStretch();
    right->addWidget(rowWise);
    compute_ = makeButton(frm_.cmdAverage);
    right->addWidget(compute_);
    right->addStretch();
    columns->addWidget(levels, 1);
    columns->addLayout(right);
    return part;
}

QPushButton *AverageDialog::makeButton(controls::Button &button)
{
    auto *widget = new QPushButton;
    bindings_.bind(widget, button, events_);
    return widget;
}

void AverageDialog::bindWindow()
{
    bindings_.follow(frm_.Caption, [this] { setWindowTitle(frm_.Caption); });
    bindings_.follow(frm_.Width, [this] { followSize(); });
    bindings_.follow(frm_.Height, [this] { followSize(); });
    // Enter starts what can be started.
    bindings_.follow(frm_.cmdOK.Enabled, [this] {
        ok_->setDefault(frm_.cmdOK.Enabled);
        compute_->setDefault(!frm_.cmdOK.Enabled);
    });
    bindings_.follow(frm_.Visible, [this] { setVisible(frm_.Visible); });
    frm_.ToFront = [this] { activation_.showAgain(); };
}

// What does not fit into the compact height can be reached by nobody.
void AverageDialog::followSize()
{
    lower_->setVisible(frm_.Height >= shell::FullAverageHeight);
    setFixedSize(toPixels(frm_.Width), toPixels(frm_.Height));
}

void AverageDialog::fitFont()
{
    useFittedFont([this](const QFont &font) { setFont(font); }, [this] { return fits(); });
}

bool AverageDialog::fits() const
{
    // They would hear of the font in their own time, one after the other.
    for (QLayout *layout : findChildren<QLayout *>())
        layout->invalidate();
    const int width = toPixels(frm_.Width) - 2 * Margin;
    const QSize upper = upper_->layout()->totalMinimumSize();
    const QSize lower = lower_->layout()->totalMinimumSize();
    return std::max(upper.width(), lower.width()) <= width
           && upper.height() + 2 * Margin <= toPixels(shell::CompactAverageHeight)
           && upper.height() + lower.height() + Gap + 2 * Margin <= toPixels(shell::FullAverageHeight);
}

bool AverageDialog::event(QEvent *event)
{
    const bool handled = QDialog::event(event);
    if (event->type() == QEvent::ApplicationFontChange)
        fitFont();
    return handled;
}

void AverageDialog::reject()
{
    events_.run(frm_.cmdCancel.Click);
}

// Enter begins what the dialog was opened for, whichever button was pressed last.
void AverageDialog::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        file_->setFocus();
    QDialog::showEvent(event);
}

void AverageDialog::closeEvent(QCloseEvent *event)
{
    event->ignore();
    events_.run(frm_.Unload);
}

} // namespace views
