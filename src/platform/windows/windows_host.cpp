#include "platform/host.h"
#include "platform/windows/registry_settings.h"
#include "platform/windows/windows_environment.h"
#include "platform/windows/windows_file_system.h"
#include "platform/windows/windows_programs.h"
#include "platform/windows/windows_registry.h"

namespace platform {

namespace {

class WindowsHost : public Host
{
public:
    Settings &settings() override { return settings_; }
    Environment &environment() override { return environment_; }
    FileSystem &files() override { return files_; }
    HostPaths &paths() override { return files_; }
    Programs &programs() override { return programs_; }
    Registry &registry() override { return registry_; }

private:
    host::WindowsFileSystem files_;
    host::RegistrySettings settings_;
    host::WindowsEnvironment environment_;
    host::WindowsPrograms programs_{files_};
    host::WindowsRegistry registry_;
};

} // namespace

// Libraries come from the system's directory alone: one that lies in a data directory is not this program's.
void prepareProcess()
{
    ::SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
    ::SetDllDirectoryW(L"");
}

std::unique_ptr<Host> openHost(int, char *[])
{
    return std::make_unique<WindowsHost>();
}

} // namespace platform
