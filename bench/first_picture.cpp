#include "first_picture.h"

#include "bench_panel.h"
#include "measure.h"
#include "views/panel_windows.h"

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTimer>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char **environ; // NOLINT(readability-redundant-declaration): not declared everywhere

namespace bench {

namespace {

/// A child process with a pipe on which it reports.
struct Child
{
    pid_t process = 0;
    int output = -1;
};

Child start(const char *program, const char *mode)
{
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0)
        throw std::runtime_error("no pipe");
    posix_spawn_file_actions_t actions{};
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addclose(&actions, ends[0]);
    std::string name = program;
    std::string argument = mode;
    std::array<char *, 3> arguments{name.data(), argument.data(), nullptr};
    Child child{0, ends[0]};
    const int error = ::posix_spawn(&child.process, program, &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    ::close(ends[1]);
    if (error != 0)
        throw std::runtime_error("cannot start " + name);
    return child;
}

std::string readLine(int descriptor)
{
    std::string line;
    char c = 0;
    while (::read(descriptor, &c, 1) == 1 && c != '\n')
        line += c;
    return line;
}

void end(const Child &child)
{
    ::kill(child.process, SIGKILL);
    int status = 0;
    ::waitpid(child.process, &status, 0);
    ::close(child.output);
}

double residentKibibytes()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind("VmRSS:", 0) == 0)
            return std::atof(line.c_str() + 6);
    }
    return 0;
}

long voluntarySwitches(pid_t process)
{
    long sum = 0;
    const std::string tasks = "/proc/" + std::to_string(process) + "/task";
    for (const auto &task : std::filesystem::directory_iterator(tasks)) {
        std::ifstream status(task.path() / "status");
        for (std::string line; std::getline(status, line);) {
            if (line.rfind("voluntary_ctxt_switches:", 0) == 0)
                sum += std::atol(line.c_str() + 24);
        }
    }
    return sum;
}

/// Says that the first picture is there, with the memory that it took.
class PictureWatch : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && watched->isWidgetType() && !done_) {
            done_ = true;
            // Behind the painting of the whole window.
            QTimer::singleShot(0, this, [] {
                std::printf("%.0f\n", residentKibibytes());
                std::fflush(stdout);
            });
        }
        return false;
    }

private:
    bool done_ = false;
};

int runEmpty(QApplication &application)
{
    QMainWindow window;
    window.setMenuBar(new QMenuBar);
    window.menuBar()->addMenu(QStringLiteral("&File"));
    window.setStatusBar(new QStatusBar);
    window.resize(673, 600);
    window.show();
    return application.exec();
}

int runPanel(QApplication &application)
{
    const QTemporaryDir settings;
    BenchPanel bench(settings.path());
    views::PanelWindows windows(bench.panel(), bench.files());
    QMetaObject::invokeMethod(
        &application, [&windows] { windows.load(); }, Qt::QueuedConnection);
    return application.exec();
}

} // namespace

FirstPicture measureFirstPicture(const char *program, const char *mode)
{
    FirstPicture result;
    Child child;
    result.seconds = secondsOf([&] {
        child = start(program, mode);
        result.kibibytes = std::atof(readLine(child.output).c_str());
    });
    end(child);
    if (result.kibibytes <= 0)
        throw std::runtime_error(std::string("no picture from ") + mode);
    return result;
}

long measureWakeUps(const char *program, int seconds)
{
    const Child child = start(program, "idle");
    if (readLine(child.output).empty())
        throw std::runtime_error("no picture from idle");
    // The splash ends after three seconds.
    ::sleep(5);
    const long before = voluntarySwitches(child.process);
    ::sleep(static_cast<unsigned>(seconds));
    const long after = voluntarySwitches(child.process);
    end(child);
    return after - before;
}

int runFirstPicture(int argc, char *argv[], const char *mode)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    PictureWatch watch;
    application.installEventFilter(&watch);
    return std::string(mode) == "empty" ? runEmpty(application) : runPanel(application);
}

} // namespace bench
