#include "tests/faults/versions.h"

#include "platform/file_bytes.h"
#include "platform/hidden_names.h"

#include <fcntl.h>

namespace quillfern::faults {

using namespace platform;

const PackageLayout layout{.mainFile = "Quillfern.json", .attachmentsFolder = "Attachments", .logoFile = "Logo.png"};

namespace {

const std::string shared_name = "shared";
const std::string shared_bytes(100'000, 's');

std::string own_name(int number)
{
    return "own-" + std::to_string(number);
}

/// Long enough for several blocks; every line names the state.
std::string own_text(int number, std::size_t lines)
{
    const std::string one = std::to_string(number) + '\n';
    std::string text;
    for (std::size_t line = 0; line < lines; ++line)
        text += one;
    return text + "end\n";
}

std::string main_text(int number)
{
    return own_text(number, 20'000);
}

std::string logo_bytes(int number)
{
    return own_text(number, 300);
}

std::string own_bytes(int number)
{
    return own_text(number, 2'000);
}

std::string fault_of(const PackageRead& read, int number)
{
    const PackageContents& contents = read.contents;
    if (contents.mainText != main_text(number))
        return "the text is torn";
    if (contents.attachments.size() != 2 || !contents.attachments.contains(shared_name)
        || !contents.attachments.contains(own_name(number)))
        return "other attachments than the text's";
    if (!contents.logo)
        return "no logo";
    const std::pair<const Blob&, std::string> blobs[] = {{contents.attachments.at(shared_name), shared_bytes},
        {contents.attachments.at(own_name(number)), own_bytes(number)}, {*contents.logo, logo_bytes(number)}};
    for (const auto& [blob, bytes] : blobs) {
        const auto found = blob.read();
        if (!found)
            return "a file cannot be read";
        if (**found != bytes)
            return "a file is torn";
    }
    return "";
}

bool overwrite(SystemCalls& calls, const std::string& path, std::string_view bytes)
{
    Descriptor file = open_file(calls, AT_FDCWD, path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    return file && write_bytes(calls, file.get(), bytes) == 0 && calls.sync(file.get()) == 0 && file.close() == 0;
}

} // namespace

PackageContents version(int number, const PackageContents* before)
{
    PackageContents contents;
    contents.mainText = main_text(number);
    contents.logo = Blob(logo_bytes(number));
    contents.attachments.emplace(own_name(number), Blob(own_bytes(number)));
    contents.attachments.emplace(shared_name, before ? before->attachments.at(shared_name) : Blob(shared_bytes));
    return contents;
}

Verdict judge(const PackageRead& read)
{
    const int number = std::atoi(read.contents.mainText.c_str());
    const std::string fault = fault_of(read, number);
    return fault.empty() ? Verdict{number, ""} : Verdict{0, fault};
}

Verdict judge(const std::string& path, const DocumentLock* lock)
{
    const auto read = read_package_folder(path, layout, lock);
    if (!read)
        return {0, "it cannot be opened (" + std::to_string(static_cast<int>(read.error().problem)) + ")"};
    return judge(*read);
}

int debris(const std::string& path)
{
    const SplitPath split = split_path(path);
    const Descriptor folder = open_folder(system_calls(), split.folder);
    std::vector<std::string> names;
    system_calls().list(folder.get(), names);
    int count = 0;
    for (const std::string& name : names)
        count += name.starts_with(".~") ? 1 : 0;
    return count;
}

bool save_in_place(SystemCalls& calls, const std::string& path, int number)
{
    return overwrite(calls, path + "/Attachments/" + own_name(number), own_bytes(number))
        && overwrite(calls, path + "/Logo.png", logo_bytes(number))
        && overwrite(calls, path + "/Quillfern.json", main_text(number))
        && calls.remove_at(AT_FDCWD, (path + "/Attachments/" + own_name(number - 1)).c_str()) == 0;
}

} // namespace quillfern::faults
