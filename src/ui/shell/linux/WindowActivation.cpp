// SPDX-License-Identifier: MIT
#include <xcb/xcb.h>

#include <QGuiApplication>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ui/shell/Activation.h"
#include "ui/shell/linux/StartupId.h"

namespace zelk {

namespace {

constexpr const char* tokenVariable = "XDG_ACTIVATION_TOKEN";

// Who asks for the focus, as _NET_ACTIVE_WINDOW has it.
constexpr std::uint32_t byApplication = 1;  // granted if its time is later than what the user did last
constexpr std::uint32_t byUser = 2;

/// The connection of the toolkit with the X server.
class X11 {
public:
    explicit X11(xcb_connection_t* connection) : connection_(connection) {
        const xcb_setup_t* setup = xcb_get_setup(connection_);
        root_ = xcb_setup_roots_iterator(setup).data->root;
    }

    void activate(xcb_window_t window, std::optional<std::uint32_t> time) const {
        xcb_client_message_event_t event = message(window, "_NET_ACTIVE_WINDOW", 32);
        event.data.data32[0] = time ? byApplication : byUser;
        event.data.data32[1] = time.value_or(XCB_CURRENT_TIME);
        send(event, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT);
    }

    /// `window` tells these pieces from those of others.
    void broadcast(xcb_window_t window, const std::vector<std::string>& pieces) const {
        const char* type = "_NET_STARTUP_INFO_BEGIN";
        for (const std::string& piece : pieces) {
            xcb_client_message_event_t event = message(window, std::exchange(type, "_NET_STARTUP_INFO"), 8);
            piece.copy(reinterpret_cast<char*>(event.data.data8), sizeof(event.data.data8));
            send(event, XCB_EVENT_MASK_PROPERTY_CHANGE);
        }
    }

    void flush() const { xcb_flush(connection_); }

private:
    xcb_client_message_event_t message(xcb_window_t window, std::string_view type, std::uint8_t format) const {
        xcb_client_message_event_t event = {};
        event.response_type = XCB_CLIENT_MESSAGE;
        event.format = format;
        event.window = window;
        event.type = atom(type);
        return event;
    }

    xcb_atom_t atom(std::string_view name) const {
        const auto asked = xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.data());
        const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
            xcb_intern_atom_reply(connection_, asked, nullptr), &std::free);
        return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }

    void send(const xcb_client_message_event_t& event, std::uint32_t mask) const {
        xcb_send_event(connection_, 0, root_, mask, reinterpret_cast<const char*>(&event));
    }

    xcb_connection_t* connection_;
    xcb_window_t root_ = XCB_WINDOW_NONE;
};

/// Desktops that know both give both the same content, older ones only one of them.
const QString& either(const QString& first, const QString& second) {
    return first.isEmpty() ? second : first;
}

}  // namespace

void activateWindow(QWindow& window, const Activation& by) {
    // Off the screen there is an X11 application too, but no connection.
    const auto* native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (xcb_connection_t* connection = native == nullptr ? nullptr : native->connection()) {
        // The toolkit would ask with the time at which the user last did something in this application, which is
        // earlier than what was done since in others.
        const std::string id = either(by.startupId, by.token).toStdString();
        const X11 server(connection);
        const auto target = static_cast<xcb_window_t>(window.winId());
        server.activate(target, timeOfStart(id));
        if (!id.empty()) server.broadcast(target, endOfStartup(id));
        return server.flush();
    }
    // The toolkit takes the token from the environment, where it would otherwise reach the next program that is
    // started.
    const QString& token = either(by.token, by.startupId);
    if (!token.isEmpty()) qputenv(tokenVariable, token.toUtf8());
    window.requestActivate();
    qunsetenv(tokenVariable);
}

}  // namespace zelk
