// SPDX-License-Identifier: MIT
// The texts for people that stand in layers without Qt.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

/// Marks a literal for translation and leaves it as it is: a row of a table, which is translated where it is shown.
/// lupdate takes this macro for QT_TRANSLATE_NOOP and translated() for QCoreApplication::translate().
#define ZELK_TEXT(context, text) text

namespace zelk {

/// `text` in the user's language, UTF-8; itself where nothing translates. lupdate sees it where both are literals. Safe
/// from any thread.
std::string translated(const char* context, std::string_view text);

/// `pattern` with these words in the places of "%1", "%2" and so on, each as it is: no placeholder in a word counts.
std::string filled(std::string_view pattern, std::initializer_list<std::string_view> words);

/// Both arguments end with a null.
using Translation = std::string (*)(const char* context, const char* text);

/// Sets what translated() asks, or nothing for a null pointer. To be called before other threads ask.
void setTranslation(Translation translation);

}  // namespace zelk
