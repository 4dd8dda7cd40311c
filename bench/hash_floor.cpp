// SPDX-License-Identifier: MIT
// hash_floor < PATHS: reads and hashes files one after the other and does nothing else, as the lower bound of the
// search for duplicates, with the same size of reads and the same library. Each path ends with a zero byte. Prints
// {"seconds":…,"bytes":…}; the time begins when all paths are read.
#include <fcntl.h>
#include <openssl/evp.h>
#include <unistd.h>

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

constexpr std::size_t chunkBytes = 1'048'576;
constexpr std::size_t alignment = 4096;

std::string everythingFrom(std::FILE* file) {
    std::string text;
    char part[4096];
    while (const std::size_t got = std::fread(part, 1, sizeof part, file)) text.append(part, got);
    return text;
}

}  // namespace

int main() {
    const std::string paths = everythingFrom(stdin);
    EVP_MD* const algorithm = EVP_MD_fetch(nullptr, "SHA256", nullptr);
    EVP_MD_CTX* const state = EVP_MD_CTX_new();
    auto* const buffer = static_cast<unsigned char*>(std::aligned_alloc(alignment, chunkBytes));
    if (algorithm == nullptr || state == nullptr || buffer == nullptr) return 1;

    const auto start = std::chrono::steady_clock::now();
    std::uint64_t bytes = 0;
    for (std::size_t at = 0; at < paths.size(); at = paths.find('\0', at) + 1) {
        const int file = open(paths.c_str() + at, O_RDONLY | O_CLOEXEC);
        if (file < 0) continue;
        EVP_DigestInit_ex2(state, algorithm, nullptr);
        for (ssize_t got = 0; (got = read(file, buffer, chunkBytes)) > 0; bytes += static_cast<std::uint64_t>(got))
            EVP_DigestUpdate(state, buffer, static_cast<std::size_t>(got));
        unsigned char digest[EVP_MAX_MD_SIZE];
        EVP_DigestFinal_ex(state, digest, nullptr);
        close(file);
    }
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    std::printf("{\"seconds\":%.6f,\"bytes\":%llu}\n", seconds.count(), static_cast<unsigned long long>(bytes));
    std::free(buffer);
    EVP_MD_CTX_free(state);
    EVP_MD_free(algorithm);
    return 0;
}
