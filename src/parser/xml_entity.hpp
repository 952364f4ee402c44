#ifndef QUOR_SRC_PARSER_XML_ENTITY_HPP
#define QUOR_SRC_PARSER_XML_ENTITY_HPP

#include <quor/types/widths.hpp>

namespace QUOR_2_9::parser::detail {

// Reads the entity that begins at `it`, which on return stands on its ";". Throws a
// `parse_error` with the given line.
char read_entity(char const *&it, char const *end, types::uint32 line);

} // namespace QUOR_2_9::parser::detail

#endif
