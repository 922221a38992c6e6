#pragma once

#include "controls/drive_list.h"
#include "views/bindings.h"

#include <QComboBox>

namespace views {

/// A classic drive list: it acts when another drive is chosen, not while the pointer passes, and the wheel
/// does nothing.
class DriveBox : public QComboBox
{
    Q_OBJECT

public:
    DriveBox(controls::DriveList &list, EventRunner &events, QWidget *parent = nullptr);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void showDrives();
    void showChosen();
    void choose(int index);

    controls::DriveList &list_;
    EventRunner &events_;
    Bindings bindings_;
};

} // namespace views
