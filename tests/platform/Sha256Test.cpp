// SPDX-License-Identifier: MIT
#include "platform/Sha256.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <string>
#include <string_view>

#include "fakes/TestFiles.h"
#include "zoo/TempFolder.h"

namespace zelk {
namespace {

void addText(Sha256& hash, std::string_view text) {
    hash.add(reinterpret_cast<const std::byte*>(text.data()), text.size());
}

std::optional<std::string> digestOf(Sha256& hash, std::string_view text) {
    hash.start();
    addText(hash, text);
    return hash.finish();
}

constexpr const char* ofNothing = "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855";
constexpr const char* ofAbc = "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad";

}  // namespace

TEST(Sha256Digest, isThatOfTheStandard) {
    Sha256 hash;
    EXPECT_EQ(digestOf(hash, ""), ofNothing);
    EXPECT_EQ(digestOf(hash, "abc"), ofAbc);
    EXPECT_EQ(digestOf(hash, std::string(1'000'000, 'a')),
              "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

TEST(Sha256Digest, doesNotDependOnThePieces) {
    Sha256 hash;
    hash.start();
    for (const char* piece : {"a", "", "b", "c"}) addText(hash, piece);
    EXPECT_EQ(hash.finish(), ofAbc);
}

TEST(Sha256Digest, beginsAnewAfterAnUnfinishedOne) {
    Sha256 hash;
    hash.start();
    addText(hash, "left");
    EXPECT_EQ(digestOf(hash, "abc"), ofAbc);
}

TEST(Sha256Digest, isAbsentWithoutStart) {
    Sha256 hash;
    EXPECT_EQ(hash.finish(), std::nullopt);
    EXPECT_EQ(digestOf(hash, "abc"), ofAbc);
    EXPECT_EQ(hash.finish(), std::nullopt) << "it was finished already";
    addText(hash, "abc");
    EXPECT_EQ(hash.finish(), std::nullopt);
}

#ifdef __linux__
TEST(Sha256Digest, ignoresTheUsersConfiguration) {
    const zoo::TempFolder temp;
    // Without the default provider, the library has no algorithm at all.
    fakes::writeFile(temp / "openssl.cnf",
                     "openssl_conf = init\n[init]\nproviders = all\n[all]\nbase = on\n[on]\nactivate = 1\n");
    // In a process of its own, since the library reads its configuration once. Not by the path of this program, which
    // leads nowhere after a test that has entered another mount namespace.
    const std::string program = "/proc/" + std::to_string(::getpid()) + "/exe";
    const std::string command = "env -u GTEST_TOTAL_SHARDS -u GTEST_SHARD_INDEX OPENSSL_CONF='" +
                                (temp / "openssl.cnf") + "' '" + program +
                                "' --gtest_filter=Sha256Digest.isThatOfTheStandard > /dev/null 2>&1";
    EXPECT_EQ(std::system(command.c_str()), 0);
}
#endif

}  // namespace zelk
