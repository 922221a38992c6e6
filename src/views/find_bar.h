#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;

namespace views {

class TextPage;

/// The bar under a page of text in which the user looks for something.
class FindBar : public QWidget
{
    Q_OBJECT

public:
    explicit FindBar(TextPage *page);

    /// Shows the bar and takes the focus. What is selected on the page is proposed.
    void open();

    /// Hides the bar; the page has the focus.
    void close();

    /// The page shows another text: what was said of the last one is no longer so.
    void forget();

    /// Goes on to the next place, or the one before; opens the bar where nothing was looked for yet.
    void goOn(bool backwards);

private:
    void tell(bool found);

    TextPage *page_;
    QLineEdit *wanted_;
    QLabel *result_;
};

} // namespace views
