#include "platform/windows/windows_file_system.h"
#include "scratch_directory.h"
#include "world.h"

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace platform_tests {

namespace {

class HostWorld : public World
{
public:
    platform::FileSystem &files() override { return files_; }
    QString base() override { return QString::fromUtf8(scratch_.path()); }
    void makeDirectory(const QString &name) override { scratch_.makeDirectory(name.toUtf8()); }
    void makeFile(const QString &name, const QByteArray &content) override
    {
        scratch_.makeFile(name.toUtf8(), content);
    }
    void makeHidden(const QString &name) override
    {
        scratch_.makeFile('.' + name.toUtf8());
        hide(u'.' + name);
    }
    // No directory of this system holds a pipe. What cannot be opened, listed or removed here is a hidden
    // directory that is not empty.
    void makePipe(const QString &name) override
    {
        scratch_.makeDirectory(name.toUtf8());
        scratch_.makeFile(name.toUtf8() + "\\x");
        hide(name);
    }
    void forbid(const QString &name) override
    {
        kept_.emplace_back(::CreateFileW(platform::host::wide(path(name)).c_str(), GENERIC_READ, 0, nullptr,
                                         OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    }
    void remove(const QString &name) override { scratch_.remove(name.toUtf8()); }
    bool canBeCalled(const QString &name) const override
    {
        return !name.contains(u'"') && !name.endsWith(u' ') && !name.endsWith(u'.');
    }
    // The system finds a file by a name in another case as well.
    QByteArray content(const QString &name) override
    {
        const QList<QByteArray> names = scratch_.names();
        return names.contains(name.toUtf8()) ? scratch_.read(name.toUtf8()) : "(none)";
    }

private:
    QString path(const QString &name) const { return QString::fromUtf8(scratch_.path(name.toUtf8())); }
    void hide(const QString &name) const
    {
        ::SetFileAttributesW(platform::host::wide(path(name)).c_str(), FILE_ATTRIBUTE_HIDDEN);
    }

    support::KeptDirectory kept;
    support::ScratchDirectory scratch_{"Some Place"};
    platform::host::WindowsFileSystem files_;
    std::vector<platform::host::Handle> kept_;
};

} // namespace

std::unique_ptr<World> makeHostWorld()
{
    return std::make_unique<HostWorld>();
}

} // namespace platform_tests
