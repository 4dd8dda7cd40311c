// SPDX-License-Identifier: MIT
// Makes a tree to measure on: make_tree DIR SHAPE... The same options give the same tree.
//
//   --files N --folders M   N files in M folders (DIR is one of them), nested about as a home folder is
//   --wide N                one folder of N files, DIR/wide
//   --hardlinks N --of M    N names for M files, in folders below DIR/links
//   --chain N               folders one inside the other, a file in each, below DIR/chain; --name-length L (default 1)
//   --bytes B               mean length of the files of --files that have content (default 4096)
//   --full P                how many files in a hundred of --files have content (default 12)
//   --seed S                another tree of the same size
//
// DIR must be missing, empty, or a tree that this program made: then its content is replaced.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "zoo/RemoveTree.h"

namespace {

constexpr char marker[] = ".make_tree";  // marks a folder whose content may be replaced

/// SplitMix64: short, and with the same results on every standard library.
class Random {
public:
    explicit Random(std::uint64_t seed) : state_(seed) {}
    std::uint64_t next() {
        std::uint64_t mixed = state_ += 0x9E3779B97F4A7C15U;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
        return mixed ^ (mixed >> 31);
    }
    std::uint64_t below(std::uint64_t limit) { return next() % limit; }

private:
    std::uint64_t state_;
};

[[noreturn]] void fail(const std::string& what) {
    std::fprintf(stderr, "make_tree: %s: %s\n", what.c_str(), std::strerror(errno));
    std::exit(1);
}

[[noreturn]] void refuse(const std::string& what) {
    std::fprintf(stderr, "make_tree: %s\n", what.c_str());
    std::exit(2);
}

int made = 0;  // folders created, including DIR
std::int64_t written = 0;

int enterFolder(int parent, const char* name) {
    if (mkdirat(parent, name, 0755) != 0 && errno != EEXIST) fail(name);
    const int fd = openat(parent, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (fd < 0) fail(name);
    ++made;
    return fd;
}

void writeFile(int folder, const char* name, std::uint64_t bytes) {
    static const std::array<char, 65536> zeros{};
    const int fd = openat(folder, name, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    if (fd < 0) fail(name);
    while (bytes > 0) {
        const ssize_t wrote = write(fd, zeros.data(), std::min<std::uint64_t>(bytes, zeros.size()));
        if (wrote < 0) fail(name);
        bytes -= static_cast<std::uint64_t>(wrote);
    }
    close(fd);
    ++written;
}

constexpr std::array words{"cache", "src",  "build", "assets", "node",  "lib",   "index",  "test", "data", "report",
                           "photo", "main", "utils", "config", "model", "draft", "backup", "view", "song", "module"};
constexpr std::array endings{".js",  ".ts",  ".json", ".md",  ".cpp", ".h",   ".o",    ".py", ".png", ".jpg", ".txt",
                             ".map", ".xml", ".html", ".css", ".mp3", ".pdf", ".lock", "",    ".zip", ".yml", ".so"};

std::string nameOf(Random& random, std::size_t number, const char* ending) {
    std::string name = words[random.below(words.size())];
    if (random.below(3) == 0) name.append("-").append(words[random.below(words.size())]);
    return name.append("_").append(std::to_string(number)).append(ending);
}

struct Options {
    std::string folder;
    std::map<std::string, std::uint64_t, std::less<>> numbers{
        {"--seed", 1}, {"--bytes", 4096}, {"--full", 12},     {"--files", 0}, {"--folders", 0},
        {"--wide", 0}, {"--chain", 0},    {"--hardlinks", 0}, {"--of", 0},    {"--name-length", 1}};
    std::uint64_t operator[](std::string_view name) const { return numbers.find(name)->second; }
};

/// Each folder is created in a random earlier one: the mean depth is the logarithm of their number, about 11 for a
/// hundred thousand. Half of the files are spread evenly, half are concentrated in a tenth of the folders.
void makeMixedTree(int top, const Options& options) {
    Random random(options["--seed"]);
    const std::size_t folders = std::max<std::uint64_t>(options["--folders"], 1);
    std::vector<std::vector<std::uint32_t>> below(folders);
    for (std::size_t folder = 1; folder < folders; ++folder)
        below[random.below(folder)].push_back(static_cast<std::uint32_t>(folder));
    std::vector<std::uint32_t> files(folders);
    for (std::uint64_t file = 0; file < options["--files"]; ++file) {
        const std::uint64_t place = random.below(folders);
        ++files[file % 2 == 0 ? place : place / 10 * 10];
    }

    // Depth first with all descriptors on the way open: a random tree is never too deep for that.
    struct Level {
        int fd;
        std::uint32_t folder;
        std::size_t next = 0;
    };
    std::vector<Level> way{{dup(top), 0}};
    while (!way.empty()) {
        Level& level = way.back();
        if (level.next == 0) {
            for (std::uint32_t file = 0; file < files[level.folder]; ++file) {
                const std::string name = nameOf(random, file, endings[random.below(endings.size())]);
                const bool full = random.below(100) < options["--full"];
                writeFile(level.fd, name.c_str(), full ? 1 + random.below(options["--bytes"] * 2) : 0);
            }
        }
        const std::vector<std::uint32_t>& children = below[level.folder];
        if (level.next == children.size()) {
            close(level.fd);
            way.pop_back();
            continue;
        }
        const std::uint32_t child = children[level.next++];
        way.push_back({enterFolder(level.fd, nameOf(random, child, "").c_str()), child});
    }
}

void makeWideFolder(int top, const Options& options) {
    Random random(options["--seed"]);
    const int folder = enterFolder(top, "wide");
    for (std::uint64_t file = 0; file < options["--wide"]; ++file)
        writeFile(folder, nameOf(random, file, endings[random.below(endings.size())]).c_str(), 0);
    close(folder);
}

/// Creates the files folder by folder, a hundred each; their further names in separate folders.
void makeHardLinks(int top, const Options& options) {
    constexpr std::uint64_t perFolder = 100;
    const std::uint64_t files = options["--of"];
    if (files == 0 || files > options["--hardlinks"]) refuse("--hardlinks N needs --of M, and M at most N");
    const int links = enterFolder(top, "links");
    int folder = -1;
    for (std::uint64_t name = 0; name < options["--hardlinks"]; ++name) {
        if (name % perFolder == 0) {
            if (folder >= 0) close(folder);
            folder = enterFolder(links, ("package_" + std::to_string(name / perFolder)).c_str());
        }
        const std::string leaf = "file_" + std::to_string(name) + ".js";
        if (name < files) {
            writeFile(folder, leaf.c_str(), name % 8 == 0 ? 4096 : 1);
            continue;
        }
        const std::uint64_t first = name % files;
        const std::string source =
            "package_" + std::to_string(first / perFolder) + "/file_" + std::to_string(first) + ".js";
        if (linkat(links, source.c_str(), folder, leaf.c_str(), 0) != 0) fail(leaf);
        ++written;
    }
    close(folder);
    close(links);
}

void makeChain(int top, const Options& options) {
    const std::string name(options["--name-length"], 'd');
    int at = enterFolder(top, "chain");
    for (std::uint64_t depth = 0; depth < options["--chain"]; ++depth) {
        const int next = enterFolder(at, name.c_str());
        close(std::exchange(at, next));
        writeFile(at, "file.txt", 1);
    }
    close(at);
}

Options parse(int count, char** words_) {
    Options options;
    for (int at = 1; at < count; ++at) {
        const std::string_view word = words_[at];
        if (!word.starts_with("--")) {
            if (!options.folder.empty()) refuse("one folder only");
            options.folder = word;
            continue;
        }
        const auto option = options.numbers.find(word);
        if (option == options.numbers.end() || ++at == count) refuse("what is " + std::string(word) + "?");
        const std::string_view value = words_[at];
        const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), option->second);
        if (error != std::errc() || end != value.data() + value.size()) refuse("not a number: " + std::string(value));
    }
    if (options.folder.empty()) refuse("usage: make_tree DIR [--files N --folders M] [--wide N] ... (see the source)");
    if (options["--name-length"] < 1 || options["--name-length"] > 255) refuse("--name-length is 1 to 255");
    if (options["--bytes"] < 1) refuse("--bytes is at least 1");
    return options;
}

int openEmptied(const std::string& folder) {
    namespace fs = std::filesystem;
    fs::create_directories(folder);
    if (!fs::is_empty(folder)) {
        if (!fs::exists(folder + "/" + marker)) refuse(folder + " is not empty, and not of this program's making");
        if (!zelk::zoo::removeTree(folder, false)) fail(folder);
    }
    const int top = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (top < 0) fail(folder);
    return top;
}

}  // namespace

int main(int count, char** words_) {
    const Options options = parse(count, words_);
    const int top = openEmptied(options.folder);
    made = 1;
    writeFile(top, marker, 0);
    if (options["--files"] > 0 || options["--folders"] > 0) makeMixedTree(top, options);
    if (options["--wide"] > 0) makeWideFolder(top, options);
    if (options["--hardlinks"] > 0) makeHardLinks(top, options);
    if (options["--chain"] > 0) makeChain(top, options);
    sync();  // keep the tree's writes out of the next measurement
    close(top);
    std::printf("{\"files\":%lld,\"folders\":%d}\n", static_cast<long long>(written), made);
    return 0;
}
