#include "views/find_bar.h"

#include "views/text_page.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr int Margin = 4;
constexpr qsizetype LongestProposal = 200;
const QString NotFound = u"Not found"_s;

} // namespace

FindBar::FindBar(TextPage *page) : page_(page), wanted_(new QLineEdit), result_(new QLabel)
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(Margin, Margin, Margin, Margin);
    auto *caption = new QLabel(u"Fi&nd:"_s);
    caption->setBuddy(wanted_);
    auto *next = new QPushButton(u"Next"_s);
    auto *previous = new QPushButton(u"Previous"_s);
    auto *closing = new QPushButton(u"Close"_s);
    row->addWidget(caption);
    row->addWidget(wanted_, 1);
    row->addWidget(next);
    row->addWidget(previous);
    row->addWidget(closing);
    row->addWidget(result_);
    for (QPushButton *button : {next, previous, closing})
        button->setAutoDefault(true);
    connect(wanted_, &QLineEdit::textEdited, this,
            [this](const QString &text) { tell(text.isEmpty() || page_->findFromSelection(text)); });
    connect(wanted_, &QLineEdit::returnPressed, this,
            [this] { goOn(QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier)); });
    connect(next, &QPushButton::clicked, this, [this] { goOn(false); });
    connect(previous, &QPushButton::clicked, this, [this] { goOn(true); });
    connect(closing, &QPushButton::clicked, this, &FindBar::close);
    // Its place is kept, so that the buttons stay where they are.
    result_->setMinimumWidth(result_->fontMetrics().horizontalAdvance(NotFound));
    hide();
}

void FindBar::open()
{
    const QString selected = page_->selectedText();
    if (!selected.isEmpty() && selected.size() <= LongestProposal && !selected.contains(u'\n'))
        wanted_->setText(selected);
    forget();
    show();
    wanted_->selectAll();
    wanted_->setFocus();
}

void FindBar::close()
{
    hide();
    page_->setFocus();
}

void FindBar::forget()
{
    tell(true);
}

void FindBar::goOn(bool backwards)
{
    if (wanted_->text().isEmpty()) {
        open();
        return;
    }
    const bool found = page_->find(wanted_->text(), backwards);
    if (!found && isHidden())
        open();
    tell(found);
}

void FindBar::tell(bool found)
{
    result_->setText(found ? QString() : NotFound);
}

} // namespace views
