#pragma once

#include "platform/system_calls.h"

#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <string>
#include <string_view>

namespace quillfern::faults {

/// Fails one call, or every call from one on. Everything else is really done.
class FailingCalls : public platform::SystemCalls {
public:
    enum class Lasting { once, fromThenOn };

    FailingCalls(int call, int error, Lasting lasting) : call_(call), error_(error), lasting_(lasting) { }

    /// Whether the call that was to fail was reached.
    bool reached() const { return count_ > call_; }

    int open_at(int folder, const char* name, int flags, mode_t mode) override
    {
        return fails() ? -1 : SystemCalls::open_at(folder, name, flags, mode);
    }
    int close(int file) override
    {
        const int result = SystemCalls::close(file); // A failing close has closed, too.
        return fails() ? -1 : result;
    }
    ssize_t read(int file, void* bytes, std::size_t count) override
    {
        return fails() ? -1 : SystemCalls::read(file, bytes, count);
    }
    ssize_t write(int file, const void* bytes, std::size_t count) override
    {
        return fails() ? -1 : SystemCalls::write(file, bytes, count);
    }
    int sync(int file) override { return fails() ? -1 : SystemCalls::sync(file); }
    int status(int file, struct stat& status) override { return fails() ? -1 : SystemCalls::status(file, status); }
    int status_at(int folder, const char* name, struct stat& status) override
    {
        return fails() ? -1 : SystemCalls::status_at(folder, name, status);
    }
    int may_write_at(int folder, const char* name) override
    {
        return fails() ? -1 : SystemCalls::may_write_at(folder, name);
    }
    int list(int folder, std::vector<std::string>& names) override
    {
        return fails() ? -1 : SystemCalls::list(folder, names);
    }
    int make_folder_at(int folder, const char* name, mode_t mode) override
    {
        return fails() ? -1 : SystemCalls::make_folder_at(folder, name, mode);
    }
    int remove_at(int folder, const char* name, int flags) override
    {
        return fails() ? -1 : SystemCalls::remove_at(folder, name, flags);
    }
    int link_at(int from_folder, const char* from, int to_folder, const char* to) override
    {
        if (no_links)
            return errno = EPERM, -1;
        return fails() ? -1 : SystemCalls::link_at(from_folder, from, to_folder, to);
    }
    int rename_at(int from_folder, const char* from, int to_folder, const char* to, unsigned flags) override
    {
        if (two_steps && flags != 0)
            return errno = EINVAL, -1;
        const auto is_there = [&](std::string_view path) {
            return !other_disk.empty() && path.starts_with(other_disk);
        };
        if (from_folder == AT_FDCWD && is_there(from) != is_there(to))
            return errno = EXDEV, -1;
        if (renames_all_the_same) {
            const int result = SystemCalls::rename_at(from_folder, from, to_folder, to, flags);
            return fails() ? -1 : result;
        }
        return fails() ? -1 : SystemCalls::rename_at(from_folder, from, to_folder, to, flags);
    }
    int clone(int to, int from) override { return fails() ? -1 : SystemCalls::clone(to, from); }
    int set_times(int file, const struct timespec times[2]) override
    {
        return fails() ? -1 : SystemCalls::set_times(file, times);
    }
    int set_mode(int file, mode_t mode) override { return fails() ? -1 : SystemCalls::set_mode(file, mode); }
    ssize_t list_attributes(int file, char* names, std::size_t size) override
    {
        return fails() ? -1 : SystemCalls::list_attributes(file, names, size);
    }

    bool no_links = false; ///< as on a FAT disk
    bool two_steps = false; ///< as on a disk that cannot exchange folders
    std::string other_disk; ///< a folder that is one, by its path
    bool renames_all_the_same = false; ///< a failing rename has happened, as on network disks

private:
    bool fails()
    {
        const int number = count_++;
        const bool hit = lasting_ == Lasting::once ? number == call_ : number >= call_;
        if (hit)
            errno = error_;
        return hit;
    }

    std::atomic<int> count_ = 0;
    int call_;
    int error_;
    Lasting lasting_;
};

} // namespace quillfern::faults
