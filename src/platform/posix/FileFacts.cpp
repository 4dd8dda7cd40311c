// SPDX-License-Identifier: MIT
#include "platform/posix/FileFacts.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstddef>

#include "platform/posix/Descriptor.h"

namespace zelk {

std::optional<std::string> textOfLink(const std::string& path) {
    for (std::string text(256, '\0');; text.resize(text.size() * 2)) {
        const ssize_t length = ::readlink(path.c_str(), text.data(), text.size());
        if (length < 0) return std::nullopt;
        // A text that fills the buffer may have been cut off.
        if (static_cast<std::size_t>(length) < text.size()) return text.substr(0, static_cast<std::size_t>(length));
    }
}

bool isLockedByAnother(const std::string& path) {
    constexpr int flags = O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    const Descriptor file(uninterrupted([&] { return ::open(path.c_str(), flags); }));
    struct flock lock {};
    lock.l_type = F_WRLCK;  // which any other lock is in the way of
    lock.l_whence = SEEK_SET;
    return file && ::fcntl(file.get(), F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
}

}  // namespace zelk
