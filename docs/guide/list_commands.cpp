// Writes the guide's tables of commands:
//
//     kinovra_commands commands.txt commands.md

#include "command_list.h"

#include <QFile>
#include <QTextStream>

int main(int argc, char *argv[])
{
    QTextStream errors(stderr);
    if (argc != 3) {
        errors << "usage: kinovra_commands commands.txt commands.md\n";
        return 2;
    }
    QFile descriptions(QFile::decodeName(argv[1]));
    if (!descriptions.open(QFile::ReadOnly)) {
        errors << argv[1] << ": " << descriptions.errorString() << '\n';
        return 1;
    }
    const guide::CommandTables tables = guide::commandTables(QString::fromUtf8(descriptions.readAll()));
    for (const QString &problem : tables.problems)
        errors << problem << '\n';
    if (!tables.problems.isEmpty())
        return 1;
    const QByteArray text = tables.text.toUtf8();
    QFile file(QFile::decodeName(argv[2]));
    if (!file.open(QFile::WriteOnly) || file.write(text) != text.size()) {
        errors << argv[2] << ": " << file.errorString() << '\n';
        return 1;
    }
    return 0;
}
