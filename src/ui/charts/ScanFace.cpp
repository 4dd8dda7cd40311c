// SPDX-License-Identifier: MIT
#include "ui/charts/ScanFace.h"

namespace zelk {

ScanFace ScanFace::idle() {
    ScanFace face;
    face.symbol = QStringLiteral("scope");
    face.symbolSize = 34;
    face.title = QStringLiteral("Scan");
    face.titleSize = 20;
    face.caption = QStringLiteral("your whole Mac");
    face.captionSize = 11;
    return face;
}

ScanFace ScanFace::scanning(std::int64_t bytes, const QLocale& locale) {
    ScanFace face;
    face.title = byteFigure(bytes, locale);
    face.titleSize = 26;
    face.caption = QStringLiteral("scanning…");
    face.captionSize = 11;
    return face;
}

ScanFace ScanFace::finished(std::int64_t recoverable, const QLocale& locale) {
    ScanFace face;
    face.title = byteFigure(recoverable, locale);
    face.titleSize = 28;
    face.caption = QStringLiteral("recoverable");
    face.captionSize = 11;
    face.hint = QStringLiteral("re-run");
    face.hintSize = 10;
    return face;
}

}  // namespace zelk

#include "moc_ScanFace.cpp"
