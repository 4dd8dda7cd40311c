// SPDX-License-Identifier: MIT
// duplicates [--minimum N] [--no-read-ahead] [--candidates] ROOT...: finds duplicates of at least N bytes (2,000,000)
// with the real finder and prints one JSON object: the groups as the application lists them, the seconds that the
// search for files and the hashing took, and the bytes that were hashed. --candidates prints only the paths of the
// files that it would hash, each followed by a zero byte.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "cli/JsonWriter.h"
#include "cli/Output.h"
#include "platform/NativePlatform.h"
#include "platform/Text.h"
#include "platform/Utf8.h"
#include "reclaim/DuplicateFinder.h"

namespace {

using namespace zelk;
using Watch = std::chrono::steady_clock;

struct Options {
    std::vector<std::string> roots;
    std::int64_t minimum = DuplicateFinder::usualMinimum;
    bool readsAhead = true;
    bool candidates = false;
    bool valid = true;
};

Options optionsFrom(int count, char** words) {
    Options options;
    for (int at = 1; at < count; ++at) {
        const std::string word = words[at];
        if (word == "--no-read-ahead") {
            options.readsAhead = false;
        } else if (word == "--candidates") {
            options.candidates = true;
        } else if (word == "--minimum") {
            const auto number = at + 1 < count ? parseNumber<std::int64_t>(words[++at]) : std::nullopt;
            options.valid = options.valid && number.has_value();
            options.minimum = number.value_or(0);
        } else {
            options.roots.push_back(word);
        }
    }
    options.valid = options.valid && !options.roots.empty();
    return options;
}

std::string jsonOf(DuplicateFinder& finder, const Options& options) {
    const auto start = Watch::now();
    auto listed = start;
    std::int64_t hashed = 0;
    finder.listed = [&] { listed = Watch::now(); };
    finder.progress = [&](const HashProgress& progress) { hashed = progress.hashed; };
    const std::vector<DuplicateGroup> groups = finder.find(options.roots, options.minimum);
    const auto end = Watch::now();

    bool escaped = false;
    for (const DuplicateGroup& group : groups)
        for (const std::string& path : group.paths) escaped = escaped || !isUtf8(path);
    std::string text;
    cli::Output output([&text](std::string_view bytes) {
        text += bytes;
        return 0;
    });
    cli::JsonWriter json(output);
    json.open('{').key("groups").open('[');
    for (const DuplicateGroup& group : groups) {
        json.open('{').key("hash").text(group.hash).key("size").number(group.size).key("paths").open('[');
        for (const std::string& path : group.paths) json.text(escaped ? percentEncoded(path) : path);
        json.close(']').close('}');
    }
    json.close(']');
    if (escaped) json.key("pathsEscaped").boolean(true);
    const auto seconds = [](auto from, auto to) { return std::chrono::duration<double>(to - from).count(); };
    json.key("seconds").open('{').key("list").number(seconds(start, listed));
    json.key("hash").number(seconds(listed, end)).close('}').key("bytesHashed").number(hashed).close('}');
    output.finish();
    return text + "\n";
}

std::string pathsOf(const DuplicateFinder& finder, const Options& options) {
    std::string paths;
    for (const std::string& path : finder.candidates(options.roots, options.minimum)) paths += path + '\0';
    return paths;
}

}  // namespace

int main(int count, char** words) {
    const Options options = optionsFrom(count, words);
    if (!options.valid) {
        std::fprintf(stderr, "usage: duplicates [--minimum N] [--no-read-ahead] [--candidates] ROOT...\n");
        return 2;
    }
    NativePlatform native;
    DuplicateFinder finder(native.platform());
    finder.readsAhead = options.readsAhead;
    const std::string output = options.candidates ? pathsOf(finder, options) : jsonOf(finder, options);
    const bool printed = std::fwrite(output.data(), 1, output.size(), stdout) == output.size();
    const int status = std::fflush(stdout) == 0 && printed ? 0 : 1;
    if (!native.drain(1.0)) std::_Exit(status);  // a thread still uses the services: do not destroy them
    return status;
}
