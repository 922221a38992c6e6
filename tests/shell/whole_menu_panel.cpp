#include "whole_menu_panel.h"

#include "platform/runtime_error.h"
#include "shell/dispatch.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;
using platform::Show;
using platform::Target;
using shell::menuTree;

namespace whole_menu {

namespace {

using Form = shell::frmKinovra;

constexpr std::pair<const char *, controls::Button Form::*> Buttons[]{
    {"cmdEditGra", &Form::cmdEditGra}, {"cmdSelectGra", &Form::cmdSelectGra},
    {"cmdGraph", &Form::cmdGraph},     {"cmdForces", &Form::cmdForces},
    {"cmdGuide", &Form::cmdGuide},     {"cmdSkelvo", &Form::cmdSkelvo},
    {"cmdOndex", &Form::cmdOndex},     {"cmdEditor", &Form::cmdEditor},
    {"cmdRefresh", &Form::cmdRefresh}, {"cmdExit", &Form::cmdExit},
    {"cmdManual", &Form::cmdManual},
};

struct ListOfForm
{
    const char *name;
    controls::FileList Form::*list;
    const char *labelName;
    controls::Label Form::*label;
    char16_t letter;
};

constexpr std::array<ListOfForm, 6> Lists{{
    {"filDatafiles", &Form::filDatafiles, "lblDatafiles", &Form::lblDatafiles, u'D'},
    {"filModels", &Form::filModels, "lblModels", &Form::lblModels, u'M'},
    {"filBinaries", &Form::filBinaries, "lblBinaries", &Form::lblBinaries, u'B'},
    {"filOutputs", &Form::filOutputs, "lblOutputs", &Form::lblOutputs, u'O'},
    {"filPlots", &Form::filPlots, "lblPlots", &Form::lblPlots, u'P'},
    {"filGraFiles", &Form::filGraFiles, "lblGraFiles", &Form::lblGraFiles, u'T'},
}};

constexpr std::pair<char16_t, controls::Button Form::*> GraphButtons[]{
    {u'C', &Form::cmdGraph}, {u'S', &Form::cmdSelectGra}, {u'E', &Form::cmdEditGra}};

// What the trial has, what the program directory has beside the package, and what the runner's programs list.
constexpr const char *TrialFiles =
    "dg 1t 2t 3t 4t 5t 6t 7t 8t 9t 3d cda cf cn km ks sn rf rf2 ren cfb pj ps plt sim fr "
    "ns cut mm mu en tq fo jp";
constexpr const char *Programs = "skelvo graph average fpanalyz fphist fpsig notepad Chosen";
constexpr const char *HelpTexts =
    "overview average ondex refila dg_file force energy fplate skelvo kinemati muscle "
    "momentum options powers readme simulate torque updatekv work";
constexpr const char *Manuals =
    "kinovra modlex cfbfile graph skelvo kv_qrg kv_win ondex ox2_qrg simulate binaries";
constexpr const char *Listings =
    "Refila Errcheck Fourier Noise Kinemati Momentum Muscle Energy Torque Force Powers "
    "Simulate Average";

QString orNone(const QString &text)
{
    return text.isEmpty() ? u"(none)"_s : text;
}

QString marked(const platform::CommandText &parameters)
{
    QString text = parameters.text();
    qsizetype added = 0;
    for (const auto &document : parameters.documents()) {
        if (document.length == 0)
            continue;
        text.insert(document.from + added++, u'<');
        text.insert(document.from + document.length + added++, u'>');
    }
    return text;
}

QString described(const platform::Start &start)
{
    QString text =
        u"%1 %2 |%3| in %4, "_s.arg(start.verb.isEmpty() ? u"start"_s : start.verb, orNone(start.file),
                                    marked(start.parameters), orNone(start.directory));
    switch (start.show) {
    case Show::Normal:
        text += u"normal";
        break;
    case Show::Maximized:
        text += u"maximized";
        break;
    case Show::Shown:
        text += u"shown";
        break;
    }
    if (start.target == Target::Document)
        text += u", document";
    if (start.target == Target::Address)
        text += u", address";
    if (start.isViewer)
        text += u", viewer";
    // The main window asks the operating system; a direct start has no owner.
    if (start.owner != (start.verb.isEmpty() ? 0 : 4711))
        text += u", wrong owner";
    return text;
}

QString described(const platform::MessageBox &box)
{
    constexpr std::array<const char *, 5> Icons{"none", "information", "exclamation", "question", "critical"};
    constexpr std::array<const char *, 4> ButtonsOfBox{"OK", "OKCancel", "YesNo", "YesNoCancel"};
    QString text = box.text;
    text.replace(u'\n', u'^').replace(u'\r', u'~');
    return u"box %1 %2 [%3] %4%5"_s.arg(QLatin1String(Icons.at(static_cast<size_t>(box.icon))),
                                        QLatin1String(ButtonsOfBox.at(static_cast<size_t>(box.buttons))),
                                        box.title, text, box.noByDefault ? u", no by default"_s : QString());
}

QString described(const platform::OpenFileRequest &request)
{
    return u"choose %1 in %2 [%3] %4 of %5%6%7"_s.arg(orNone(request.fileName),
                                                      orNone(request.initialDirectory), request.title,
                                                      QString::number(request.filterIndex), request.filter,
                                                      request.mustExist ? u", must exist"_s : QString(),
                                                      request.hideReadOnly ? u", no read-only"_s : QString());
}

QString described(const platform::SaveFileRequest &request)
{
    return u"save %1 in %2 [%3] %4"_s.arg(orNone(request.fileName), orNone(request.initialDirectory),
                                          request.title, request.filter);
}

QString described(const platform::InputBox &box)
{
    return u"input [%1] %2"_s.arg(box.title, box.prompt);
}

QString described(const support::RecordingSettings::Written &written)
{
    return u"store %1/%2/%3 \"%4\""_s.arg(written.application, written.section, written.key, written.value);
}

QString described(double pause)
{
    return u"pause %1"_s.arg(pause);
}

} // namespace

QString nameOf(const shell::MenuRow &row)
{
    return row.index < 0 ? row.name : u"%1(%2)"_s.arg(row.name).arg(row.index);
}

QStringList buttonNames()
{
    QStringList names;
    for (const auto &[name, button] : Buttons)
        names.append(QLatin1String(name));
    return names;
}

/// What a command may change for good.
struct FreshPanel::State
{
    QStringList files, visible, enabled, checked;       ///< names
    std::vector<std::pair<QString, QStringList>> lists; ///< what each shows
    std::vector<std::pair<QString, QString>> variables;
};

FreshPanel::FreshPanel(Place place) : withEverything_(place == Place::WithEverything)
{
    machine.environment.variables = {{u"KINOVRA"_s, u"C:\\Kinovra"_s}, {u"WINDIR"_s, u"C:\\Windows"_s}};
    machine.settings.stored(u"Datadir"_s, u"C:\\Lab\\Gait"_s);
    machine.files.addDirectory(u"C:\\Windows"_s);
    machine.files.addDirectory(u"C:\\Lab\\Gait"_s);
    if (withEverything_)
        bringEverything();
    else
        bringNothing();
    kinovra.VersionText = u"3.05 (build 012)"_s;
    kinovra.WebHome = u"https://kinovra.example/soft/kinovra.htm"_s;
    frm.dlgOpen.InitDir = u"C:\\Before"_s;
    setShown(false);
    for (const auto &[letter, button] : GraphButtons)
        (frm.*button).Visible = true;
    forget();
    machine.clock.pendingRuns = 0;
    recordEffects();
}

QStringList FreshPanel::effectsOfClick(const QString &name)
{
    return effectsOf(clickOf(name));
}

QStringList FreshPanel::effectsOfOpening(const QString &name, bool before)
{
    for (const shell::MenuRow &row : menuTree()) {
        if (!row.isSeparator()) {
            row.item(frm).Enabled = before;
            row.item(frm).Checked = before;
        }
    }
    return effectsOf(itemCalled(name).Opening);
}

bool FreshPanel::doesSomethingOnOpening(const QString &name)
{
    return bool(itemCalled(name).Opening);
}

bool FreshPanel::asksOnOpening(const QString &name)
{
    const auto &asks = itemCalled(name).AsksOnOpening;
    return asks && asks();
}

QString FreshPanel::visibleAfterClick(const QString &name, bool shown)
{
    setShown(shown);
    effectsOfClick(name);
    QString result;
    for (const ListOfForm &row : Lists) {
        EXPECT_EQ((frm.*row.label).Visible.value(), (frm.*row.list).Visible.value())
            << row.name << " after " << name.toStdString();
        result += (frm.*row.list).Visible ? row.letter : u'-';
    }
    result += u' ';
    for (const auto &[letter, button] : GraphButtons)
        result += (frm.*button).Visible ? letter : u'-';
    return result;
}

QString FreshPanel::statesOf(const QString &name, QProperty<bool> controls::MenuItem::*property)
{
    QString result;
    for (const shell::MenuRow &row : menuTree()) {
        if (row.name == name)
            result += (row.item(frm).*property).value() ? u'+' : u'x';
    }
    return result;
}

void FreshPanel::letStartsFail()
{
    machine.programs.failure = u"it was not found"_s;
}

QString FreshPanel::statusBar() const
{
    return frm.StatusBar1.Panel1.value();
}

// `names` stand between blanks, each for the %1 of `path`.
void FreshPanel::addFiles(const QString &path, const char *names)
{
    for (const QString &name : QString(QLatin1String(names)).split(u' '))
        addFile(path.arg(name));
}

void FreshPanel::bringEverything()
{
    machine.settings.stored(u"LastGRA"_s, u"Stick.gra"_s);
    machine.settings.stored(u"UserLevel"_s, u"1"_s);
    machine.settings.stored(u"Viewer"_s, u"C:\\Tools\\Reader.exe"_s);
    addFiles(u"C:\\Lab\\Gait\\Walk1.%1"_s, TrialFiles);
    addFiles(u"C:\\Lab\\Gait\\%1.out"_s, Listings);
    addFiles(u"C:\\Lab\\Gait\\%1"_s, "average.sss Old.cfb");
    addFiles(u"C:\\Lab\\%1"_s, "Chosen.cfb");
    addFiles(u"C:\\Kinovra\\%1.exe"_s, Programs);
    addFiles(u"C:\\Kinovra\\%1.txt"_s, HelpTexts);
    addFiles(u"C:\\Kinovra\\manuals\\%1.pdf"_s, Manuals);
    addFiles(u"C:\\Kinovra\\graphs\\%1"_s, "Stick.gra");
    addFiles(u"C:\\Tools\\%1"_s, "Reader.exe Chosen.exe");
    addFiles(u"C:\\Windows\\%1"_s, "notepad.exe");
    load();
    click(frm.filModels, u"Walk1.cfb"_s);
    click(frm.filDatafiles, u"Walk1.dg"_s);
    click(frm.filBinaries, u"Walk1.pj"_s);
    click(frm.filPlots, u"Walk1.plt"_s);
    mark();
    kinovra.ProgName = u"Noise"_s;
    kinovra.SelectedFile = u"Before.out"_s;
    // What a list shows only when it is refreshed.
    machine.files.remove(u"C:\\Lab\\Gait\\Old.cfb"_s);
    addFiles(u"C:\\Lab\\Gait\\New.%1"_s, "dg pj out plt");
    addFiles(u"C:\\Kinovra\\graphs\\%1"_s, "New.gra");
    machine.files.addDirectory(u"C:\\Lab\\Gait\\New"_s);
    machine.files.addDrive(u"d: [stick]"_s);
    machine.files.changeDirectory(u"C:\\Windows"_s);
}

void FreshPanel::bringNothing()
{
    machine.files.remove(u"C:\\KINOVRA"_s);
    machine.files.addDirectory(u"C:\\Kinovra\\graphs"_s);
    machine.files.addDrive(u"d: [stick]"_s);
    machine.dialogs.hasPrinter = false;
    load();
    click(frm.mnuListing[2]);
    click(frm.mnuGraphics[1]);
    click(frm.mnuPause);
    click(frm.mnuPrompt);
    for (size_t option = 1; option <= 4; ++option)
        click(frm.mnuGraphOptions[option]);
    mark();
    kinovra.ProgName = u"KVwin98.exe"_s;
    kinovra.SelectedFile.clear();
    machine.files.changeDrive(u"d:"_s);
}

void FreshPanel::setShown(bool shown)
{
    for (const ListOfForm &row : Lists) {
        (frm.*row.list).Visible = shown;
        (frm.*row.label).Visible = shown;
    }
    for (const auto &[letter, button] : GraphButtons)
        (frm.*button).Visible = shown;
    frm.drvDrives.Visible = shown;
    frm.dirSelect.Visible = shown;
}

void FreshPanel::recordEffects()
{
    machine.programs.whileStarting = [this] { takeNews(); };
    machine.dialogs.whileShown = [this](const platform::MessageBox &box) { answer(box); };
    machine.dialogs.whileChoosing = [this] { choose(); };
    machine.environment.whileEnding = [this] {
        takeNews();
        effects_.append(u"end"_s);
    };
}

// So that the command goes on.
void FreshPanel::answer(const platform::MessageBox &box)
{
    takeNews();
    const bool asks =
        box.buttons == platform::Buttons::YesNo || box.buttons == platform::Buttons::YesNoCancel;
    machine.dialogs.answers = {asks ? platform::Yes : platform::OK};
}

// Where nothing is there, dialogs are cancelled.
void FreshPanel::choose()
{
    static const QMap<QString, QString> choices{
        {u"Select program to run"_s, u"C:\\Kinovra\\Chosen.exe"_s},
        {u"Select a program to view its help."_s, u"C:\\Kinovra\\Chosen.exe"_s},
        {u"Select a model file (.CFB)"_s, u"C:\\Lab\\Chosen.cfb"_s},
        {u"Save as"_s, u"C:\\Lab\\Gait\\Copy.cfb"_s},
        {u"Select graph to view"_s, u"C:\\Lab\\Gait\\Chosen.plt"_s},
        {u"Select ASCII file to view"_s, u"C:\\Lab\\Gait\\Chosen.out"_s},
        {u"Select multimedia file to view"_s, u"C:\\Lab\\Gait\\Chosen.avi"_s},
        {u"Select a text viewer."_s, u"C:\\Tools\\Chosen.exe"_s}};
    if (withEverything_) {
        for (const auto &request : machine.dialogs.requests)
            machine.dialogs.chosenFiles = {choices.value(request.title)};
        for (const auto &request : machine.dialogs.saveRequests)
            machine.dialogs.chosenFiles = {choices.value(request.title)};
        machine.dialogs.typed = {u"Sub"_s};
    }
    takeNews();
}

template <typename Records>
void FreshPanel::take(Records &records)
{
    for (const auto &record : std::exchange(records, {}))
        effects_.append(described(record));
}

void FreshPanel::takeNews()
{
    take(machine.programs.started);
    take(machine.clock.pauses);
    take(machine.settings.written);
    take(machine.dialogs.requests);
    take(machine.dialogs.saveRequests);
    take(machine.dialogs.inputs);
    take(machine.dialogs.messages);
    for (; machine.dialogs.printerSetUps > 0; --machine.dialogs.printerSetUps)
        effects_.append(u"printer"_s);
    for (; machine.clock.pendingRuns > 0; --machine.clock.pendingRuns)
        effects_.append(u"events"_s);
}

controls::MenuItem &FreshPanel::itemCalled(const QString &name)
{
    const auto &rows = menuTree();
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [&name](const shell::MenuRow &row) { return nameOf(row) == name; });
    return found->item(frm);
}

