#include "views/text_page.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QTextBlock>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace views {

namespace {

// What appears at once, and what is added at a time afterwards, in characters.
constexpr qsizetype FirstSlice = 65'536;
constexpr qsizetype Slice = 262'144;

// The widget spends its time on blocks, whatever they hold. A block takes several lines.
constexpr qsizetype LargestBlock = 4096;

constexpr int TabColumns = 8;

// Makes all line ends in `piece` but those that end a block into line separators.
void joinLines(QString &piece)
{
    qsizetype blockStart = 0;
    for (qsizetype end = piece.indexOf(u'\n'); end >= 0; end = piece.indexOf(u'\n', end + 1)) {
        if (end - blockStart < LargestBlock)
            piece[end] = QChar::LineSeparator;
        else
            blockStart = end + 1;
    }
}

} // namespace

TextPage::TextPage(QWidget *parent) : QPlainTextEdit(parent), filling_(new QTimer(this))
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setLineWrapMode(NoWrap);
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    // Columns stay where they are, whatever is written in them.
    QTextOption option = document()->defaultTextOption();
    option.setTextDirection(Qt::LeftToRight);
    document()->setDefaultTextOption(option);
    filling_->callOnTimeout(this, [this] { fill(Slice); });
}

void TextPage::useFont(const QFont &font)
{
    setFont(font);
    setTabStopDistance(TabColumns * QFontMetricsF(font).horizontalAdvance(u' '));
    countLines();
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
    fillTo(std::min(filled_ + most, lines_.broken().size()));
}

// Whole lines, so that each block begins with one.
void TextPage::fillTo(qsizetype end)
{
    const QString &text = lines_.broken();
    if (end <= filled_)
        return;
    const qsizetype lineEnd = text.indexOf(u'\n', end - 1);
    const qsizetype next = lineEnd < 0 ? text.size() : lineEnd + 1;
    insertAtEnd(text.mid(filled_, next - filled_));
    filled_ = next;
    if (filled_ == text.size())
        filling_->stop();
}

void TextPage::insertAtEnd(QString piece)
{
    joinLines(piece);
    // The end of the piece is the beginning of the next one's block.
    if (filled_ + piece.size() < lines_.broken().size())
        piece.back() = u'\n';
    const QTextCursor before = textCursor();
    const int anchor = before.anchor();
    const int position = before.position();
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    QTextBlock block = cursor.block();
    cursor.insertText(piece);
    // What stands at the end must not be taken along.
    if (textCursor().position() != position || textCursor().anchor() != anchor) {
        QTextCursor kept = textCursor();
        kept.setPosition(anchor);
        kept.setPosition(position, QTextCursor::KeepAnchor);
        setTextCursor(kept);
    }
    for (; block.isValid(); block = block.next())
        block.setUserState(static_cast<int>(block.text().count(QChar::LineSeparator)) + 1);
    countLines();
}

// The widget counts the lines of a block when it is seen, and forgets them when it is resized; the scroll bar
// needs them all.
void TextPage::countLines()
{
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
        block.setLineCount(std::max(block.userState(), 1));
    auto *layout = document()->documentLayout();
    Q_EMIT layout->documentSizeChanged(layout->documentSize());
}

void TextPage::resizeEvent(QResizeEvent *event)
{
    QPlainTextEdit::resizeEvent(event);
    countLines();
}

void TextPage::select(qsizetype from, qsizetype length)
{
    const qsizetype end = lines_.toBroken(from + length);
    fillTo(end);
    QTextCursor cursor = textCursor();
    cursor.setPosition(static_cast<int>(lines_.toBroken(from)));
    cursor.setPosition(static_cast<int>(end), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    ensureCursorVisible();
}

bool TextPage::find(const QString &wanted, bool backwards)
{
    if (wanted.isEmpty())
        return false;
    const QStringView text(lines_.text());
    const qsizetype start = lines_.toText(textCursor().selectionStart());
    const qsizetype end = lines_.toText(textCursor().selectionEnd());
    const qsizetype size = wanted.size();
    qsizetype found = -1;
    if (backwards) {
        found = text.left(start).lastIndexOf(wanted, -1, Qt::CaseInsensitive);
        if (found < 0)
            found = text.lastIndexOf(wanted, -1, Qt::CaseInsensitive);
    } else {
        found = text.indexOf(wanted, end, Qt::CaseInsensitive);
        if (found < 0)
            found = text.left(std::min(end + size - 1, text.size())).indexOf(wanted, 0, Qt::CaseInsensitive);
    }
    if (found < 0)
        return false;
    select(found, size);
    return true;
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
    if (event->matches(QKeySequence::SelectAll) || event->matches(QKeySequence::MoveToEndOfDocument)
        || event->matches(QKeySequence::SelectEndOfDocument))
        fillTo(lines_.broken().size());
    QPlainTextEdit::keyPressEvent(event);
}

void TextPage::contextMenuEvent(QContextMenuEvent *event)
{
    fillTo(lines_.broken().size());
    QPlainTextEdit::contextMenuEvent(event);
}

void TextPage::mouseDoubleClickEvent(QMouseEvent *event)
{
    QPlainTextEdit::mouseDoubleClickEvent(event);
    sinceDoubleClick_.start();
    doubleClickedAt_ = event->position().toPoint();
}

// The third click selects a line; the widget would take its whole block.
void TextPage::mousePressEvent(QMouseEvent *event)
{
    QPlainTextEdit::mousePressEvent(event);
    const QPoint position = event->position().toPoint();
    const bool isThirdClick =
        event->button() == Qt::LeftButton && sinceDoubleClick_.isValid()
        && !sinceDoubleClick_.hasExpired(QApplication::doubleClickInterval())
        && (position - doubleClickedAt_).manhattanLength() < QApplication::startDragDistance();
    sinceDoubleClick_.invalidate();
    if (isThirdClick)
        selectLineAt(position);
}

void TextPage::selectLineAt(const QPoint &position)
{
    const QString &text = lines_.broken();
    const qsizetype at = cursorForPosition(position).position();
    const qsizetype start = at == 0 ? 0 : text.lastIndexOf(u'\n', at - 1) + 1;
    const qsizetype end = text.indexOf(u'\n', at);
    QTextCursor cursor = textCursor();
    cursor.setPosition(static_cast<int>(start));
    cursor.setPosition(static_cast<int>(end < 0 ? text.size() : end), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

} // namespace views
