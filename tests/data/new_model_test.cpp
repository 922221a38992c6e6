#include "panel_fixture.h"
#include "platform/runtime_error.h"
#include "printing.h"
#include "shell/dispatch.h"

#include <gmock/gmock.h>

#include <functional>

using namespace Qt::StringLiterals;
using platform::Buttons;
using platform::ErrorNumber;
using platform::Icon;
using platform::MessageBox;
using platform::OpenFileRequest;
using platform::SaveFileRequest;
using testing::ElementsAre;
using testing::IsEmpty;

class NewModel : public support::PanelFixture
{
protected:
    void SetUp() override
    {
        addFile(u"C:\\DATA\\Walk1.cfb"_s, "walk one");
        addFile(u"C:\\DATA\\walk2.Cfb"_s, "walk two");
        addFile(u"C:\\MODELS\\base.CFB"_s, "base");
        addData({"Walk1.dg"});
        load();
        click(frm.filDatafiles, u"Walk1.dg"_s);
        frm.lblTitle.Caption = u"(before)"_s;
        kinovra.BinaryFile = u"walk1.km"_s;
        frm.filModels.Visible = false;
        frm.lblModels.Visible = false;
        frm.StatusBar1.Panel1 = u"(before)"_s;
        mark();
        forget();
    }

    void choose(const QString &source, const QString &name)
    {
        machine.dialogs.chosenFiles = {source, name};
        click(frm.mnuNewModel);
    }

    QByteArray content(const char *name) const
    {
        return machine.files.content(u"C:\\DATA\\"_s + QLatin1String(name)).value_or("(none)");
    }

    void expectMade(const QString &trial, const QStringList &models)
    {
        EXPECT_EQ(kinovra.CurrentTrial, trial);
        EXPECT_EQ(frm.lblTrial.Caption.value(), trial.toUpper());
        EXPECT_TRUE(frm.filModels.Visible);
        EXPECT_FALSE(frm.lblModels.Visible);
        EXPECT_EQ(kinovra.BinaryFile, u"walk1.km"_s);
        EXPECT_EQ(frm.filModels.Names.value().toList(), models);
    }

    void expectUnchanged()
    {
        EXPECT_EQ(kinovra.CurrentTrial, u"Walk1"_s);
        EXPECT_EQ(frm.lblTrial.Caption.value(), u"WALK1.dg"_s);
        EXPECT_FALSE(frm.filModels.Visible);
        EXPECT_EQ(content("Walk1.cfb"), "walk one");
        EXPECT_EQ(content("walk2.cfb"), "walk two");
    }

    static MessageBox replaceChanged(const QString &path)
    {
        MessageBox box = replace(path);
        box.text = u"This model has changed meanwhile:\n"_s + path + u"\nDo you want to replace it?"_s;
        return box;
    }

    static MessageBox replace(const QString &path)
    {
        return {u"This model is there already:\n"_s + path + u"\nDo you want to replace it?"_s,
                Icon::Question, Buttons::YesNo, QString(), true};
    }
};

TEST_F(NewModel, is_a_copy_in_the_data_directory_and_the_current_trial)
{
    choose(u"C:\\DATA\\Walk1.cfb"_s, u"C:\\DATA\\Walk3"_s);
    EXPECT_EQ(content("Walk3.CFB"), "walk one");
    EXPECT_EQ(content("Walk1.cfb"), "walk one");
    expectMade(u"Walk3"_s, {u"Walk1.cfb"_s, u"walk2.Cfb"_s, u"Walk3.CFB"_s});
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"Walk3.CFB is ready."_s);
    EXPECT_EQ(kinovra.CurrentExtension, u"dg"_s);
    expectMarkedBut({});
    EXPECT_EQ(frm.lblTitle.Caption.value(), u"(before)"_s);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    EXPECT_THAT(machine.programs.started, IsEmpty());
    EXPECT_THAT(machine.settings.written, IsEmpty());
}

