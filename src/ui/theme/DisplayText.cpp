// SPDX-License-Identifier: MIT
#include "ui/theme/DisplayText.h"

#include <QList>
#include <QTextBoundaryFinder>
#include <algorithm>
#include <string>

namespace zelk {

namespace {

constexpr char16_t controlPictures = 0x2400;  // U+2400 + n is the picture of the control character n
constexpr char16_t deletePicture = 0x2421;
constexpr qsizetype wholePathLimit = 57;
constexpr qsizetype keptOfLongPath = 55;
constexpr std::size_t mostPrinted = 20'000;

bool turnsDirection(char16_t unit) {
    return unit == 0x061C || unit == 0x200E || unit == 0x200F || (unit >= 0x202A && unit <= 0x202E) ||
           (unit >= 0x2066 && unit <= 0x2069);
}

QChar visible(QChar character) {
    const char16_t unit = character.unicode();
    if (unit < 0x20) return QChar(static_cast<char16_t>(controlPictures + unit));
    if (unit == 0x7F) return QChar(deletePicture);
    const bool laterControl = unit >= 0x80 && unit <= 0x9F;
    const bool breaksLine = unit == 0x2028 || unit == 0x2029;
    if (laterControl || breaksLine || turnsDirection(unit)) return QChar(QChar::ReplacementCharacter);
    return character;
}

QString visibleText(std::string_view bytes) {
    QString text = QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    for (QChar& character : text) character = visible(character);
    return text;
}

}  // namespace

QString displayText(std::string_view bytes) {
    return isolated(visibleText(bytes));
}

QString printedText(std::string_view output) {
    std::size_t shown = std::min(output.size(), mostPrinted);
    const bool cut = shown < output.size();
    // Not within a character.
    while (cut && shown > 0 && (static_cast<unsigned char>(output[shown]) & 0xC0) == 0x80) --shown;
    output = output.substr(0, shown);
    QString text;
    while (!output.empty()) {
        const std::size_t end = std::min(output.find_first_of("\r\n"), output.size());
        std::string line(output.substr(0, end));
        std::replace(line.begin(), line.end(), '\t', ' ');
        text += isolated(visibleText(line));
        if (end == output.size()) break;
        text += u'\n';
        output.remove_prefix(end + (output.substr(end, 2) == "\r\n" ? 2 : 1));
    }
    if (cut) text += QStringLiteral("\n…");
    return text;
}

QString nameText(std::string_view path) {
    const std::string_view last = path.substr(path.rfind('/') + 1);
    return displayText(last.empty() ? path : last);
}

QString folderText(std::string_view path) {
    const std::size_t slash = path.rfind('/');
    return displayText(path.substr(0, slash == 0 ? 1 : slash == std::string_view::npos ? 0 : slash));
}

QString shortenedPath(const QString& displayed) {
    const QString path = withoutIsolation(displayed);
    if (path.size() < wholePathLimit) return displayed;  // a character has at least one code unit

    QList<qsizetype> starts;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, path);
    for (qsizetype at = 0; at >= 0 && at < path.size(); at = finder.toNextBoundary()) starts.append(at);
    if (starts.size() < wholePathLimit) return displayed;
    return isolated(QStringLiteral("…") + path.mid(starts.at(starts.size() - keptOfLongPath)));
}

}  // namespace zelk
