#pragma once

#include <sys/resource.h>

namespace support {

/// Lets nothing more be opened while it lives, but for the first `left` descriptors; what is open stays so.
class WithoutDescriptors
{
public:
    explicit WithoutDescriptors(rlim_t left = 0)
    {
        ::getrlimit(RLIMIT_NOFILE, &before_);
        const rlimit few{left, before_.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &few);
    }
    ~WithoutDescriptors() { ::setrlimit(RLIMIT_NOFILE, &before_); }
    WithoutDescriptors(const WithoutDescriptors &) = delete;
    WithoutDescriptors &operator=(const WithoutDescriptors &) = delete;

private:
    rlimit before_{};
};

} // namespace support