const controls::Event &FreshPanel::clickOf(const QString &name)
{
    for (const auto &[buttonName, button] : Buttons) {
        if (name == QLatin1String(buttonName))
            return (frm.*button).Click;
    }
    return itemCalled(name).Click;
}

QStringList FreshPanel::effectsOf(const controls::Event &event)
{
    const State before = state();
    shell::dispatch(panel, event);
    takeNews();
    addChanges(before, state());
    return effects_;
}

FreshPanel::State FreshPanel::state()
{
    State result;
    result.files = filesOfDataDirectory();
    addVisible(result.visible);
    addItems(result);
    const QStringList directory{frm.dirSelect.Path()};
    result.lists = {{u"drvDrives"_s, frm.drvDrives.Drives},
                    {u"dirSelect"_s, directory + frm.dirSelect.Folders.value().toList()}};
    for (const ListOfForm &row : Lists)
        result.lists.emplace_back(QLatin1String(row.name), (frm.*row.list).Names.value().toList());
    addVariables(result);
    return result;
}

QStringList FreshPanel::filesOfDataDirectory()
{
    try {
        const auto directory = machine.files.directory(u"C:\\Lab\\Gait"_s, platform::Reading::WhenChanged);
        return QStringList(u"(the directory)"_s) + directory->files(u"*"_s).toList()
               + directory->folders().toList();
    } catch (const platform::RuntimeError &) {
        return {};
    }
}

