#include "app/early_read.h"

#include "app/document/package_path.h"

#include <QFile>

namespace quillfern::app {

// The reading threads use nothing of the toolkit: it takes the first thread that it sees for the main one.
EarlyRead::EarlyRead(const Options& options)
{
    if (!options.files.isEmpty()) {
        path_ = package_path(options.files.front());
        read_ = std::async(
            std::launch::async, [path = QFile::encodeName(path_).toStdString()] { return grants::read_package(path); });
    } else if (options.sample) {
        sample_day_ = options.clock()();
        sample_ = std::async(std::launch::async, [day = sample_day_] { return sample_package(day); });
    }
}

ReadResult EarlyRead::read(const QString& path)
{
    return read_.valid() && path == path_ ? read_.get() : DocumentSource::read(path);
}

grants::OrgPackage EarlyRead::sample(const grants::Day& today)
{
    return sample_.valid() && today == sample_day_ ? sample_.get() : DocumentSource::sample(today);
}

} // namespace quillfern::app
