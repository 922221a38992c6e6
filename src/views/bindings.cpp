#include "views/bindings.h"

#include "platform/display_text.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QShortcutEvent>
#include <QSignalBlocker>

namespace views {

namespace {

/// Hears clicks for a widget, and for the widgets on it that leave them to it.
class ClickListener : public QObject
{
public:
    ClickListener(QWidget *widget, const controls::Event &click, EventRunner &events)
        : QObject(widget), widget_(widget), click_(click), events_(events)
    {
        widget->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::MouseButtonRelease)
            return false;
        const auto *release = static_cast<QMouseEvent *>(event);
        if (release->button() != Qt::LeftButton || !widget_->rect().contains(release->position().toPoint()))
            return false;
        events_.run(click_);
        return true;
    }

private:
    QWidget *widget_;
    const controls::Event &click_;
    EventRunner &events_;
};

/// Lets a box hear of its access key at once. By itself it shows itself pressed first, and a command that is
/// given meanwhile would not know of it.
class PromptAccessKey : public QObject
{
public:
    explicit PromptAccessKey(QAbstractButton *box) : QObject(box), box_(box)
    {
        box->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::Shortcut || static_cast<QShortcutEvent *>(event)->isAmbiguous())
            return false;
        box_->setFocus(Qt::ShortcutFocusReason);
        box_->click();
        return true;
    }

private:
    QAbstractButton *box_;
};

} // namespace

void Bindings::bind(QWidget *widget, controls::Control &control)
{
    widget->setToolTip(control.ToolTip);
    follow(control.Visible, [widget, &control] {
        // Without a parent yet it would appear as a window of its own.
        if (widget->parentWidget() || !control.Visible)
            widget->setVisible(control.Visible);
    });
    follow(control.Enabled, [widget, &control] { widget->setEnabled(control.Enabled); });
}

void Bindings::bind(QLabel *widget, controls::Label &label)
{
    bind(static_cast<QWidget *>(widget), label);
    widget->setTextFormat(Qt::PlainText);
    follow(label.Caption, [widget, &label] { widget->setText(platform::displayText(label.Caption)); });
}

void Bindings::bind(QPushButton *widget, controls::Button &button, EventRunner &events)
{
    bind(static_cast<QWidget *>(widget), button);
    follow(button.Caption, [widget, &button] { widget->setText(button.Caption); });
    QObject::connect(widget, &QPushButton::clicked, widget, [&events, &button] { events.run(button.Click); });
}

void Bindings::bindClick(QWidget *widget, const controls::Event &click, EventRunner &events)
{
    new ClickListener(widget, click, events);
}

void Bindings::bind(QAbstractButton *widget, QProperty<QString> &caption, QProperty<bool> &value)
{
    follow(caption, [widget, &caption] { widget->setText(caption); });
    follow(value, [widget, &value] { widget->setChecked(value); });
    QObject::connect(widget, &QAbstractButton::toggled, widget, [&value](bool checked) { value = checked; });
}

void Bindings::bind(QAbstractButton *widget, controls::CheckBox &box)
{
    bind(static_cast<QWidget *>(widget), box);
    bind(widget, box.Caption, box.Value);
    new PromptAccessKey(widget);
}

void Bindings::bind(QAbstractButton *widget, controls::OptionButton &option)
{
    bind(static_cast<QWidget *>(widget), option);
    bind(widget, option.Caption, option.Value);
}

void Bindings::bind(QComboBox *widget, controls::ComboBox &box)
{
    bind(static_cast<QWidget *>(widget), box);
    follow(box.Items, [widget, &box] {
        const QSignalBlocker blocker(widget);
        widget->clear();
        for (const QString &item : box.Items.value())
            widget->addItem(platform::displayText(item));
        widget->setCurrentIndex(box.ListIndex);
    });
    follow(box.ListIndex, [widget, &box] { widget->setCurrentIndex(box.ListIndex); });
    QObject::connect(widget, &QComboBox::activated, widget, [&box](int index) { box.ListIndex = index; });
}

} // namespace views
