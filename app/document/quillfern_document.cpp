#include "app/document/quillfern_document.h"

#include "app/document/file_names.h"

#include <QFileInfo>

namespace quillfern::app {
namespace {

const QString no_name = QStringLiteral("Untitled");

} // namespace

QuillfernDocument new_document(const NewFileDefaults& defaults)
{
    QuillfernDocument document;
    grants::GrantFile& file = document.package.file;
    file.org.fiscalYearStartMonth = defaults.fiscalStart;
    file.settings.draftLeadDays = defaults.draftLead;
    return document;
}

QuillfernDocument duplicate_of(const QuillfernDocument& document)
{
    QuillfernDocument copy = document;
    grants::AttachmentBytes bytes;
    for (const auto& [name, blob] : *document.package.attachments)
        bytes.emplace(name, blob.independent());
    copy.package.attachments = std::move(bytes);
    if (copy.package.logo)
        copy.package.logo = copy.package.logo->independent();
    return copy;
}

QString document_title(const grants::OrgPackage& package, const QString& path)
{
    if (!package.file.org.name.empty())
        return QString::fromStdString(package.file.org.name);
    return path.isEmpty() ? no_name : document_name(path);
}

QString document_name(const QString& path)
{
    return QFileInfo(path).completeBaseName();
}

QString with_suffix(const QString& name)
{
    const QString suffix = QLatin1Char('.') + QLatin1String(document_suffix);
    return name.endsWith(suffix) ? name : name + suffix;
}

QString proposed_file_name(const grants::OrgPackage& package)
{
    const std::string name = file_name_for(package.file.org.name);
    return name.empty() ? no_name : QString::fromStdString(name);
}

} // namespace quillfern::app
