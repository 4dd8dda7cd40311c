// SPDX-License-Identifier: MIT
// What the application asks of the window manager when it is started again. The test sees it in the manager's place, on
// a display of its own.
#include <poll.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

#include "RealStarts.h"

namespace zelk {

namespace {

class X11Focus : public RealStarts {
protected:
    X11Focus() {
        int ends[2] = {-1, -1};
        EXPECT_EQ(::pipe(ends), 0);
        const std::string descriptor = std::to_string(ends[1]);
        const char* words[] = {"Xvfb",      "-displayfd", descriptor.c_str(), "-screen", "0", "1600x1100x24",
                               "-nolisten", "tcp",        "-noreset",         nullptr};
        server_ = ::fork();
        if (server_ == 0) {
            const int quiet = ::open("/dev/null", O_RDWR);
            for (const int output : {0, 1, 2}) ::dup2(quiet, output);
            ::close(ends[0]);
            ::execvp(words[0], const_cast<char**>(words));
            ::_exit(127);
        }
        ::close(ends[1]);
        std::string number;
        for (char c = 0; ::read(ends[0], &c, 1) == 1 && c != '\n';) number += c;
        ::close(ends[0]);
        EXPECT_NE(number, "") << "Xvfb did not start";
        environment["DISPLAY"] = ":" + number;
        environment["QT_QPA_PLATFORM"] = "xcb";
        // A library of X copies names by their length, which no zero byte ends: AddressSanitizer would take them for
        // text.
        const char* const checks = std::getenv("ASAN_OPTIONS");
        environment["ASAN_OPTIONS"] = std::string(checks == nullptr ? "" : checks) + ":strict_string_checks=0";
        connection_ = xcb_connect((":" + number).c_str(), nullptr);
        root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
        // As a window manager and a panel are told.
        const std::uint32_t masks = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(connection_, root_, XCB_CW_EVENT_MASK, &masks);
        xcb_flush(connection_);
    }
    ~X11Focus() override {
        xcb_disconnect(connection_);
        ::kill(server_, SIGTERM);
        ::waitpid(server_, nullptr, 0);
    }

    /// The next message of this type to the root window; all zeros if the process ends before.
    xcb_client_message_event_t next(pid_t child, const std::string& type) {
        xcb_client_message_event_t found = {};
        const xcb_atom_t wanted = atom(type);
        EXPECT_TRUE(waitUntil(child, [&] {
            while (const auto event = received(xcb_poll_for_event(connection_))) {
                if ((event->response_type & 0x7f) != XCB_CLIENT_MESSAGE) continue;
                const auto* message = reinterpret_cast<const xcb_client_message_event_t*>(event.get());
                if (message->type != wanted) continue;
                found = *message;
                return true;
            }
            return false;
        })) << said();
        return found;
    }
    /// The text of a message in pieces.
    std::string broadcast(pid_t child) {
        std::string text;
        xcb_client_message_event_t piece = next(child, "_NET_STARTUP_INFO_BEGIN");
        for (;;) {
            EXPECT_EQ(piece.format, 8);
            for (const std::uint8_t c : piece.data.data8) {
                if (c == 0) return text;
                text += static_cast<char>(c);
            }
            piece = next(child, "_NET_STARTUP_INFO");
        }
    }
    bool isMapped(xcb_window_t window) {
        const auto attributes = received(
            xcb_get_window_attributes_reply(connection_, xcb_get_window_attributes(connection_, window), nullptr));
        return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
    }
    pid_t startAndWait() {
        const pid_t first = start();
        EXPECT_TRUE(waitUntil(first, [&] { return listens(temp / "runtime/io.github.zelk.Zelk/socket"); })) << said();
        return first;
    }

private:
    template <class Reply>
    static std::unique_ptr<Reply, decltype(&std::free)> received(Reply* reply) {
        return {reply, &std::free};
    }
    xcb_atom_t atom(const std::string& name) {
        const auto reply = received(xcb_intern_atom_reply(
            connection_, xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.c_str()),
            nullptr));
        return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }

    pid_t server_ = -1;
    xcb_connection_t* connection_ = nullptr;
    xcb_window_t root_ = 0;
};

}  // namespace

TEST_F(X11Focus, isAskedWithTheTimeOfTheClick) {
    const pid_t first = startAndWait();
    environment["DESKTOP_STARTUP_ID"] = "panel-17-\"host\"-zelk_TIME4000000000";
    EXPECT_EQ(statusOf(start()), 0);
    const xcb_client_message_event_t asked = next(first, "_NET_ACTIVE_WINDOW");
    EXPECT_EQ(asked.format, 32);
    EXPECT_EQ(asked.data.data32[0], 1U) << "as an application";
    EXPECT_EQ(asked.data.data32[1], 4'000'000'000U);
    EXPECT_TRUE(isMapped(asked.window));
    EXPECT_EQ(broadcast(first), "remove: ID=\"panel-17-\\\"host\\\"-zelk_TIME4000000000\"");
    EXPECT_EQ(end(first, SIGTERM), 0) << said();
}

TEST_F(X11Focus, isAskedForTheUserIfNoClickIsKnown) {
    const pid_t first = startAndWait();
    EXPECT_EQ(statusOf(start()), 0);
    const xcb_client_message_event_t asked = next(first, "_NET_ACTIVE_WINDOW");
    EXPECT_EQ(asked.data.data32[0], 2U) << "as the user's own wish";
    EXPECT_EQ(asked.data.data32[1], 0U);
    EXPECT_EQ(end(first, SIGTERM), 0) << said();
}

}  // namespace zelk
