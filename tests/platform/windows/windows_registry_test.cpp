// What the registry of the machine holds, with the types and lengths that it is asked for.

#include "platform/runtime_error.h"
#include "platform/windows/windows_api.h"
#include "platform/windows/windows_registry.h"
#include "printing.h"

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;
using platform::RegistryRoot;
using platform::host::wide;
using platform::host::WindowsRegistry;

namespace {

constexpr quint32 AllRights = 0x2003F;
constexpr quint32 ReadingAlone = 0x20019;

class WindowsRegistryKeys : public testing::Test
{
public:
    ~WindowsRegistryKeys() override { ::RegDeleteKeyW(HKEY_LOCAL_MACHINE, wide(key).c_str()); }

protected:
    // Only an administrator may.
    bool store(const QString &name, DWORD type, const void *bytes, size_t size) const
    {
        return ::RegSetKeyValueW(HKEY_LOCAL_MACHINE, wide(key).c_str(), wide(name).c_str(), type, bytes,
                                 static_cast<DWORD>(size))
               == ERROR_SUCCESS;
    }

    static qint16 errorOf(const std::function<void()> &call)
    {
        try {
            call();
        } catch (const platform::RuntimeError &error) {
            return error.Number;
        }
        return 0;
    }

    qint16 opening(const QString &name, quint32 access = ReadingAlone)
    {
        return errorOf([&] { registry.open(RegistryRoot::LocalMachine, name, access); });
    }

    const QString key = u"SOFTWARE\\Kinovra test %1"_s.arg(static_cast<quint32>(::GetCurrentProcessId()));
    WindowsRegistry registry;
};

} // namespace

TEST_F(WindowsRegistryKeys, are_read_as_the_machine_holds_them)
{
    const auto version = registry.open(RegistryRoot::LocalMachine,
                                       u"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion"_s, ReadingAlone);
    EXPECT_EQ(version->value(u"SystemRoot"_s, 1024).type, 1U);
    const QString root = version->value(u"systemroot"_s, 1024).data;
    EXPECT_TRUE(root.endsWith(QChar(u'\0')));
    EXPECT_EQ(root.chopped(1).toLower(), qEnvironmentVariable("SystemRoot").toLower());
}

TEST_F(WindowsRegistryKeys, are_missing_where_there_are_none)
{
    EXPECT_EQ(opening(u"SOFTWARE\\No such key of anybody"_s), 53);
    EXPECT_EQ(opening(u"No such root\\key"_s), 53);
    EXPECT_EQ(opening(u"SOFTWARE\\Microsoft\\"_s + QString(300, u'x')), 53);
    EXPECT_EQ(opening(u"SOFTWARE\\Microsoft"_s), 0);
    EXPECT_EQ(opening(u"software\\MICROSOFT"_s), 0);
}

TEST_F(WindowsRegistryKeys, tell_a_refusal_from_what_is_missing)
{
    // Not even an administrator may write into the machine's accounts.
    HKEY refused = nullptr;
    const LSTATUS status = ::RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"SAM\\SAM", 0, AllRights, &refused);
    if (status != ERROR_ACCESS_DENIED)
        GTEST_SKIP() << "this system refuses nothing";
    EXPECT_EQ(opening(u"SAM\\SAM"_s, AllRights), 70);
}

TEST_F(WindowsRegistryKeys, hold_texts_numbers_and_bytes)
{
    const DWORD number = 0x010203FF;
    if (!store(u"Number"_s, REG_DWORD, &number, sizeof number))
        GTEST_SKIP() << "only an administrator may store values of the machine";
    store(u"Text"_s, REG_SZ, L"C:\\L\u00e4ufer", 20);
    store(u"Open"_s, REG_SZ, L"abc", 4);
    store(u"Expanded"_s, REG_EXPAND_SZ, L"%TEMP%", 14);
    store(u"Empty"_s, REG_SZ, L"", 0);
    store(u"Bytes"_s, REG_BINARY, "a\0\xFF", 3);
    store(QString(), REG_SZ, L"x", 4);
    const auto opened = registry.open(RegistryRoot::LocalMachine, key, AllRights);
    const auto expectValue = [&](const QString &name, quint32 type, const QString &data) {
        const auto value = opened->value(name, data.size());
        EXPECT_EQ(value.type, type) << name.toStdString();
        EXPECT_EQ(value.data, data) << name.toStdString();
        if (!data.isEmpty()) {
            EXPECT_EQ(errorOf([&] { opened->value(name, data.size() - 1); }), 5) << name.toStdString();
        }
    };
    expectValue(u"Number"_s, 4, QString(u"\u00FF\u0003\u0002\u0001"_s));
    expectValue(u"Text"_s, 1, u"C:\\Läufer"_s + QChar(u'\0'));
    expectValue(u"Open"_s, 1, u"ab"_s);
    expectValue(u"Expanded"_s, 2, u"%TEMP%"_s + QChar(u'\0'));
    expectValue(u"Empty"_s, 1, QString());
    expectValue(u"Bytes"_s, 3, u"a"_s + QChar(u'\0') + QChar(u'\u00FF'));
    expectValue(QString(), 1, u"x"_s + QChar(u'\0'));
    EXPECT_EQ(errorOf([&] { opened->value(u"Missing"_s, 1024); }), 53);
}

TEST_F(WindowsRegistryKeys, hold_long_texts)
{
    const std::wstring text(5'000, L'x');
    if (!store(u"Long"_s, REG_SZ, text.c_str(), (text.size() + 1) * sizeof(wchar_t)))
        GTEST_SKIP() << "only an administrator may store values of the machine";
    const auto opened = registry.open(RegistryRoot::LocalMachine, key, ReadingAlone);
    EXPECT_EQ(opened->value(u"Long"_s, 5'001).data, QString(5'000, u'x') + QChar(u'\0'));
    EXPECT_EQ(errorOf([&] { opened->value(u"Long"_s, 5'000); }), 5);
}