TEST_F(NewModel, is_asked_for_with_two_dialogs)
{
    frm.dlgOpen.InitDir = u"C:\\MODELS"_s;
    choose(u"C:\\DATA\\Walk1.cfb"_s, u"C:\\DATA\\Walk3"_s);
    EXPECT_THAT(machine.dialogs.requests,
                ElementsAre(OpenFileRequest{.initialDirectory = u"C:\\MODELS"_s,
                                            .fileName = u"*.cfb"_s,
                                            .filter = u"*.cfb"_s,
                                            .title = u"Select a model file (.CFB)"_s,
                                            .mustExist = true}));
    EXPECT_THAT(machine.dialogs.saveRequests, ElementsAre(SaveFileRequest{.initialDirectory = u"C:\\DATA"_s,
                                                                          .fileName = QString(),
                                                                          .filter = u"*.cfb"_s,
                                                                          .title = u"Save as"_s}));
    EXPECT_EQ(frm.dlgOpen.InitDir, u"C:\\MODELS"_s);
}

TEST_F(NewModel, makes_the_data_directory_the_current_one_between_the_dialogs)
{
    machine.files.changeDirectory(u"C:\\MODELS"_s);
    QStringList directories;
    machine.dialogs.whileChoosing = [&] { directories.append(machine.files.currentDirectory()); };
    choose(u"C:\\MODELS\\base.CFB"_s, u"C:\\DATA\\Walk3"_s);
    EXPECT_EQ(directories, (QStringList{u"C:\\MODELS"_s, u"C:\\DATA"_s}));
}

TEST_F(NewModel, goes_to_the_data_directory_whatever_folder_its_name_was_given_in)
{
    choose(u"C:\\MODELS\\base.CFB"_s, u"C:\\MODELS\\Lift1.cfb"_s);
    EXPECT_EQ(content("Lift1.CFB"), "base");
    EXPECT_EQ(machine.files.content(u"C:\\MODELS\\Lift1.cfb"_s), std::nullopt);
    expectMade(u"Lift1"_s, {u"Lift1.CFB"_s, u"Walk1.cfb"_s, u"walk2.Cfb"_s});
}

TEST_F(NewModel, gets_the_models_extension_in_place_of_another)
{
    const std::pair<const char *, const char *> names[]{{"lift1", "lift1.CFB"},
                                                        {"lift2.cfb", "lift2.CFB"},
                                                        {"lift3.txt", "lift3.CFB"},
                                                        {".lift4", ".lift4.CFB"},
                                                        {"my lift 5.", "my lift 5.CFB"}};
    for (const auto &[given, made] : names) {
        choose(u"C:\\DATA\\Walk1.cfb"_s, u"C:\\DATA\\"_s + QLatin1String(given));
        EXPECT_EQ(machine.files.existingFile(u"C:\\DATA\\"_s + QLatin1String(made)),
                  u"C:\\DATA\\"_s + QLatin1String(made));
        if (QLatin1String(given) == u".lift4") {
            EXPECT_EQ(kinovra.CurrentTrial, QString()) << "nothing stands before the first dot";
        }
    }
}

TEST_F(NewModel, names_the_trial_up_to_the_first_dot)
{
    choose(u"C:\\DATA\\Walk1.cfb"_s, u"C:\\DATA\\walk.left.old"_s);
    EXPECT_EQ(content("walk.left.CFB"), "walk one");
    EXPECT_EQ(kinovra.CurrentTrial, u"walk"_s);
    EXPECT_EQ(frm.lblTrial.Caption.value(), u"WALK"_s);
}

