#include "platform/linux/system_error.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <utility>

TEST(SystemErrors, have_classic_numbers)
{
    const std::pair<int, int> table[]{
        {ENOENT, 76},    {ENOTDIR, 76},      {ESTALE, 76},      {EACCES, 70},   {EPERM, 70},
        {EROFS, 70},     {ENAMETOOLONG, 52}, {EILSEQ, 52},      {EBUSY, 55},    {ETXTBSY, 55},
        {EAGAIN, 55},    {EEXIST, 58},       {EIO, 57},         {ENOSPC, 61},   {EDQUOT, 61},
        {EFBIG, 61},     {EMFILE, 67},       {ENFILE, 67},      {ENODEV, 68},   {ENXIO, 68},
        {EHOSTDOWN, 68}, {EHOSTUNREACH, 68}, {ENETUNREACH, 68}, {ENOTCONN, 68}, {ETIMEDOUT, 68},
        {ENOMEDIUM, 71}, {EISDIR, 75},       {ELOOP, 75},       {EINVAL, 75},
    };
    for (const auto &[system, classic] : table) {
        EXPECT_EQ(static_cast<int>(platform::host::errorNumber(system)), classic) << system;
        try {
            platform::host::raise(system);
        } catch (const platform::RuntimeError &error) {
            EXPECT_EQ(error.Number, classic) << system;
        }
    }
}
