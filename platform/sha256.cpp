#include "platform/sha256.h"

#include <cstdlib>
#include <openssl/evp.h>

namespace quillfern::platform {

struct Sha256::State {
    EVP_MD_CTX* context = EVP_MD_CTX_new();

    State() = default;
    State(const State&) = delete;
    State& operator=(const State&) = delete;
    ~State() { EVP_MD_CTX_free(context); }
};

/// Hashing memory fails only when there is no memory left for the context.
static void require(int result)
{
    if (result != 1)
        std::abort();
}

Sha256::Sha256() : state_(std::make_unique<State>())
{
    require(EVP_DigestInit_ex(state_->context, EVP_sha256(), nullptr));
}

Sha256::~Sha256() = default;

void Sha256::add(std::string_view bytes)
{
    require(EVP_DigestUpdate(state_->context, bytes.data(), bytes.size()));
}

Sha256Value Sha256::finish()
{
    Sha256Value value;
    require(EVP_DigestFinal_ex(state_->context, value.data(), nullptr));
    return value;
}

Sha256Value sha256(std::string_view bytes)
{
    Sha256 hash;
    hash.add(bytes);
    return hash.finish();
}

std::string hex(const Sha256Value& value)
{
    static constexpr char digits[] = "0123456789abcdef";
    std::string text;
    for (const std::uint8_t byte : value) {
        text += digits[byte >> 4];
        text += digits[byte & 0x0F];
    }
    return text;
}

} // namespace quillfern::platform
