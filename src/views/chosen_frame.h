#pragma once

#include "shell/main_window.h"
#include "views/bindings.h"

#include <QFrame>

class QGridLayout;

namespace views {

/// The frame of the main window that shows what is chosen: the trial with its title, the files and devices,
/// and the command line.
class ChosenFrame : public QFrame
{
    Q_OBJECT

public:
    explicit ChosenFrame(shell::frmKinovra &frm);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QWidget *addValue(QGridLayout *grid, int row, int column, const QString &caption, controls::Label &value);
    void addCommand(QGridLayout *grid, int row, int column, controls::Label &command);

    Bindings bindings_;
};

} // namespace views
