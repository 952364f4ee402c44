#ifndef QUOR_CLI_CATALOG_ARGUMENT_DOUBTS_HPP
#define QUOR_CLI_CATALOG_ARGUMENT_DOUBTS_HPP

#include "catalog/document.hpp"
#include "catalog/finding.hpp"

namespace quor_cli {

// Finds what loads in an argument and is surely wrong. `where` is the message's place.
void add_argument_doubts(argument_use const &argument, std::string const &file, place const &where,
                         finding_list &findings);

} // namespace quor_cli

#endif
