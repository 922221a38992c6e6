#pragma once

#include "controls/control.h"
#include "views/event_runner.h"

#include <QPropertyNotifier>

#include <vector>

class QAbstractButton;
class QComboBox;
class QLabel;
class QPushButton;
class QWidget;

namespace views {

/// Ties widgets to controls for as long as it lives: the widget shows the control's values now and whenever
/// they change.
class Bindings
{
public:
    /// Calls `update` now and whenever `property` changes.
    template <typename T>
    void follow(QProperty<T> &property, const std::function<void()> &update)
    {
        update();
        notifiers_.push_back(property.addNotifier(update));
    }

    /// Visibility, enabling and tool tip.
    void bind(QWidget *widget, controls::Control &control);

    void bind(QLabel *widget, controls::Label &label);

    void bind(QPushButton *widget, controls::Button &button, EventRunner &events);

    /// A click with the left button on a widget that hears of none by itself, such as a label. It lasts as
    /// long as the widget.
    static void bindClick(QWidget *widget, const controls::Event &click, EventRunner &events);

    /// What the user checks or chooses is the control's value at once.
    void bind(QAbstractButton *widget, controls::CheckBox &box);
    void bind(QAbstractButton *widget, controls::OptionButton &option);
    void bind(QComboBox *widget, controls::ComboBox &box);

private:
    void bind(QAbstractButton *widget, QProperty<QString> &caption, QProperty<bool> &value);

    std::vector<QPropertyNotifier> notifiers_;
};

} // namespace views
