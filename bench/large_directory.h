#pragma once

#include <string>

namespace bench {

/// A directory with many files, made for a run and removed with it.
class LargeDirectory
{
public:
    /// What the files are.
    enum class Kind {
        Mixed,    ///< of all types that the lists show, and of types that none shows
        DataFiles ///< all in one list
    };

    LargeDirectory(Kind kind, int files);
    ~LargeDirectory();
    LargeDirectory(const LargeDirectory &) = delete;
    LargeDirectory &operator=(const LargeDirectory &) = delete;

    std::string path() const { return path_; }

private:
    std::string path_;
};

/// One plain pass over a directory; the number of its entries.
int readPlainly(const std::string &path);

} // namespace bench