TEST_F(NewModel, replaces_a_model_only_after_a_question)
{
    machine.dialogs.answers = {platform::No};
    choose(u"C:\\MODELS\\base.CFB"_s, u"C:\\MODELS\\WALK2"_s);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(replace(u"C:\\DATA\\walk2.Cfb"_s)))
        << "the full path of what would be written, as it is spelled";
    EXPECT_EQ(kinovra.Answer, 7);
    expectMarkedBut({u"Answer"_s});
    expectUnchanged();
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), QString());

    forget();
    machine.dialogs.answers = {platform::Yes};
    choose(u"C:\\MODELS\\base.CFB"_s, u"C:\\MODELS\\WALK2"_s);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(replace(u"C:\\DATA\\walk2.Cfb"_s)));
    EXPECT_EQ(kinovra.Answer, 6);
    EXPECT_EQ(content("walk2.cfb"), "base");
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"walk2.Cfb is ready."_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"WALK2"_s);
    EXPECT_EQ(frm.filModels.Names.value().toList(), (QStringList{u"Walk1.cfb"_s, u"walk2.Cfb"_s}));
}

TEST_F(NewModel, asks_again_about_a_model_that_has_changed_while_the_question_was_shown)
{
    // Saved anew by another program, replaced by a model of another spelling, gone.
    const std::function<void()> changes[]{
        [this] { addFile(u"C:\\DATA\\walk2.Cfb"_s, "two, improved"); },
        [this] {
            machine.files.remove(u"C:\\DATA\\walk2.Cfb"_s);
            addFile(u"C:\\DATA\\WALK2.cfb"_s, "another");
        },
        [this] { machine.files.remove(u"C:\\DATA\\walk2.Cfb"_s); },
    };
    size_t shown = 0;
    machine.dialogs.whileShown = [&](const MessageBox &) {
        if (shown < std::size(changes))
            changes[shown]();
        ++shown;
    };
    machine.dialogs.answers = {platform::Yes, platform::Yes, platform::Yes};
    choose(u"C:\\MODELS\\base.CFB"_s, u"C:\\DATA\\walk2"_s);
    EXPECT_THAT(machine.dialogs.messages,
                ElementsAre(replace(u"C:\\DATA\\walk2.Cfb"_s), replaceChanged(u"C:\\DATA\\walk2.Cfb"_s),
                            replaceChanged(u"C:\\DATA\\WALK2.cfb"_s)));
    EXPECT_EQ(content("walk2.cfb"), "base");
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"walk2.CFB is ready."_s);

    machine.dialogs.answers = {platform::Yes, platform::No};
    machine.dialogs.whileShown = [&](const MessageBox &) { changes[0](); };
    choose(u"C:\\DATA\\Walk1.cfb"_s, u"C:\\DATA\\walk2"_s);
    EXPECT_EQ(content("walk2.cfb"), "two, improved") << "what came meanwhile is not lost";
}

TEST_F(NewModel, is_made_where_the_model_to_be_replaced_goes_as_it_is_looked_at)
{
    machine.files.beforeStamp = [this] {
        machine.files.remove(u"C:\\DATA\\walk2.Cfb"_s);
        machine.files.nextMoment();
    };
    machine.dialogs.answers = {platform::Yes};
    choose(u"C:\\MODELS\\base.CFB"_s, u"C:\\DATA\\walk2"_s);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(replace(u"C:\\DATA\\walk2.Cfb"_s)));
    EXPECT_EQ(content("walk2.cfb"), "base");
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"walk2.CFB is ready."_s);
}

TEST_F(NewModel, stays_as_it_is_where_it_is_the_chosen_model_itself)
{
    machine.files.addSecondName(u"C:\\DATA\\walk2.Cfb"_s, u"C:\\MODELS\\same.cfb"_s);
    QStringList calls;
    machine.files.beforeCall = [&](const QString &call) { calls.append(call); };
    choose(u"C:\\DATA\\Walk1.cfb"_s, u"C:\\MODELS\\WALK1.cfb"_s);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"Walk1.cfb is that model itself: it stays as it is."_s);
    expectMade(u"WALK1"_s, {u"Walk1.cfb"_s, u"walk2.Cfb"_s});
    choose(u"C:\\MODELS\\SAME.CFB"_s, u"C:\\DATA\\walk2"_s);
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"walk2.Cfb is that model itself: it stays as it is."_s);
    EXPECT_EQ(content("Walk1.cfb"), "walk one");
    EXPECT_EQ(content("walk2.cfb"), "walk two");
    EXPECT_FALSE(calls.contains(u"copyFile"_s));
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}

