// SPDX-License-Identifier: MIT
// Random trees on a real disk, against a script that was written apart.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "fakes/InChild.h"
#include "fakes/TestFiles.h"
#include "platform/NativePlatform.h"
#include "reclaim/DuplicateFinder.h"
#include "zoo/TempFolder.h"

namespace zelk {
namespace {

namespace fs = std::filesystem;
using Strings = std::vector<std::string>;

constexpr std::int64_t minimum = 1'000;
constexpr int trees = 200;

/// Makes a tree of few sizes and contents, so that much is equal, and of all that the search has to leave out.
class RandomTree {
public:
    RandomTree(std::string root, unsigned seed) : root_(std::move(root)), random_(seed) {}

    /// Returns the roots to search, in random order.
    Strings make() {
        fs::create_directories(root_);
        folders_ = {root_};
        for (int count = pick(12); count > 0; --count) addFolder();
        for (int count = 10 + pick(40); count > 0; --count) addEntry();
        for (const std::string& folder : folders_)
            if (folder != root_ && pick(12) == 0) locked_.push_back(folder);
        Strings roots{root_};
        for (int count = pick(4); count > 0; --count) roots.push_back(folders_[at(folders_)]);
        if (pick(3) == 0) {
            const std::string link = root_ + ".link";
            fs::create_directory_symlink(folders_[at(folders_)], link);
            roots.push_back(link);
        }
        if (pick(5) == 0) roots.push_back(root_ + "/missing");
        std::shuffle(roots.begin(), roots.end(), random_);
        return roots;
    }
    /// Takes some permissions away; after the tree was given to its user.
    void lock() const {
        for (const std::string& path : locked_) ::chmod(path.c_str(), 0);
    }

private:
    int pick(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }
    std::size_t at(const Strings& list) { return static_cast<std::size_t>(pick(static_cast<int>(list.size()))); }

    std::string name() {
        static const std::array<const char*, 16> special{
            ".hidden", ".git",  "node_modules", "A.app",  "B.framework", "Caches", "x.app", "Library",
            "a\nb",    "\xFF!", "\xC3\xA9",     "a b\tc", "-rf",         "~",      "%41",   "\\"};
        if (pick(4) == 0) return special[static_cast<std::size_t>(pick(static_cast<int>(special.size())))];
        std::string any;
        for (int length = 1 + pick(6); length > 0; --length) {
            const char byte = static_cast<char>(1 + pick(255));
            any += byte == '/' ? 's' : byte;
        }
        return any == "." || any == ".." ? "dots" : any;
    }
    std::string newPath() {
        std::string path = folders_[at(folders_)] + "/" + name();
        while (fs::exists(fs::symlink_status(path))) path += "2";
        return path;
    }
    void addFolder() {
        const std::string path = newPath();
        fs::create_directory(path);
        folders_.push_back(path);
    }
    void addEntry() {
        const std::string path = newPath();
        switch (files_.empty() ? 0 : pick(12)) {
            case 1:
                return fs::create_hard_link(files_[at(files_)], path);
            case 2:
                return fs::create_symlink(files_[at(files_)], path);
            case 3:
                return fs::create_directory_symlink(folders_[at(folders_)], path);
            case 4:
                ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
                return;
            default:
                addFile(path);
        }
    }
    void addFile(const std::string& path) {
        static constexpr std::array<std::size_t, 6> sizes{999, 1'000, 1'001, 5'000, 5'000, 1'100'000};
        const std::size_t size = sizes[static_cast<std::size_t>(pick(sizes.size()))];
        const int kind = pick(6);
        if (kind == 0) {  // a hole
            fakes::writeFile(path, "");
            fs::resize_file(path, size);
        } else {
            std::string content(size, kind < 3 ? '\0' : 'x');
            // Equal but for one byte, at either end.
            if (kind == 2) content.front() = static_cast<char>(pick(2));
            if (kind >= 4) content.back() = static_cast<char>('0' + pick(3));
            fakes::writeFile(path, content);
        }
        files_.push_back(path);
        if (pick(15) == 0) locked_.push_back(path);
    }

    const std::string root_;
    std::mt19937 random_;
    Strings folders_;
    Strings files_;
    Strings locked_;
};

std::string hexadecimal(const std::string& bytes) {
    std::string text;
    for (const char byte : bytes) {
        std::array<char, 3> digits{};
        std::snprintf(digits.data(), digits.size(), "%02x", static_cast<unsigned char>(byte));
        text += digits.data();
    }
    return text;
}

}  // namespace

TEST(DuplicateTrees, setsEqualThoseOfAnIndependentScript) {
    const zoo::TempFolder temp;
    const std::string home = fs::canonical(temp.path()).string() + "/home";
    fs::create_directories(home + "/snap");
    std::vector<Strings> searches;
    std::vector<RandomTree> all;
    for (unsigned seed = 0; seed < trees; ++seed) {
        // Some lie where the packages of the system keep copies.
        const std::string place = seed % 20 == 0 ? "/snap/t" : "/t";
        searches.push_back(all.emplace_back(home + place + std::to_string(seed), seed).make());
    }
    fakes::giveToOrdinaryUser(temp.path());
    for (const RandomTree& tree : all) tree.lock();

    std::string input;
    for (const Strings& roots : searches) {
        for (const std::string& root : roots) input += root + '\0';
        input += '\0';
    }
    fakes::writeFile(temp / "roots", input);
    const std::string command = "python3 '" ZELK_SOURCE_DIR "/tests/reclaim/find_duplicates.py' " +
                                std::to_string(minimum) + " '" + home + "' < '" + (temp / "roots") + "'";

    EXPECT_TRUE(fakes::asOrdinaryUser([&] {
        std::string found;
        std::size_t sets = 0;
        {
            NativePlatform native(home);
            const DuplicateFinder finder(native.platform());
            for (const Strings& roots : searches) {
                found += "roots\n";
                for (const DuplicateGroup& group : finder.find(roots, minimum)) {
                    found += group.hash;
                    for (const std::string& path : group.paths) found += " " + hexadecimal(path);
                    found += "\n";
                    ++sets;
                }
            }
            native.drain(60);
        }
        std::string expected;
        std::FILE* const pipe = ::popen(command.c_str(), "r");
        std::array<char, 4096> part{};
        while (const std::size_t got = std::fread(part.data(), 1, part.size(), pipe)) expected.append(part.data(), got);
        EXPECT_EQ(::pclose(pipe), 0);
        EXPECT_EQ(found, expected);
        EXPECT_GT(sets, 2U * trees);
        std::fflush(stdout);
        return !testing::Test::HasFailure();
    }));
}

}  // namespace zelk
