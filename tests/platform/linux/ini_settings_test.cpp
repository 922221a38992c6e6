#include "platform/linux/ini_settings.h"
#include "printing.h"
#include "recording_platform.h"
#include "scratch_directory.h"

#include <QElapsedTimer>
#include <QLockFile>
#include <gtest/gtest.h>

#include <filesystem>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using platform::Settings;
using platform::host::IniSettings;

namespace {

struct MemoryStore
{
    support::RecordingSettings settings;
};

struct IniStore
{
    support::ScratchDirectory scratch;
    IniSettings settings{QString::fromUtf8(scratch.path())};
};

template <typename Store>
class SettingsContract : public testing::Test
{
protected:
    Settings &settings() { return store.settings; }
    Store store;
};

using Stores = testing::Types<MemoryStore, IniStore>;

} // namespace

TYPED_TEST_SUITE(SettingsContract, Stores);

TYPED_TEST(SettingsContract, gives_the_fallback_for_what_was_never_written)
{
    EXPECT_EQ(this->settings().read(u"Kinovra"_s, u"Startup"_s, u"Datadir"_s, u"C:\\x"_s), u"C:\\x"_s);
    EXPECT_EQ(this->settings().read(u"Kinovra"_s, u"Startup"_s, u"Datadir"_s, QString()), QString());
}

TYPED_TEST(SettingsContract, gives_back_what_was_written)
{
    for (const QString &value :
         {u"C:\\Data\\new trials"_s, u""_s, u"0"_s, u"a,b;c=d"_s, u"\"quoted\""_s, u"@odd"_s, u"%1 100%"_s,
          u"Läufer 🏃 \uF03A"_s, u" blanks "_s, u"[section]"_s, u"; # /"_s}) {
        this->settings().write(u"Kinovra"_s, u"Startup"_s, u"Datadir"_s, value);
        EXPECT_EQ(this->settings().read(u"Kinovra"_s, u"Startup"_s, u"Datadir"_s, u"fallback"_s), value);
    }
}

TYPED_TEST(SettingsContract, keeps_applications_sections_and_keys_apart)
{
    this->settings().write(u"Kinovra"_s, u"Startup"_s, u"Datadir"_s, u"1"_s);
    this->settings().write(u"Ondex2"_s, u"Startup"_s, u"Datadir"_s, u"2"_s);
    this->settings().write(u"Kinovra"_s, u"Other"_s, u"Datadir"_s, u"3"_s);
    this->settings().write(u"Kinovra"_s, u"Startup"_s, u"Progdir"_s, u"4"_s);
    EXPECT_EQ(this->settings().read(u"Kinovra"_s, u"Startup"_s, u"Datadir"_s, QString()), u"1"_s);
    EXPECT_EQ(this->settings().read(u"Ondex2"_s, u"Startup"_s, u"Datadir"_s, QString()), u"2"_s);
    EXPECT_EQ(this->settings().read(u"Kinovra"_s, u"Other"_s, u"Datadir"_s, QString()), u"3"_s);
    EXPECT_EQ(this->settings().read(u"Kinovra"_s, u"Startup"_s, u"Progdir"_s, QString()), u"4"_s);
}

class IniFiles : public testing::Test
{
protected:
    QString read() { return settings.read(u"Kinovra"_s, u"Startup"_s, u"Datadir"_s, u"fallback"_s); }

    // How long it takes to write `times` values, in milliseconds.
    qint64 timeToWrite(int times)
    {
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < times; ++i)
            settings.write(u"Kinovra"_s, u"Startup"_s, u"Datadir"_s, u"new"_s);
        return timer.elapsed();
    }

    support::ScratchDirectory scratch;
    IniSettings settings{QString::fromUtf8(scratch.path())};
};

TEST_F(IniFiles, hold_one_application_each)
{
    settings.write(u"Kinovra"_s, u"Startup"_s, u"Datadir"_s, u"C:\\DATA"_s);
    settings.write(u"Ondex2"_s, u"Startup"_s, u"Datadir"_s, u"C:\\DATA"_s);
    EXPECT_EQ(scratch.read("Kinovra.ini"), QByteArray("[Startup]\nDatadir=C:\\\\DATA\n"));
    EXPECT_EQ(scratch.read("Ondex2.ini"), QByteArray("[Startup]\nDatadir=C:\\\\DATA\n"));
}

TEST_F(IniFiles, that_are_broken_do_no_harm)
{
    for (const QByteArray &content : {QByteArray("\x00\xFF\xFE garbage", 12), QByteArray("[Startup\nDatadir"),
                                      QByteArray("[Startup]\n=x\n\n]]["), QByteArray(1 << 20, '[')}) {
        scratch.makeFile("Kinovra.ini", content);
        read();
    }
    scratch.makeFile("Kinovra.ini", "[Startup]\nDatadir=C:\\\\a, C:\\\\b\n");
    EXPECT_EQ(read(), u"C:\\a, C:\\b"_s);
}

