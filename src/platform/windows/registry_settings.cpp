#include "platform/windows/registry_settings.h"

#include "platform/windows/open_key.h"

using namespace Qt::StringLiterals;

namespace platform::host {

namespace {

std::wstring keyOf(const QString &application, const QString &section)
{
    return wide(u"Software\\VB and VBA Program Settings\\"_s + application + u'\\' + section);
}

} // namespace

QString RegistrySettings::read(const QString &application, const QString &section, const QString &key,
                               const QString &fallback)
{
    OpenKey opened;
    if (opened.open(HKEY_CURRENT_USER, keyOf(application, section), KEY_QUERY_VALUE) != ERROR_SUCCESS)
        return fallback;
    const auto value = opened.value(key);
    if (!value || value->type != REG_SZ)
        return fallback;
    const QString text = textOfValue(*value);
    const qsizetype end = text.indexOf(QChar(u'\0'));
    return end < 0 ? text : text.left(end);
}

void RegistrySettings::write(const QString &application, const QString &section, const QString &key,
                             const QString &value)
{
    OpenKey opened;
    if (opened.create(HKEY_CURRENT_USER, keyOf(application, section), KEY_SET_VALUE) == ERROR_SUCCESS)
        opened.setText(key, value);
}

} // namespace platform::host
