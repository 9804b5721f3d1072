#include "app/document/storage.h"

namespace quillfern::app {

Storage::Storage(const std::string& folder, Pace pace)
    : versions_(folder + "/versions", "Quillfern.json"), recovery_folder_(folder + "/recovery"), pace_(pace)
{
}

} // namespace quillfern::app
