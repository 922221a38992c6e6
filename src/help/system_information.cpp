#include "help/system_information.h"

#include "launcher/starting.h"
#include "platform/runtime_error.h"
#include "shell/dispatch.h"

#include <QRegularExpression>

#include <numeric>

using namespace Qt::StringLiterals;

namespace help {

namespace {

using platform::ErrorNumber;
using platform::RegistryRoot;
using platform::RuntimeError;

constexpr quint32 AllRights = 0x2003F;
constexpr quint32 ReadingAlone = 0x20019;
constexpr qsizetype LongestValue = 1024;

// All rights are asked for first, which an ordinary user may lack.
std::unique_ptr<platform::RegistryKey> openKey(Panel &panel, RegistryRoot root, const QString &name)
{
    platform::Registry &registry = panel.platform.registry;
    try {
        return registry.open(root, name, AllRights);
    } catch (const RuntimeError &error) {
        if (error.Number != static_cast<qint16>(ErrorNumber::PermissionDenied))
            throw;
    }
    return registry.open(root, name, ReadingAlone);
}

// The bytes come with the lowest first. A closing zero byte was dropped like that of a text, which leaves the
// number as it is.
QString decimalText(const QString &bytes)
{
    const quint32 number =
        std::accumulate(bytes.crbegin(), bytes.crend(), quint32(0),
                        [](quint32 above, QChar byte) { return (above << 8U) + (byte.unicode() & 0xFFU); });
    return QString::number(number);
}

struct KeyText
{
    QString text;
    quint32 type;
};

std::optional<KeyText> readText(Panel &panel, RegistryRoot root, const QString &key, const QString &name)
{
    try {
        platform::RegistryValue value = openKey(panel, root, key)->value(name, LongestValue);
        if (value.data.endsWith(QChar(u'\0')))
            value.data.chop(1);
        return KeyText{value.type == platform::RegistryNumber ? decimalText(value.data) : value.data,
                       value.type};
    } catch (const RuntimeError &) {
        return std::nullopt;
    }
}

// "%ProgramFiles%\Tools" with the value of the environment variable; what is no variable stays as it is.
QString expanded(Panel &panel, const QString &text)
{
    static const QRegularExpression variable(u"%([^%]+)%"_s);
    QString result;
    qsizetype end = 0;
    for (auto matches = variable.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        const QString value = panel.platform.environment.variable(match.captured(1));
        result += QStringView(text).mid(end, match.capturedStart() - end);
        result += value.isEmpty() ? match.captured() : value;
        end = match.capturedEnd();
    }
    result += QStringView(text).mid(end);
    return result;
}

std::optional<QString> readPath(Panel &panel, const QString &key, const QString &name)
{
    const auto value = readText(panel, RegistryRoot::LocalMachine, key, name);
    if (!value)
        return std::nullopt;
    return value->type == platform::RegistryTextToExpand ? expanded(panel, value->text) : value->text;
}

std::optional<QString> findTool(Panel &panel)
{
    if (auto path = readPath(panel, u"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"_s, u"PATH"_s))
        return path;
    const auto directory = readPath(panel, u"SOFTWARE\\Microsoft\\Shared Tools Location"_s, u"MSINFO"_s);
    if (!directory)
        return std::nullopt;
    const QString path = *directory + u"\\MSINFO32.EXE"_s;
    return panel.platform.files.testReading(path) == 0 ? std::optional(path) : std::nullopt;
}

} // namespace

void StartSysInfo(Panel &panel)
{
    const auto path = findTool(panel);
    if (!path || path->isEmpty() || launcher::startDirectly(panel, *path, {}, platform::Show::Normal) == 0)
        shell::MsgBox(panel, {u"System information is unavailable at this time."_s});
}

bool GetKeyValue(Panel &panel, RegistryRoot KeyRoot, const QString &KeyName, const QString &SubKeyRef,
                 QString &KeyVal)
{
    const auto value = readText(panel, KeyRoot, KeyName, SubKeyRef);
    if (!value)
        return false;
    KeyVal = value->text;
    return true;
}

} // namespace help
