#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace quillfern::platform {

using Sha256Value = std::array<std::uint8_t, 32>;

/// SHA-256 (FIPS 180-4) of bytes that come in pieces.
class Sha256 {
public:
    Sha256();
    ~Sha256();

    void add(std::string_view bytes);
    Sha256Value finish(); ///< the last call

private:
    struct State;
    std::unique_ptr<State> state_;
};

Sha256Value sha256(std::string_view bytes);

std::string hex(const Sha256Value& value); ///< 64 lower-case digits

} // namespace quillfern::platform
