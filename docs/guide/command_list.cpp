#include "command_list.h"

#include "shell/menu_tree.h"

#include <QMap>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace guide {

namespace {

using shell::frmKinovra;
using shell::MenuRow;

struct Description
{
    QString does;
    QString needs;
};

struct ButtonRow
{
    const char *name;
    controls::Button frmKinovra::*button;
};

// As they are in the window, from the top.
constexpr std::array<ButtonRow, 11> Buttons{{
    {"cmdSelectGra", &frmKinovra::cmdSelectGra},
    {"cmdGraph", &frmKinovra::cmdGraph},
    {"cmdEditGra", &frmKinovra::cmdEditGra},
    {"cmdRefresh", &frmKinovra::cmdRefresh},
    {"cmdEditor", &frmKinovra::cmdEditor},
    {"cmdForces", &frmKinovra::cmdForces},
    {"cmdSkelvo", &frmKinovra::cmdSkelvo},
    {"cmdOndex", &frmKinovra::cmdOndex},
    {"cmdGuide", &frmKinovra::cmdGuide},
    {"cmdManual", &frmKinovra::cmdManual},
    {"cmdExit", &frmKinovra::cmdExit},
}};

QString nameOf(const MenuRow &row)
{
    return row.index < 0 ? row.name : u"%1(%2)"_s.arg(row.name, QString::number(row.index));
}

// "&&" stands for the character itself.
qsizetype placeOfAccessKey(const QString &caption)
{
    for (qsizetype i = caption.indexOf(u'&'); i >= 0 && i + 1 < caption.size();
         i = caption.indexOf(u'&', i + 2)) {
        if (caption[i + 1] != u'&')
            return i + 1;
    }
    return -1;
}

QChar accessKey(const QString &caption)
{
    const qsizetype place = placeOfAccessKey(caption);
    return place < 0 ? QChar() : caption[place].toUpper();
}

QString shownCaption(QString caption)
{
    const qsizetype place = placeOfAccessKey(caption);
    if (place >= 0)
        caption.remove(place - 1, 1);
    return caption.replace(u"&&"_s, u"&"_s).simplified();
}

bool isMenu(size_t row)
{
    const auto &rows = shell::menuTree();
    return row + 1 < rows.size() && rows[row + 1].depth > rows[row].depth;
}

// The rows of the menu that `row` belongs to.
std::vector<size_t> besides(size_t row)
{
    const auto &rows = shell::menuTree();
    const int depth = rows[row].depth;
    size_t first = row;
    while (first > 0 && rows[first - 1].depth >= depth)
        --first;
    std::vector<size_t> result;
    for (size_t i = first; i < rows.size() && rows[i].depth >= depth; ++i) {
        if (rows[i].depth == depth && !rows[i].isSeparator())
            result.push_back(i);
    }
    return result;
}

// A star tells of a key that leads to several items in turn.
QString keyText(QChar key, qsizetype howMany)
{
    return key.isNull() ? QString() : QString(key) + (howMany > 1 ? u"*"_s : QString());
}

QString keyOf(size_t row)
{
    const auto &rows = shell::menuTree();
    const QChar key = accessKey(rows[row].caption);
    const std::vector<size_t> menu = besides(row);
    return keyText(key, std::count_if(menu.begin(), menu.end(),
                                      [&](size_t other) { return accessKey(rows[other].caption) == key; }));
}

QString tableRow(const QStringList &cells)
{
    return u"| "_s + cells.join(u" | "_s) + u" |\n"_s;
}

QString tableHead()
{
    return tableRow({u"Command"_s, u"Key"_s, u"What it does"_s, u"Needs"_s}) + u"|---|---|---|---|\n"_s;
}

/// Reads descriptions and writes tables with them.
class Writer
{
public:
    explicit Writer(const QString &descriptions)
    {
        const QStringList lines = descriptions.split(u'\n');
        for (const QString &line : lines) {
            if (!line.trimmed().isEmpty() && !line.startsWith(u'#'))
                read(line);
        }
    }

    CommandTables tables()
    {
        const auto &rows = shell::menuTree();
        for (size_t row = 0; row < rows.size(); ++row) {
            if (!rows[row].isSeparator())
                writeItem(row);
        }
        writeButtons();
        for (auto unused = descriptions_.keyBegin(); unused != descriptions_.keyEnd(); ++unused)
            tables_.problems.append(u"There is no %1 to describe."_s.arg(*unused));
        return tables_;
    }

private:
    void read(const QString &line)
    {
        const QStringList parts = line.split(u'|');
        const QString name = parts[0].trimmed();
        if (parts.size() > 3 || parts.value(1).trimmed().isEmpty())
            tables_.problems.append(u"This is not a name, what it does and what it needs: %1"_s.arg(line));
        else if (descriptions_.contains(name))
            tables_.problems.append(u"%1 is described twice."_s.arg(name));
        else
            descriptions_.insert(name, {parts[1].trimmed(), parts.value(2).trimmed()});
    }

    Description take(const QString &name)
    {
        if (!descriptions_.contains(name))
            tables_.problems.append(u"%1 has no description."_s.arg(name));
        return descriptions_.take(name);
    }

    void writeItem(size_t row)
    {
        const MenuRow &item = shell::menuTree()[row];
        const Description description = take(nameOf(item));
        QString caption = shownCaption(item.caption);
        if (item.depth == 0) {
            tables_.text +=
                u"### %1 (Alt+%2)\n\n%3\n\n"_s.arg(caption, keyOf(row), description.does) + tableHead();
            return;
        }
        if (isMenu(row))
            caption = u"**%1**"_s.arg(caption);
        const QString indent = u"› "_s.repeated(item.depth - 1);
        tables_.text += tableRow({indent + caption, keyOf(row), description.does, description.needs});
        if (row + 1 < shell::menuTree().size() && shell::menuTree()[row + 1].depth == 0)
            tables_.text += u'\n';
    }

    // A menu of the bar takes its access key from every button.
    void writeButtons()
    {
        const frmKinovra frm;
        QString menuKeys;
        for (const size_t menu : besides(0))
            menuKeys += accessKey(shell::menuTree()[menu].caption);
        const auto keyOfButton = [&](const ButtonRow &row) {
            const QChar key = accessKey((frm.*row.button).Caption);
            return menuKeys.contains(key) ? QChar() : key;
        };
        tables_.text += u"\n### Buttons of the main window\n\n"_s + tableHead();
        for (const ButtonRow &row : Buttons) {
            const Description description = take(QLatin1String(row.name));
            const QChar key = keyOfButton(row);
            const auto howMany = std::count_if(Buttons.begin(), Buttons.end(), [&](const ButtonRow &other) {
                return keyOfButton(other) == key;
            });
            tables_.text += tableRow({shownCaption((frm.*row.button).Caption), keyText(key, howMany),
                                      description.does, description.needs});
        }
    }

    QMap<QString, Description> descriptions_;
    CommandTables tables_;
};

} // namespace

CommandTables commandTables(const QString &descriptions)
{
    return Writer(descriptions).tables();
}

} // namespace guide