void FreshPanel::addVisible(QStringList &names) const
{
    const auto add = [&names](const char *name, bool isVisible) {
        if (isVisible)
            names.append(QLatin1String(name));
    };
    add("drvDrives", frm.drvDrives.Visible);
    add("dirSelect", frm.dirSelect.Visible);
    for (const ListOfForm &row : Lists) {
        add(row.name, (frm.*row.list).Visible);
        add(row.labelName, (frm.*row.label).Visible);
    }
    add("cmdGraph", frm.cmdGraph.Visible);
    add("cmdSelectGra", frm.cmdSelectGra.Visible);
    add("cmdEditGra", frm.cmdEditGra.Visible);
    add("lblCommand", frm.lblCommand.Visible);
    add("frmAbout", about.Visible);
    add("frmViewer", viewer.Visible);
    add("frmNewAverage", newAverage.Visible);
}

void FreshPanel::addItems(State &state)
{
    for (const shell::MenuRow &row : menuTree()) {
        if (row.isSeparator())
            continue;
        if (row.item(frm).Enabled)
            state.enabled.append(nameOf(row));
        if (row.item(frm).Checked)
            state.checked.append(nameOf(row));
    }
    for (const auto &[name, button] : Buttons) {
        if ((frm.*button).Enabled)
            state.enabled.append(QLatin1String(name));
    }
    if (newAverage.cmdOK.Enabled)
        state.enabled.append(u"frmNewAverage.cmdOK"_s);
}

