#include "browser/test_file.h"
#include "panel_fixture.h"
#include "platform/runtime_error.h"
#include "printing.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using browser::ShowMessage;
using browser::Silent;
using browser::TestFile;
using platform::ErrorNumber;
using platform::Icon;
using platform::MessageBox;
using testing::ElementsAre;
using testing::IsEmpty;

class TestFileTest : public support::PanelFixture
{
protected:
    void SetUp() override { load(); }
};

TEST_F(TestFileTest, opens_the_file_of_a_path_in_upper_case)
{
    addData({"run1.dg"});
    EXPECT_EQ(TestFile(panel, u"c:\\data"_s, u"run1.dg"_s, Silent), 0);
    EXPECT_EQ(machine.files.tested, QStringList{u"C:\\DATA\\RUN1.DG"_s});
}

TEST_F(TestFileTest, without_a_path_takes_the_file_alone)
{
    addFile(u"C:\\KINOVRA\\notepad.exe"_s);
    EXPECT_EQ(TestFile(panel, QString(), u"c:\\kinovra\\notepad.exe"_s, Silent), 0);
    EXPECT_EQ(machine.files.tested, QStringList{u"C:\\KINOVRA\\NOTEPAD.EXE"_s});
}

TEST_F(TestFileTest, gives_the_error_of_what_failed)
{
    addData({"secret.dg", "pipe.dg", "locked.dg"});
    machine.files.forbid(u"C:\\DATA\\secret.dg"_s, ErrorNumber::PermissionDenied);
    machine.files.addDirectory(u"C:\\DATA\\folder"_s);
    EXPECT_EQ(TestFile(panel, u"C:\\DATA"_s, u"missing.dg"_s, Silent), 53);
    EXPECT_EQ(TestFile(panel, u"C:\\GONE"_s, u"run1.dg"_s, Silent), 76);
    EXPECT_EQ(TestFile(panel, u"Q:"_s, u"run1.dg"_s, Silent), 68);
    EXPECT_EQ(TestFile(panel, u"C:\\DATA"_s, u"secret.dg"_s, Silent), 70);
    EXPECT_EQ(TestFile(panel, u"C:\\DATA"_s, u"folder"_s, Silent), 75);
    EXPECT_EQ(TestFile(panel, u"C:\\DATA"_s, QString(), Silent), 75);
    EXPECT_EQ(TestFile(panel, u"C:\\KINOVRA"_s, u"C:\\KINOVRA\\refila.exe"_s, Silent), 52);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(TestFileTest, tells_the_user_only_when_asked_to)
{
    TestFile(panel, u"C:\\Data"_s, u"missing.dg"_s, ShowMessage);
    EXPECT_THAT(
        machine.dialogs.messages,
        ElementsAre(MessageBox{u"Error opening file: \"C:\\DATA\\MISSING.DG\"  (53)\nFile not found"_s,
                               Icon::Exclamation}));
}

TEST_F(TestFileTest, says_nothing_about_a_file_that_opens)
{
    addData({"run1.dg"});
    EXPECT_EQ(TestFile(panel, u"C:\\DATA"_s, u"run1.dg"_s, ShowMessage), 0);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(TestFileTest, accepts_a_drive_text_as_path)
{
    addFile(u"C:\\ROOT.DG"_s);
    machine.files.changeDirectory(u"C:\\"_s);
    EXPECT_EQ(TestFile(panel, u"c: [data]"_s, u"root.dg"_s, Silent), 0);
    EXPECT_EQ(TestFile(panel, u"c:"_s, u"root.dg"_s, Silent), 0);
}

TEST_F(TestFileTest, keeps_percent_signs_of_names_in_its_message)
{
    TestFile(panel, u"C:\\DATA"_s, u"%1 %2.dg"_s, ShowMessage);
    EXPECT_EQ(messages(), QStringList{u"Error opening file: \"C:\\DATA\\%1 %2.DG\"  (53)\nFile not found"_s});
}
