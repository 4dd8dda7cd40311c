// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace zelk::cli {

/// Collects bytes and hands them on in large pieces. After the first failure nothing more is handed on, so whoever
/// writes need not ask before the end. One thread.
class Output {
public:
    /// Takes a whole piece. Returns 0, or an errno.
    using Take = std::function<int(std::string_view)>;

    explicit Output(Take take);

    void write(std::string_view bytes);
    /// Hands on what is left. Returns the errno of the first failure; 0 if everything was taken.
    int finish();

private:
    void handOn(std::string_view bytes);

    Take take_;
    std::string held_;
    int error_ = 0;
};

/// Writes everything to a descriptor, also one that does not block. Returns 0 or the errno; ECANCELED once `stopped`
/// says so, which is asked every now and then while there is no room.
int writeAll(int descriptor, std::string_view bytes, const std::function<bool()>& stopped);

}  // namespace zelk::cli
