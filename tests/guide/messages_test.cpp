// Whether the guide explains all that the panel says.

#include "printing.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QStringList Rooms{u"averaging"_s, u"browser"_s,  u"data"_s,  u"graphs"_s, u"help"_s,
                        u"launcher"_s,  u"platform"_s, u"shell"_s, u"viewer"_s};

// What begins so is said by nobody: the about window's banner, names in the registry, an entry of a list, and
// the error that no dialog of the panel raises.
const QStringList Unsaid{u"KvWin98, version"_s, u"Kinovra Motion Analysis System This"_s,
                         u"SOFTWARE\\"_s,       u"Software\\"_s,
                         u"Click to View"_s,    u"Cancel was"_s};

QString textIn(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QFile::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

// Without the marks of Markdown.
QString guideText()
{
    QString text = textIn(QStringLiteral(KINOVRA_SOURCES "/docs/guide/guide.md"));
    static const QRegularExpression mark(uR"(\\(.)|\*)"_s);
    return text.replace(mark, u"\\1"_s).simplified();
}

// The texts between the quotes, those of literals that follow one another as one.
QStringList literalsIn(const QString &source)
{
    static const QRegularExpression literal(uR"re(u"(?:[^"\\\n]|\\.)*"(?:\s*"(?:[^"\\\n]|\\.)*")*)re"_s);
    static const QRegularExpression seam(uR"("\s*")"_s);
    QStringList result;
    for (auto found = literal.globalMatch(source); found.hasNext();) {
        QString text = found.next().captured().mid(2).chopped(1);
        text.replace(seam, QString());
        text.replace(u"\\\""_s, u"\""_s).replace(u"\\r"_s, u" "_s).replace(u"\\n"_s, u" "_s);
        result.append(text.replace(u"\\\\"_s, u"\\"_s));
    }
    return result;
}

// A sentence, or a part of one around what changes.
bool isSaid(const QString &piece)
{
    const bool isDialogFilter = piece.contains(u'|');
    const bool isSentence = piece.count(u' ') >= 2 || piece.endsWith(u'.') || piece.endsWith(u'?');
    const bool isUnsaid = std::any_of(Unsaid.begin(), Unsaid.end(),
                                      [&piece](const QString &start) { return piece.startsWith(start); });
    return isSentence && piece.contains(u' ') && !isDialogFilter && !isUnsaid;
}

QStringList sentencesOf(const QString &room)
{
    static const QRegularExpression place(u"%[0-9]"_s);
    QStringList sentences;
    QDirIterator files(QStringLiteral(KINOVRA_SOURCES "/src/") + room, {u"*.cpp"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        // Captions and tool tips.
        if (file.endsWith(u"_window.cpp"))
            continue;
        const QStringList literals = literalsIn(textIn(file));
        for (const QString &literal : literals) {
            const QStringList pieces = literal.split(place);
            for (const QString &piece : pieces) {
                if (isSaid(piece.simplified()))
                    sentences.append(piece.simplified());
            }
        }
    }
    return sentences;
}

} // namespace

TEST(GuideMessages, are_all_that_the_panel_says)
{
    const QString guide = guideText();
    qsizetype count = 0;
    for (const QString &room : Rooms) {
        const QStringList sentences = sentencesOf(room);
        count += sentences.size();
        for (const QString &sentence : sentences)
            EXPECT_TRUE(guide.contains(sentence, Qt::CaseInsensitive))
                << room.toStdString() << ": " << sentence.toStdString();
    }
    EXPECT_GT(count, 100);
}
