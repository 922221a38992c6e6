#include "platform/linux/linux_registry.h"

#include "platform/letter_case.h"
#include "platform/linux/desktop_programs.h"
#include "platform/runtime_error.h"

using namespace Qt::StringLiterals;

namespace platform::host {

namespace {

class SystemInformationKey : public RegistryKey
{
public:
    RegistryValue value(const QString &name, qsizetype most) override
    {
        if (!sameIgnoringCase(name, u"PATH"_s))
            throw RuntimeError(ErrorNumber::FileNotFound);
        RegistryValue tool{RegistryText, u"MSINFO32.EXE"_s + QChar(u'\0')};
        if (tool.data.size() > most)
            throw RuntimeError(ErrorNumber::InvalidProcedureCall);
        return tool;
    }
};

} // namespace

std::unique_ptr<RegistryKey> LinuxRegistry::open(RegistryRoot root, const QString &name, quint32)
{
    const bool isSystemInformation =
        root == RegistryRoot::LocalMachine
        && sameIgnoringCase(name, u"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"_s);
    if (!isSystemInformation || !desktopProgram(u"MSINFO32.EXE"_s))
        throw RuntimeError(ErrorNumber::FileNotFound);
    return std::make_unique<SystemInformationKey>();
}

} // namespace platform::host
