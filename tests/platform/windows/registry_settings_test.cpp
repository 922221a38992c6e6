// The user's settings in the registry, where the package's other programs look for them.

#include "platform/windows/registry_settings.h"
#include "platform/windows/windows_api.h"
#include "printing.h"

#include <gtest/gtest.h>

#include <aclapi.h>

using namespace Qt::StringLiterals;
using platform::host::RegistrySettings;
using platform::host::wide;

namespace {

const QString Root = u"Software\\VB and VBA Program Settings\\"_s;

class RegistrySettingsTest : public testing::Test
{
public:
    ~RegistrySettingsTest() override
    {
        for (const QString &name : {application, other}) {
            ::RegDeleteTreeW(HKEY_CURRENT_USER, wide(Root + name).c_str());
            ::RegDeleteKeyW(HKEY_CURRENT_USER, wide(Root + name).c_str());
        }
    }

protected:
    /// Stores a value as another program does.
    void store(const QString &key, DWORD type, const void *bytes, size_t size,
               const QString &section = u"Startup"_s) const
    {
        ASSERT_EQ(::RegSetKeyValueW(HKEY_CURRENT_USER, wide(Root + application + u'\\' + section).c_str(),
                                    wide(key).c_str(), type, bytes, static_cast<DWORD>(size)),
                  ERROR_SUCCESS);
    }

