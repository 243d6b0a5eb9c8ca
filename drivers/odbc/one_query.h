#pragma once

#include <cstddef>
#include <string>

namespace varnel::drivers {

/// A command text that was found to be one query.
struct OneQuery {
    std::string text;  ///< From its first word to its last, as drivers recognise it.
    std::size_t parameters = 0;
};

/// Raises an error when the text is no statement, more than one, begins like one that does more
/// than read, or holds what databases do not all read alike (E'…', $…$, […], `…`, {…}, a comment in
/// a comment, a literal without an end): there a second statement could hide. What a reading
/// statement may do beyond that is for the read-only session to refuse.
OneQuery FindQuery(const std::string& text);

}  // namespace varnel::drivers
