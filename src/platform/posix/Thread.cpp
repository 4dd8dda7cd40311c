// SPDX-License-Identifier: MIT
#include "platform/Thread.h"

#include <pthread.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <system_error>

#include "platform/posix/ThreadCount.h"

namespace zelk {

namespace {

struct Start {
    std::string name;
    std::function<void()> body;
};

thread_local std::string threadName;

// Detached threads cannot be joined, so running threads, and tasks on the system's queues, are counted for
// drainThreads() to wait for. Never destroyed, since a thread may outlive main().
struct Running {
    std::mutex mutex;
    std::condition_variable none;
    std::atomic<std::size_t> count = 0;
};

Running& running() {
    static auto* instance = new Running;
    return *instance;
}

void setKernelName(const std::string& name) {
#ifdef __APPLE__
    pthread_setname_np(name.c_str());
#else
    // Linux refuses names longer than 15 characters instead of truncating.
    pthread_setname_np(pthread_self(), name.substr(0, 15).c_str());
#endif
}

void* threadMain(void* argument) {
    {
        const std::unique_ptr<Start> start(static_cast<Start*>(argument));
        threadName = start->name;
        setKernelName(threadName);
        start->body();
    }  // release the body before the thread counts as ended
    endWork();
    return nullptr;
}

}  // namespace

void startThread(std::string name, std::size_t stackBytes, std::function<void()> body) {
    auto start = std::make_unique<Start>(Start{std::move(name), std::move(body)});
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setdetachstate(&attributes, PTHREAD_CREATE_DETACHED);
    pthread_attr_setstacksize(&attributes, stackBytes);
    beginWork();
    pthread_t thread;
    const int error = pthread_create(&thread, &attributes, threadMain, start.get());
    pthread_attr_destroy(&attributes);
    if (error != 0) {
        endWork();
        throw std::system_error(error, std::generic_category(), "starting a thread");
    }
    static_cast<void>(start.release());  // owned by the new thread
}

const std::string& currentThreadName() {
    return threadName;
}

void beginWork() {
    ++running().count;
}

void endWork() {
    Running& all = running();
    if (--all.count != 0) return;
    const std::lock_guard lock(all.mutex);  // a waiter has either seen zero or is asleep by now
    all.none.notify_all();
}

bool drainThreads(double seconds) {
    constexpr double longest = 1e9;  // a deadline more than 292 years ahead would overflow
    Running& all = running();
    std::unique_lock lock(all.mutex);
    const std::chrono::duration<double> limit(std::min(seconds, longest));
    return all.none.wait_for(lock, limit, [&] { return all.count == 0; });
}

}  // namespace zelk
