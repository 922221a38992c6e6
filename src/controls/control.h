#pragma once

#include "platform/colour.h"

#include <QProperty>
#include <QString>
#include <QStringList>

#include <functional>

// What a window shows, as observable values. A view binds to them; commands read and set them. An event is
// empty until a room hangs its handler on it.

namespace controls {

using Event = std::function<void()>;

/// What all controls have in common.
struct Control
{
    QProperty<bool> Visible{true};
    QProperty<bool> Enabled{true};
    QString ToolTip;
};

struct Label : Control
{
    QProperty<QString> Caption;
    Event Click; ///< empty for a label that only shows
};

struct Button : Control
{
    QProperty<QString> Caption;
    Event Click;
};

/// A frame around controls that belong together.
struct Frame : Control
{
    QProperty<QString> Caption;
};

/// A picture.
struct PictureBox : Control
{
    Event Click;
};

/// A box that is checked or not.
struct CheckBox : Control
{
    QProperty<QString> Caption;
    QProperty<bool> Value{false};
};

/// A choice of one among its neighbours.
struct OptionButton : Control
{
    QProperty<QString> Caption;
    QProperty<bool> Value{false};
};

/// Sets the option `index` of `options`, and so clears the others.
template <typename Options>
void choose(Options &options, std::size_t index)
{
    for (std::size_t i = 0; i < options.size(); ++i)
        options[i].Value = i == index;
}

/// A field with a text.
struct TextBox : Control
{
    QProperty<QString> Text;
    Event Click;
};

/// A page of text to read. Places and sizes are in twips, the font's size in points.
struct TextPage : TextBox
{
    QProperty<int> Top{0};
    QProperty<int> Width{0};
    QProperty<int> Height{0};
    QProperty<int> FontSize{12};
    QProperty<bool> FontBold{false};
    QProperty<platform::Colour> BackColor{platform::White};
    QProperty<platform::Colour> ForeColor{platform::Black};
};

/// A drop-down list of texts.
struct ComboBox : Control
{
    QProperty<QStringList> Items;
    QProperty<int> ListIndex{-1}; ///< the selected text, -1 for none

    int ListCount() const { return static_cast<int>(Items.value().size()); }

    /// Adds `text` at the end.
    void AddItem(const QString &text) { Items = Items.value() + QStringList(text); }

    /// Removes all texts; none is selected.
    void Clear()
    {
        ListIndex = -1;
        Items = QStringList();
    }
};

/// A status bar: panel 1 is the panel's voice, panel 2 shows the version.
struct StatusBar : Control
{
    QProperty<QString> Panel1;
    QProperty<QString> Panel2;
};

/// The common dialog of a window. Each command passes a complete request; only the initial directory stays.
struct CommonDialog
{
    QString InitDir;
};

} // namespace controls
