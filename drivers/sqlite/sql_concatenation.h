#pragma once

#include <string>
#include <string_view>

namespace varnel::drivers {

/// The statement with the concatenations of other engines written as SQLite's `||`, because SQLite
/// takes `+` and `&` between texts for arithmetic and gives 0 without a word.
///
///   a & b       →  COALESCE(a,'') || COALESCE(b,'')   null reads as the empty text
///   a + ' ' + b →  a || ' ' || b                      null if either is null
///
/// `&` is always concatenation and binds more loosely than `+`. The `+` signs of a chain are
/// concatenation when an operand is seen to be text: a literal, a concatenation, either of them in
/// parentheses, or a CASE that gives one; a chain with a `-` in it is arithmetic, and so is
/// everything else. Literals, quoted names and comments are never touched, and a statement that has
/// no concatenation comes out byte for byte.
std::string RewriteConcatenation(std::string_view sql);

}  // namespace varnel::drivers
