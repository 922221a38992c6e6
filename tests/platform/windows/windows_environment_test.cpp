// What a process knows of its own start.

#include "platform/windows/windows_api.h"
#include "platform/windows/windows_environment.h"
#include "printing.h"
#include "windows_system.h"

#include <QCoreApplication>
#include <QTimer>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using platform::host::textBehindProgram;
using platform::host::WindowsEnvironment;
using support::SystemVariable;

TEST(WindowsCommandLine, is_what_stands_behind_the_programs_name)
{
    const std::pair<QString, QString> table[]{
        {QString(), QString()},
        {u"KVwin98.exe"_s, QString()},
        {u"KVwin98.exe "_s, QString()},
        {u"KVwin98.exe run1.dg"_s, u"run1.dg"_s},
        {u"KVwin98.exe   run1.dg"_s, u"run1.dg"_s},
        {u"KVwin98.exe\trun1.dg"_s, u"run1.dg"_s},
        {u"KVwin98.exe a  b \t c"_s, u"a  b \t c"_s},
        {u"KVwin98.exe run1.dg  "_s, u"run1.dg  "_s},
        {u"\"C:\\Program Files\\Kinovra\\KVwin98.exe\""_s, QString()},
        {u"\"C:\\Program Files\\Kinovra\\KVwin98.exe\" run1.dg"_s, u"run1.dg"_s},
        {u"\"C:\\Program Files\\Kinovra\\KVwin98.exe\" \"C:\\My Data\\my walk.dg\""_s,
         u"\"C:\\My Data\\my walk.dg\""_s},
        {u"\"C:\\a b\"\\KVwin98.exe x"_s, u"x"_s},
        {u"C:\\\"a b\"\\KVwin98.exe x \"y z\""_s, u"x \"y z\""_s},
        {u"\"C:\\a b\\\" x"_s, u"x"_s},
        {u"\"never closed run1.dg"_s, QString()},
        {u"KVwin98.exe \"\" \\\" \\\\\""_s, u"\"\" \\\" \\\\\""_s},
        {u"KVwin98.exe \u00A0x"_s, u"\u00A0x"_s},
        {u"Läufer🏃.exe Läufer🏃.dg"_s, u"Läufer🏃.dg"_s},
        {u"KVwin98.exe /x^&|<>%TEMP%"_s, u"/x^&|<>%TEMP%"_s},
    };
    for (const auto &[commandLine, behind] : table)
        EXPECT_EQ(textBehindProgram(commandLine), behind) << commandLine.toStdString();
}

TEST(WindowsCommandLine, is_the_processs_own_text)
{
    const QString whole = QString::fromWCharArray(::GetCommandLineW());
    const QString behind = WindowsEnvironment().commandLine();
    EXPECT_TRUE(whole.endsWith(behind));
    EXPECT_FALSE(behind.contains(u"tests.exe"));
}

TEST(WindowsVariables, come_in_the_path_language)
{
    const std::pair<QString, QString> table[]{
        {u"C:\\DATA"_s, u"C:\\DATA"_s},
        {u"C:\\DATA\\"_s, u"C:\\DATA"_s},
        {u"C:/DATA/"_s, u"C:\\DATA"_s},
        {u"C:\\DATA\\\\"_s, u"C:\\DATA"_s},
        {u"C:\\"_s, u"C:\\"_s},
        {u"c:/"_s, u"c:\\"_s},
        {u"C:\\\\"_s, u"C:\\"_s},
        {u"C:"_s, u"C:"_s},
        {u"\\"_s, u"\\"_s},
        {u"D:\\Läufer бег 🏃"_s, u"D:\\Läufer бег 🏃"_s},
        {u" a b "_s, u" a b "_s},
    };
    for (const auto &[value, expected] : table) {
        const SystemVariable variable(u"KINOVRA_TEST"_s, value);
        EXPECT_EQ(WindowsEnvironment().variable(u"KINOVRA_TEST"_s), expected) << value.toStdString();
        EXPECT_EQ(WindowsEnvironment().variable(u"kinovra_test"_s), expected) << value.toStdString();
    }
}

TEST(WindowsVariables, may_be_missing_empty_or_long)
{
    WindowsEnvironment environment;
    EXPECT_EQ(environment.variable(u"KINOVRA_NO_SUCH"_s), QString());
    EXPECT_EQ(environment.variable(QString()), QString());
    const SystemVariable empty(u"KINOVRA_EMPTY"_s, u""_s);
    EXPECT_EQ(environment.variable(u"KINOVRA_EMPTY"_s), QString());
    for (const int size : {259, 260, 261, 520, 521, 5'000, 32'000}) {
        const SystemVariable longOne(u"KINOVRA_LONG"_s, QString(size, u'x'));
        EXPECT_EQ(environment.variable(u"KINOVRA_LONG"_s), QString(size, u'x'));
    }
}

TEST(WindowsVariables, are_those_of_this_moment)
{
    WindowsEnvironment environment;
    const SystemVariable first(u"KINOVRA_TEST"_s, u"one"_s);
    EXPECT_EQ(environment.variable(u"KINOVRA_TEST"_s), u"one"_s);
    const SystemVariable second(u"KINOVRA_TEST"_s, u"two"_s);
    EXPECT_EQ(environment.variable(u"KINOVRA_TEST"_s), u"two"_s);
}

TEST(WindowsProgram, knows_its_folder)
{
    EXPECT_EQ(WindowsEnvironment().programFolder(), support::testDirectory());
    EXPECT_FALSE(WindowsEnvironment().programFolder().endsWith(u'\\'));
}

TEST(WindowsProgram, ends_when_it_is_told_to)
{
    QTimer::singleShot(0, [] { WindowsEnvironment().endProgram(); });
    EXPECT_EQ(QCoreApplication::exec(), 0);
}
