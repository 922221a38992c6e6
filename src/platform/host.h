#pragma once

#include "platform/environment.h"
#include "platform/file_system.h"
#include "platform/host_paths.h"
#include "platform/programs.h"
#include "platform/registry.h"
#include "platform/settings.h"

#include <memory>

namespace platform {

/// The machine on which the panel runs. Each system has its own; everything above it is the same.
class Host
{
public:
    virtual ~Host() = default;

    virtual Settings &settings() = 0;
    virtual Environment &environment() = 0;
    virtual FileSystem &files() = 0;
    virtual HostPaths &paths() = 0;
    virtual Programs &programs() = 0;
    virtual Registry &registry() = 0;
};

/// What a system wants to have done before anything else happens in the process.
void prepareProcess();

/// The machine as it is found; there must be an application object. `argc` and `argv` are those of main().
std::unique_ptr<Host> openHost(int argc, char *argv[]);

} // namespace platform
