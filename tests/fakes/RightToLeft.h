// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>
#include <QTranslator>
#include <cstring>

namespace zelk::fakes {

/// A translation that has no texts, but is written from right to left: as long as it lives the application reads so.
/// Made before the windows that shall be mirrored.
class RightToLeft {
public:
    RightToLeft() { QCoreApplication::installTranslator(&translation_); }
    ~RightToLeft() { QCoreApplication::removeTranslator(&translation_); }
    RightToLeft(const RightToLeft&) = delete;
    RightToLeft& operator=(const RightToLeft&) = delete;

private:
    class Translation : public QTranslator {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char*, const char* text, const char*, int) const override {
            return std::strcmp(text, "QT_LAYOUT_DIRECTION") == 0 ? QStringLiteral("RTL") : QString();
        }
    };

    Translation translation_;
};

}  // namespace zelk::fakes
