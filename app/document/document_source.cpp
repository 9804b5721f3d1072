#include "app/document/document_source.h"

#include "grants/sample_organization.h"

#include <QFile>

#include <utility>

namespace quillfern::app {

grants::OrgPackage sample_package(const grants::Day& today)
{
    grants::SampleContent content = grants::sample_content(today, grants::Lang::en);
    grants::AttachmentBytes attachments;
    for (auto& [name, bytes] : content.attachments)
        attachments.emplace(name, platform::Blob(std::move(bytes)));
    return {std::move(content.file), std::move(attachments), platform::Blob(std::string(content.logo))};
}

ReadResult DocumentSource::read(const QString& path)
{
    return grants::read_package(QFile::encodeName(path).toStdString());
}

grants::OrgPackage DocumentSource::sample(const grants::Day& today)
{
    return sample_package(today);
}

} // namespace quillfern::app
