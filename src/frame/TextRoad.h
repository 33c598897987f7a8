// The frames' short road: the reply is walked once, what stands beside the value becomes the root of a document, and
// the records are read from the text itself (record/ReadText.h). Which commands take it is settled by their words and
// tables. Where a reply turns out to be none that it can read, or fails, everything is put back as it was and the
// document's road gives the answer: it is the referee.
#pragma once

#include "frame/ReplySteps.h"

#include <optional>

namespace orrery {

// Why the replies of a command are always read by way of a document; null when they are not.
const char* WhyByDocument(const record::Table& table, const ParseFrame& frame) noexcept;
const char* WhyByDocument(const record::Table& table, const GenericFrame& frame) noexcept;

// None, and the buffer as it was, when the document has to be read. The buffer has been cleared as the frame says.
std::optional<Outcome> ParseFamilyText(const record::Table& table, const ParseFrame& frame, const ParseRequest& request,
                                       std::uint32_t stride) noexcept;
bool ParseGenericText(const record::Table& table, const GenericFrame& frame, const ParseRequest& request) noexcept;

} // namespace orrery
