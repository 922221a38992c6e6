#include "views/bindings.h"

#include "platform/display_text.h"

#include <QLabel>
#include <QPushButton>

namespace views {

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

} // namespace views
