#pragma once

#include "shell/viewer_window.h"
#include "views/activation.h"
#include "views/bindings.h"

#include <QMainWindow>

namespace views {

class FindBar;
class TextPage;

/// The text viewer's window. What the window has over its text box, in the panel's measures, stands for
/// whatever frame and menu bar the desktop gives it: the text box fills what is left.
class TextViewerWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit TextViewerWindow(EventRunner &events);
    ~TextViewerWindow() override;
    TextViewerWindow(const TextViewerWindow &) = delete;
    TextViewerWindow &operator=(const TextViewerWindow &) = delete;

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeMenus();
    void makeKeys();
    void bindWindow();
    void bindText();
    void followSize();
    void useFont();
    void useColours();
    void tellSize();

    EventRunner &events_;
    shell::frmViewer &frm_;
    Bindings bindings_;
    Activation activation_;
    QWidget *area_;    ///< what the desktop's frame and the menu bar leave
    QWidget *textBox_; ///< the page with its find bar
    TextPage *page_;
    FindBar *findBar_;
    bool placing_ = false; ///< the window is sized because its control was
};

} // namespace views
