#pragma once

#include "shell/about_window.h"
#include "views/activation.h"
#include "views/bindings.h"

#include <QDialog>

class QLabel;

namespace views {

/// The about window, which is also the splash. A click on its heading, its picture or the contact details,
/// and Esc, close it.
class AboutWindow : public QDialog
{
    Q_OBJECT

public:
    AboutWindow(EventRunner &events, QWidget *mainWindow);
    ~AboutWindow() override;
    AboutWindow(const AboutWindow &) = delete;
    AboutWindow &operator=(const AboutWindow &) = delete;

protected:
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void makeAbout();
    QLayout *makeButtons();
    void makeContact();
    void bindTexts();
    void bindWindow();
    void place();
    void followVisible();
    void fitFont();
    void useFont(const QFont &font);
    bool fits() const;

    EventRunner &events_;
    shell::frmAbout &about_;
    Bindings bindings_;
    Activation activation_;
    QWidget *aboutPlace_;
    QWidget *contactPlace_; ///< what the window grows by
    QLabel *heading_ = nullptr;
    QLabel *banner_ = nullptr;
    QLabel *contact_ = nullptr;
};

} // namespace views
