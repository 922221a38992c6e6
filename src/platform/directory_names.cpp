#include "platform/directory_names.h"

#include "platform/path_language.h"
#include "platform/runtime_error.h"

using namespace Qt::StringLiterals;

namespace platform {

bool endsWithName(const QString &path)
{
    const QStringList names = splitPath(path).Names;
    return !names.isEmpty() && names.last() != u"." && names.last() != u"..";
}

void requireOwnName(const QString &path)
{
    if (splitPath(path).Names.isEmpty())
        raiseDrive();
    if (!endsWithName(path))
        throw RuntimeError(ErrorNumber::PathFileAccess, u"It must be called by its own name"_s);
}

void raiseTaken()
{
    throw RuntimeError(ErrorNumber::PathFileAccess, u"There is something of this name already"_s);
}

void raiseDrive()
{
    throw RuntimeError(ErrorNumber::PathFileAccess, u"A drive cannot be removed"_s);
}

} // namespace platform