TEST_F(NewModel, is_given_up_without_a_word_where_a_dialog_is_cancelled)
{
    machine.dialogs.chosenFiles = {std::nullopt};
    click(frm.mnuNewModel);
    EXPECT_THAT(machine.dialogs.saveRequests, IsEmpty());
    machine.dialogs.chosenFiles = {u"C:\\DATA\\Walk1.cfb"_s, std::nullopt};
    click(frm.mnuNewModel);
    EXPECT_EQ(machine.dialogs.saveRequests.size(), 1U);
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
    expectUnchanged();
    expectMarkedBut({});
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"(before)"_s);
}

TEST_F(NewModel, is_not_copied_over_an_open_file)
{
    machine.files.beforeCall = [](const QString &call) {
        if (call == u"copyFile")
            throw platform::RuntimeError(ErrorNumber::FileAlreadyOpen);
    };
    machine.dialogs.answers = {platform::Yes, platform::OK};
    choose(u"C:\\DATA\\Walk1.cfb"_s, u"C:\\DATA\\walk2"_s);
    EXPECT_THAT(
        machine.dialogs.messages,
        ElementsAre(replace(u"C:\\DATA\\walk2.Cfb"_s),
                    MessageBox{u"Cannot copy an open file.  Close it and try again."_s, Icon::Exclamation}));
    expectUnchanged();
}

TEST_F(NewModel, tells_every_other_error_with_its_description)
{
    const std::pair<ErrorNumber, const char *> errors[]{
        {ErrorNumber::InvalidProcedureCall, "Error 5.  You must specify a complete destination file name.\n"
                                            "Invalid procedure call"},
        {ErrorNumber::BadFileName, "Error 52.  You must specify a complete destination file name.\n"
                                   "Bad file name or number"},
        {ErrorNumber::FileNotFound,
         "Error 53.  You must specify a complete destination file name.\nFile not found"},
        {ErrorNumber::DeviceError,
         "Error 57.  You must specify a complete destination file name.\nDevice I/O error"},
        {ErrorNumber::FileAlreadyExists,
         "Error 58.  You must specify a complete destination file name.\nFile already exists"},
        {ErrorNumber::DiskFull, "Error 61.  You must specify a complete destination file name.\nDisk full"},
        {ErrorNumber::DeviceUnavailable,
         "Error 68.  You must specify a complete destination file name.\nDevice unavailable"},
        {ErrorNumber::PermissionDenied,
         "Error 70.  You must specify a complete destination file name.\nPermission denied"},
        {ErrorNumber::DiskNotReady,
         "Error 71.  You must specify a complete destination file name.\nDisk not ready"},
        {ErrorNumber::PathFileAccess,
         "Error 75.  You must specify a complete destination file name.\nPath/File access error"},
        {ErrorNumber::PathNotFound,
         "Error 76.  You must specify a complete destination file name.\nPath not found"},
    };
    for (const char *failing : {"existingFile", "copyFile"}) {
        for (const auto &[error, text] : errors) {
            forget();
            machine.files.beforeCall = [failing, error = error](const QString &call) {
                if (call == QLatin1String(failing))
                    throw platform::RuntimeError(error);
            };
            choose(u"C:\\DATA\\Walk1.cfb"_s, u"C:\\DATA\\Walk3"_s);
            EXPECT_THAT(machine.dialogs.messages,
                        ElementsAre(MessageBox{QLatin1String(text), Icon::Exclamation}));
            expectUnchanged();
            expectMarkedBut({});
            EXPECT_EQ(content("Walk3.CFB"), "(none)");
            EXPECT_EQ(frm.StatusBar1.Panel1.value(), QString()) << "nothing is ready";
        }
    }
}

