#include "help/system_information.h"
#include "panel_fixture.h"
#include "printing.h"
#include "shell/dispatch.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using platform::MessageBox;
using platform::RegistryRoot;
using platform::RegistryValue;
using platform::Show;
using platform::Start;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr char16_t Tool[] = u"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
constexpr char16_t Location[] = u"SOFTWARE\\Microsoft\\Shared Tools Location";

const MessageBox Unavailable{u"System information is unavailable at this time."_s};

QString zero()
{
    return {QChar(u'\0')};
}

QString key(const char16_t *name)
{
    return QString::fromUtf16(name);
}

// The bytes of a 32-bit number as the system stores them, the lowest first.
QString bytes(std::initializer_list<int> values)
{
    QString result;
    for (const int value : values)
        result += QChar(value);
    return result;
}

Start tool(const char *path)
{
    return {QString(), QLatin1String(path), {}, u"C:\\DATA"_s, Show::Normal};
}

} // namespace

class SystemInformation : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        load();
        about.show();
        forget();
    }

    bool read(const RegistryValue &value)
    {
        machine.registry.store(u"KEY"_s, u"VALUE"_s, value);
        return help::GetKeyValue(panel, RegistryRoot::LocalMachine, u"KEY"_s, u"VALUE"_s, text);
    }

    QString text = u"(before)"_s;
};

TEST_F(SystemInformation, a_text_is_read_with_and_without_its_closing_zero)
{
    EXPECT_TRUE(read({1, u"C:\\Tools\\x.exe"_s + zero()}));
    EXPECT_EQ(text, u"C:\\Tools\\x.exe"_s);
    EXPECT_TRUE(read({1, u"C:\\Tools\\x.exe"_s}));
    EXPECT_EQ(text, u"C:\\Tools\\x.exe"_s);
    EXPECT_TRUE(read({1, u"x"_s + zero() + zero()}));
    EXPECT_EQ(text, u"x"_s + zero());
    EXPECT_TRUE(read({1, zero()}));
    EXPECT_EQ(text, QString());
    text = u"(before)"_s;
    EXPECT_TRUE(read({1, QString()}));
    EXPECT_EQ(text, QString());
}

TEST_F(SystemInformation, a_number_is_read_as_its_decimal_text)
{
    const std::pair<QString, const char *> numbers[]{
        {bytes({0, 0, 0, 0}), "0"},
        {bytes({1, 0, 0, 0}), "1"},
        {bytes({0, 0, 0, 0x80}), "2147483648"},
        {bytes({0xFF, 0xFF, 0xFF, 0xFF}), "4294967295"},
        {bytes({3, 2, 1, 0}), "66051"},
        {bytes({0x0A, 0, 0x0B, 0}), "720906"},
        {bytes({0xFF, 0xFF, 0, 0}), "65535"},
    };
    for (const auto &[data, decimal] : numbers) {
        EXPECT_TRUE(read({4, data}));
        EXPECT_EQ(text, QLatin1String(decimal));
    }
}

TEST_F(SystemInformation, every_other_type_is_read_as_raw_text)
{
    machine.environment.variables[u"A"_s] = u"expanded"_s;
    for (const quint32 type : {0U, 2U, 3U, 5U, 7U, 11U}) {
        EXPECT_TRUE(read({type, u"%A%\x01"_s + zero()}));
        EXPECT_EQ(text, u"%A%\x01"_s);
    }
}

TEST_F(SystemInformation, a_missing_key_or_value_is_false_and_changes_nothing)
{
    EXPECT_FALSE(help::GetKeyValue(panel, RegistryRoot::LocalMachine, u"NONE"_s, u"VALUE"_s, text));
    machine.registry.store(u"KEY"_s, u"OTHER"_s, {1, u"x"_s});
    EXPECT_FALSE(help::GetKeyValue(panel, RegistryRoot::LocalMachine, u"KEY"_s, u"VALUE"_s, text));
    EXPECT_EQ(text, u"(before)"_s);
    EXPECT_EQ(machine.registry.calls,
              (QStringList{u"open 80000002 NONE 2003f"_s, u"open 80000002 KEY 2003f"_s, u"value VALUE 1024"_s,
                           u"close"_s}));
}

TEST_F(SystemInformation, a_key_is_opened_read_and_closed)
{
    EXPECT_TRUE(read({1, u"x"_s}));
    EXPECT_EQ(machine.registry.calls,
              (QStringList{u"open 80000002 KEY 2003f"_s, u"value VALUE 1024"_s, u"close"_s}));
}

TEST_F(SystemInformation, a_value_that_does_not_fit_is_false)
{
    EXPECT_TRUE(read({1, QString(1024, u'x')}));
    EXPECT_EQ(text.size(), 1024);
    text = u"(before)"_s;
    EXPECT_FALSE(read({1, QString(1025, u'x')}));
    EXPECT_EQ(text, u"(before)"_s);
}

