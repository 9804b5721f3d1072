#pragma once

#include "app/document/document_source.h"
#include "app/options.h"

#include <future>
#include <optional>

namespace quillfern::app {

/// Reads the document that the program is started with while the toolkit starts, on another core.
///
/// Only what is asked for first is read early; everything later is read when it is asked for.
class EarlyRead : public DocumentSource {
public:
    explicit EarlyRead(const Options& options);

    ReadResult read(const QString& path) override;
    grants::OrgPackage sample(const grants::Day& today) override;

private:
    QString path_;
    std::future<ReadResult> read_;
    grants::Day sample_day_;
    std::future<grants::OrgPackage> sample_;
};

} // namespace quillfern::app
