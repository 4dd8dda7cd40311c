// SPDX-License-Identifier: MIT
#include "platform/Translation.h"

#include <atomic>
#include <cstddef>

namespace zelk {

namespace {

std::atomic<Translation> translationInUse = nullptr;

}  // namespace

std::string translated(const char* context, std::string_view text) {
    const Translation translation = translationInUse;
    std::string own(text);
    return translation == nullptr || own.empty() ? own : translation(context, own.c_str());
}

std::string filled(std::string_view pattern, std::initializer_list<std::string_view> words) {
    std::string text;
    for (std::size_t at = 0; at < pattern.size(); ++at) {
        const bool isPlace = pattern[at] == '%' && at + 1 < pattern.size() && pattern[at + 1] >= '1' &&
                             pattern[at + 1] < static_cast<char>('1' + words.size());
        if (isPlace)
            text += words.begin()[pattern[++at] - '1'];
        else
            text += pattern[at];
    }
    return text;
}

void setTranslation(Translation translation) {
    translationInUse = translation;
}

}  // namespace zelk
