#ifndef QUOR_SRC_CONFIG_CONFIG_FILE_WRITER_HPP
#define QUOR_SRC_CONFIG_CONFIG_FILE_WRITER_HPP

#include <utility>
#include <vector>

#include <quor/strings/ustring.hpp>
#include <quor/types/variant.hpp>

namespace QUOR_2_9::config::detail {

/// An entry of a recursive listing: the dotted name, flags and value.
using listed_node = std::pair<strings::ustring8, std::pair<unsigned int, types::variant>>;

/// The text of the file that a tree with this listing is saved as, by the rules told at
/// `file_item::save`. Linear in listing and text.
/// @throws what the handler of `debug::invalid_parameter` throws where an array runs to the
///         end of the listing.
strings::ustring8 config_file_text(std::vector<listed_node> const &listing);

} // namespace QUOR_2_9::config::detail

#endif
