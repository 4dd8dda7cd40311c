// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <type_traits>
#include <utility>

namespace zelk {

/// Lets resize() make elements without writing to them, for a large list whose elements are written soon anyway, and
/// not by the thread that made room for them.
template <class T>
class UnfilledAllocator : public std::allocator<T> {
public:
    static_assert(std::is_trivially_copyable_v<T> && std::is_trivially_destructible_v<T>);

    template <class Other>
    struct rebind {
        using other = UnfilledAllocator<Other>;
    };

    using std::allocator<T>::allocator;

    template <class Other>
    void construct(Other*) noexcept {}
    template <class Other, class... Arguments>
    void construct(Other* place, Arguments&&... arguments) {
        std::construct_at(place, std::forward<Arguments>(arguments)...);
    }
};

}  // namespace zelk
