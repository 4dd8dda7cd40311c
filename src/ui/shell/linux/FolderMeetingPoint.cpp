// SPDX-License-Identifier: MIT
#include "ui/shell/linux/FolderMeetingPoint.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "ui/shell/Application.h"

namespace zelk {

namespace {

constexpr const char* socketName = "socket";
constexpr int slice = 50;                     // milliseconds between two looks at the lock
constexpr std::size_t longestRequest = 4096;  // bytes; activations have some dozens
constexpr mode_t writableByOthers = S_IWGRP | S_IWOTH;

bool isOwn(const struct stat& status) {
    return S_ISDIR(status.st_mode) && status.st_uid == ::geteuid();
}

/// The descriptor of the folder, which is made if there is none; -1 if it cannot be trusted or used.
int openPlace(const FolderMeetingPoint::Place& place) {
    struct stat status = {};
    if (!place.parent.starts_with('/')) return -1;
    if (!place.shared && (::stat(place.parent.c_str(), &status) != 0 || !isOwn(status))) return -1;
    const std::string path = place.parent + "/" + place.name;
    ::mkdir(path.c_str(), S_IRWXU);
    const int folder = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (folder < 0) return -1;
    if (::fstat(folder, &status) == 0 && isOwn(status) && (status.st_mode & writableByOthers) == 0) return folder;
    ::close(folder);
    return -1;
}

/// The socket's address by way of the folder's descriptor, since an address has no room for a long path.
sockaddr_un addressIn(int folder) {
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    const std::string path = "/proc/self/fd/" + std::to_string(folder) + "/" + socketName;
    path.copy(static_cast<char*>(address.sun_path), sizeof(address.sun_path) - 1);
    return address;
}

int makeSocket() {
    return ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

const sockaddr* asAddress(const sockaddr_un& address) {
    return reinterpret_cast<const sockaddr*>(&address);
}

/// A socket connected to that of the holder, so that nobody else can answer; -1 if there is none.
int connectTo(int folder) {
    const int caller = makeSocket();
    sockaddr_un unnamed = {};  // the kernel finds a name, to which the answer goes
    unnamed.sun_family = AF_UNIX;
    const sockaddr_un holder = addressIn(folder);
    if (caller >= 0 && ::bind(caller, asAddress(unnamed), sizeof(unnamed.sun_family)) == 0 &&
        ::connect(caller, asAddress(holder), sizeof(holder)) == 0)
        return caller;
    if (caller >= 0) ::close(caller);
    return -1;
}

std::string requestOf(const Activation& activation) {
    const std::string request = activation.token.toStdString() + "\n" + activation.startupId.toStdString();
    return request.size() <= longestRequest ? request : std::string();
}

Activation activationFrom(const std::string& request) {
    const std::size_t end = request.find('\n');
    if (end == std::string::npos) return {};
    return {QString::fromStdString(request.substr(0, end)), QString::fromStdString(request.substr(end + 1))};
}

}  // namespace

FolderMeetingPoint::FolderMeetingPoint(Place place, int patience) : place_(std::move(place)), patience_(patience) {}

/// The socket's file stays, as it may belong to the next holder by then.
FolderMeetingPoint::~FolderMeetingPoint() {
    notifier_.reset();
    // The lock first: whoever finds no socket looks at the lock again.
    if (folder_ >= 0) ::close(folder_);
    if (listening_ >= 0) ::close(listening_);
}

std::vector<FolderMeetingPoint::Place> FolderMeetingPoint::usualPlaces() {
    const std::string name = applicationId().toStdString();
    std::vector<Place> places;
    if (const char* runtime = std::getenv("XDG_RUNTIME_DIR")) places.push_back({runtime, name});
    const char* temporary = std::getenv("TMPDIR");
    places.push_back({temporary == nullptr || *temporary != '/' ? "/tmp" : temporary,
                      name + "-" + std::to_string(::geteuid()), true});
    return places;
}

MeetingPoint::Claim FolderMeetingPoint::claim() {
    if (folder_ < 0) folder_ = openPlace(place_);
    if (folder_ < 0) return Claim::impossible;
    int status = -1;
    do status = ::flock(folder_, LOCK_EX | LOCK_NB);
    while (status != 0 && errno == EINTR);
    if (status == 0) return Claim::held;
    return errno == EWOULDBLOCK ? Claim::taken : Claim::impossible;
}

MeetingPoint::Answer FolderMeetingPoint::call(const Activation& by) {
    const int caller = connectTo(folder_);
    if (caller < 0) return claim() == Claim::held ? Answer::gone : Answer::starting;
    const std::string request = requestOf(by);
    Answer answer = Answer::silent;
    bool sent = false;
    for (int waited = 0; waited < patience_ && answer == Answer::silent; waited += slice) {
        // There is no room for more requests now and then, if many processes start at the same time.
        sent = sent || ::send(caller, request.data(), request.size(), MSG_NOSIGNAL) >= 0;
        pollfd answered = {caller, POLLIN, 0};
        if (::poll(&answered, 1, slice) > 0 && ::recv(caller, nullptr, 0, 0) >= 0)
            answer = Answer::heard;
        else if (claim() == Claim::held)
            answer = Answer::gone;
    }
    ::close(caller);
    return answer;
}

void FolderMeetingPoint::announce() {
    listening_ = makeSocket();
    if (listening_ < 0) return;
    ::unlinkat(folder_, socketName, 0);  // of a holder that has ended
    const sockaddr_un address = addressIn(folder_);
    if (::bind(listening_, asAddress(address), sizeof(address)) != 0) return;
    notifier_ = std::make_unique<QSocketNotifier>(listening_, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] { receive(); });
}

/// Takes one request. The notifier calls again while there are more.
void FolderMeetingPoint::receive() const {
    std::array<char, longestRequest> bytes{};
    sockaddr_un caller = {};
    socklen_t length = sizeof(caller);
    const ssize_t size =
        ::recvfrom(listening_, bytes.data(), bytes.size(), 0, reinterpret_cast<sockaddr*>(&caller), &length);
    if (size < 0) return;
    if (handler_ && !handler_(activationFrom(std::string(bytes.data(), static_cast<std::size_t>(size))))) return;
    ::sendto(listening_, "", 0, MSG_NOSIGNAL, asAddress(caller), length);
}

}  // namespace zelk