TEST_F(NewModel, does_not_replace_what_has_come_after_the_last_look)
{
    machine.files.beforeCall = [this](const QString &call) {
        if (call == u"copyFile")
            addFile(u"C:\\DATA\\Walk3.CFB"_s, "another program's");
    };
    choose(u"C:\\DATA\\Walk1.cfb"_s, u"C:\\DATA\\Walk3"_s);
    EXPECT_EQ(
        messages(),
        QStringList{u"Error 58.  You must specify a complete destination file name.\nFile already exists"_s});
    EXPECT_EQ(content("Walk3.CFB"), "another program's");
    expectUnchanged();
}

TEST_F(NewModel, is_not_copied_from_what_is_gone_or_over_a_folder)
{
    machine.files.addDirectory(u"C:\\DATA\\folder.cfb"_s);
    choose(u"C:\\MODELS\\gone.cfb"_s, u"C:\\DATA\\Walk3"_s);
    choose(u"C:\\MODELS\\base.CFB"_s, u"C:\\DATA\\folder"_s);
    EXPECT_EQ(
        messages(),
        (QStringList{
            u"Error 53.  You must specify a complete destination file name.\nFile not found"_s,
            u"Error 75.  You must specify a complete destination file name.\nPath/File access error"_s}));
    expectUnchanged();
}

TEST_F(NewModel, needs_the_data_directory)
{
    machine.files.remove(u"C:\\DATA"_s);
    choose(u"C:\\MODELS\\base.CFB"_s, u"C:\\MODELS\\Walk3"_s);
    EXPECT_THAT(machine.dialogs.messages, ElementsAre(MessageBox{u"Path not found"_s, Icon::Exclamation}));
    EXPECT_THAT(machine.dialogs.saveRequests, IsEmpty());
    EXPECT_EQ(kinovra.CurrentTrial, u"Walk1"_s);
}

TEST_F(NewModel, is_found_in_the_root_of_a_drive)
{
    machine.files.addDrive(u"d: [stick]"_s);
    frm.drvDrives.Drives = machine.files.drives();
    frm.drvDrives.Drive = u"d: [stick]"_s;
    shell::dispatch(panel, frm.drvDrives.Change);
    ASSERT_EQ(kinovra.DataDir, u"d: [stick]"_s);
    choose(u"C:\\MODELS\\base.CFB"_s, u"D:\\Walk3"_s);
    EXPECT_EQ(machine.files.content(u"D:\\Walk3.CFB"_s), "base");
    EXPECT_EQ(frm.filModels.Names.value().toList(), QStringList{u"Walk3.CFB"_s});
}

TEST_F(NewModel, is_found_there_also_while_another_drive_is_the_current_one)
{
    machine.files.addDrive(u"d: [stick]"_s);
    machine.files.addDirectory(u"D:\\STUDY"_s);
    kinovra.DataDir = u"D:\\STUDY"_s;
    machine.files.changeDrive(u"c:"_s);
    machine.files.changeDirectory(u"C:\\MODELS"_s);
    choose(u"C:\\MODELS\\base.CFB"_s, u"C:\\MODELS\\Walk3"_s);
    EXPECT_EQ(machine.files.content(u"D:\\STUDY\\Walk3.CFB"_s), "base");
    EXPECT_EQ(machine.files.content(u"C:\\MODELS\\Walk3.CFB"_s), std::nullopt);
}

TEST_F(NewModel, is_given_up_where_the_window_is_closed_meanwhile)
{
    machine.dialogs.whileChoosing = [this] { panel.unloading = true; };
    choose(u"C:\\DATA\\Walk1.cfb"_s, u"C:\\DATA\\Walk3"_s);
    EXPECT_EQ(content("Walk3.CFB"), "(none)");
    EXPECT_THAT(machine.dialogs.messages, IsEmpty());
}
