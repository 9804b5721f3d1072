#include "platform/random_uuid.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <sys/random.h>

namespace quillfern::platform {
namespace {

/// Without randomness two records could share an identifier, so there is no going on.
void fill_randomly(std::array<std::uint8_t, 16>& bytes)
{
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        const ssize_t count = getrandom(bytes.data() + filled, bytes.size() - filled, 0);
        if (count < 0 && errno != EINTR) {
            std::perror("getrandom");
            std::abort();
        }
        filled += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
}

} // namespace

Uuid random_uuid()
{
    Uuid uuid;
    fill_randomly(uuid.bytes);
    uuid.bytes[6] = static_cast<std::uint8_t>((uuid.bytes[6] & 0x0F) | 0x40); // the version
    uuid.bytes[8] = static_cast<std::uint8_t>((uuid.bytes[8] & 0x3F) | 0x80); // the variant
    return uuid;
}

} // namespace quillfern::platform
