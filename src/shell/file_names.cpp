#include "shell/file_names.h"

#include "platform/runtime_error.h"

using namespace Qt::StringLiterals;

namespace shell {

QString StripExtension(const QString &name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? name.left(dot) : name;
}

QString GetExtension(const QString &name)
{
    return name.mid(name.lastIndexOf(u'.') + 1);
}

QString FileTitle(const QString &name)
{
    const QString stripped = StripExtension(name);
    return stripped.mid(std::max(stripped.lastIndexOf(u'\\'), stripped.lastIndexOf(u':')) + 1);
}

QString DirectoryOf(const QString &name)
{
    QString none = u".\\"_s;
    if (name.isEmpty())
        return none;
    if (name == u"\\")
        return name;
    if (name.size() == 1 || (name.size() == 2 && name[1] == u':'))
        return name[0] + u":\\"_s;
    const qsizetype last = name.lastIndexOf(u'\\');
    return last > 0 ? name.left(last) : none;
}

QString ShortName(Panel &panel, const QString &path)
{
    try {
        return panel.platform.files.shortName(inDataDir(panel.kinovra, path));
    } catch (const platform::RuntimeError &) {
        return {};
    }
}

QString inDataDir(const Kinovra &kinovra, const QString &name)
{
    const bool bare = !name.contains(u'\\') && !name.contains(u':');
    return bare ? kinovra.DataDir + u'\\' + name : name;
}

} // namespace shell
