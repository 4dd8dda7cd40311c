// SPDX-License-Identifier: MIT
#include "cli/ExportFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "cli/Output.h"

namespace zelk::cli {

namespace {

/// A pipe, a device or a socket: what cannot be replaced but can be written.
bool isStream(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode);
}

}  // namespace

ExportFile::ExportFile(const std::string& path, std::function<bool()> stopped) : stopped_(std::move(stopped)) {
    if (!isStream(path)) {
        replaced_ = std::make_unique<ReplacedFile>(path, ReplacedFile::Access::usual);
        return;
    }
    // A pipe that nobody reads yet is tried again, since a call that waits would not hear of a signal before it.
    constexpr timespec pause{0, 20'000'000};
    while (!stopped_()) {
        descriptor_ = ::open(path.c_str(), O_WRONLY | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
        if (descriptor_ >= 0 || (errno != ENXIO && errno != EINTR)) break;
        ::nanosleep(&pause, nullptr);
    }
    if (descriptor_ < 0) error_ = stopped_() ? ECANCELED : errno;
}

ExportFile::~ExportFile() {
    if (descriptor_ >= 0) ::close(descriptor_);
}

int ExportFile::write(std::string_view piece) {
    if (stopped_()) return ECANCELED;
    if (!replaced_) return error_ != 0 ? error_ : writeAll(descriptor_, piece, stopped_);
    replaced_->write(piece);
    return replaced_->error();
}

int ExportFile::commit() {
    if (!replaced_) {
        const int descriptor = std::exchange(descriptor_, -1);
        if (error_ == 0 && ::close(descriptor) != 0 && errno != EINTR) error_ = errno;
        return error_;
    }
    return replaced_->commit() ? 0 : replaced_->error();
}

int ExportFile::whyNot(const std::string& path) {
    if (isStream(path)) return ::access(path.c_str(), W_OK) == 0 ? 0 : errno;
    return ReplacedFile(path, ReplacedFile::Access::usual).error();
}

bool ExportFile::isStandardOutput(const std::string& path) {
    struct stat status {};
    struct stat output {};
    return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) && ::fstat(STDOUT_FILENO, &output) == 0 &&
           status.st_dev == output.st_dev && status.st_ino == output.st_ino;
}

}  // namespace zelk::cli
