#include "platform/linux/linux_file_system.h"
#include "scratch_directory.h"
#include "world.h"

#include <optional>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace platform_tests {

namespace {

class HostWorld : public World
{
public:
    HostWorld() : base_(files_.adopt(scratch_.path())) {}
    platform::FileSystem &files() override { return files_; }
    QString base() override { return base_; }
    void makeDirectory(const QString &name) override { scratch_.makeDirectory(name.toUtf8()); }
    void makeFile(const QString &name, const QByteArray &content) override
    {
        scratch_.makeFile(name.toUtf8().replace('\\', '/'), content);
    }
    void makeHidden(const QString &name) override { scratch_.makeFile('.' + name.toUtf8()); }
    void makePipe(const QString &name) override { scratch_.makePipe(name.toUtf8()); }
    void forbid(const QString &name) override
    {
        ::chmod(scratch_.path(name.toUtf8()).constData(), 0);
        nobody_.emplace();
    }
    void remove(const QString &name) override { scratch_.remove(name.toUtf8()); }
    bool canBeCalled(const QString &) const override { return true; }
    QByteArray content(const QString &name) override
    {
        return scratch_.has(name.toUtf8()) ? scratch_.read(name.toUtf8()) : "(none)";
    }

private:
    support::ScratchDirectory scratch_{"Some Place"};
    platform::host::LinuxFileSystem files_{QByteArray()};
    QString base_;
    std::optional<support::WithoutPrivileges> nobody_;
};

} // namespace

std::unique_ptr<World> makeHostWorld()
{
    return std::make_unique<HostWorld>();
}

} // namespace platform_tests
