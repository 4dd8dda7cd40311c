// SPDX-License-Identifier: MIT
#pragma once

#include <QGuiApplication>

namespace zelk::fakes {

/// The application reads from right to left as long as this lives; made before the windows that shall do so.
class RightToLeft {
public:
    RightToLeft() { QGuiApplication::setLayoutDirection(Qt::RightToLeft); }
    ~RightToLeft() { QGuiApplication::setLayoutDirection(Qt::LayoutDirectionAuto); }
    RightToLeft(const RightToLeft&) = delete;
    RightToLeft& operator=(const RightToLeft&) = delete;
};

}  // namespace zelk::fakes