void FreshPanel::addVariables(State &state)
{
    const std::pair<const char *, QString> texts[]{
        {"directory", machine.files.currentDirectory()},
        {"InitDir", frm.dlgOpen.InitDir},
        {"ProgDir", kinovra.ProgDir},
        {"DataDir", kinovra.DataDir},
        {"lblPath", frm.lblPath.Caption},
        {"CurrentTrial", kinovra.CurrentTrial},
        {"CurrentExtension", kinovra.CurrentExtension},
        {"lblTrial", frm.lblTrial.Caption},
        {"lblTitle", frm.lblTitle.Caption},
        {"BinaryFile", kinovra.BinaryFile},
        {"SelectedPlot", frm.SelectedPlot},
        {"SelectedFile", kinovra.SelectedFile},
        {"ProgName", kinovra.ProgName},
        {"lblCommand", frm.lblCommand.Caption},
        {"CurrentGRA", frm.CurrentGRA},
        {"lblGraphics(0)", frm.lblGraphics[0].Caption},
        {"TextViewer", kinovra.TextViewer},
        {"ListingSwitch", kinovra.ListingSwitch},
        {"ListingDevice", kinovra.ListingDevice},
        {"lblOutput", frm.lblOutput.Caption},
        {"GraphicsSwitch", frm.GraphicsSwitch},
        {"GraphicsDevice", kinovra.GraphicsDevice},
        {"lblGraphics(1)", frm.lblGraphics[1].Caption},
        {"ViewerFile", kinovra.ViewerFile},
        {"ManualFile", kinovra.ManualFile},
        {"txtBinary", newAverage.txtBinary.Text},
        {"comFilenames", newAverage.comFilenames.Items.value().join(u'|')},
    };
    for (const auto &[name, text] : texts)
        state.variables.emplace_back(QLatin1String(name), u'"' + text + u'"');
    for (const ListOfForm &row : Lists)
        state.variables.emplace_back(QLatin1String(row.name) + u".FileName"_s,
                                     u'"' + (frm.*row.list).FileName() + u'"');
    const std::pair<const char *, double> numbers[]{{"UserLevel", kinovra.UserLevel},
                                                    {"TaskId", kinovra.TaskId},
                                                    {"Answer", kinovra.Answer},
                                                    {"frmNewAverage.Height", newAverage.Height}};
    for (const auto &[name, number] : numbers)
        state.variables.emplace_back(QLatin1String(name), QString::number(number));
}

