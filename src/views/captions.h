#pragma once

#include <QString>

class QLabel;
class QWidget;

namespace views {

/// A caption without the "&" of its access key, as a screen reader speaks it.
QString spoken(const QString &caption);

/// The caption beside a value; a screen reader speaks it with the value. Who places it owns it.
QLabel *makeCaption(const QString &text, QWidget *value);

} // namespace views
