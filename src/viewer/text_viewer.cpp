#include "viewer/text_viewer.h"

#include "launcher/starting.h"
#include "platform/path_language.h"
#include "platform/runtime_error.h"
#include "platform/text_decoding.h"
#include "shell/dispatch.h"
#include "viewer/shown_text.h"

#include <array>
#include <new>

using namespace Qt::StringLiterals;

namespace viewer {

namespace {

using platform::ErrorNumber;
using platform::Icon;
using platform::RuntimeError;

constexpr int OpenedWidth = 10500; ///< twips

// What the window has over its text box, in twips.
constexpr int WidthBesideText = 150;
constexpr int HeightBesideText = 750;
constexpr int LeastWidth = 200;
constexpr int LeastHeight = 800;

struct FontSize
{
    int points;
    size_t checkedItem;
};

// "default" checks "normal"; that is meant.
constexpr std::array<FontSize, 6> FontSizes{{{8, 0}, {10, 1}, {12, 2}, {14, 3}, {18, 4}, {12, 2}}};
constexpr size_t Small = 1;

constexpr std::array<const char *, 11> TopicCaptions{
    "",
    "How to read ASCII files.",
    "How to ensemble average data files.",
    "How to read KinCom data file.",
    "How to determine thresholds.",
    "How to perform event tracking.",
    "How to find EMG onsets.",
    "How to create and save events and intervals.",
    "How to calculate maximums (MVCs) from EMG or similar data for amplitude normalization.",
    "How to normalize and create linear envelope EMG signals.",
    "How to merge channels from separate data files.",
};

enum ColourItem { Background, Foreground, ResetColours };

// All of a file that fits into the text box; raises where it does not, and where there is nothing in it.
QString readText(platform::OpenedFile &file)
{
    const QByteArray bytes = file.read(TextBoxCapacity + 1);
    if (bytes.size() > TextBoxCapacity || bytes.contains('\0'))
        throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    QString text = platform::decodeText(bytes);
    if (text.isEmpty())
        throw RuntimeError(ErrorNumber::InputPastEnd);
    return text;
}

// Without the last character, as a rule the final line end; that is meant. A decoded text has no half one.
QString withoutLastCharacter(QString text)
{
    text.chop(text.back().isLowSurrogate() ? 2 : 1);
    return text;
}

void giveToNotepad(Panel &panel)
{
    panel.viewer.Visible = false;
    launcher::startDirectly(panel, u"notepad.exe"_s,
                            u" "_s + platform::CommandText::document(panel.kinovra.ViewerFile),
                            platform::Show::Normal);
}

std::unique_ptr<platform::OpenedFile> open(Panel &panel)
{
    try {
        return panel.platform.files.openFile(panel.kinovra.ViewerFile);
    } catch (const RuntimeError &error) {
        const bool noneFree = error.Number == static_cast<qint16>(ErrorNumber::TooManyFiles);
        ReportViewerError(panel, noneFree ? OpeningFailed : NotFound);
        return nullptr;
    }
}

void showFile(Panel &panel)
{
    panel.viewer.Caption = u"Text Viewer: "_s + panel.kinovra.ViewerFile;
    const auto file = open(panel);
    if (!file)
        return;
    try {
        panel.viewer.txtViewer.Text = shownText(withoutLastCharacter(readText(*file)));
    } catch (const RuntimeError &) {
        giveToNotepad(panel);
    } catch (const std::bad_alloc &) {
        giveToNotepad(panel);
    }
}

// The number of a how-to topic; 0 for what is none.
size_t topicOf(const QString &code)
{
    for (size_t topic = 1; topic < TopicCaptions.size(); ++topic) {
        if (code == QString::number(topic))
            return topic;
    }
    return 0;
}

// The package may bring texts for the how-to topics.
void fillHowToText(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    for (size_t topic = 1; topic < kinovra.HowToText.size(); ++topic) {
        try {
            const QString name = u"\\howto%1.txt"_s.arg(topic, 2, 10, QChar(u'0'));
            const auto file = platform.files.openFile(kinovra.ProgDir + name);
            kinovra.HowToText[topic] = shownText(readText(*file));
        } catch (const RuntimeError &) {
            kinovra.HowToText[topic].clear();
        }
    }
}

} // namespace

void Form_Load(Panel &panel)
{
    shell::frmViewer &viewer = panel.viewer;

    viewer.txtViewer.BackColor = panel.screen.PageColour;
    viewer.txtViewer.ForeColor = panel.screen.TextColour;
    viewer.txtViewer.FontSize = FontSizes[Small].points;
    viewer.mnuFontSizesItem[Small].Checked = true;
    viewer.Top = (panel.screen.Height - viewer.Height) / 2;
    viewer.Left = (panel.screen.Width - viewer.Width) / 2;
    viewer.Width = OpenedWidth;
    fillHowToText(panel);
}

void Form_Activate(Panel &panel)
{
    const QString &file = panel.kinovra.ViewerFile;
    if (file.isEmpty())
        return;
    if (file == u"0") {
        panel.viewer.txtViewer.Text = QString();
    } else if (const size_t topic = topicOf(file); topic != 0) {
        panel.viewer.txtViewer.Text = panel.kinovra.HowToText[topic];
        panel.viewer.Caption = QLatin1String(TopicCaptions[topic]);
    } else {
        showFile(panel);
    }
}

void Form_Resize(Panel &panel)
{
    shell::frmViewer &viewer = panel.viewer;
    if (viewer.Minimized)
        return;
    viewer.txtViewer.Top = 0;
    if (viewer.Width > LeastWidth)
        viewer.txtViewer.Width = viewer.Width - WidthBesideText;
    if (viewer.Height > LeastHeight)
        viewer.txtViewer.Height = viewer.Height - HeightBesideText;
}

void mnuOpen_Click(Panel &panel)
{
    auto &dialog = panel.viewer.dlgViewer;
    const auto chosen = shell::askForFile(
        panel,
        {.initialDirectory =
             dialog.InitDir.isEmpty() ? panel.platform.files.currentDirectory() : dialog.InitDir,
         .filter =
             u"Text file (.txt)|*.txt|Output file (.out)|*.out|Listing (.lst)|*.lst|All files (*.*)|*.*"_s});
    if (!chosen)
        return;
    dialog.InitDir = platform::parentOf(*chosen);
    panel.kinovra.ViewerFile = *chosen;
    Form_Activate(panel);
}

void mnuExit_Click(Panel &panel)
{
    panel.viewer.Visible = false;
    panel.platform.files.changeDrive(panel.kinovra.DataDir);
    panel.platform.files.changeDirectory(panel.kinovra.DataDir);
}

void mnuFontSizesItem_Click(Panel &panel, int index)
{
    auto &items = panel.viewer.mnuFontSizesItem;
    const auto chosen = static_cast<size_t>(index);
    for (size_t i = 0; i < 5; ++i)
        items[i].Checked = false;
    panel.viewer.txtViewer.FontBold = true;
    if (chosen < FontSizes.size()) {
        panel.viewer.txtViewer.FontSize = FontSizes[chosen].points;
        items[FontSizes[chosen].checkedItem].Checked = true;
    }
}

void mnuColours_Click(Panel &panel, int index)
{
    auto &text = panel.viewer.txtViewer;
    const platform::Colour background = text.BackColor;
    const platform::Colour foreground = text.ForeColor;
    if (index == Background) {
        const auto chosen = shell::askForColour(panel, background);
        if (chosen && *chosen != foreground)
            text.BackColor = *chosen;
    } else if (index == Foreground) {
        const auto chosen = shell::askForColour(panel, foreground);
        if (chosen && *chosen != background)
            text.ForeColor = *chosen;
    } else if (index == ResetColours) {
        text.ForeColor = platform::Black;
        text.BackColor = platform::White;
    }
}

// Not all of these come up; that is meant.
void ReportViewerError(Panel &panel, qint16 index)
{
    platform::MessageBox box{
        .text = u"Program error."_s, .icon = Icon::Exclamation, .title = u"Text Viewer"_s};
    switch (index) {
    case OpeningFailed:
        box.text = u"Error trying to open file.  It may be already opened."_s;
        break;
    case NotFound:
        box.text = u"Error finding file."_s;
        break;
    case ReadingFailed:
        box.text = u"Error reading from file.  File may be too large."_s;
        break;
    case NoFileName:
        box.text = u"Error.  No filename was given."_s;
        box.icon = Icon::Information;
        break;
    default:
        break;
    }
    shell::MsgBox(panel, box);
    panel.viewer.Visible = false;
}

} // namespace viewer