TEST_F(SystemInformation, an_ordinary_user_reads_for_reading_alone)
{
    machine.registry.denied = {0x2003F};
    EXPECT_TRUE(read({1, u"x"_s}));
    EXPECT_EQ(text, u"x"_s);
    EXPECT_EQ(machine.registry.calls, (QStringList{u"open 80000002 KEY 2003f"_s, u"open 80000002 KEY 20019"_s,
                                                   u"value VALUE 1024"_s, u"close"_s}));
    machine.registry.denied = {0x2003F, 0x20019};
    EXPECT_FALSE(read({1, u"x"_s}));
}

TEST_F(SystemInformation, starts_the_tool_that_the_first_key_names)
{
    machine.registry.store(key(Tool), u"PATH"_s, {1, u"C:\\Program Files\\MSInfo\\MSInfo32.exe"_s + zero()});
    machine.registry.store(key(Location), u"MSINFO"_s, {1, u"C:\\other"_s + zero()});
    addFile(u"C:\\other\\MSINFO32.EXE"_s);
    mark();
    click(about.cmdSysinfo);
    EXPECT_THAT(machine.programs.started, ElementsAre(tool("C:\\Program Files\\MSInfo\\MSInfo32.exe")));
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_EQ(machine.registry.calls.size(), 3) << "the second key is not read";
    EXPECT_TRUE(about.Visible);
    expectMarkedBut({});
}

TEST_F(SystemInformation, falls_back_on_the_directory_that_the_second_key_names)
{
    machine.registry.store(key(Location), u"MSINFO"_s, {1, u"C:\\Shared"_s + zero()});
    addFile(u"C:\\Shared\\msinfo32.exe"_s);
    click(about.cmdSysinfo);
    EXPECT_THAT(machine.programs.started, ElementsAre(tool("C:\\Shared\\MSINFO32.EXE")));
    EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(SystemInformation, is_unavailable_where_that_directory_has_no_tool)
{
    machine.registry.store(key(Location), u"MSINFO"_s, {1, u"C:\\Shared"_s + zero()});
    click(about.cmdSysinfo);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(Unavailable));
    EXPECT_THAT(machine.programs.started, IsEmpty());
}

TEST_F(SystemInformation, is_unavailable_without_either_key)
{
    mark();
    click(about.cmdSysinfo);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(Unavailable));
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_EQ(machine.registry.calls,
              (QStringList{u"open 80000002 SOFTWARE\\Microsoft\\Shared Tools\\MSINFO 2003f"_s,
                           u"open 80000002 SOFTWARE\\Microsoft\\Shared Tools Location 2003f"_s}));
    expectMarkedBut({});
}

TEST_F(SystemInformation, is_unavailable_where_the_tool_does_not_start)
{
    machine.registry.store(key(Tool), u"PATH"_s, {1, u"C:\\gone.exe"_s});
    machine.programs.failure = u"it was not found"_s;
    click(about.cmdSysinfo);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(Unavailable));
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"gone.exe was not started: it was not found."_s);
}

TEST_F(SystemInformation, expands_a_text_that_is_to_be_expanded)
{
    machine.environment.variables[u"ProgramFiles"_s] = u"C:\\Program Files"_s;
    machine.registry.store(key(Tool), u"PATH"_s, {2, u"%ProgramFiles%\\%none%\\100%\\x.exe"_s + zero()});
    click(about.cmdSysinfo);
    EXPECT_THAT(machine.programs.started, ElementsAre(tool("C:\\Program Files\\%none%\\100%\\x.exe")));
    forget();
    machine.registry.store(key(Tool), u"PATH"_s, {1, u"%ProgramFiles%\\x.exe"_s});
    click(about.cmdSysinfo);
    EXPECT_THAT(machine.programs.started, ElementsAre(tool("%ProgramFiles%\\x.exe")));
}

TEST_F(SystemInformation, expands_the_directory_that_the_second_key_names)
{
    machine.environment.variables[u"ProgramFiles"_s] = u"C:\\Program Files"_s;
    machine.registry.store(key(Location), u"MSINFO"_s, {2, u"%ProgramFiles%\\Info"_s + zero()});
    addFile(u"C:\\Program Files\\Info\\MSINFO32.EXE"_s);
    click(about.cmdSysinfo);
    EXPECT_THAT(machine.programs.started, ElementsAre(tool("C:\\Program Files\\Info\\MSINFO32.EXE")));
}

TEST_F(SystemInformation, is_unavailable_where_the_first_key_names_nothing)
{
    machine.registry.store(key(Tool), u"PATH"_s, {1, zero()});
    machine.registry.store(key(Location), u"MSINFO"_s, {1, u"C:\\Shared"_s + zero()});
    addFile(u"C:\\Shared\\msinfo32.exe"_s);
    click(about.cmdSysinfo);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(Unavailable));
    EXPECT_THAT(machine.programs.started, IsEmpty());
}