    /// What another program finds: the type and the bytes, as characters.
    std::pair<DWORD, QString> stored(const QString &key, const QString &of) const
    {
        std::wstring text(100'000, L'\0');
        auto size = static_cast<DWORD>(text.size() * sizeof(wchar_t));
        DWORD type = 0;
        if (::RegGetValueW(HKEY_CURRENT_USER, wide(Root + of + u"\\Startup"_s).c_str(), wide(key).c_str(),
                           RRF_RT_ANY | RRF_NOEXPAND, &type, text.data(), &size)
            != ERROR_SUCCESS)
            return {};
        return {type, QString::fromWCharArray(text.data(), qsizetype(size / sizeof(wchar_t)))};
    }

    QString read(const QString &key, const QString &fallback = u"default"_s)
    {
        return settings.read(application, u"Startup"_s, key, fallback);
    }
    void write(const QString &key, const QString &value)
    {
        settings.write(application, u"Startup"_s, key, value);
    }

    // No other program's settings are touched.
    const QString application = u"Kinovra test %1"_s.arg(static_cast<quint32>(::GetCurrentProcessId()));
    const QString other = application + u" other"_s;
    RegistrySettings settings;
};

} // namespace

TEST_F(RegistrySettingsTest, lie_where_other_programs_look_for_them_as_texts)
{
    write(u"Directory"_s, u"C:\\DATA"_s);
    EXPECT_EQ(stored(u"Directory"_s, application), (std::pair{DWORD(REG_SZ), u"C:\\DATA"_s + QChar(u'\0')}));
    settings.write(other, u"Startup"_s, u"Directory"_s, u"D:\\"_s);
    EXPECT_EQ(stored(u"Directory"_s, other), (std::pair{DWORD(REG_SZ), u"D:\\"_s + QChar(u'\0')}));
    EXPECT_EQ(read(u"Directory"_s), u"C:\\DATA"_s);
    EXPECT_EQ(settings.read(other, u"Startup"_s, u"Directory"_s, QString()), u"D:\\"_s);
}

TEST_F(RegistrySettingsTest, have_a_default_where_nothing_is_stored)
{
    EXPECT_EQ(read(u"Missing"_s), u"default"_s) << "no key";
    write(u"Directory"_s, u"x"_s);
    EXPECT_EQ(read(u"Missing"_s), u"default"_s) << "no value";
    EXPECT_EQ(read(u"Missing"_s, QString()), QString());
    EXPECT_EQ(settings.read(application, u"Elsewhere"_s, u"Directory"_s, u"default"_s), u"default"_s);
    EXPECT_EQ(settings.read(other, u"Startup"_s, u"Directory"_s, u"default"_s), u"default"_s);
}

TEST_F(RegistrySettingsTest, keep_every_text)
{
    for (const QString &value :
         {QString(u""_s), u" "_s, u"True"_s, u"-1"_s, u"Läufer бег τρέξιμο 🏃 e\u0301"_s, u"a\nb\tc"_s,
          u"%TEMP%\\x"_s, u"\"quoted\""_s, u"C:\\"_s, QString(126, u'x'), QString(127, u'x'),
          QString(128, u'x'), QString(129, u'x'), QString(4'000, u'ä'), QString(40'000, u'x')}) {
        write(u"Value"_s, value);
        EXPECT_EQ(read(u"Value"_s), value) << value.left(20).toStdString();
        EXPECT_EQ(stored(u"Value"_s, application), (std::pair{DWORD(REG_SZ), value + QChar(u'\0')}));
    }
}

TEST_F(RegistrySettingsTest, replace_a_longer_text_with_a_shorter_one)
{
    write(u"Value"_s, u"a long text"_s);
    write(u"VALUE"_s, u"x"_s);
    EXPECT_EQ(read(u"value"_s), u"x"_s) << "letter case does not count";
}

TEST_F(RegistrySettingsTest, have_a_default_where_another_program_has_stored_something_else)
{
    const DWORD number = 7;
    store(u"Number"_s, REG_DWORD, &number, sizeof number);
    store(u"Bytes"_s, REG_BINARY, "abc", 3);
    store(u"Nothing"_s, REG_NONE, "", 0);
    store(u"Texts"_s, REG_MULTI_SZ, L"a\0b\0", 10);
    store(u"Expanded"_s, REG_EXPAND_SZ, L"%TEMP%", 14);
    for (const QString &key : {u"Number"_s, u"Bytes"_s, u"Nothing"_s, u"Texts"_s, u"Expanded"_s})
        EXPECT_EQ(read(key), u"default"_s) << key.toStdString();
    write(u"Number"_s, u"8"_s);
    EXPECT_EQ(read(u"Number"_s), u"8"_s);
    EXPECT_EQ(stored(u"Number"_s, application).first, DWORD(REG_SZ));
}

TEST_F(RegistrySettingsTest, end_at_the_first_zero_or_where_the_value_ends)
{
    store(u"Open"_s, REG_SZ, L"abc", 4);
    store(u"Empty"_s, REG_SZ, L"", 0);
    store(u"Zeros"_s, REG_SZ, L"ab\0cd\0\0", 14);
    store(u"Odd"_s, REG_SZ, L"ab", 3);
    EXPECT_EQ(read(u"Open"_s), u"ab"_s);
    EXPECT_EQ(read(u"Empty"_s), QString());
    EXPECT_EQ(read(u"Zeros"_s), u"ab"_s);
    EXPECT_EQ(read(u"Odd"_s), u"a"_s);
}

TEST_F(RegistrySettingsTest, have_names_in_any_script)
{
    const QString name = u"Läufer 🏃"_s;
    settings.write(application, name, name, u"x"_s);
    EXPECT_EQ(settings.read(application, name, name, QString()), u"x"_s);
    EXPECT_EQ(settings.read(application, u"LÄUFER 🏃"_s, u"lÄUFER 🏃"_s, QString()), u"x"_s);
}

TEST_F(RegistrySettingsTest, never_fail_visibly)
{
    const QString tooLong(300, u'x');
    EXPECT_NO_THROW(settings.write(application, tooLong, u"Key"_s, u"x"_s));
    EXPECT_EQ(settings.read(application, tooLong, u"Key"_s, u"default"_s), u"default"_s);
    const QString muchTooLong(20'000, u'x');
    EXPECT_NO_THROW(write(muchTooLong, u"x"_s));
    EXPECT_EQ(read(muchTooLong), u"default"_s);
}

TEST_F(RegistrySettingsTest, are_lost_where_the_key_may_not_be_opened)
{
    write(u"Value"_s, u"x"_s);
    HKEY key = nullptr;
    const std::wstring name = wide(Root + application + u"\\Startup"_s);
    ASSERT_EQ(::RegOpenKeyExW(HKEY_CURRENT_USER, name.c_str(), 0, WRITE_DAC | READ_CONTROL | DELETE, &key),
              ERROR_SUCCESS);
    // A list without an entry lets nobody in.
    ACL nobody;
    ASSERT_TRUE(::InitializeAcl(&nobody, sizeof nobody, ACL_REVISION));
    ASSERT_EQ(::SetSecurityInfo(key, SE_REGISTRY_KEY, DACL_SECURITY_INFORMATION, nullptr, nullptr, &nobody,
                                nullptr),
              DWORD(ERROR_SUCCESS));
    HKEY refused = nullptr;
    const bool isRefused =
        ::RegOpenKeyExW(HKEY_CURRENT_USER, name.c_str(), 0, KEY_QUERY_VALUE, &refused) == ERROR_ACCESS_DENIED;
    const QString readValue = read(u"Value"_s);
    EXPECT_NO_THROW(write(u"Value"_s, u"y"_s));
    ::SetSecurityInfo(key, SE_REGISTRY_KEY, DACL_SECURITY_INFORMATION, nullptr, nullptr, nullptr, nullptr);
    ::RegCloseKey(key);
    if (!isRefused) {
        ::RegCloseKey(refused);
        GTEST_SKIP() << "this system keeps nobody from a key";
    }
    EXPECT_EQ(readValue, u"default"_s);
    EXPECT_EQ(read(u"Value"_s), u"x"_s);
}
