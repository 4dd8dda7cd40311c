// SPDX-License-Identifier: MIT
#include "platform/posix/DurableFile.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "platform/ReplacedFile.h"
#include "platform/posix/Descriptor.h"
#include "platform/posix/Flush.h"

namespace zelk {
namespace {

bool isDirectory(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

/// Follows links, and never waits for the other end of a pipe. None for anything but a file.
Descriptor openRegularFile(const std::string& path, struct stat& status) {
    Descriptor file(uninterrupted([&] { return ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY); }));
    if (file && (::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode))) return {};
    return file;
}

}  // namespace

bool replaceFileDurably(const std::string& path, std::string_view content) {
    ReplacedFile file(path, ReplacedFile::Access::owner);
    file.write(content);
    return file.commit();
}

std::optional<std::string> readFileStart(const std::string& path, std::size_t most) {
    struct stat status {};
    const Descriptor file = openRegularFile(path, status);
    if (!file) return std::nullopt;
    std::string content(most, '\0');
    std::size_t length = 0;
    while (length < most) {
        const ssize_t got = uninterrupted([&] { return ::read(file.get(), content.data() + length, most - length); });
        if (got < 0) return std::nullopt;
        if (got == 0) break;
        length += static_cast<std::size_t>(got);
    }
    content.resize(length);
    return content;
}

std::optional<std::string> readWholeFile(const std::string& path, std::size_t most) {
    struct stat status {};
    const Descriptor file = openRegularFile(path, status);
    if (!file || static_cast<std::uintmax_t>(status.st_size) > most) return std::nullopt;
    std::string content;
    std::size_t length = 0;
    for (;;) {
        // Read one byte more than expected, to see the end without growing again.
        if (length == content.size()) content.resize(std::max<std::size_t>(status.st_size + 1, length * 2 + 4096));
        const ssize_t got =
            uninterrupted([&] { return ::read(file.get(), content.data() + length, content.size() - length); });
        if (got < 0) return std::nullopt;
        if (got == 0) break;
        length += static_cast<std::size_t>(got);
        if (length > most) return std::nullopt;  // the file is growing
    }
    content.resize(length);
    return content;
}

bool createDirectoryTree(const std::string& path) {
    if (path.empty()) return false;
    for (std::size_t end = 0; end != std::string::npos;) {
        end = path.find('/', end + 1);
        const std::string folder = path.substr(0, end);
        if (isDirectory(folder)) continue;
        // Another process may have created it first.
        if (::mkdir(folder.c_str(), 0700) != 0 && !isDirectory(folder)) return false;
        const std::size_t slash = folder.rfind('/');
        const std::string above = slash == std::string::npos ? "./" : folder.substr(0, slash + 1);
        if (const Descriptor opened = openFolder(above)) flush(opened);
    }
    return true;
}

}  // namespace zelk
