#pragma once

#include "platform/host_paths.h"
#include "shell/main_window.h"
#include "views/activation.h"
#include "views/bindings.h"

#include <QMainWindow>
#include <QTimer>

class QGridLayout;
class QPushButton;

namespace views {

class ElidedLabel;
class FileListView;
class Menus;
class SharedPlace;

/// The panel's main window. It shows the main window's state and hands every event on.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    MainWindow(EventRunner &events, platform::HostPaths &paths);

    /// Loads the window: the panel starts.
    void load();

protected:
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *makeCentre();
    QLayout *makeWhereAmI();
    QLayout *makeBrowser();
    QWidget *makeGraphPlace();
    QLayout *makeButtons();
    void makeStatusBar();
    void addList(QGridLayout *grid, int row, int column, FileListView *view, controls::Label &caption);
    QPushButton *makeButton(controls::Button &button);
    void bindWindow();
    void activated();
    void fitFont();
    void useFont(const QFont &font);
    bool fits() const;
    void leaveAccessKeysToMenus();

    EventRunner &events_;
    shell::frmKinovra &frm_;
    Bindings bindings_;
    Activation activation_;
    bool wasActive_ = false;
    QTimer returned_; ///< until what has changed meanwhile is read
    Menus *menus_;
    FileListView *datafiles_ = nullptr;
    QList<QPushButton *> buttons_;
    bool placing_ = false; ///< the window is sized because its control was
};

} // namespace views
