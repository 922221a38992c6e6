#include "views/text_page.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace views {

namespace {

// What appears at once, and what is added at a time afterwards, in characters.
constexpr qsizetype FirstSlice = 64 * 1024;
constexpr qsizetype Slice = 512 * 1024;

} // namespace

TextPage::TextPage(QWidget *parent) : QPlainTextEdit(parent), filling_(new QTimer(this))
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setLineWrapMode(NoWrap);
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    filling_->callOnTimeout(this, [this] { fill(Slice); });
}

void TextPage::showText(const QString &text)
{
    filling_->stop();
    clear();
    lines_ = BrokenLines(text);
    filled_ = 0;
    fill(FirstSlice);
    moveCursor(QTextCursor::Start);
    if (filled_ < lines_.broken().size())
        filling_->start(0);
}

void TextPage::fill(qsizetype most)
{
    const QString &text = lines_.broken();
    qsizetype end = std::min(filled_ + most, text.size());
    if (end < text.size() && text.at(end).isLowSurrogate())
        ++end;
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    cursor.insertText(text.mid(filled_, end - filled_));
    filled_ = end;
    if (filled_ == text.size())
        filling_->stop();
}

void TextPage::fillAll()
{
    if (filled_ < lines_.broken().size())
        fill(lines_.broken().size());
}

bool TextPage::select(qsizetype from, qsizetype length)
{
    if (from < 0)
        return false;
    fillAll();
    QTextCursor cursor = textCursor();
    cursor.setPosition(static_cast<int>(lines_.toBroken(from)));
    cursor.setPosition(static_cast<int>(lines_.toBroken(from + length)), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    ensureCursorVisible();
    return true;
}

bool TextPage::find(const QString &wanted, bool backwards)
{
    if (wanted.isEmpty())
        return false;
    const QString &text = lines_.text();
    const qsizetype start = lines_.toText(textCursor().selectionStart());
    const qsizetype end = lines_.toText(textCursor().selectionEnd());
    qsizetype found = -1;
    if (!backwards) {
        found = text.indexOf(wanted, end, Qt::CaseInsensitive);
        if (found < 0)
            found = text.indexOf(wanted, 0, Qt::CaseInsensitive);
    } else {
        found = start > 0 ? text.lastIndexOf(wanted, start - 1, Qt::CaseInsensitive) : -1;
        if (found < 0)
            found = text.lastIndexOf(wanted, -1, Qt::CaseInsensitive);
    }
    return select(found, wanted.size());
}

bool TextPage::findFromSelection(const QString &wanted)
{
    QTextCursor cursor = textCursor();
    cursor.setPosition(cursor.selectionStart());
    setTextCursor(cursor);
    return find(wanted, false);
}

QString TextPage::selectedText() const
{
    const QTextCursor cursor = textCursor();
    const qsizetype start = lines_.toText(cursor.selectionStart());
    return lines_.text().mid(start, lines_.toText(cursor.selectionEnd()) - start);
}

QMimeData *TextPage::createMimeDataFromSelection() const
{
    auto *selection = new QMimeData;
    selection->setText(selectedText());
    return selection;
}

// What is meant of the whole text needs it.
void TextPage::keyPressEvent(QKeyEvent *event)
{
    if (event == QKeySequence::SelectAll || event == QKeySequence::MoveToEndOfDocument
        || event == QKeySequence::SelectEndOfDocument)
        fillAll();
    QPlainTextEdit::keyPressEvent(event);
}

void TextPage::contextMenuEvent(QContextMenuEvent *event)
{
    fillAll();
    QPlainTextEdit::contextMenuEvent(event);
}

} // namespace views
