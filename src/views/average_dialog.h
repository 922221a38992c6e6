#pragma once

#include "shell/average_window.h"
#include "views/activation.h"
#include "views/bindings.h"

#include <QDialog>

class QLayout;
class QPushButton;

namespace views {

class ReadOnlyField;

/// The dialog of the ensemble averaging options. Its lower part is there only while the dialog is tall.
class AverageDialog : public QDialog
{
    Q_OBJECT

public:
    AverageDialog(EventRunner &events, QWidget *mainWindow);
    ~AverageDialog() override;
    AverageDialog(const AverageDialog &) = delete;
    AverageDialog &operator=(const AverageDialog &) = delete;

    void reject() override;

protected:
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    QWidget *makeUpperPart();
    QWidget *makeLowerPart();
    QLayout *makeFile();
    QLayout *makeBoxes();
    QLayout *makeButtons();
    QPushButton *makeButton(controls::Button &button);
    void bindWindow();
    void followSize();
    void fitFont();
    bool fits() const;

    EventRunner &events_;
    shell::frmNewAverage &frm_;
    Bindings bindings_;
    Activation activation_;
    ReadOnlyField *file_ = nullptr;
    QPushButton *ok_ = nullptr;
    QPushButton *compute_ = nullptr;
    QWidget *upper_;
    QWidget *lower_;
};

} // namespace views
