#pragma once

namespace varnel::company {

/// The file texts.tsv: a line each of number, English, French and where the text stands, separated
/// by tabs; "#" begins a comment line.
extern const char* const kEmbeddedTexts;

}  // namespace varnel::company
