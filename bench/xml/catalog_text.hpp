#ifndef QUOR_BENCH_XML_CATALOG_TEXT_HPP
#define QUOR_BENCH_XML_CATALOG_TEXT_HPP

#include <cstddef>
#include <string>

namespace xml_bench {

/// A message catalog as programs ship it: a few catalogs in one language, each with messages
/// that are grouped by their names' beginnings but not sorted; texts with arguments, breaks,
/// entities and words beyond ASCII, comments between the groups. All names differ, and no text
/// has two white-space characters in a row or blanks alone between two tags. The same for
/// the same number of messages.
std::string catalog_text(std::size_t messages);

} // namespace xml_bench

#endif
