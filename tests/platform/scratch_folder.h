#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace quillfern::platform {

/// A folder of its own for one test, removed at the end.
class ScratchFolder {
public:
    ScratchFolder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "quillfern-test-XXXXXX").string();
        path_ = mkdtemp(name.data());
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    std::string operator/(std::string_view name) const { return (path_ / name).string(); }
    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};

inline void put(const std::string& path, std::string_view text)
{
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << text;
}

inline std::string get(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Names in a folder, sorted.
inline std::vector<std::string> entries(const std::filesystem::path& folder)
{
    std::vector<std::string> names;
    for (const auto& each : std::filesystem::directory_iterator(folder))
        names.push_back(each.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace quillfern::platform