TEST_F(IniFiles, that_cannot_be_written_are_left_whole)
{
    settings.write(u"Kinovra"_s, u"Startup"_s, u"Datadir"_s, u"old"_s);
    const QByteArray before = scratch.read("Kinovra.ini");
    ::chmod(scratch.path().constData(), 0555);
    {
        const support::WithoutPrivileges nobody;
        settings.write(u"Kinovra"_s, u"Startup"_s, u"Datadir"_s, u"new"_s);
    }
    ::chmod(scratch.path().constData(), 0755);
    EXPECT_EQ(scratch.read("Kinovra.ini"), before);
}

TEST_F(IniFiles, are_made_with_their_directory)
{
    IniSettings deeper(QString::fromUtf8(scratch.path("not/yet")));
    deeper.write(u"Kinovra"_s, u"Startup"_s, u"Datadir"_s, u"x"_s);
    EXPECT_EQ(deeper.read(u"Kinovra"_s, u"Startup"_s, u"Datadir"_s, QString()), u"x"_s);
}

TEST_F(IniFiles, that_are_no_regular_files_are_neither_opened_nor_replaced)
{
    scratch.makePipe("pipe");
    scratch.makeLink("Kinovra.ini", "pipe");
    scratch.makePipe("Ondex2.ini");
    for (const QString &application : {u"Kinovra"_s, u"Ondex2"_s}) {
        EXPECT_EQ(settings.read(application, u"Startup"_s, u"Datadir"_s, u"fallback"_s), u"fallback"_s);
        settings.write(application, u"Startup"_s, u"Datadir"_s, u"new"_s);
    }
    EXPECT_EQ(scratch.names(), (QList<QByteArray>{"Kinovra.ini", "Ondex2.ini", "pipe"}));
    EXPECT_TRUE(std::filesystem::is_fifo(scratch.path("Kinovra.ini").toStdString()));
    EXPECT_TRUE(std::filesystem::is_fifo(scratch.path("Ondex2.ini").toStdString()));
}

TEST_F(IniFiles, stay_links_to_what_is_kept_elsewhere)
{
    scratch.makeDirectory("kept");
    scratch.makeFile("kept/settings", "[Startup]\nDatadir=old\n");
    scratch.makeLink("Kinovra.ini", "kept/settings");
    settings.write(u"Kinovra"_s, u"Startup"_s, u"Datadir"_s, u"new"_s);
    EXPECT_EQ(read(), u"new"_s);
    EXPECT_EQ(scratch.read("kept/settings"), QByteArray("[Startup]\nDatadir=new\n"));
    EXPECT_TRUE(std::filesystem::is_symlink(scratch.path("Kinovra.ini").toStdString()));
}

TEST_F(IniFiles, that_another_process_keeps_locked_are_not_waited_for)
{
    scratch.makeFile("Kinovra.ini", "[Startup]\nDatadir=old\n");
    {
        QLockFile lock(QString::fromUtf8(scratch.path("Kinovra.ini.lock")));
        ASSERT_TRUE(lock.tryLock());
        EXPECT_LT(timeToWrite(1), 600);
        EXPECT_LT(timeToWrite(5), 200);
        EXPECT_EQ(read(), u"old"_s);
    }
    timeToWrite(1);
    EXPECT_EQ(read(), u"new"_s);
    EXPECT_EQ(scratch.names(), QList<QByteArray>{"Kinovra.ini"});
    QLockFile again(QString::fromUtf8(scratch.path("Kinovra.ini.lock")));
    ASSERT_TRUE(again.tryLock());
    EXPECT_GE(timeToWrite(1), 200) << "one that was given back may be so again";
}

TEST_F(IniFiles, whose_lock_can_never_be_had_are_left_whole_at_once)
{
    scratch.makeFile("Kinovra.ini", "[Startup]\nDatadir=old\n");
    scratch.makeDirectory("Kinovra.ini.lock");
    EXPECT_LT(timeToWrite(5), 200);
    scratch.remove("Kinovra.ini.lock");
    scratch.makePipe("Kinovra.ini.lock");
    EXPECT_LT(timeToWrite(5), 200);
    EXPECT_EQ(scratch.read("Kinovra.ini"), QByteArray("[Startup]\nDatadir=old\n"));
}

TEST_F(IniFiles, that_a_panel_left_locked_when_it_was_ended_are_written)
{
    // No process has the largest number.
    scratch.makeFile("Kinovra.ini.lock", "4194304\nkinovra\n" + QSysInfo::machineHostName().toUtf8() + '\n');
    EXPECT_LT(timeToWrite(1), 600);
    EXPECT_EQ(read(), u"new"_s);
}
