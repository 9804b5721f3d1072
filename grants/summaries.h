#pragma once

#include "base/shared.h"
#include "grants/grant_file.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

/// Figures over the grants of one file: the pipeline by stage, the money of one grant, the years that the file spans.
///
/// Each request counts with its chance: an ask of $40,000 at 50 % weighs $20,000. Each grant's weight is rounded to
/// cents before it is added, so that a total is always the sum of the figures shown beside it. Sums beyond 64 bits of
/// cents stop the program.
namespace quillfern::grants {

/// The chance of an award in percent, 0 to 100: decided by the stage once there is a decision, else the grant's own
/// probability, else what is usual for the stage.
std::int64_t effective_probability(const Grant& grant);

/// The ask at its effective probability; zero without an ask.
Money weighted_ask(const Grant& grant);

/// What an awarded grant brings: the amount awarded, or the ask as long as none is entered. Zero in other stages.
Money award_value(const Grant& grant);

/// The day that places a grant in time and in a fiscal year: the decision where there is one, else the next best date.
std::optional<Day> key_day(const Grant& grant);

struct StageTotal {
    Stage stage = Stage::prospect;
    std::int64_t count = 0;
    Money ask;
    Money weighted;
    Money awarded;

    friend bool operator==(const StageTotal&, const StageTotal&) = default;
};

struct PipelineSummary {
    std::vector<StageTotal> stages; ///< one a stage, all seven, in their order
    std::int64_t openCount = 0;
    Money openAsk;
    Money openWeighted;
    std::int64_t awardedCount = 0;
    Money awarded;
    std::int64_t declinedCount = 0;
    std::optional<std::int64_t> winRate; ///< percent of the decided grants; absent while none is decided

    friend bool operator==(const PipelineSummary&, const PipelineSummary&) = default;
};

struct PaymentSummary {
    Money scheduled;
    Money received;
    Money outstanding;
    Money overdue; ///< of the outstanding, what was expected before today
    Money shortfall; ///< what received payments lacked; one paid over does not make up for another
    Money unscheduled; ///< the award less what is scheduled; negative when more is

    friend bool operator==(const PaymentSummary&, const PaymentSummary&) = default;
};

struct Pipeline {
    static PipelineSummary summary(std::span<const Shared<Grant>> grants);

    static std::int64_t fiscalYear(const Day& day, const FiscalCalendar& calendar);
    static DayRange range(std::int64_t fiscalYear, const FiscalCalendar& calendar);

    /// The years of the grants' key days and today's, newest first.
    static std::vector<std::int64_t> fiscalYears(const GrantFile& file, const Day& today);

    /// By key day, grants without one first; then by title. With a fiscal year, only its grants.
    static std::vector<Shared<Grant>> grants(const GrantFile& file, std::optional<std::int64_t> fiscalYear = {});

    static std::vector<Shared<Grant>> awards(const GrantFile& file, std::int64_t fiscalYear);
};

struct Payments {
    static PaymentSummary summary(const Grant& grant, const Day& today);

    /// What came in during the year, whichever year the award belongs to.
    static Money received(const GrantFile& file, std::int64_t fiscalYear);
};

} // namespace quillfern::grants
