#pragma once

#include "base/uuid.h"

namespace quillfern::platform {

/// A fresh identifier of 122 random bits (RFC 4122, version 4), from the kernel's generator.
Uuid random_uuid();

} // namespace quillfern::platform
