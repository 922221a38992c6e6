#pragma once

#include "shell/about_window.h"
#include "views/activation.h"
#include "views/bindings.h"

#include <QDialog>

namespace views {

/// The about window, which is also the splash.
class AboutWindow : public QDialog
{
    Q_OBJECT

public:
    AboutWindow(EventRunner &events, QWidget *mainWindow);

protected:
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void followVisible();

    EventRunner &events_;
    shell::frmAbout &about_;
    Bindings bindings_;
    Activation activation_;
};

} // namespace views
