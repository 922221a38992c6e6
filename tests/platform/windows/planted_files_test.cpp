// Libraries that lie where somebody works: no program of the panel loads them.

#include "echo_fixture.h"
#include "platform/path_language.h"
#include "printing.h"

using namespace Qt::StringLiterals;
using platform::CommandText;
using platform::Start;
using platform::host::Handle;
using support::SystemVariable;

namespace {

class PlantedFiles : public platform_tests::WindowsStarts
{
protected:
    PlantedFiles() { scratch.makeDirectory("data"); }

    void plant(const QString &name) const { install(u"data\\"_s + name, u"echo_planted.dll"_s); }

    /// What the loader's exit code is when it runs where the libraries are planted.
    int load(const CommandText &arguments)
    {
        Start start = direct(support::testDirectory() + u"\\echo_loader.exe"_s, u" "_s + arguments);
        start.directory = at(u"data"_s);
        const size_t before = ends.size();
        EXPECT_EQ(startUnlessLost(start).failure, QString());
        waitForEnds(before + 1);
        return ends.back().ending.code;
    }

    const SystemVariable mark{u"PLANTED_MARK"_s, at(u"mark"_s)};
};

} // namespace

TEST_F(PlantedFiles, would_be_loaded_by_any_other_program)
{
    plant(u"planted.dll"_s);
    EXPECT_EQ(load(u"planted.dll"_s), 1);
    EXPECT_TRUE(scratch.has("mark")) << "or the other tests show nothing";
}

TEST_F(PlantedFiles, are_not_loaded_from_the_current_directory)
{
    plant(u"planted.dll"_s);
    for (const QString &name : {u"planted.dll"_s, u"planted"_s, u"PLANTED.DLL"_s})
        EXPECT_EQ(load(u"prepared "_s + name), 0) << name.toStdString();
    EXPECT_FALSE(scratch.has("mark"));
}

TEST_F(PlantedFiles, are_not_loaded_from_the_path)
{
    plant(u"planted.dll"_s);
    const SystemVariable path(u"PATH"_s,
                              at(u"data"_s) + u';' + SystemVariable::read(u"PATH"_s).value_or(QString()));
    EXPECT_EQ(load(u"prepared planted.dll"_s), 0);
    EXPECT_FALSE(scratch.has("mark"));
}

TEST_F(PlantedFiles, do_not_keep_the_systems_own_from_being_loaded)
{
    plant(u"version.dll"_s);
    plant(u"winmm.dll"_s);
    EXPECT_EQ(load(u"prepared version.dll"_s), 1);
    EXPECT_EQ(load(u"prepared winmm.dll"_s), 1);
    EXPECT_FALSE(scratch.has("mark"));
}

TEST_F(PlantedFiles, are_not_loaded_by_the_panel)
{
    const QString panel = platform::joinPath(platform::parentOf(support::testDirectory()),
                                             QStringLiteral(KINOVRA_PANEL_PROGRAM));
    if (::GetFileAttributesW(support::longForm(panel).c_str()) == INVALID_FILE_ATTRIBUTES)
        GTEST_SKIP() << "the panel is not built";
    // What it loads when it begins, and what the system's parts load for its window.
    for (const QString &name :
         {u"version.dll"_s,     u"mpr.dll"_s,       u"winmm.dll"_s,       u"userenv.dll"_s,
          u"netapi32.dll"_s,    u"authz.dll"_s,     u"dwmapi.dll"_s,      u"uxtheme.dll"_s,
          u"wtsapi32.dll"_s,    u"d3d9.dll"_s,      u"d3d11.dll"_s,       u"dxgi.dll"_s,
          u"imm32.dll"_s,       u"winspool.drv"_s,  u"comdlg32.dll"_s,    u"shcore.dll"_s,
          u"propsys.dll"_s,     u"cryptbase.dll"_s, u"textshaping.dll"_s, u"msctf.dll"_s,
          u"dwrite.dll"_s,      u"setupapi.dll"_s,  u"profapi.dll"_s,     u"cryptsp.dll"_s,
          u"rpcrtremote.dll"_s, u"linkinfo.dll"_s,  u"ntmarta.dll"_s})
        plant(name);
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process = {};
    std::wstring text = platform::host::wide(u"KVwin98.exe"_s);
    ASSERT_NE(::CreateProcessW(platform::host::wide(panel).c_str(), text.data(), nullptr, nullptr, FALSE, 0,
                               nullptr, platform::host::wide(at(u"data"_s)).c_str(), &startup, &process),
              0);
    const Handle thread(process.hThread);
    const Handle running(process.hProcess);
    // Until it waits for its user, or has ended because nothing can be shown.
    ::WaitForInputIdle(running.get(), 60'000);
    EXPECT_FALSE(scratch.has("mark"));
    ::TerminateProcess(running.get(), 0);
    ::WaitForSingleObject(running.get(), 10'000);
}
