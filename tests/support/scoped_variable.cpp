#include "scratch_directory.h"

#include <QtGlobal>

namespace support {

ScopedVariable::ScopedVariable(const char *name, const QByteArray &value)
    : name_(name), before_(qgetenv(name))
{
    value.isNull() ? qunsetenv(name) : qputenv(name, value);
}

ScopedVariable::~ScopedVariable()
{
    before_.isNull() ? qunsetenv(name_) : qputenv(name_, before_);
}

} // namespace support
