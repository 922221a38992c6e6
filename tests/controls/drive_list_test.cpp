#include "controls/drive_list.h"
#include "platform/runtime_error.h"
#include "printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using controls::DriveList;

class DriveLists : public testing::Test
{
protected:
    DriveLists()
    {
        list.refresh({u"c: [data]"_s, u"d:"_s, u"x: \\\\server\\share"_s});
        list.Change = [this] { ++changes; };
    }

    DriveList list;
    int changes = 0;
};

TEST_F(DriveLists, take_the_first_character_of_an_assignment_in_any_case)
{
    list.choose(u"X:\\DATA\\WALK"_s);
    EXPECT_EQ(list.Drive.value(), u"x: \\\\server\\share"_s);
    list.choose(u"d"_s);
    EXPECT_EQ(list.Drive.value(), u"d:"_s);
    list.choose(u"C: [data]"_s);
    EXPECT_EQ(list.Drive.value(), u"c: [data]"_s);
    EXPECT_EQ(changes, 0);
}

TEST_F(DriveLists, refuse_an_absent_drive_and_keep_the_chosen_one)
{
    list.choose(u"d:"_s);
    for (const QString &text : {u"q:"_s, QString(), u"\\\\server"_s}) {
        try {
            list.choose(text);
            ADD_FAILURE() << text.toStdString();
        } catch (const platform::RuntimeError &error) {
            EXPECT_EQ(error.Number, 68);
        }
        EXPECT_EQ(list.Drive.value(), u"d:"_s);
    }
}

TEST_F(DriveLists, keep_the_chosen_drive_through_a_refresh_with_its_new_label)
{
    list.choose(u"c:"_s);
    list.refresh({u"c: [walks]"_s, u"d:"_s});
    EXPECT_EQ(list.Drive.value(), u"c: [walks]"_s);
    list.refresh({u"d:"_s});
    EXPECT_EQ(list.Drive.value(), u"c: [walks]"_s);
    EXPECT_EQ(changes, 0);
}
