#pragma once

#include "grants/grant_file.h"
#include "grants/sample_frame.h"

#include <map>
#include <string>
#include <vector>

namespace quillfern::grants {

/// The sample's funders, in the order of their list.
enum class SampleFunder {
    holloway,
    kestrelFoundation,
    kestrelHealth,
    marlowe,
    ostrander,
    saintBrannoc,
    foodAccess,
    tessaly,
    pemberwick
};

inline constexpr std::string_view dana = "Dana Whitlock";
inline constexpr std::string_view luis = "Luis Arroyo";
inline constexpr std::string_view marguerite = "Marguerite Okafor";

/// Writes one grant of the sample down; identifiers and file sizes come by themselves.
class SampleGrant {
public:
    Grant grant;
    std::map<std::string, std::string> files; ///< stored name to bytes

    SampleGrant(const SampleFrame& frame, std::uint32_t number, Stage stage, SampleFunder funder);

    SampleGrant& named(std::string title, std::string program, std::string_view owner);
    SampleGrant& asking(std::int64_t units);
    SampleGrant& awarded(std::int64_t units, const Day& start, const Day& end, ReportFrequency frequency);
    SampleGrant& payment(const Day& expected, std::int64_t units, std::string note = {});
    SampleGrant& received(const Day& day); ///< the payment named last
    SampleGrant& milestone(std::string title, DateRule rule, bool done = false);
    SampleGrant& pdf(
        const std::string& name, AttachmentKind kind, Instant added, const std::vector<std::string>& lines);
    SampleGrant& file(std::string name, AttachmentKind kind, Instant added, std::string bytes);

private:
    std::uint32_t record_number(std::size_t index) const;

    const SampleFrame& frame_;
    std::uint32_t number_;
};

std::vector<SampleGrant> sample_awards(const SampleFrame& frame);
std::vector<SampleGrant> sample_requests(const SampleFrame& frame);
std::vector<Funder> sample_funders(const SampleFrame& frame);
std::vector<Person> sample_people(const SampleFrame& frame);

} // namespace quillfern::grants
