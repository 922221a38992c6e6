#include "platform/path_language.h"
#include "platform/runtime_error.h"
#include "printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using namespace platform;

namespace {

qint16 errorOf(const std::function<void()> &call)
{
    try {
        call();
    } catch (const RuntimeError &error) {
        return error.Number;
    }
    return 0;
}

CurrentDirectories directories()
{
    CurrentDirectories result;
    result.set(u"C:\\DATA"_s);
    result.set(u"D:\\Sub\\Deep"_s);
    return result;
}

} // namespace

TEST(DriveText, is_a_letter_a_colon_and_perhaps_a_label)
{
    EXPECT_TRUE(isDriveText(u"c:"_s));
    EXPECT_TRUE(isDriveText(u"C: [label]"_s));
    EXPECT_TRUE(isDriveText(u"c: [my [old] data]"_s));
    EXPECT_TRUE(isDriveText(u"x: \\\\server\\share"_s));
    EXPECT_FALSE(isDriveText(u"c:\\"_s));
    EXPECT_FALSE(isDriveText(u"c:x"_s));
    EXPECT_FALSE(isDriveText(u"c: label"_s));
    EXPECT_FALSE(isDriveText(u"c"_s));
    EXPECT_FALSE(isDriveText(u""_s));
    EXPECT_FALSE(isDriveText(u"x: \\\\server\\share\\file"_s));
    EXPECT_FALSE(isDriveText(u"x: \\\\server"_s));
    EXPECT_FALSE(isDriveText(u"x: \\\\\\share"_s));
    EXPECT_FALSE(isDriveText(u"c: [label"_s));
    EXPECT_FALSE(isDriveText(u"c: [label]x"_s));
    for (const QString &sign : {u"@"_s, u"["_s, u"`"_s, u"{"_s, u"é"_s})
        EXPECT_FALSE(isDriveText(sign + u':')) << sign.toStdString();
}

TEST(AbsolutePath, of_a_drive_text_is_the_current_directory_of_that_drive)
{
    EXPECT_EQ(directories().absolute(u"c:"_s), u"C:\\DATA"_s);
    EXPECT_EQ(directories().absolute(u"c: [label]"_s), u"C:\\DATA"_s);
    EXPECT_EQ(directories().absolute(u"d:"_s), u"D:\\Sub\\Deep"_s);
    EXPECT_EQ(directories().absolute(u"E:"_s), u"E:\\"_s);
}

TEST(AbsolutePath, takes_a_drive_text_in_front_of_a_path)
{
    EXPECT_EQ(directories().absolute(u"c: [label]\\walk1.dg"_s), u"C:\\DATA\\walk1.dg"_s);
    EXPECT_EQ(directories().absolute(u"C: [A]B]\\X.DG"_s), u"C:\\DATA\\X.DG"_s);
    EXPECT_EQ(directories().absolute(u"d: \\\\server\\share\\walk1.dg"_s), u"D:\\Sub\\Deep\\walk1.dg"_s);
    EXPECT_EQ(directories().absolute(u"c:\\walk1.dg"_s), u"C:\\walk1.dg"_s);
    EXPECT_EQ(directories().absolute(u"d:walk1.dg"_s), u"D:\\Sub\\Deep\\walk1.dg"_s);
}

TEST(AbsolutePath, takes_a_label_that_never_ends_for_a_name)
{
    EXPECT_EQ(directories().absolute(u"c: [label"_s), u"C:\\DATA\\ [label"_s);
    EXPECT_EQ(directories().absolute(u"d: \\\\server"_s), u"D:\\Sub\\Deep\\ \\server"_s);
}

TEST(AbsolutePath, of_a_relative_path_starts_at_the_current_directory)
{
    EXPECT_EQ(directories().absolute(u"walk1.dg"_s), u"C:\\DATA\\walk1.dg"_s);
    EXPECT_EQ(directories().absolute(u"\\walk1.dg"_s), u"C:\\walk1.dg"_s);
    EXPECT_EQ(directories().absolute(u".\\sub\\.\\x"_s), u"C:\\DATA\\sub\\x"_s);
}

TEST(AbsolutePath, has_neither_dots_nor_a_trailing_backslash)
{
    EXPECT_EQ(directories().absolute(u"..\\"_s), u"C:\\"_s);
    EXPECT_EQ(directories().absolute(u"..\\..\\.."_s), u"C:\\"_s);
    EXPECT_EQ(directories().absolute(u"c:\\a\\..\\b\\"_s), u"C:\\b"_s);
    EXPECT_EQ(directories().absolute(u"c:\\a\\\\b"_s), u"C:\\a\\b"_s);
    EXPECT_EQ(directories().absolute(u"c:\\"_s), u"C:\\"_s);
}

TEST(AbsolutePath, refuses_what_is_no_path)
{
    EXPECT_EQ(errorOf([] { directories().absolute(u"c:\\a:b"_s); }), 52);
    EXPECT_EQ(errorOf([] { directories().absolute(u"run1:dg"_s); }), 52);
    EXPECT_EQ(errorOf([] { directories().absolute(u"{:\\a"_s); }), 52);
    EXPECT_EQ(errorOf([] { directories().absolute(u"a"_s + QChar(u'\0')); }), 52);
    EXPECT_EQ(errorOf([] { directories().absolute(u"\\\\server\\share\\a"_s); }), 76);
    EXPECT_EQ(errorOf([] { directories().absolute(QString()); }), 76);
}

TEST(CurrentDirectories, keeps_one_for_every_drive)
{
    CurrentDirectories current = directories();
    EXPECT_EQ(current.current(), u"C:\\DATA"_s);
    current.setDrive(u'D');
    EXPECT_EQ(current.current(), u"D:\\Sub\\Deep"_s);
    current.set(u"C:\\Other"_s);
    EXPECT_EQ(current.current(), u"D:\\Sub\\Deep"_s);
    EXPECT_EQ(current.of(u'C'), u"C:\\Other"_s);
}

TEST(PathParts, joins_and_takes_apart)
{
    EXPECT_EQ(joinPath(u"C:\\"_s, u"a"_s), u"C:\\a"_s);
    EXPECT_EQ(joinPath(u"C:\\d"_s, u"a"_s), u"C:\\d\\a"_s);
    EXPECT_EQ(parentOf(u"C:\\d\\a"_s), u"C:\\d"_s);
    EXPECT_EQ(parentOf(u"C:\\d"_s), u"C:\\"_s);
    EXPECT_EQ(parentOf(u"C:\\"_s), u"C:\\"_s);
    EXPECT_EQ(nameOf(u"C:\\d\\a.dg"_s), u"a.dg"_s);
    EXPECT_EQ(nameOf(u"C:\\"_s), QString());
    EXPECT_EQ(platform::shortFormOf(u"C:\\a\\b c"_s), u"b c"_s);
    EXPECT_EQ(platform::shortFormOf(u"C:\\"_s), u"C:"_s);
    EXPECT_EQ(platform::shortFormOf(u"c: [data]"_s), u"c: [data]"_s);
}