void FreshPanel::addChanges(const State &before, const State &after)
{
    addDifference(u"add"_s, after.files, before.files);
    addDifference(u"remove"_s, before.files, after.files);
    addDifference(u"show"_s, after.visible, before.visible);
    addDifference(u"hide"_s, before.visible, after.visible);
    addDifference(u"enable"_s, after.enabled, before.enabled);
    addDifference(u"grey"_s, before.enabled, after.enabled);
    addDifference(u"check"_s, after.checked, before.checked);
    addDifference(u"uncheck"_s, before.checked, after.checked);
    QStringList refreshed;
    for (size_t i = 0; i < after.lists.size(); ++i) {
        if (after.lists[i] != before.lists[i])
            refreshed.append(after.lists[i].first);
    }
    addDifference(u"refresh"_s, refreshed, {});
    for (size_t i = 0; i < after.variables.size(); ++i) {
        const auto &[name, value] = after.variables[i];
        if (value != before.variables[i].second)
            effects_.append(name + u' ' + value);
    }
}

void FreshPanel::addDifference(const QString &verb, const QStringList &names, const QStringList &without)
{
    QStringList effect{verb};
    for (const QString &name : names) {
        if (!without.contains(name))
            effect.append(name);
    }
    if (effect.size() > 1)
        effects_.append(effect.join(u' '));
}

} // namespace whole_menu
