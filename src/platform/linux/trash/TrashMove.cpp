// SPDX-License-Identifier: MIT
#include "platform/linux/trash/TrashMove.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <string_view>

#include "platform/Translation.h"
#include "platform/linux/trash/TrashEntry.h"
#include "platform/linux/trash/TrashInfo.h"
#include "platform/posix/FailureText.h"
#include "platform/posix/FolderLock.h"

namespace zelk {
namespace {

/// Tries for one name in the Trash; with more, something else is wrong.
constexpr int maximumTries = 1000000;

std::size_t longestName(int folder) {
    constexpr long usual = 255;
    const long told = ::fpathconf(folder, _PC_NAME_MAX);
    const auto bytes = static_cast<std::size_t>(told > 0 ? std::min(told, usual) : usual);
    return bytes - std::min(bytes, trashInfoSuffix.size());
}

std::tm localTime() {
    const std::time_t now = ::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    return local;
}

bool writeAll(int file, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = uninterrupted([&] { return ::write(file, content.data(), content.size()); });
        if (written <= 0) return false;
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

/// Has the content and the name of a new file written to the disk. The file's own flush is what counts, and it comes
/// last: in a journal the shared one of the folder has usually written what the file still needs, so that it does not
/// take a transaction for each file.
bool flushInfo(const Descriptor& file, int folder, SharedFlush& names) {
    // Without the content, that transaction would lack where it is. A failed write counts: it is reported once for each
    // open file, so the flush below would succeed without the content. Where the call is missing or forbidden, that
    // flush does it all.
    constexpr unsigned now = SYNC_FILE_RANGE_WRITE | SYNC_FILE_RANGE_WAIT_AFTER;
    const bool isWritten = uninterrupted([&] { return ::sync_file_range(file.get(), 0, 0, now); }) == 0;
    if (!isWritten && errno != ENOSYS && errno != EPERM && errno != EINVAL && errno != ESPIPE) return false;
    names.flush(folder);
    return uninterrupted([&] { return ::fsync(file.get()); }) == 0;
}

/// Returns 0 or the errno: EEXIST if the file exists. Leaves no file of its own on an error.
int createInfo(const Place& info, std::string_view content, SharedFlush& names) {
    const auto create = [&info](mode_t mode) {
        constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
        return uninterrupted([&] { return ::openat(info.folder, info.name.c_str(), flags, mode); });
    };
    Descriptor file(create(0600 | ownInfoMark));
    if (!file && (errno == EPERM || errno == EINVAL)) file = Descriptor(create(0600));  // the volume refuses the mark
    if (!file) return errno;
    const bool written = writeAll(file.get(), content) && flushInfo(file, info.folder, names);
    const int error = errno;
    if (written && file.close()) return 0;
    const int closing = written ? errno : error;
    ::unlinkat(info.folder, info.name.c_str(), 0);
    return closing == 0 ? EIO : closing;
}

bool isTaken(const Place& place) {
    return ::faccessat(place.folder, place.name.c_str(), F_OK, AT_SYMLINK_NOFOLLOW) == 0;
}

int moveWithInfo(const Place& item, const Place& content, const Place& info, std::string_view text,
                 SharedFlush& names) {
    // Do not even write info for a name whose content is taken.
    if (isTaken(content)) return EEXIST;
    if (const int error = createInfo(info, text, names); error != 0) return error;
    const int error = moveWithoutReplacing(item, content);
    if (error != 0) ::unlinkat(info.folder, info.name.c_str(), 0);
    return error;
}

std::string reasonOfMove(int error) {
    switch (error) {
        case EXDEV:
            return translated("Failure", "it is not on the same volume as its Trash");
        case EINVAL:
            return translated("Failure", "the Trash is in it");
        default:
            return systemText(error);
    }
}

}  // namespace

Failure moveIntoTrash(const Place& item, const std::string& path, const TrashFolder& trash, const NextNumber& next,
                      SharedFlush& names, TrashEntryName& entry) {
    Descriptor moving;  // its info briefly has no content without being an orphan
    if (!lockFolder(trash.info.get(), LOCK_SH, moving)) return systemText(errno);
    entry.info = trashInfoText(path, localTime());
    const std::size_t limit = longestName(trash.files.get());
    int error = EEXIST;
    for (int tried = 0; error == EEXIST && tried < maximumTries; ++tried) {
        entry.name = trashName(item.name, tried == 0 ? 1 : next(), limit);
        error = moveWithInfo(item, {trash.files.get(), entry.name}, infoOf(trash, entry.name), entry.info, names);
    }
    if (error == 0) return std::nullopt;
    return reasonOfMove(error);
}

}  // namespace zelk
