// SPDX-License-Identifier: MIT
#include "platform/linux/trash/SharedFlush.h"

#include <sys/stat.h>
#include <unistd.h>

#include "platform/posix/Descriptor.h"

namespace zelk {

void SharedFlush::flush(int folder) {
    struct stat status {};
    if (::fstat(folder, &status) != 0) return flushFolder_(folder);
    std::unique_lock lock(mutex_);
    Turns& turns = turns_[{status.st_dev, status.st_ino}];
    // One that runs already may have begun too early.
    const std::uint64_t wanted = turns.begun + 1;
    while (turns.ended < wanted) {
        if (turns.begun > turns.ended) {
            ended_.wait(lock);
            continue;
        }
        ++turns.begun;
        lock.unlock();
        flushFolder_(folder);
        lock.lock();
        turns.ended = turns.begun;
        ended_.notify_all();
    }
}

void SharedFlush::flushBySystem(int folder) {
    static_cast<void>(uninterrupted([folder] { return ::fsync(folder); }));
}

}  // namespace zelk
