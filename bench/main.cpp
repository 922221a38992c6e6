// The panel's speed, as ratios that are measured side by side in one run. The last figures are in
// docs/performance.md.
//
//     kinovra_bench                     all ratios
//     kinovra_bench refresh DIRECTORY   one refresh of the lists, to be watched by a tracer of system calls

#include "bench_panel.h"
#include "browser/directories.h"
#include "browser/file_lists.h"
#include "first_picture.h"
#include "large_directory.h"
#include "measure.h"
#include "shell/dispatch.h"
#include "views/panel_windows.h"

#include <QApplication>
#include <QTemporaryDir>

#include <array>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include <sys/stat.h>

namespace {

constexpr int Files = 100'000;
constexpr int Rounds = 21;

using bench::LargeDirectory;

std::array<controls::FileList *, 5> lists(shell::frmKinovra &frm)
{
    return {&frm.filDatafiles, &frm.filModels, &frm.filBinaries, &frm.filPlots, &frm.filOutputs};
}

/// A panel with its windows on a large directory.
struct Scene
{
    explicit Scene(LargeDirectory::Kind kind)
        : large(kind, Files), bench(settings.path()), windows(bench.panel(), bench.files())
    {
        bench.panel().frm.Visible = true;
        browser::openDirectory(bench.panel(), bench.files().adopt(QByteArray::fromStdString(large.path())));
        browser::pointAt(bench.panel(), bench.panel().frm.filGraFiles, bench.panel().kinovra.DataDir);
        QCoreApplication::processEvents();
    }

    LargeDirectory large;
    QTemporaryDir settings;
    bench::BenchPanel bench;
    views::PanelWindows windows;
};

// Reading the directory and picking the files of all six lists.
void filter(Scene &scene)
{
    shell::Panel &panel = scene.bench.panel();
    const auto directory = scene.bench.files().directory(panel.kinovra.DataDir, platform::Reading::Anew);
    int shown = 0;
    for (controls::FileList *list : lists(panel.frm))
        shown += directory->files(list->Pattern).count();
    shown += directory->files(panel.frm.filGraFiles.Pattern).count();
    if (shown == 0)
        std::abort();
}

// The same up to the last pixel.
void refreshAndPaint(Scene &scene)
{
    shell::Panel &panel = scene.bench.panel();
    browser::refresh(panel, {&panel.frm.filDatafiles, &panel.frm.filModels, &panel.frm.filBinaries,
                             &panel.frm.filPlots, &panel.frm.filOutputs, &panel.frm.filGraFiles});
    scene.windows.mainWindow().repaint();
}

bool benchLists(LargeDirectory::Kind kind, const std::string &name)
{
    Scene scene(kind);
    const auto reading = [&scene] { bench::readPlainly(scene.large.path()); };
    bool good = bench::report(name + ": filter pass / plain readdir pass",
                              bench::ratio(
                                  Rounds, [&scene] { filter(scene); }, reading),
                              1.5);
    good &= bench::report(name + ": to lists painted / plain readdir pass",
                          bench::ratio(
                              Rounds, [&scene] { refreshAndPaint(scene); }, reading),
                          3.0);
    return good;
}

bool benchMenu()
{
    // The same files that opening the menu asks for, by the names that they would have.
    constexpr std::array<const char *, 18> Asked{
        "Average.sss",     "Trial100006.cfb", "Trial100006.cn", "Trial100006.ks",  "Trial100006.km",
        "Trial100006.sim", "Trial100006.fr",  "Trial100006.ns", "Trial100006.cut", "Trial100006.mm",
        "Trial100006.mu",  "Trial100006.en",  "Trial100006.tq", "Trial100006.fo",  "Trial100006.jp",
        "Trial100006.ps",  "Trial100006.pj",  "Trial100006.sn"};
    Scene scene(LargeDirectory::Kind::Mixed);
    scene.bench.panel().kinovra.CurrentTrial = QStringLiteral("Trial100006");
    std::vector<std::string> paths;
    paths.reserve(Asked.size());
    for (const char *name : Asked)
        paths.push_back(scene.large.path() + '/' + name);
    // The directory has been quiet for a while, as when a user opens a menu.
    ::timespec quiet{0, 100'000'000};
    ::nanosleep(&quiet, nullptr);
    scene.bench.files().directory(scene.bench.panel().kinovra.DataDir, platform::Reading::Anew);

    const auto stats = [&paths] {
        for (const std::string &path : paths) {
            struct stat status = {};
            if (::stat(path.c_str(), &status) == 0 && status.st_size > 1)
                std::abort();
        }
    };
    const auto open = [&scene] {
        shell::dispatch(scene.bench.panel(), scene.bench.panel().frm.mnuProgs.Opening);
    };
    open();
    stats();
    return bench::report("opening the Programs menu / as many stat calls", bench::ratio(201, open, stats),
                         2.0);
}

bool benchStart(const char *program)
{
    std::vector<double> seconds;
    std::vector<double> memory;
    for (int i = 0; i < 21; ++i) {
        const auto empty = bench::measureFirstPicture(program, "empty");
        const auto panel = bench::measureFirstPicture(program, "panel");
        seconds.push_back(panel.seconds / empty.seconds);
        memory.push_back(panel.kibibytes / empty.kibibytes);
    }
    bool good = bench::report("start to first picture / an empty main window", bench::median(seconds), 1.5);
    good &= bench::report("resident memory / an empty main window", bench::median(memory), 1.5);
    return good;
}

bool benchIdle(const char *program)
{
    const long wakeUps = bench::measureWakeUps(program, 5);
    return bench::report("wake-ups in 5 seconds of idleness", static_cast<double>(wakeUps), 0);
}

int refreshOnce(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const QTemporaryDir settings;
    bench::BenchPanel bench(settings.path());
    browser::openDirectory(bench.panel(), bench.files().adopt(argv[2]));
    std::puts("-- refresh --");
    std::fflush(stdout);
    browser::cmdRefresh_Click(bench.panel());
    std::puts("-- done --");
    std::fflush(stdout);
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc == 3 && std::strcmp(argv[1], "refresh") == 0)
        return refreshOnce(argc, argv);
    if (argc == 2)
        return bench::runFirstPicture(argc, argv, argv[1]);

    bool good = benchStart(argv[0]);
    good &= benchIdle(argv[0]);
    QApplication application(argc, argv);
    good &= benchLists(LargeDirectory::Kind::Mixed, "100,000 files of all types");
    good &= benchLists(LargeDirectory::Kind::DataFiles, "100,000 data files");
    good &= benchMenu();
    return good ? 0 : 1;
}
