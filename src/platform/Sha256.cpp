// SPDX-License-Identifier: MIT
#include "platform/Sha256.h"

#include <openssl/evp.h>

#include <array>
#include <string_view>
#include <utility>

namespace zelk {

/// A library context of its own reads no configuration file: one that leaves out the default provider would leave
/// nothing to fetch the algorithm from. Fetched once, since each implicit fetch takes longer than a small digest.
struct Sha256::Library {
    Library() = default;
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
    ~Library() {
        EVP_MD_CTX_free(state);
        EVP_MD_free(algorithm);
        OSSL_LIB_CTX_free(context);
    }

    OSSL_LIB_CTX* context = OSSL_LIB_CTX_new();
    EVP_MD* algorithm = context == nullptr ? nullptr : EVP_MD_fetch(context, "SHA256", nullptr);
    EVP_MD_CTX* state = EVP_MD_CTX_new();
};

Sha256::Sha256() : library_(std::make_unique<Library>()) {}

Sha256::~Sha256() = default;

void Sha256::start() {
    good_ = library_->algorithm != nullptr && library_->state != nullptr &&
            EVP_DigestInit_ex2(library_->state, library_->algorithm, nullptr) == 1;
}

void Sha256::add(const std::byte* bytes, std::size_t count) {
    good_ = good_ && EVP_DigestUpdate(library_->state, bytes, count) == 1;
}

std::optional<std::string> Sha256::finish() {
    constexpr std::string_view digits = "0123456789abcdef";
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest{};
    unsigned length = 0;
    // The library would take more bytes after the end and say nothing.
    if (!std::exchange(good_, false) || EVP_DigestFinal_ex(library_->state, digest.data(), &length) != 1)
        return std::nullopt;
    std::string text;
    for (unsigned at = 0; at < length; ++at) {
        text += digits[digest[at] >> 4];
        text += digits[digest[at] & 15];
    }
    return text;
}

}  // namespace zelk
