#pragma once

#include "platform/system_calls.h"

#include <utility>

namespace quillfern::platform {

/// An open file or folder, closed at the end of its life.
class Descriptor {
public:
    Descriptor() = default;
    Descriptor(SystemCalls& calls, int file) : calls_(&calls), file_(file) { }
    Descriptor(Descriptor&& other) noexcept : calls_(other.calls_), file_(std::exchange(other.file_, -1)) { }
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(calls_, other.calls_);
        std::swap(file_, other.file_);
        return *this;
    }
    ~Descriptor()
    {
        const int error = errno; // of the call that made the caller give up
        close();
        errno = error;
    }

    explicit operator bool() const { return file_ >= 0; }
    int get() const { return file_; }

    /// The errno of closing, 0 when all is well. Network file systems report a full disk only here. An interrupted
    /// close has closed all the same.
    int close()
    {
        const int file = std::exchange(file_, -1);
        if (file < 0 || calls_->close(file) == 0 || errno == EINTR)
            return 0;
        return errno;
    }

private:
    SystemCalls* calls_ = nullptr;
    int file_ = -1;
};

inline Descriptor open_file(SystemCalls& calls, int folder, const char* name, int flags, mode_t mode = 0)
{
    return {calls, retrying([&] { return calls.open_at(folder, name, flags, mode); })};
}

} // namespace quillfern::platform
