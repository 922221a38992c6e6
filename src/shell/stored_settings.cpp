#include "shell/stored_settings.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace shell {

namespace {

// The longest path that Windows accepts.
constexpr qsizetype LongestStoredText = 32767;

QString application()
{
    return u"Kinovra"_s;
}

QString section()
{
    return u"Startup"_s;
}

void store(Panel &panel, const QString &key, const QString &value)
{
    panel.platform.settings.write(application(), section(), key, value);
}

} // namespace

void LoadSettings(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    kinovra.ProgDir = storedText(panel, u"Progdir"_s, platform.environment.programFolder());
    kinovra.DataDir = storedText(panel, u"Datadir"_s, platform.files.currentDirectory());
    kinovra.LastFile = storedText(panel, u"Lastfile"_s, platform.files.currentDirectory());
}

void SaveSettings(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    store(panel, u"Progdir"_s, kinovra.ProgDir);
    store(panel, u"Datadir"_s, kinovra.DataDir);
    store(panel, u"LastGRA"_s, frm.CurrentGRA);
    store(panel, u"UserLevel"_s, QString::number(kinovra.UserLevel));
    store(panel, u"Viewer"_s, kinovra.TextViewer);
}

void StoreDataDir(Panel &panel, const QString &application)
{
    panel.platform.settings.write(application, section(), u"Datadir"_s, panel.kinovra.DataDir);
}

QString storedText(Panel &panel, const QString &key, const QString &fallback)
{
    const QString text = panel.platform.settings.read(application(), section(), key, fallback);
    const bool trusted = text.size() <= LongestStoredText
                         && std::none_of(text.begin(), text.end(),
                                         [](QChar c) { return c.category() == QChar::Other_Control; });
    return trusted ? text : fallback;
}

qint16 storedUserLevel(Panel &panel)
{
    return storedText(panel, u"UserLevel"_s, u"0"_s) == u"1" ? 1 : 0;
}

} // namespace shell
