#include "printing.h"

void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

namespace platform {

void PrintTo(const Start &start, std::ostream *out)
{
    *out << "verb=\"" << start.verb.toStdString() << "\" file=\"" << start.file.toStdString()
         << "\" parameters=\"" << start.parameters.text().toStdString() << "\" documents=";
    for (const CommandText::Range &range : start.parameters.documents())
        *out << range.from << '+' << range.length << ' ';
    *out << "directory=\"" << start.directory.toStdString() << "\" show=" << static_cast<int>(start.show)
         << " owner=" << start.owner << " target=" << static_cast<int>(start.target);
}

void PrintTo(const MessageBox &box, std::ostream *out)
{
    *out << "text=\"" << box.text.toStdString() << "\" icon=" << static_cast<int>(box.icon)
         << " buttons=" << static_cast<int>(box.buttons) << " title=\"" << box.title.toStdString()
         << "\" noByDefault=" << box.noByDefault;
}

void PrintTo(const InputBox &box, std::ostream *out)
{
    *out << "prompt=\"" << box.prompt.toStdString() << "\" title=\"" << box.title.toStdString() << '"';
}

void PrintTo(const OpenFileRequest &request, std::ostream *out)
{
    *out << "directory=\"" << request.initialDirectory.toStdString() << "\" name=\""
         << request.fileName.toStdString() << "\" filter=\"" << request.filter.toStdString()
         << "\" index=" << request.filterIndex << " title=\"" << request.title.toStdString()
         << "\" mustExist=" << request.mustExist << " hideReadOnly=" << request.hideReadOnly;
}

void PrintTo(const SaveFileRequest &request, std::ostream *out)
{
    *out << "directory=\"" << request.initialDirectory.toStdString() << "\" name=\""
         << request.fileName.toStdString() << "\" filter=\"" << request.filter.toStdString() << "\" title=\""
         << request.title.toStdString() << '"';
}

} // namespace platform
