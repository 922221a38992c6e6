#pragma once

#include "views/broken_lines.h"

#include <QElapsedTimer>
#include <QPlainTextEdit>

class QTimer;

namespace views {

/// A page of text to read: fixed pitch, nothing wrapped, up to 16 million characters in lines of any length.
/// The first screens of a long text appear at once, the rest while the window is already in use.
class TextPage : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit TextPage(QWidget *parent = nullptr);

    /// Takes a font of fixed pitch; a tab leads to the next multiple of eight columns.
    void useFont(const QFont &font);

    /// Shows `text` from its beginning.
    void showText(const QString &text);

    /// Selects the next place of `wanted` behind the selection, or the one before it, regardless of case; at
    /// the end of the text the search goes on at the other end. False where there is none.
    bool find(const QString &wanted, bool backwards);

    /// Selects what is found in place of the selection or behind it: for a search while it is being typed.
    bool findFromSelection(const QString &wanted);

    /// The selected text, without the breaks of long lines.
    QString selectedText() const;

protected:
    QMimeData *createMimeDataFromSelection() const override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fill(qsizetype most);
    void fillTo(qsizetype end);
    void insertAtEnd(QString piece);
    void countLines();
    void select(qsizetype from, qsizetype length);
    void selectLineAt(const QPoint &position);

    BrokenLines lines_;
    qsizetype filled_ = 0; ///< how much of the broken text is in the page
    QTimer *filling_;
    QElapsedTimer sinceDoubleClick_;
    QPoint doubleClickedAt_;
};

} // namespace views
