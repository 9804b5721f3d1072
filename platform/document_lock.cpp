#include "platform/document_lock.h"

#include "platform/file_bytes.h"
#include "platform/hidden_names.h"
#include "platform/resolve.h"
#include "platform/runtime_folder.h"
#include "platform/sha256.h"

#include <charconv>
#include <climits>
#include <fcntl.h>
#include <unistd.h>

namespace quillfern::platform {
namespace {

LockError no_lock(std::string path, int error)
{
    return {.held = false, .holder = {}, .systemError = error, .path = std::move(path)};
}

Result<std::string, LockError> key_of(const std::string& document, SystemCalls& calls)
{
    const SplitPath split = split_path(resolve_document(document));
    const Descriptor folder = open_folder_to_pass(calls, split.folder);
    struct stat status = {};
    if (!folder || calls.status(folder.get(), status) != 0)
        return fail(no_lock(split.folder, errno));
    return hex(sha256(std::to_string(status.st_dev) + ' ' + std::to_string(status.st_ino) + ' ' + split.name));
}

std::string host_name()
{
    char name[HOST_NAME_MAX + 1] = {};
    gethostname(name, HOST_NAME_MAX);
    return name;
}

/// The file's text: the process, a blank, the host.
void write_holder(SystemCalls& calls, int file)
{
    const std::string text = std::to_string(getpid()) + ' ' + host_name() + '\n';
    if (ftruncate(file, 0) == 0)
        write_bytes(calls, file, text); // Who holds it is a courtesy; holding it is not affected.
}

LockHolder read_holder(SystemCalls& calls, int file)
{
    LockHolder holder;
    std::string text;
    if (read_bytes(calls, file, 4096, text) != 0)
        return holder;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), holder.process);
    if (error != std::errc() || *end != ' ' || !text.ends_with('\n'))
        return {};
    holder.host = std::string_view(text).substr(static_cast<std::size_t>(end + 1 - text.data()));
    holder.host.pop_back();
    return holder;
}

} // namespace

Result<DocumentLock, LockError> DocumentLock::acquire(const std::string& document, SystemCalls& calls)
{
    const auto folder = runtime_folder(calls);
    if (!folder)
        return fail(no_lock(folder.error().path, folder.error().systemError));
    return acquire_in(*folder, document, calls);
}

Result<DocumentLock, LockError> DocumentLock::acquire_in(
    const std::string& folder, const std::string& document, SystemCalls& calls)
{
    const auto key = key_of(document, calls);
    if (!key)
        return fail(key.error());
    // The file stays when the lock goes: removing one that another program is about to lock would let two hold it.
    const std::string path = join_path(folder, *key + ".lock");
    Descriptor file = open_file(calls, AT_FDCWD, path.c_str(), O_RDWR | O_CREAT, 0600);
    if (!file)
        return fail(no_lock(path, errno));
    if (retrying([&] { return calls.lock(file.get()); }) != 0) {
        if (errno != EAGAIN && errno != EACCES)
            return fail(no_lock(path, errno));
        return fail(LockError{.held = true, .holder = read_holder(calls, file.get()), .systemError = 0, .path = path});
    }
    write_holder(calls, file.get());
    return DocumentLock(std::move(file));
}

} // namespace quillfern::platform
