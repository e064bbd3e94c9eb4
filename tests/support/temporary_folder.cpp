#include "test_support/temporary_folder.h"

#include <cerrno>       // errno
#include <cstdlib>      // mkdtemp
#include <fstream>      // std::ofstream
#include <system_error> // std::error_code, std::system_error

namespace specloom::test_support {

TemporaryFolder::TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "specloom-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr)
        throw std::system_error(errno, std::generic_category(), "mkdtemp");
    path_ = pattern;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored; // a test may have removed it
    std::filesystem::remove_all(path_, ignored);
}

std::string TemporaryFolder::write(std::string_view name, std::string_view content) const {
    std::string file = at(name);
    std::ofstream(file, std::ios::binary) << content;
    return file;
}

} // namespace specloom::test_support
