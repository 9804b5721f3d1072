#pragma once

#include "base/instant.h"
#include "base/read_notes.h"
#include "base/uuid.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quillfern {

/// What a record that lacks its own takes: identifiers and the moment of reading. Passed in, so that reading asks no
/// clock and no random source by itself.
struct FreshValues {
    std::function<Uuid()> uuid;
    Instant now;
};

/// How bad a failure is.
enum class Failing {
    value, ///< this value cannot be read: a lenient key around it takes its default
    document, ///< the text is not JSON, or an identity is missing: nothing of the document is used
};

/// Where reading stands: the path of keys to the present value, the first failure, and what was replaced so far.
class ReadState {
public:
    explicit ReadState(const FreshValues& fresh_values) : fresh(fresh_values) { }

    void enter(std::string_view key) { path_.push_back({key, 0}); }
    void enter(std::size_t index) { path_.push_back({{}, index}); }
    void leave() { path_.pop_back(); }
    void leave_to(std::size_t depth) { path_.resize(depth); } ///< after a failure that was forgiven, too
    std::size_t depth() const { return path_.size(); }

    /// Remembers the failure with the present path. `place` points into the text being read. Always false, so that a
    /// reader can say `return state.fail(...)`.
    bool fail(const char* place, std::string message, Failing failing = Failing::value);

    /// Raises a failure that lenient keys may forgive to one that they may not.
    bool fail_document();

    bool document_failed() const { return failing_ == Failing::document; }
    const ReadError& error() const { return error_; }

    /// Gives the error its line and column in the text that was read.
    void locate_error(std::string_view text);

    /// Turns the failure into a note and goes on with the value at `depth` that forgives it. The note names that value
    /// first, since all of it is replaced: "vote.rollCall: the default stands in for it (vote.rollCall[1].choice:
    /// ...)".
    void forgive(std::size_t depth, std::string_view instead);

    /// A note on the present path.
    void note(std::string_view sentence);

    const FreshValues& fresh;
    ReadNotes notes;

private:
    struct Step {
        std::string_view key; ///< without data for a list element
        std::size_t index = 0;
    };

    std::string path_text() const;

    std::vector<Step> path_;
    ReadError error_;
    const char* error_place_ = nullptr;
    Failing failing_ = Failing::value;
};

} // namespace quillfern
