#include "views/message_boxes.h"

#include "platform/display_text.h"
#include "shell/kinovra.h"
#include "views/main_window.h"
#include "views/menus.h"
#include "views/plain_text.h"
#include "views/printer_set_up.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>

#include <utility>

using namespace Qt::StringLiterals;

namespace views {

namespace {

using platform::Answer;
using platform::Buttons;
using platform::Icon;

constexpr QChar ZeroWidthSpace(0x200B);
/// Of an input box, in pixels.
constexpr int PromptWidth = 400;
/// In characters.
constexpr int LongestWord = 30;
constexpr int LongestPath = 500;

QMessageBox::StandardButtons standardButtons(Buttons buttons)
{
    switch (buttons) {
    case Buttons::OKOnly:
        return QMessageBox::Ok;
    case Buttons::OKCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case Buttons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case Buttons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    }
    return QMessageBox::Ok;
}

QMessageBox::Icon standardIcon(Icon icon)
{
    switch (icon) {
    case Icon::None:
        return QMessageBox::NoIcon;
    case Icon::Information:
        return QMessageBox::Information;
    case Icon::Exclamation:
        return QMessageBox::Warning;
    case Icon::Question:
        return QMessageBox::Question;
    case Icon::Critical:
        return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

Answer answerOf(int button, Buttons buttons)
{
    switch (button) {
    case QMessageBox::Ok:
        return platform::OK;
    case QMessageBox::Yes:
        return platform::Yes;
    case QMessageBox::No:
        return platform::No;
    case QMessageBox::Cancel:
        return platform::Cancel;
    default:
        break;
    }
    // The box has gone without an answer.
    if (buttons == Buttons::OKOnly)
        return platform::OK;
    return buttons == Buttons::YesNo ? platform::No : platform::Cancel;
}

bool isPattern(const QString &fileName)
{
    return fileName.contains(u'*') || fileName.contains(u'?');
}

// A long path has no blanks: lets its lines break behind backslashes and within long names, and leaves out
// the middle of one that would outgrow the screen.
QString breakable(QString word)
{
    if (word.size() <= LongestWord)
        return word;
    if (word.size() > LongestPath)
        word = word.left(LongestPath / 2) + u'…' + word.right(LongestPath / 2);
    QString result;
    int whole = 0;
    for (QChar c : std::as_const(word)) {
        result += c;
        ++whole;
        if (c != u'\\' && (whole < LongestWord || c.isHighSurrogate()))
            continue;
        result += ZeroWidthSpace;
        whole = 0;
    }
    return result;
}

// What a box says, as it is to be shown.
QString shown(const QString &text)
{
    QStringList lines = platform::displayLines(text).split(u'\n');
    for (QString &line : lines) {
        QStringList words = line.split(u' ');
        for (QString &word : words)
            word = breakable(word);
        line = words.join(u' ');
    }
    return lines.join(u'\n');
}

// The window that a box belongs to: the active one. While another program is active, or the active window has
// been minimized and its box would go with it, that is the main window.
QWidget *owner()
{
    QWidget *active = QApplication::activeWindow();
    if (active != nullptr && !active->isMinimized())
        return active;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && qobject_cast<MainWindow *>(window))
            return window;
    }
    return nullptr;
}

} // namespace

Answer MessageBoxes::message(const platform::MessageBox &box)
{
    closeMenus();
    QMessageBox window(standardIcon(box.icon),
                       box.title.isEmpty() ? QString(QLatin1String(shell::ApplicationTitle))
                                           : plainTitle(box.title),
                       shown(box.text), standardButtons(box.buttons), owner());
    window.setTextFormat(Qt::PlainText);
    if (box.noByDefault)
        window.setDefaultButton(QMessageBox::No);
    return answerOf(window.exec(), box.buttons);
}

std::optional<QString> MessageBoxes::input(const platform::InputBox &box)
{
    closeMenus();
    QInputDialog window(owner());
    window.setWindowTitle(plainTitle(box.title));
    // Its "&" would be an access key.
    window.setLabelText(shown(box.prompt).replace(u'&', u"&&"_s));
    // It would take a directory's name for mark-up, and grow with every path.
    auto *prompt = window.findChild<QLabel *>();
    prompt->setTextFormat(Qt::PlainText);
    prompt->setWordWrap(true);
    prompt->setFixedWidth(PromptWidth);
    if (window.exec() != QDialog::Accepted)
        return std::nullopt;
    return window.textValue();
}

std::optional<QString> MessageBoxes::openFile(const platform::OpenFileRequest &request)
{
    closeMenus();
    QFileDialog dialog(owner(), request.title, paths_.hostForm(request.initialDirectory));
    dialog.setFileMode(request.mustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    setFilters(dialog, request.filter, request.filterIndex);
    if (!request.fileName.isEmpty() && !isPattern(request.fileName))
        dialog.selectFile(request.fileName);
    return chosenIn(dialog);
}

std::optional<QString> MessageBoxes::saveFile(const platform::SaveFileRequest &request)
{
    closeMenus();
    QFileDialog dialog(owner(), request.title, paths_.hostForm(request.initialDirectory));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    setFilters(dialog, request.filter, 1);
    if (!request.fileName.isEmpty())
        dialog.selectFile(request.fileName);
    return chosenIn(dialog);
}

std::optional<platform::Colour> MessageBoxes::chooseColour(platform::Colour initial)
{
    closeMenus();
    QColorDialog dialog(QColor::fromRgb(initial), owner());
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.selectedColor().rgb() & platform::White;
}

bool MessageBoxes::setUpPrinter()
{
    closeMenus();
    return showPrinterSetUp(owner());
}

// "Text|*.txt|All|*.*" as the list of filters that the desktop's dialog wants; without "|" it is text and
// pattern. The pattern in the last parentheses, which it does not show, is for the dialog alone.
void MessageBoxes::setFilters(QFileDialog &dialog, const QString &filter, int index) const
{
    QStringList parts = filter.split(u'|');
    if (parts.size() < 2)
        parts = {filter, filter};
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        filters.append(parts[i] + u" ("_s + paths_.anyCase(parts[i + 1]).replace(u';', u' ') + u')');
    }
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilters(filters);
    dialog.selectNameFilter(filters.value(index - 1));
}

std::optional<QString> MessageBoxes::chosenIn(QFileDialog &dialog)
{
    // The panel's programs know files, not addresses.
    dialog.setSupportedSchemes({u"file"_s});
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    const QString file = dialog.selectedFiles().value(0);
    return file.isEmpty() ? std::nullopt : std::optional(paths_.panelForm(file));
}

} // namespace views
