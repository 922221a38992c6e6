// The one key that this system answers for.

#include "platform/linux/linux_registry.h"
#include "platform/runtime_error.h"
#include "printing.h"
#include "scratch_directory.h"

#include <gtest/gtest.h>

#include <functional>

using namespace Qt::StringLiterals;
using platform::RegistryRoot;
using platform::host::LinuxRegistry;

namespace {

constexpr quint32 AllRights = 0x2003F;
constexpr quint32 ReadingAlone = 0x20019;

class LinuxRegistryKeys : public testing::Test
{
protected:
    LinuxRegistryKeys() { scratch.makeDirectory("bin"); }

    void install(const QByteArray &tool) const { scratch.makeExecutable("bin/" + tool, "#!/bin/true\n"); }

    qint16 opening(const QString &name, RegistryRoot root = RegistryRoot::LocalMachine)
    {
        return errorOf([&] { registry.open(root, name, ReadingAlone); });
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

    const QString key = u"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"_s;
    support::ScratchDirectory scratch;
    support::ScopedVariable path{"PATH", scratch.path("bin")};
    support::ScopedVariable desktop{"XDG_CURRENT_DESKTOP", QByteArray()};
    LinuxRegistry registry;
};

} // namespace

TEST_F(LinuxRegistryKeys, tell_where_the_system_information_tool_is)
{
    install("hardinfo");
    const auto value = registry.open(RegistryRoot::LocalMachine, key, AllRights)->value(u"PATH"_s, 1024);
    EXPECT_EQ(value.type, 1U);
    EXPECT_EQ(value.data, u"MSINFO32.EXE"_s + QChar(u'\0'));
}

TEST_F(LinuxRegistryKeys, are_missing_where_no_tool_is_installed)
{
    EXPECT_EQ(opening(key), 53);
    install("gedit");
    EXPECT_EQ(opening(key), 53);
    scratch.makeFile("bin/hardinfo");
    EXPECT_EQ(opening(key), 53) << "it may not be executed";
    install("hardinfo");
    EXPECT_EQ(opening(key), 0);
    const support::ScopedVariable elsewhere("PATH", "/nowhere");
    EXPECT_EQ(opening(key), 53);
}

TEST_F(LinuxRegistryKeys, are_no_others)
{
    install("hardinfo");
    for (const QString &name :
         {u"SOFTWARE\\Microsoft\\Shared Tools Location"_s, u"SOFTWARE\\Microsoft\\Shared Tools"_s,
          key + u'\\', u'\\' + key, u"MSINFO"_s, QString()})
        EXPECT_EQ(opening(name), 53) << name.toStdString();
    EXPECT_EQ(opening(key, RegistryRoot(0x80000001)), 53);
}

TEST_F(LinuxRegistryKeys, have_one_value)
{
    install("hardinfo");
    const auto opened = registry.open(RegistryRoot::LocalMachine, key, AllRights);
    for (const QString &name : {u"MSINFO"_s, u"PATHS"_s, u"PATH "_s, QString()})
        EXPECT_EQ(errorOf([&] { opened->value(name, 1024); }), 53) << name.toStdString();
    EXPECT_EQ(opened->value(u"PATH"_s, 1024).data.size(), 13);
}

TEST_F(LinuxRegistryKeys, do_not_mind_letter_case)
{
    install("hardinfo");
    const auto opened = registry.open(RegistryRoot::LocalMachine, key.toLower(), AllRights);
    EXPECT_EQ(opened->value(u"Path"_s, 1024).data.size(), 13);
    EXPECT_EQ(opening(key.toUpper()), 0);
}

TEST_F(LinuxRegistryKeys, are_open_to_everybody)
{
    install("hardinfo");
    for (quint32 access : {AllRights, ReadingAlone, 0U, 1U, 0xFFFFFFFFU}) {
        const auto opened = registry.open(RegistryRoot::LocalMachine, key, access);
        EXPECT_EQ(opened->value(u"PATH"_s, 1024).data.size(), 13) << access;
    }
}

TEST_F(LinuxRegistryKeys, refuse_a_value_that_is_too_long_for_the_caller)
{
    install("hardinfo");
    const auto opened = registry.open(RegistryRoot::LocalMachine, key, AllRights);
    EXPECT_EQ(opened->value(u"PATH"_s, 13).data.size(), 13) << "the closing zero counts";
    EXPECT_EQ(errorOf([&] { opened->value(u"PATH"_s, 12); }), 5);
}
