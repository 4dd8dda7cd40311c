// SPDX-License-Identifier: MIT
#include "cli/Arguments.h"

#include <cstddef>
#include <utility>

#include "cli/VisibleText.h"
#include "platform/Text.h"

namespace zelk::cli {

namespace {

std::string quoted(std::string_view word) {
    return "\"" + visibleText(word) + "\"";
}

/// The words not yet read, and what those before asked for.
class Reading {
public:
    explicit Reading(const std::vector<std::string>& words) : words_(words) {}

    Arguments all() {
        while (next_ < words_.size() && asked_.refusal.empty() && asked_.action == Arguments::Action::survey)
            take(words_[next_++]);
        if (!asked_.refusal.empty() || asked_.action != Arguments::Action::survey) return std::move(asked_);
        if (asked_.roots.empty()) refuse("No folder is named.");
        if (asked_.json && asked_.exportsToOutput()) refuse("--json and --ncdu - would both write to standard output.");
        return std::move(asked_);
    }

private:
    void refuse(std::string sentence) {
        if (asked_.refusal.empty()) asked_.refusal = std::move(sentence);
    }

    void take(const std::string& word) {
        if (onlyRoots_ || word == "-" || !word.starts_with('-')) return takeRoot(word);
        const std::size_t equals = word.find('=');
        const std::string name = word.substr(0, equals);
        const bool hasValue = equals != std::string::npos;
        if (name == "--top" || name == "--ncdu") {
            if (!hasValue && next_ == words_.size()) return refuse(name + " needs a value.");
            takeValue(name, hasValue ? word.substr(equals + 1) : words_[next_++]);
        } else if (hasValue && (name == "--json" || name == "--help" || name == "--version")) {
            refuse(name + " takes no value.");
        } else if (word == "--") {
            onlyRoots_ = true;
        } else if (word == "--json") {
            asked_.json = true;
        } else if (word == "--help") {
            asked_.action = Arguments::Action::help;
        } else if (word == "--version") {
            asked_.action = Arguments::Action::version;
        } else {
            refuse("There is no option " + quoted(word) + ".");
        }
    }

    void takeRoot(const std::string& word) {
        if (word.empty()) return refuse("An empty word names no folder.");
        asked_.roots.push_back(word);
    }

    void takeValue(const std::string& name, const std::string& value) {
        if (name == "--ncdu") {
            if (asked_.ncdu) return refuse("--ncdu is given twice.");
            if (value.empty()) return refuse("An empty word names no file.");
            asked_.ncdu = value;
            return;
        }
        if (std::exchange(hasTop_, true)) return refuse("--top is given twice.");
        const std::optional<std::uint64_t> number = parseNumber<std::uint64_t>(value);
        if (!number) return refuse("--top needs a whole number, and " + quoted(value) + " is none.");
        asked_.top = *number;
    }

    const std::vector<std::string>& words_;
    std::size_t next_ = 0;
    bool onlyRoots_ = false;
    bool hasTop_ = false;
    Arguments asked_;
};

}  // namespace

Arguments parseArguments(const std::vector<std::string>& words) {
    return Reading(words).all();
}

}  // namespace zelk::cli
